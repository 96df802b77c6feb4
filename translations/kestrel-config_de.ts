<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>EventPatternTool</name>
    <message>
        <source>Enable Off-Event</source>
        <translation>&amp;Aus-Ereignis freigeben</translation>
    </message>
    <message>
        <source>Disable Off-Event</source>
        <translation>Aus-Ereignis &amp;sperren</translation>
    </message>
    <message>
        <source>Execute Off-Event</source>
        <translation>Aus-Ereignis aus&amp;führen</translation>
    </message>
    <message>
        <source>Enable On-Event</source>
        <translation>Ein-Ereignis frei&amp;geben</translation>
    </message>
    <message>
        <source>Disable On-Event</source>
        <translation>Ein-Ereignis spe&amp;rren</translation>
    </message>
    <message>
        <source>Execute On-Event</source>
        <translation>Ein-Ereignis ausfü&amp;hren</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>Lang</name>
    <message>
        <source>Click for copy/paste tools</source>
        <translation>Klicken für Kopieren/Einfügen</translation>
    </message>
    <message>
        <source>Double-click for help-tool</source>
        <translation>Doppelklick für das Hilfswerkzeug</translation>
    </message>
    <message>
        <source>The module has no command to test an aspect, so this is not available</source>
        <translation>Das Modul kennt keinen Befehl zum Testen eines Signalbilds, daher ist dies nicht verfügbar</translation>
    </message>
    <message>
        <source>&amp;Pin Tool...</source>
        <translation>&amp;Pin-Werkzeug...</translation>
    </message>
    <message>
        <source>&amp;Aspect Tool...</source>
        <translation>Si&amp;gnalbild-Werkzeug...</translation>
    </message>
    <message>
        <source>&amp;Step Tool...</source>
        <translation>Sc&amp;hritt-Werkzeug...</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Pin</translation>
    </message>
    <message>
        <source>The pin&apos;s description, kept in the configuration</source>
        <translation>Die Beschreibung des Pins, in der Konfiguration gespeichert</translation>
    </message>
    <message>
        <source>The first pin of the device this pin belongs to</source>
        <translation>Der erste Pin des Bausteins, zu dem dieser Pin gehört</translation>
    </message>
    <message>
        <source>The device&apos;s name, kept by its first pin</source>
        <translation>Der Name des Bausteins, beim ersten Pin gespeichert</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Device pin</source>
        <translation>Baustein-Pin</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Aspects</source>
        <translation>Signalbilder</translation>
    </message>
    <message>
        <source>Addresses:</source>
        <translation>Adressen:</translation>
    </message>
    <message>
        <source>DCC</source>
        <translation>DCC</translation>
    </message>
    <message>
        <source>eXtd DCC</source>
        <translation>eXtd DCC</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriell</translation>
    </message>
    <message>
        <source>DCC addresses</source>
        <translation>DCC-Adressen</translation>
    </message>
    <message>
        <source>eXtd DCC addresses</source>
        <translation>eXtd-DCC-Adressen</translation>
    </message>
    <message>
        <source>Serial addresses</source>
        <translation>Serielle Adressen</translation>
    </message>
    <message>
        <source>Re&amp;ad Pin</source>
        <translation>Pin le&amp;sen</translation>
    </message>
    <message>
        <source>Write Pin</source>
        <translation>Pin schreiben</translation>
    </message>
    <message>
        <source>Read Device</source>
        <translation>Baustein lesen</translation>
    </message>
    <message>
        <source>Write Device</source>
        <translation>Baustein schreiben</translation>
    </message>
    <message>
        <source>Aspect program</source>
        <translation>Signalbild-Programm</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Signalbild</translation>
    </message>
    <message>
        <source>Aspect description</source>
        <translation>Beschreibung des Signalbilds</translation>
    </message>
    <message>
        <source>Initial aspect</source>
        <translation>Anfangs-Signalbild</translation>
    </message>
    <message>
        <source>The aspect the pin shows after power-up; -1 for none</source>
        <translation>Das Signalbild, das der Pin nach dem Einschalten zeigt; -1 für keines</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Instruction</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Click to Insert/Delete step</source>
        <translation>Klicken zum Einfügen/Löschen eines Schritts</translation>
    </message>
    <message>
        <source>Instruction, step </source>
        <translation>Befehl, Schritt </translation>
    </message>
    <message>
        <source>Fade, step </source>
        <translation>Überblenden, Schritt </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details zeigen</translation>
    </message>
    <message>
        <source>Shows or hides the transfer buttons, the step headings and the pin configuration&apos;s parameter buttons</source>
        <translation>Zeigt oder verbirgt die Übertragungsknöpfe, die Schrittüberschriften und die Parameterknöpfe der Pin-Konfiguration</translation>
    </message>
    <message>
        <source>Read Asp&apos;s</source>
        <translation>Signalb. lesen</translation>
    </message>
    <message>
        <source>Write Asp&apos;s</source>
        <translation>Signalb. schreiben</translation>
    </message>
    <message>
        <source>Write Aspect</source>
        <translation>Signalbild schreiben</translation>
    </message>
    <message>
        <source>Test Aspect</source>
        <translation>Signalbild testen</translation>
    </message>
    <message>
        <source>Device definitions</source>
        <translation>Bausteindefinitionen</translation>
    </message>
    <message>
        <source>Device to load</source>
        <translation>Zu ladender Baustein</translation>
    </message>
    <message>
        <source>Load Device</source>
        <translation>Baustein laden</translation>
    </message>
    <message>
        <source>Save Device</source>
        <translation>Baustein speichern</translation>
    </message>
    <message>
        <source>Reload &amp;DD</source>
        <translation>BD neu &amp;laden</translation>
    </message>
    <message>
        <source>Aspect timeline</source>
        <translation>Zeitleiste der Signalbilder</translation>
    </message>
    <message>
        <source>Aspect %1</source>
        <translation>Signalbild %1</translation>
    </message>
    <message>
        <source>Restore from backup</source>
        <translation>Aus Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The read reported problems: this backup may hold values the module never sent</source>
        <translation>Beim Lesen gab es Probleme: diese Sicherung kann Werte enthalten, die das Modul nie gesendet hat</translation>
    </message>
    <message>
        <source>&amp;Backups</source>
        <translation>&amp;Sicherungen</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Read A&amp;ll</source>
        <translation>A&amp;lles lesen</translation>
    </message>
    <message>
        <source>&amp;Write All</source>
        <translation>Alles sc&amp;hreiben</translation>
    </message>
    <message>
        <source>Verif&amp;y All</source>
        <translation>Alles &amp;prüfen</translation>
    </message>
    <message>
        <source>Write Chan&amp;ges</source>
        <translation>Ä&amp;nderungen schreiben</translation>
    </message>
    <message>
        <source>Writes only what differs from the module as it was last read, written or verified</source>
        <translation>Schreibt nur, was vom zuletzt gelesenen, geschriebenen oder geprüften Stand des Moduls abweicht</translation>
    </message>
    <message>
        <source>Compare wi&amp;th Module</source>
        <translation>&amp;Mit Modul vergleichen</translation>
    </message>
    <message>
        <source>Reads the module beside the configuration and lists every difference</source>
        <translation>Liest das Modul neben der Konfiguration und listet jeden Unterschied auf</translation>
    </message>
    <message>
        <source>Write pin configurations too</source>
        <translation>Pin-Konfigurationen mitschreiben</translation>
    </message>
    <message>
        <source>Also writes each pin&apos;s servo, PWM or input parameters to flash</source>
        <translation>Schreibt auch die Servo-, PWM- oder Eingangsparameter jedes Pins in den Flash</translation>
    </message>
    <message>
        <source>&amp;Save File</source>
        <translation>Datei &amp;speichern</translation>
    </message>
    <message>
        <source>Shift+Save File to save compact</source>
        <translation>Umschalt+Datei speichern speichert kompakt</translation>
    </message>
    <message>
        <source>L&amp;oad File</source>
        <translation>Datei la&amp;den</translation>
    </message>
    <message>
        <source>Read All &amp;Pins</source>
        <translation>Alle &amp;Pins lesen</translation>
    </message>
    <message>
        <source>Reads the 32 pins from the module, without the general settings and events</source>
        <translation>Liest die 32 Pins aus dem Modul, ohne die allgemeinen Einstellungen und Ereignisse</translation>
    </message>
    <message>
        <source>Write All Pi&amp;ns</source>
        <translation>Alle Pi&amp;ns schreiben</translation>
    </message>
    <message>
        <source>Writes the 32 pins to the module, without the general settings and events</source>
        <translation>Schreibt die 32 Pins in das Modul, ohne die allgemeinen Einstellungen und Ereignisse</translation>
    </message>
    <message>
        <source>Ver&amp;ify All Pins</source>
        <translation>Alle Pins pr&amp;üfen</translation>
    </message>
    <message>
        <source>Compares the 32 pins of the module with the configuration</source>
        <translation>Vergleicht die 32 Pins des Moduls mit der Konfiguration</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Pins</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Compare with Module</source>
        <translation>Mit Modul vergleichen</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>&amp;Take All from Module</source>
        <translation>Alles vom Modul &amp;übernehmen</translation>
    </message>
    <message>
        <source>&amp;Keep All Mine</source>
        <translation>Alles &amp;Eigene behalten</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Takes the items chosen &quot;take the module&apos;s&quot; into the configuration</source>
        <translation>Übernimmt die Einträge mit der Wahl „vom Modul übernehmen“ in die Konfiguration</translation>
    </message>
    <message>
        <source>Apply and &amp;Write Changes</source>
        <translation>Übernehmen und Änderungen &amp;schreiben</translation>
    </message>
    <message>
        <source>Applies, then writes to the module what you kept</source>
        <translation>Übernimmt und schreibt dann das Behaltene in das Modul</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>keep mine</source>
        <translation>Eigenes behalten</translation>
    </message>
    <message>
        <source>take the module&apos;s</source>
        <translation>vom Modul übernehmen</translation>
    </message>
    <message>
        <source>The module holds this configuration: no differences.</source>
        <translation>Das Modul enthält diese Konfiguration: keine Unterschiede.</translation>
    </message>
    <message>
        <source>1 difference between the module and the configuration</source>
        <translation>1 Unterschied zwischen Modul und Konfiguration</translation>
    </message>
    <message>
        <source>%1 differences between the module and the configuration</source>
        <translation>%1 Unterschiede zwischen Modul und Konfiguration</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Pin %1</translation>
    </message>
    <message>
        <source>, aspect %1</source>
        <translation>, Signalbild %1</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Clean &amp;Aspect</source>
        <translation>Signalbild &amp;bereinigen</translation>
    </message>
    <message>
        <source>Clears the description and everything after the first empty step</source>
        <translation>Löscht die Beschreibung und alles nach dem ersten leeren Schritt</translation>
    </message>
    <message>
        <source>&amp;Insert Step</source>
        <translation>Schritt &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete Step</source>
        <translation>Schritt &amp;löschen</translation>
    </message>
    <message>
        <source>, step %1</source>
        <translation>, Schritt %1</translation>
    </message>
    <message>
        <source>Event Control</source>
        <translation>Ereignissteuerung</translation>
    </message>
    <message>
        <source>Rea&amp;d</source>
        <translation>&amp;Lesen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Copy to &amp;All</source>
        <translation>In &amp;alle kopieren</translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Eingang %1</translation>
    </message>
    <message>
        <source>ON:</source>
        <translation>EIN:</translation>
    </message>
    <message>
        <source>OFF:</source>
        <translation>AUS:</translation>
    </message>
    <message>
        <source>InitialEvent_ON Enable</source>
        <translation>Anfangsereignis EIN freigeben</translation>
    </message>
    <message>
        <source>Initial Event_OFF Enable</source>
        <translation>Anfangsereignis AUS freigeben</translation>
    </message>
    <message>
        <source>Read Enable Map</source>
        <translation>Freigaben lesen</translation>
    </message>
    <message>
        <source>Write Ena&amp;ble Map</source>
        <translation>Frei&amp;gaben schreiben</translation>
    </message>
    <message>
        <source>All Pins</source>
        <translation>Alle Pins</translation>
    </message>
    <message>
        <source>Read All Events</source>
        <translation>Alle Ereignisse lesen</translation>
    </message>
    <message>
        <source>Write All Events</source>
        <translation>Alle Ereignisse schreiben</translation>
    </message>
    <message>
        <source>Verify Event Control</source>
        <translation>Ereignissteuerung prüfen</translation>
    </message>
    <message>
        <source>Saved %1%2</source>
        <translation>%1%2 gespeichert</translation>
    </message>
    <message>
        <source> (compact)</source>
        <translation> (kompakt)</translation>
    </message>
    <message>
        <source>Re&amp;quest Version</source>
        <translation>&amp;Version abfragen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>At most 12 characters, letters, digits and signs without accents</source>
        <translation>Höchstens 12 Zeichen: Buchstaben, Ziffern und Zeichen ohne Akzente</translation>
    </message>
    <message>
        <source>ID String</source>
        <translation>ID-Text</translation>
    </message>
    <message>
        <source>DCC Address</source>
        <translation>DCC-Adresse</translation>
    </message>
    <message>
        <source>eXtended DCC Address</source>
        <translation>eXtended-DCC-Adresse</translation>
    </message>
    <message>
        <source>Packet Repeat Period</source>
        <translation>Paket-Wiederholzeit</translation>
    </message>
    <message>
        <source>Basic Packet State Invert</source>
        <translation>Zustand der Basis-Pakete umkehren</translation>
    </message>
    <message>
        <source>Allow Address 0</source>
        <translation>Adresse 0 erlauben</translation>
    </message>
    <message>
        <source>Serial Addressing</source>
        <translation>Serielle Adressierung</translation>
    </message>
    <message>
        <source>Enable Native Kestrel Mode</source>
        <translation>Eigenen Kestrel-Modus einschalten</translation>
    </message>
    <message>
        <source>Enable Lynx Flex-Addresss</source>
        <translation>Lynx-Flex-Adressen einschalten</translation>
    </message>
    <message>
        <source>Flex-Address</source>
        <translation>Flex-Adresse</translation>
    </message>
    <message>
        <source>The first Lynx address of the module; addresses come in groups of 4</source>
        <translation>Die erste Lynx-Adresse des Moduls; Adressen kommen in Vierergruppen</translation>
    </message>
    <message>
        <source>eXtended Address</source>
        <translation>eXtended-Adresse</translation>
    </message>
    <message>
        <source>eXtended Group Mask</source>
        <translation>eXtended-Gruppenmaske</translation>
    </message>
    <message>
        <source>Hardware Configuration</source>
        <translation>Hardware-Konfiguration</translation>
    </message>
    <message>
        <source>Sink Driver</source>
        <translation>Senkentreiber</translation>
    </message>
    <message>
        <source>Source Driver</source>
        <translation>Quellentreiber</translation>
    </message>
    <message>
        <source>LED Control</source>
        <translation>LED-Steuerung</translation>
    </message>
    <message>
        <source>Basic DCC Packet</source>
        <translation>DCC-Basispaket</translation>
    </message>
    <message>
        <source>eXtd DCC Packet</source>
        <translation>eXtd-DCC-Paket</translation>
    </message>
    <message>
        <source>Lynx Message</source>
        <translation>Lynx-Nachricht</translation>
    </message>
    <message>
        <source>Kestrel Message</source>
        <translation>Kestrel-Nachricht</translation>
    </message>
    <message>
        <source>Green 4</source>
        <translation>Grün 4</translation>
    </message>
    <message>
        <source>Green 5</source>
        <translation>Grün 5</translation>
    </message>
    <message>
        <source>Green 6</source>
        <translation>Grün 6</translation>
    </message>
    <message>
        <source>Idle Flash</source>
        <translation>Blinken im Leerlauf</translation>
    </message>
    <message>
        <source>DCC Checksum Error</source>
        <translation>DCC-Prüfsummenfehler</translation>
    </message>
    <message>
        <source>Orange 1</source>
        <translation>Orange 1</translation>
    </message>
    <message>
        <source>Orange 2</source>
        <translation>Orange 2</translation>
    </message>
    <message>
        <source>Orange 3</source>
        <translation>Orange 3</translation>
    </message>
    <message>
        <source>Orange 4</source>
        <translation>Orange 4</translation>
    </message>
    <message>
        <source>Orange 5</source>
        <translation>Orange 5</translation>
    </message>
    <message>
        <source>Orange 6</source>
        <translation>Orange 6</translation>
    </message>
    <message>
        <source>All Received Datagrams</source>
        <translation>Alle empfangenen Datagramme</translation>
    </message>
    <message>
        <source>&lt;b&gt;Green LED&lt;/b&gt;</source>
        <translation>&lt;b&gt;Grüne LED&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Orange LED&lt;/b&gt;</source>
        <translation>&lt;b&gt;Orange LED&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Serial Port</source>
        <translation>Serielle Schnittstelle</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baud</translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation>Datenbits</translation>
    </message>
    <message>
        <source>Stop Bits</source>
        <translation>Stoppbits</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parität</translation>
    </message>
    <message>
        <source>7 bits</source>
        <translation>7 Bit</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 Bit</translation>
    </message>
    <message>
        <source>1 bit</source>
        <translation>1 Bit</translation>
    </message>
    <message>
        <source>2 bits</source>
        <translation>2 Bit</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <source>Configuration Memory</source>
        <translation>Konfigurationsspeicher</translation>
    </message>
    <message>
        <source>Erase Flash</source>
        <translation>Flash löschen</translation>
    </message>
    <message>
        <source>Erases the whole configuration of the module (takes up to 45 seconds)</source>
        <translation>Löscht die ganze Konfiguration des Moduls (dauert bis zu 45 Sekunden)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Base</source>
        <translation>&amp;Basis</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>&amp;Time =</source>
        <translation>&amp;Zeit =</translation>
    </message>
    <message>
        <source>Max Time =</source>
        <translation>Max. Zeit =</translation>
    </message>
    <message>
        <source>Output +&amp;%1</source>
        <translation>Ausgang +&amp;%1</translation>
    </message>
    <message>
        <source>&amp;All Dark</source>
        <translation>&amp;Alle dunkel</translation>
    </message>
    <message>
        <source>&amp;No Dark-phase</source>
        <translation>&amp;Keine Dunkelphase</translation>
    </message>
    <message>
        <source>&amp;Parameter</source>
        <translation>&amp;Parameter</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Event inputs</source>
        <translation>Ereigniseingänge</translation>
    </message>
    <message>
        <source>Event Input &amp;%1</source>
        <translation>Ereigniseingang &amp;%1</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>No &amp;action</source>
        <translation>&amp;Keine Aktion</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>&amp;Stufe</translation>
    </message>
    <message>
        <source>&amp;Time Index</source>
        <translation>&amp;Zeitindex</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Verzögerung</translation>
    </message>
    <message>
        <source>0..127: 16 x level + time index</source>
        <translation>0..127: 16 x Stufe + Zeitindex</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Pin Configuration</source>
        <translation>Pin-Konfiguration</translation>
    </message>
    <message>
        <source>Pin Overview</source>
        <translation>Pin-Übersicht</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Anlage</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>unbenannt</translation>
    </message>
    <message>
        <source>Port %1 open at %2 bit/s</source>
        <translation>Port %1 offen mit %2 Bit/s</translation>
    </message>
    <message>
        <source>Port closed</source>
        <translation>Port geschlossen</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Find Modules</source>
        <translation>Module suchen</translation>
    </message>
    <message>
        <source>Asks every bus address of the route in use (0..15 directly, 0..31 through the Corvid system) for its version and ID string; each address is given 500 ms to answer</source>
        <translation>Fragt jede Busadresse des benutzten Wegs (0..15 direkt, 0..31 über das Corvid-System) nach Version und ID-Text; jede Adresse hat 500 ms zum Antworten</translation>
    </message>
    <message>
        <source>Also every eXtended address</source>
        <translation>Auch jede eXtended-Adresse</translation>
    </message>
    <message>
        <source>Find Modules also asks eXtended addresses 0..95 on each address that answered (about 48 s an address)</source>
        <translation>Module suchen fragt auch die eXtended-Adressen 0..95 an jeder Adresse, die geantwortet hat (etwa 48 s je Adresse)</translation>
    </message>
    <message>
        <source>Back Up All</source>
        <translation>Alle sichern</translation>
    </message>
    <message>
        <source>Read All of each module in the list, kept with its backups</source>
        <translation>Alles lesen für jedes Modul der Liste, bei seinen Sicherungen abgelegt</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Alle prüfen</translation>
    </message>
    <message>
        <source>Compares each module in the list with its newest backup</source>
        <translation>Vergleicht jedes Modul der Liste mit seiner neuesten Sicherung</translation>
    </message>
    <message>
        <source>Modules of the layout:</source>
        <translation>Module der Anlage:</translation>
    </message>
    <message>
        <source>Modules of the layout</source>
        <translation>Module der Anlage</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>eXtended</source>
        <translation>eXtended</translation>
    </message>
    <message>
        <source>Newest Backup</source>
        <translation>Neueste Sicherung</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Double-click a module (or press Return) to make it the target</source>
        <translation>Doppelklick auf ein Modul (oder Eingabetaste) macht es zum Ziel</translation>
    </message>
    <message>
        <source>Summary:</source>
        <translation>Zusammenfassung:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Communication</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Module Address</source>
        <translation>Moduladresse</translation>
    </message>
    <message>
        <source>Use eXtended Addr</source>
        <translation>eXtended-Adr. benutzen</translation>
    </message>
    <message>
        <source>eXtended address</source>
        <translation>eXtended-Adresse</translation>
    </message>
    <message>
        <source>Bidirectional Comm.</source>
        <translation>Bidirektionale Verb.</translation>
    </message>
    <message>
        <source>Use Corvid Tunneling</source>
        <translation>Corvid-Tunnel benutzen</translation>
    </message>
    <message>
        <source>A&amp;ctivate Transparent Mode</source>
        <translation>Transparentmodus a&amp;ktivieren</translation>
    </message>
    <message>
        <source>Switch Hub-A or Linkbox in Transparant Mode for Kestrel Configuration</source>
        <translation>Schaltet Hub-A oder Linkbox in den Transparentmodus für die Kestrel-Konfiguration</translation>
    </message>
    <message>
        <source>Start numbering at 1</source>
        <translation>Zählung bei 1 beginnen</translation>
    </message>
    <message>
        <source>Response:</source>
        <translation>Antwort:</translation>
    </message>
    <message>
        <source>Kestrel Verification</source>
        <translation>Kestrel-Prüfung</translation>
    </message>
    <message>
        <source>Verification report</source>
        <translation>Prüfbericht</translation>
    </message>
    <message>
        <source>Show Differences</source>
        <translation>Unterschiede zeigen</translation>
    </message>
    <message>
        <source>Corvid Communication</source>
        <translation>Corvid-Verbindung</translation>
    </message>
    <message>
        <source>Corvid communication</source>
        <translation>Corvid-Verbindung</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Load File...</source>
        <translation>Datei &amp;laden...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;Compact...</source>
        <translation>&amp;Kompakt speichern...</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Restore from backup...</source>
        <translation>Aus Sicherung &amp;wiederherstellen...</translation>
    </message>
    <message>
        <source>Reload &amp;Device Definitions...</source>
        <translation>&amp;Bausteindefinitionen neu laden...</translation>
    </message>
    <message>
        <source>A&amp;ppend Device Definitions...</source>
        <translation>Bausteindefinitionen &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Forget Remembered Settings</source>
        <translation>Gemerkte Einstellungen &amp;vergessen</translation>
    </message>
    <message>
        <source>The program starts afresh next time: port, addresses, window and files are forgotten</source>
        <translation>Das Programm beginnt beim nächsten Mal neu: Port, Adressen, Fenster und Dateien sind vergessen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation>&amp;Modul</translation>
    </message>
    <message>
        <source>Request &amp;Version</source>
        <translation>&amp;Version abfragen</translation>
    </message>
    <message>
        <source>&amp;Read All</source>
        <translation>Alles &amp;lesen</translation>
    </message>
    <message>
        <source>Verify &amp;All</source>
        <translation>Alles &amp;prüfen</translation>
    </message>
    <message>
        <source>Compare wi&amp;th Module...</source>
        <translation>Mit Modul ver&amp;gleichen...</translation>
    </message>
    <message>
        <source>&amp;Erase Flash...</source>
        <translation>Flash l&amp;öschen...</translation>
    </message>
    <message>
        <source>Read &amp;Pin</source>
        <translation>&amp;Pin lesen</translation>
    </message>
    <message>
        <source>Write P&amp;in</source>
        <translation>P&amp;in schreiben</translation>
    </message>
    <message>
        <source>Read &amp;Device</source>
        <translation>&amp;Baustein lesen</translation>
    </message>
    <message>
        <source>Write Devi&amp;ce</source>
        <translation>Bau&amp;stein schreiben</translation>
    </message>
    <message>
        <source>Read Aspe&amp;cts of the Pin</source>
        <translation>Signalbil&amp;der des Pins lesen</translation>
    </message>
    <message>
        <source>Write Aspects o&amp;f the Pin</source>
        <translation>Signalbilder des Pins sc&amp;hreiben</translation>
    </message>
    <message>
        <source>Write the Selected Asp&amp;ect</source>
        <translation>Gewähltes Signalbild schreiben</translation>
    </message>
    <message>
        <source>Read All Pi&amp;ns</source>
        <translation>Alle Pi&amp;ns lesen</translation>
    </message>
    <message>
        <source>Write All Pin&amp;s</source>
        <translation>Alle Pins schreiben</translation>
    </message>
    <message>
        <source>Verify All Pins</source>
        <translation>Alle Pins prüfen</translation>
    </message>
    <message>
        <source>Read Event Control</source>
        <translation>Ereignissteuerung lesen</translation>
    </message>
    <message>
        <source>Write Event Control</source>
        <translation>Ereignissteuerung schreiben</translation>
    </message>
    <message>
        <source>Find &amp;Modules</source>
        <translation>&amp;Module suchen</translation>
    </message>
    <message>
        <source>Back &amp;Up All</source>
        <translation>Alle &amp;sichern</translation>
    </message>
    <message>
        <source>Chec&amp;k All</source>
        <translation>Alle prü&amp;fen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Corvid Log</source>
        <translation>&amp;Corvid-Protokoll</translation>
    </message>
    <message>
        <source>&amp;Traffic Monitor</source>
        <translation>&amp;Verkehrsmonitor</translation>
    </message>
    <message>
        <source>&amp;Pin Overview</source>
        <translation>&amp;Pin-Übersicht</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>An&amp;lage</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>The language changes when Kestrel Config starts next.</source>
        <translation>Die Sprache wechselt beim nächsten Start von Kestrel Config.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>&amp;About Kestrel Config</source>
        <translation>&amp;Über Kestrel Config</translation>
    </message>
    <message>
        <source>About Kestrel Config</source>
        <translation>Über Kestrel Config</translation>
    </message>
    <message>
        <source>Reads, edits, writes back and verifies what a Kestrel accessory module stores.&lt;br&gt;&lt;br&gt;Build: %1, Qt %2&lt;br&gt;&lt;br&gt;The user guide (Help &amp;gt; User Guide) is also a file: /usr/share/doc/kestrel-config/user-guide.md when installed from the Debian package, user-guide.md in the program&apos;s folder on Windows (C:\Program Files\Kestrel Config when installed). Its section &quot;Data files&quot; describes the data-file format, and &quot;Readable configurations and differences&quot; every item of it; on Linux the manual page kestrel-cli(1) describes the format too.</source>
        <translation>Liest, bearbeitet, schreibt zurück und prüft, was ein Kestrel-Zubehörmodul speichert.&lt;br&gt;&lt;br&gt;Build: %1, Qt %2&lt;br&gt;&lt;br&gt;Das Benutzerhandbuch (Hilfe &amp;gt; Benutzerhandbuch, auf Englisch) ist auch eine Datei: /usr/share/doc/kestrel-config/user-guide.md bei Installation aus dem Debian-Paket, user-guide.md im Programmordner unter Windows (C:\Program Files\Kestrel Config bei Installation). Sein Abschnitt &quot;Data files&quot; beschreibt das Format der Datendateien und &quot;Readable configurations and differences&quot; jeden ihrer Einträge; unter Linux beschreibt auch die Handbuchseite kestrel-cli(1) das Format.</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>If checked, use active dynamic parameters, else go directly to position</source>
        <translation>Wenn angekreuzt, gelten die aktiven dynamischen Parameter, sonst direkt in die Stellung</translation>
    </message>
    <message>
        <source>Pin </source>
        <translation>Pin </translation>
    </message>
    <message>
        <source>Pin is not configured</source>
        <translation>Pin ist nicht konfiguriert</translation>
    </message>
    <message>
        <source>Not configured</source>
        <translation>Nicht konfiguriert</translation>
    </message>
    <message>
        <source>Servo</source>
        <translation>Servo</translation>
    </message>
    <message>
        <source>PWM</source>
        <translation>PWM</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>the pin no longer drives anything</source>
        <translation>der Pin steuert nichts mehr</translation>
    </message>
    <message>
        <source>the pin drives a servo</source>
        <translation>der Pin steuert einen Servo</translation>
    </message>
    <message>
        <source>the pin drives a PWM output</source>
        <translation>der Pin steuert einen PWM-Ausgang</translation>
    </message>
    <message>
        <source>the pin reads an input</source>
        <translation>der Pin liest einen Eingang</translation>
    </message>
    <message>
        <source>Picking this page changes the pin&apos;s mode: %1. It asks first when the pin&apos;s parameters would be replaced.</source>
        <translation>Die Wahl dieser Seite ändert die Betriebsart des Pins: %1. Es wird vorher gefragt, wenn die Parameter des Pins ersetzt würden.</translation>
    </message>
    <message>
        <source>Get Pin Config</source>
        <translation>Pin-Konfig. holen</translation>
    </message>
    <message>
        <source>Re&amp;ad Pin Config</source>
        <translation>Pin-Konfig. le&amp;sen</translation>
    </message>
    <message>
        <source>Set Pin Config</source>
        <translation>Pin-Konfig. setzen</translation>
    </message>
    <message>
        <source>Write Pin Config</source>
        <translation>Pin-Konfig. schreiben</translation>
    </message>
    <message>
        <source>Gets the active parameters</source>
        <translation>Holt die aktiven Parameter</translation>
    </message>
    <message>
        <source>Reads the parameters from Flash memory</source>
        <translation>Liest die Parameter aus dem Flash-Speicher</translation>
    </message>
    <message>
        <source>Sets Active Servo parameters (not permanent)</source>
        <translation>Setzt die aktiven Servoparameter (nicht dauerhaft)</translation>
    </message>
    <message>
        <source>Writes Servo Parameters to Flash memory</source>
        <translation>Schreibt die Servoparameter in den Flash-Speicher</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Set Position</source>
        <translation>Stellung setzen</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>&amp;Jump</source>
        <translation>&amp;Springen</translation>
    </message>
    <message>
        <source>Jump to target position immediately, override dynamic parameters</source>
        <translation>Sofort in die Zielstellung springen, dynamische Parameter übergehen</translation>
    </message>
    <message>
        <source>Servo Position</source>
        <translation>Servostellung</translation>
    </message>
    <message>
        <source>Servo Parameters</source>
        <translation>Servoparameter</translation>
    </message>
    <message>
        <source>Initial Position</source>
        <translation>Anfangsstellung</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Mittelstellung</translation>
    </message>
    <message>
        <source>1/Mass</source>
        <translation>1/Masse</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>Dämpfung</translation>
    </message>
    <message>
        <source>MaxSpd</source>
        <translation>Max. Geschw.</translation>
    </message>
    <message>
        <source>MaxAcc</source>
        <translation>Max. Beschl.</translation>
    </message>
    <message>
        <source>BounceDown</source>
        <translation>Prellen ab</translation>
    </message>
    <message>
        <source>BounceDownFactor</source>
        <translation>Prellfaktor ab</translation>
    </message>
    <message>
        <source>BounceUp</source>
        <translation>Prellen auf</translation>
    </message>
    <message>
        <source>BounceUpFactor</source>
        <translation>Prellfaktor auf</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Servo State</source>
        <translation>Servozustand</translation>
    </message>
    <message>
        <source>Auto Suspend</source>
        <translation>Selbst abschalten</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Abgeschaltet</translation>
    </message>
    <message>
        <source>If checked, the servo is not activated until the first position is sent</source>
        <translation>Wenn angekreuzt, wird der Servo erst mit der ersten gesendeten Stellung aktiv</translation>
    </message>
    <message>
        <source>Servo Initialised</source>
        <translation>Servo initialisiert</translation>
    </message>
    <message>
        <source>Set Level</source>
        <translation>Stufe setzen</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>J&amp;ump</source>
        <translation>Spr&amp;ingen</translation>
    </message>
    <message>
        <source>Jump to the level immediately, without the slow change</source>
        <translation>Sofort auf die Stufe springen, ohne langsamen Übergang</translation>
    </message>
    <message>
        <source>PWM Level</source>
        <translation>PWM-Stufe</translation>
    </message>
    <message>
        <source>Drive Mode</source>
        <translation>Ansteuerart</translation>
    </message>
    <message>
        <source>Acceleration Mode</source>
        <translation>Beschleunigungsart</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Logaritmic</source>
        <translation>Logarithmisch</translation>
    </message>
    <message>
        <source>PWM Parameters</source>
        <translation>PWM-Parameter</translation>
    </message>
    <message>
        <source>Initial Level</source>
        <translation>Anfangsstufe</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>Off - Level</source>
        <translation>Aus-Stufe</translation>
    </message>
    <message>
        <source>On-Level</source>
        <translation>Ein-Stufe</translation>
    </message>
    <message>
        <source>Debounce</source>
        <translation>Entprellen</translation>
    </message>
    <message>
        <source>ON-delay (debounce)</source>
        <translation>EIN-Verzögerung (Entprellen)</translation>
    </message>
    <message>
        <source>OFF-delay (debounce)</source>
        <translation>AUS-Verzögerung (Entprellen)</translation>
    </message>
    <message>
        <source>Pin overview</source>
        <translation>Pin-Übersicht</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>About %1 left</source>
        <translation>Noch etwa %1</translation>
    </message>
    <message>
        <source>About %1 at %2 baud</source>
        <translation>Etwa %1 bei %2 Baud</translation>
    </message>
    <message>
        <source>Traffic Monitor</source>
        <translation>Verkehrsmonitor</translation>
    </message>
    <message>
        <source>Dir</source>
        <translation>Richt.</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Decoded</source>
        <translation>Entschlüsselt</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Alle Befehle</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Frames that arrive while paused are not kept, only counted</source>
        <translation>Rahmen, die während der Pause ankommen, werden nur gezählt, nicht behalten</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Saves the frames shown as plain text, one line per frame</source>
        <translation>Speichert die gezeigten Rahmen als Text, eine Zeile je Rahmen</translation>
    </message>
    <message>
        <source>%1 not kept while paused</source>
        <translation>%1 in der Pause nicht behalten</translation>
    </message>
    <message>
        <source>Save Traffic</source>
        <translation>Verkehr speichern</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>Kestrel Config User Guide</source>
        <translation>Kestrel Config Benutzerhandbuch</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Working ... Please WAIT</source>
        <translation>Arbeitet ... Bitte WARTEN</translation>
    </message>
    <message>
        <source>The serial port; &quot;sim&quot; is a simulated layout built into the program, &quot;sim (Corvid)&quot; the same behind a simulated Corvid system. Return or a choice from the list opens it.</source>
        <translation>Die serielle Schnittstelle; &quot;sim&quot; ist eine im Programm eingebaute simulierte Anlage, &quot;sim (Corvid)&quot; dieselbe hinter einem simulierten Corvid-System. Eingabetaste oder eine Wahl aus der Liste öffnet sie.</translation>
    </message>
    <message>
        <source>Reads this pin from the module: aspects, addresses and pin configuration</source>
        <translation>Liest diesen Pin aus dem Modul: Signalbilder, Adressen und Pin-Konfiguration</translation>
    </message>
    <message>
        <source>Writes this pin to the module: aspects and addresses</source>
        <translation>Schreibt diesen Pin in das Modul: Signalbilder und Adressen</translation>
    </message>
    <message>
        <source>Reads every pin of this pin&apos;s device from the module</source>
        <translation>Liest jeden Pin des Bausteins dieses Pins aus dem Modul</translation>
    </message>
    <message>
        <source>Writes every pin of this pin&apos;s device to the module</source>
        <translation>Schreibt jeden Pin des Bausteins dieses Pins in das Modul</translation>
    </message>
    <message>
        <source>Reads this pin&apos;s aspects, initial aspect and addresses from the module</source>
        <translation>Liest die Signalbilder, das Anfangs-Signalbild und die Adressen dieses Pins aus dem Modul</translation>
    </message>
    <message>
        <source>Writes this pin&apos;s aspects, initial aspect and addresses to the module</source>
        <translation>Schreibt die Signalbilder, das Anfangs-Signalbild und die Adressen dieses Pins in das Modul</translation>
    </message>
    <message>
        <source>Writes only the steps of the selected aspect to the module</source>
        <translation>Schreibt nur die Schritte des gewählten Signalbilds in das Modul</translation>
    </message>
    <message>
        <source>Places the chosen device on the pins, its first pin on this pin</source>
        <translation>Legt den gewählten Baustein auf die Pins, seinen ersten Pin auf diesen Pin</translation>
    </message>
    <message>
        <source>Saves this pin&apos;s device to a definitions file of its own</source>
        <translation>Speichert den Baustein dieses Pins in eine eigene Definitionsdatei</translation>
    </message>
    <message>
        <source>Reload DD to load new file, Shift + Reload DD to append</source>
        <translation>BD neu laden lädt eine neue Datei, Umschalt + BD neu laden fügt hinzu</translation>
    </message>
    <message>
        <source>Re&amp;ad</source>
        <translation>Le&amp;sen</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Read Config</source>
        <translation>Konfig. lesen</translation>
    </message>
    <message>
        <source>Write Config</source>
        <translation>Konfig. schreiben</translation>
    </message>
    <message>
        <source>Read Settings</source>
        <translation>Einstellungen lesen</translation>
    </message>
    <message>
        <source>Write Settings</source>
        <translation>Einstellungen schreiben</translation>
    </message>
    <message>
        <source>choosing %1 in %2</source>
        <translation>Wahl von %1 in %2</translation>
    </message>
    <message>
        <source>checking %1</source>
        <translation>Ankreuzen von %1</translation>
    </message>
    <message>
        <source>unchecking %1</source>
        <translation>Abwählen von %1</translation>
    </message>
    <message>
        <source>typing in %1</source>
        <translation>Eingabe in %1</translation>
    </message>
    <message>
        <source>choosing %1</source>
        <translation>Wahl von %1</translation>
    </message>
    <message>
        <source>choosing a step in the timeline</source>
        <translation>Wahl eines Schritts in der Zeitleiste</translation>
    </message>
    <message>
        <source>Time tool</source>
        <translation>Zeit-Werkzeug</translation>
    </message>
    <message>
        <source>Pattern tool</source>
        <translation>Muster-Werkzeug</translation>
    </message>
    <message>
        <source>Event pattern tool</source>
        <translation>Ereignismuster-Werkzeug</translation>
    </message>
    <message>
        <source>Level tool</source>
        <translation>Stufen-Werkzeug</translation>
    </message>
    <message>
        <source>Aspect %1: %2</source>
        <translation>Signalbild %1: %2</translation>
    </message>
    <message>
        <source>no steps</source>
        <translation>keine Schritte</translation>
    </message>
    <message>
        <source>step %1, %2</source>
        <translation>Schritt %1, %2</translation>
    </message>
    <message>
        <source>, does not wait</source>
        <translation>, wartet nicht</translation>
    </message>
    <message>
        <source>, time too long for the module (%1)</source>
        <translation>, Zeit zu lang für das Modul (%1)</translation>
    </message>
    <message>
        <source>, jumps to aspect %1 step %2</source>
        <translation>, springt zu Signalbild %1 Schritt %2</translation>
    </message>
    <message>
        <source>Aspect %1, </source>
        <translation>Signalbild %1, </translation>
    </message>
    <message>
        <source> (incomplete)</source>
        <translation> (unvollständig)</translation>
    </message>
    <message>
        <source>changing %1</source>
        <translation>Ändern von %1</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Pin tool</source>
        <translation>Pin-Werkzeug</translation>
    </message>
    <message>
        <source>Aspect tool</source>
        <translation>Signalbild-Werkzeug</translation>
    </message>
    <message>
        <source>Step tool</source>
        <translation>Schritt-Werkzeug</translation>
    </message>
    <message>
        <source>The configuration has changes that are not saved.<byte value="xd"/>
%1 would lose them. Save them first?</source>
        <translation>Die Konfiguration hat ungespeicherte Änderungen.<byte value="xd"/>
%1 würde sie verwerfen. Zuerst speichern?</translation>
    </message>
    <message>
        <source> has changed on disk since it was loaded or saved here.<byte value="xd"/>
Replace it with the configuration shown?</source>
        <translation> wurde auf dem Datenträger geändert, seit es hier geladen oder gespeichert wurde.<byte value="xd"/>
Mit der gezeigten Konfiguration ersetzen?</translation>
    </message>
    <message>
        <source>The backups folder is the program&apos;s own: choose another folder for the file.</source>
        <translation>Der Sicherungsordner gehört dem Programm: bitte einen anderen Ordner für die Datei wählen.</translation>
    </message>
    <message>
        <source>; it does not hold everything shown, so the work is still unsaved</source>
        <translation>; sie enthält nicht alles Gezeigte, daher ist die Arbeit noch ungespeichert</translation>
    </message>
    <message>
        <source>Restoring a backup</source>
        <translation>Das Wiederherstellen einer Sicherung</translation>
    </message>
    <message>
        <source>Loading a file</source>
        <translation>Das Laden einer Datei</translation>
    </message>
    <message>
        <source>Restore from Backup</source>
        <translation>Aus Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>Load File</source>
        <translation>Datei laden</translation>
    </message>
    <message>
        <source>Restored the backup %1 as an untitled configuration</source>
        <translation>Sicherung %1 als unbenannte Konfiguration wiederhergestellt</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>Load stopped at a fault in %1: the pages show what was read before it</source>
        <translation>Laden bei einem Fehler in %1 abgebrochen: die Seiten zeigen, was davor gelesen wurde</translation>
    </message>
    <message>
        <source>Nothing was loaded from %1</source>
        <translation>Aus %1 wurde nichts geladen</translation>
    </message>
    <message>
        <source>; the backup was not saved: %1</source>
        <translation>; die Sicherung wurde nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>ID string cut to 12 characters: </source>
        <translation>ID-Text auf 12 Zeichen gekürzt: </translation>
    </message>
    <message>
        <source>KestrelConfig CalcTime</source>
        <translation>KestrelConfig Zeit berechnen</translation>
    </message>
    <message>
        <source>LynxConfig Calculate Pattern</source>
        <translation>LynxConfig Muster berechnen</translation>
    </message>
    <message>
        <source>KestrelConfig CalcETImap</source>
        <translation>KestrelConfig ETImap berechnen</translation>
    </message>
    <message>
        <source>LynxConfig Calculate Level</source>
        <translation>LynxConfig Stufe berechnen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; writes to the module. Write now?</source>
        <translation>&quot;%1&quot; schreibt in das Modul. Jetzt schreiben?</translation>
    </message>
    <message>
        <source>Closing the window</source>
        <translation>Das Schließen des Fensters</translation>
    </message>
    <message>
        <source>Reading the module</source>
        <translation>Das Lesen des Moduls</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>direct</source>
        <translation>direkt</translation>
    </message>
    <message>
        <source>Read All</source>
        <translation>Alles lesen</translation>
    </message>
    <message>
        <source>; the file held another module, so the configuration is now untitled</source>
        <translation>; die Datei enthielt ein anderes Modul, daher ist die Konfiguration jetzt unbenannt</translation>
    </message>
    <message>
        <source>Write All</source>
        <translation>Alles schreiben</translation>
    </message>
    <message>
        <source>Verify All</source>
        <translation>Alles prüfen</translation>
    </message>
    <message>
        <source>Read Pin</source>
        <translation>Pin lesen</translation>
    </message>
    <message>
        <source>Read All Pins</source>
        <translation>Alle Pins lesen</translation>
    </message>
    <message>
        <source>Write All Pins</source>
        <translation>Alle Pins schreiben</translation>
    </message>
    <message>
        <source>Write Changes</source>
        <translation>Änderungen schreiben</translation>
    </message>
    <message>
        <source>Take from Module</source>
        <translation>Vom Modul übernehmen</translation>
    </message>
    <message>
        <source>Pin %1 becomes %2: its %3 parameters are replaced by cleared ones.<byte value="xd"/>
Change the pin&apos;s mode?</source>
        <translation>Pin %1 wird %2: seine %3-Parameter werden durch gelöschte ersetzt.<byte value="xd"/>
Betriebsart des Pins ändern?</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>%1 rückgängig machen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>%1 wiederherstellen</translation>
    </message>
    <message>
        <source>Kestrel Config Data</source>
        <translation>Kestrel-Config-Daten</translation>
    </message>
    <message>
        <source>Kestrel Device Definitions</source>
        <translation>Kestrel-Bausteindefinitionen</translation>
    </message>
    <message>
        <source>%1 aspects</source>
        <translation>%1 Signalbilder</translation>
    </message>
    <message>
        <source>Parameter %1, step %2</source>
        <translation>Parameter %1, Schritt %2</translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation>%1, Schritt %2</translation>
    </message>
    <message>
        <source>Parameter %1</source>
        <translation>Parameter %1</translation>
    </message>
    <message>
        <source>Event-On input %1</source>
        <translation>Ein-Ereignis Eingang %1</translation>
    </message>
    <message>
        <source>Event-Off input %1</source>
        <translation>Aus-Ereignis Eingang %1</translation>
    </message>
    <message>
        <source>%1 input %2</source>
        <translation>%1 Eingang %2</translation>
    </message>
    <message>
        <source>Group mask %1</source>
        <translation>Gruppenmaske %1</translation>
    </message>
    <message>
        <source>%1 pins %2</source>
        <translation>%1 Pins %2</translation>
    </message>
    <message>
        <source>Sink driver</source>
        <translation>Senkentreiber</translation>
    </message>
    <message>
        <source>Source driver</source>
        <translation>Quellentreiber</translation>
    </message>
    <message>
        <source>Range %1</source>
        <translation>Bereich %1</translation>
    </message>
    <message>
        <source>%1 drive mode</source>
        <translation>Ansteuerart %1</translation>
    </message>
    <message>
        <source>%1 acceleration mode</source>
        <translation>Beschleunigungsart %1</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>The module&apos;s first DCC accessory address; the pins&apos; DCC addresses follow it. 0 to 8191.</source>
        <translation>Die erste DCC-Zubehöradresse des Moduls; die DCC-Adressen der Pins folgen darauf. 0 bis 8191.</translation>
    </message>
    <message>
        <source>The module&apos;s first eXtended DCC address; the pins&apos; eXtended DCC addresses follow it. 0 to 8191.</source>
        <translation>Die erste eXtended-DCC-Adresse des Moduls; die eXtended-DCC-Adressen der Pins folgen darauf. 0 bis 8191.</translation>
    </message>
    <message>
        <source>How often the module repeats a DCC packet that it sends on (the packet repeat period).</source>
        <translation>Wie oft das Modul ein DCC-Paket wiederholt, das es weitergibt (die Paketwiederholzeit).</translation>
    </message>
    <message>
        <source>Inverts the state that a basic DCC accessory packet switches: the packet for &quot;on&quot; switches off and the other way round.</source>
        <translation>Kehrt den Zustand um, den ein einfaches DCC-Zubehörpaket schaltet: das Paket für „ein“ schaltet aus und umgekehrt.</translation>
    </message>
    <message>
        <source>Lets the module use DCC address 0; otherwise the addresses start at 1.</source>
        <translation>Erlaubt dem Modul die DCC-Adresse 0; sonst beginnen die Adressen bei 1.</translation>
    </message>
    <message>
        <source>The module takes messages of its own serial protocol. Off while Lynx flex-addressing is on.</source>
        <translation>Das Modul nimmt Meldungen seines eigenen seriellen Protokolls an. Aus, solange die Lynx-Flex-Adressierung an ist.</translation>
    </message>
    <message>
        <source>The module answers Lynx messages at the flex-address below instead of its own address. For experienced users only.</source>
        <translation>Das Modul beantwortet Lynx-Meldungen an der Flex-Adresse unten statt an seiner eigenen Adresse. Nur für erfahrene Benutzer.</translation>
    </message>
    <message>
        <source>The module&apos;s eXtended address on the serial bus: the address that the program reaches it by. 0 to 95 (1 to 96 when numbering starts at 1).</source>
        <translation>Die eXtended-Adresse des Moduls am seriellen Bus: die Adresse, über die das Programm es erreicht. 0 bis 95 (1 bis 96, wenn die Zählung bei 1 beginnt).</translation>
    </message>
    <message>
        <source>The eXtended group mask: the module also acts on messages sent to each checked group.</source>
        <translation>Die eXtended-Gruppenmaske: das Modul reagiert auch auf Meldungen an jede angekreuzte Gruppe.</translation>
    </message>
    <message>
        <source>This group of eight pins has sink drivers fitted (outputs switch to ground).</source>
        <translation>Diese Gruppe von acht Pins hat Senkentreiber (die Ausgänge schalten gegen Masse).</translation>
    </message>
    <message>
        <source>This group of eight pins has source drivers fitted (outputs switch to the supply).</source>
        <translation>Diese Gruppe von acht Pins hat Quellentreiber (die Ausgänge schalten gegen die Versorgung).</translation>
    </message>
    <message>
        <source>The green LED flashes for each checked kind of traffic. With none checked it flashes while the module is idle.</source>
        <translation>Die grüne LED blinkt bei jeder angekreuzten Art von Verkehr. Ist nichts angekreuzt, blinkt sie, solange das Modul ruht.</translation>
    </message>
    <message>
        <source>The orange LED flashes for each checked kind of traffic. With none checked it flashes for every message received.</source>
        <translation>Die orange LED blinkt bei jeder angekreuzten Art von Verkehr. Ist nichts angekreuzt, blinkt sie bei jeder empfangenen Meldung.</translation>
    </message>
    <message>
        <source>Switches the module&apos;s own serial port on.</source>
        <translation>Schaltet die eigene serielle Schnittstelle des Moduls ein.</translation>
    </message>
    <message>
        <source>The speed of the module&apos;s own serial port, in bits per second.</source>
        <translation>Die Geschwindigkeit der eigenen seriellen Schnittstelle des Moduls, in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Data bits per character on the module&apos;s own serial port.</source>
        <translation>Datenbits pro Zeichen an der eigenen seriellen Schnittstelle des Moduls.</translation>
    </message>
    <message>
        <source>Stop bits per character on the module&apos;s own serial port.</source>
        <translation>Stoppbits pro Zeichen an der eigenen seriellen Schnittstelle des Moduls.</translation>
    </message>
    <message>
        <source>The parity bit of the module&apos;s own serial port.</source>
        <translation>Das Paritätsbit der eigenen seriellen Schnittstelle des Moduls.</translation>
    </message>
    <message>
        <source>The pin shown; every page shows the same pin.</source>
        <translation>Der angezeigte Pin; jede Seite zeigt denselben Pin.</translation>
    </message>
    <message>
        <source>Moves the servo at once: the position is sent as the slider moves.</source>
        <translation>Bewegt den Servo sofort: die Position wird gesendet, während der Schieber sich bewegt.</translation>
    </message>
    <message>
        <source>The servo&apos;s position now; 0 is the midpoint.</source>
        <translation>Die jetzige Position des Servos; 0 ist die Mitte.</translation>
    </message>
    <message>
        <source>The position that the servo takes when the module starts.</source>
        <translation>Die Position, die der Servo beim Start des Moduls einnimmt.</translation>
    </message>
    <message>
        <source>Moves the servo&apos;s whole travel: the pulse that position 0 gives.</source>
        <translation>Verschiebt den ganzen Stellweg des Servos: der Impuls, den Position 0 ergibt.</translation>
    </message>
    <message>
        <source>One over the mass that the servo moves: a higher value speeds up and slows down more quickly.</source>
        <translation>Eins durch die Masse, die der Servo bewegt: ein höherer Wert beschleunigt und bremst schneller.</translation>
    </message>
    <message>
        <source>Damping of the movement: a higher value brakes harder and swings less.</source>
        <translation>Dämpfung der Bewegung: ein höherer Wert bremst stärker und schwingt weniger.</translation>
    </message>
    <message>
        <source>The highest speed of the servo.</source>
        <translation>Die höchste Geschwindigkeit des Servos.</translation>
    </message>
    <message>
        <source>The highest acceleration of the servo.</source>
        <translation>Die höchste Beschleunigung des Servos.</translation>
    </message>
    <message>
        <source>How far the servo bounces back at the lower end of its travel; 0 is no bounce.</source>
        <translation>Wie weit der Servo am unteren Ende seines Stellwegs zurückfedert; 0 ist kein Federn.</translation>
    </message>
    <message>
        <source>How much of each bounce at the lower end is left for the next one.</source>
        <translation>Wie viel von jedem Federn am unteren Ende für das nächste bleibt.</translation>
    </message>
    <message>
        <source>How far the servo bounces back at the upper end of its travel; 0 is no bounce.</source>
        <translation>Wie weit der Servo am oberen Ende seines Stellwegs zurückfedert; 0 ist kein Federn.</translation>
    </message>
    <message>
        <source>How much of each bounce at the upper end is left for the next one.</source>
        <translation>Wie viel von jedem Federn am oberen Ende für das nächste bleibt.</translation>
    </message>
    <message>
        <source>The servo&apos;s range of travel, from 0 (narrowest) to 4 (widest).</source>
        <translation>Der Stellbereich des Servos, von 0 (am engsten) bis 4 (am weitesten).</translation>
    </message>
    <message>
        <source>The module stops the servo&apos;s pulses once it has reached its position.</source>
        <translation>Das Modul stoppt die Impulse des Servos, sobald er seine Position erreicht hat.</translation>
    </message>
    <message>
        <source>The module has set the servo up; shown as read, not sent.</source>
        <translation>Das Modul hat den Servo eingerichtet; wird wie gelesen gezeigt, nicht gesendet.</translation>
    </message>
    <message>
        <source>Sets the output&apos;s level at once: the level is sent as the slider moves.</source>
        <translation>Setzt die Stufe des Ausgangs sofort: die Stufe wird gesendet, während der Schieber sich bewegt.</translation>
    </message>
    <message>
        <source>The output&apos;s level now; 0 is off.</source>
        <translation>Die jetzige Stufe des Ausgangs; 0 ist aus.</translation>
    </message>
    <message>
        <source>The level that the output takes when the module starts.</source>
        <translation>Die Stufe, die der Ausgang beim Start des Moduls annimmt.</translation>
    </message>
    <message>
        <source>How fast the level changes when the output switches.</source>
        <translation>Wie schnell sich die Stufe ändert, wenn der Ausgang schaltet.</translation>
    </message>
    <message>
        <source>The level that &quot;off&quot; gives.</source>
        <translation>Die Stufe, die „aus“ ergibt.</translation>
    </message>
    <message>
        <source>The level that &quot;on&quot; gives.</source>
        <translation>Die Stufe, die „ein“ ergibt.</translation>
    </message>
    <message>
        <source>How the level maps to the output: in equal steps or in steps that look equal to the eye.</source>
        <translation>Wie die Stufe auf den Ausgang wirkt: in gleichen Schritten oder in Schritten, die dem Auge gleich erscheinen.</translation>
    </message>
    <message>
        <source>How the level changes over time: in equal steps or in steps that look equal to the eye.</source>
        <translation>Wie sich die Stufe mit der Zeit ändert: in gleichen Schritten oder in Schritten, die dem Auge gleich erscheinen.</translation>
    </message>
    <message>
        <source>The output is on when its level is low.</source>
        <translation>Der Ausgang ist an, wenn seine Stufe niedrig ist.</translation>
    </message>
    <message>
        <source>How long the input must stay on before the module takes it as on (debounce).</source>
        <translation>Wie lange der Eingang an bleiben muss, bevor das Modul ihn als an wertet (Entprellung).</translation>
    </message>
    <message>
        <source>How long the input must stay off before the module takes it as off (debounce).</source>
        <translation>Wie lange der Eingang aus bleiben muss, bevor das Modul ihn als aus wertet (Entprellung).</translation>
    </message>
    <message>
        <source>The input counts as on when its contact is open.</source>
        <translation>Der Eingang gilt als an, wenn sein Kontakt offen ist.</translation>
    </message>
    <message>
        <source>Range: %1 to %2.</source>
        <translation>Bereich: %1 bis %2.</translation>
    </message>
    <message>
        <source>Input %1 here is &quot;Event Input %2&quot; in the event-pattern tool of the &quot;Event Input&quot; instruction, and Event-On(%2) and Event-Off(%2) in the verification report.</source>
        <translation>Eingang %1 hier ist „Ereigniseingang %2“ im Ereignismuster-Werkzeug der Anweisung „Event Input“ und Event-On(%2) und Event-Off(%2) im Prüfbericht.</translation>
    </message>
    <message>
        <source>The action when the input switches on: the number of the aspect that this pin takes, 0 to 11, or -1 for none.</source>
        <translation>Die Aktion, wenn der Eingang einschaltet: die Nummer des Signalbilds, das dieser Pin annimmt, 0 bis 11, oder -1 für keine.</translation>
    </message>
    <message>
        <source>The action when the input switches off: the number of the aspect that this pin takes, 0 to 11, or -1 for none.</source>
        <translation>Die Aktion, wenn der Eingang ausschaltet: die Nummer des Signalbilds, das dieser Pin annimmt, 0 bis 11, oder -1 für keine.</translation>
    </message>
    <message>
        <source>Event-On of this input is enabled when the module starts.</source>
        <translation>Event-On dieses Eingangs ist beim Start des Moduls freigegeben.</translation>
    </message>
    <message>
        <source>Event-Off of this input is enabled when the module starts.</source>
        <translation>Event-Off dieses Eingangs ist beim Start des Moduls freigegeben.</translation>
    </message>
    <message>
        <source>&quot;Event Input %1&quot; is &quot;Input %2&quot; on the Event Control page.</source>
        <translation>„Ereigniseingang %1“ ist „Eingang %2“ auf der Seite Ereignissteuerung.</translation>
    </message>
    <message>
        <source>Pin offset: the pin that this step acts on, counted from this pin (0 is this pin, -1 the pin before it).</source>
        <translation>Pin-Versatz: der Pin, auf den dieser Schritt wirkt, von diesem Pin aus gezählt (0 ist dieser Pin, -1 der Pin davor).</translation>
    </message>
    <message>
        <source>The aspect to jump to.</source>
        <translation>Das Signalbild, zu dem gesprungen wird.</translation>
    </message>
    <message>
        <source>The step of that aspect to go on with (0 is its first step).</source>
        <translation>Der Schritt dieses Signalbilds, mit dem es weitergeht (0 ist sein erster Schritt).</translation>
    </message>
    <message>
        <source>Which of the two green-yellow-red sequences runs.</source>
        <translation>Welche der beiden Grün-Gelb-Rot-Folgen läuft.</translation>
    </message>
    <message>
        <source>The byte that the module sends on its own serial port.</source>
        <translation>Das Byte, das das Modul über seine eigene serielle Schnittstelle sendet.</translation>
    </message>
    <message>
        <source>The second byte that the module sends on its own serial port.</source>
        <translation>Das zweite Byte, das das Modul über seine eigene serielle Schnittstelle sendet.</translation>
    </message>
    <message>
        <source>The length of the pulse in sixtieths of a second (60 is one second).</source>
        <translation>Die Länge des Impulses in Sechzigstelsekunden (60 ist eine Sekunde).</translation>
    </message>
    <message>
        <source>The time in sixtieths of a second (60 is one second).</source>
        <translation>Die Zeit in Sechzigstelsekunden (60 ist eine Sekunde).</translation>
    </message>
    <message>
        <source>The pin whose output this pin copies (its number, not an offset).</source>
        <translation>Der Pin, dessen Ausgang dieser Pin übernimmt (seine Nummer, kein Versatz).</translation>
    </message>
    <message>
        <source>Which outputs are on, one bit each from the pin at P.O. on (1 = +0, 2 = +1, 4 = +2 ...).</source>
        <translation>Welche Ausgänge an sind, ein Bit je Ausgang ab dem Pin bei P.O. (1 = +0, 2 = +1, 4 = +2 ...).</translation>
    </message>
    <message>
        <source>The event inputs and actions: bits 0 to 3 are &quot;Event Input 0&quot; to &quot;Event Input 3&quot; (Input 1 to Input 4 on the Event Control page); the bits above choose the On- and Off-Event actions.</source>
        <translation>Die Ereigniseingänge und Aktionen: Bit 0 bis 3 sind „Ereigniseingang 0“ bis „Ereigniseingang 3“ (Eingang 1 bis Eingang 4 auf der Seite Ereignissteuerung); die Bits darüber wählen die Aktionen für On- und Off-Event.</translation>
    </message>
    <message>
        <source>The aspect that is reported back.</source>
        <translation>Das Signalbild, das zurückgemeldet wird.</translation>
    </message>
    <message>
        <source>The pin that gets the pulse (its number, not an offset).</source>
        <translation>Der Pin, der den Impuls bekommt (seine Nummer, kein Versatz).</translation>
    </message>
    <message>
        <source>The level during the pulse.</source>
        <translation>Die Stufe während des Impulses.</translation>
    </message>
    <message>
        <source>The output level: 0 is off, 31 is full.</source>
        <translation>Die Ausgangsstufe: 0 ist aus, 31 ist voll.</translation>
    </message>
    <message>
        <source>The servo position; 0 is the midpoint.</source>
        <translation>Die Servoposition; 0 ist die Mitte.</translation>
    </message>
    <message>
        <source>How fast the level changes; -1 is kept as 127.</source>
        <translation>Wie schnell sich die Stufe ändert; -1 wird als 127 gespeichert.</translation>
    </message>
    <message>
        <source>The chance that the output is switched on: 0 never, 31 nearly always.</source>
        <translation>Die Wahrscheinlichkeit, dass der Ausgang eingeschaltet wird: 0 nie, 31 fast immer.</translation>
    </message>
    <message>
        <source>The longest wait, in units of the base; the step waits a random time up to it.</source>
        <translation>Die längste Wartezeit, in Einheiten der Basis; der Schritt wartet eine zufällige Zeit bis dahin.</translation>
    </message>
    <message>
        <source>How long the step waits, in units of the base.</source>
        <translation>Wie lange der Schritt wartet, in Einheiten der Basis.</translation>
    </message>
    <message>
        <source>The unit of the time: 0 = 20 ms, 1 = 160 ms, 2 = 1.28 s, 3 = 10.24 s.</source>
        <translation>Die Einheit der Zeit: 0 = 20 ms, 1 = 160 ms, 2 = 1,28 s, 3 = 10,24 s.</translation>
    </message>
    <message>
        <source>The value that the output of the pin at P.O. is compared with.</source>
        <translation>Der Wert, mit dem der Ausgang des Pins bei P.O. verglichen wird.</translation>
    </message>
    <message>
        <source>Not used by this instruction.</source>
        <translation>Von dieser Anweisung nicht benutzt.</translation>
    </message>
    <message>
        <source>Double-click or F2 opens the help tool.</source>
        <translation>Doppelklick oder F2 öffnet das Hilfswerkzeug.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
</context>
<context>
    <name>LayoutList</name>
    <message>
        <source>holds its newest backup</source>
        <translation>enthält seine neueste Sicherung</translation>
    </message>
    <message>
        <source>did not answer</source>
        <translation>hat nicht geantwortet</translation>
    </message>
    <message>
        <source>not checked</source>
        <translation>nicht geprüft</translation>
    </message>
</context>
<context>
    <name>LinkControl</name>
    <message>
        <source>Channel Number</source>
        <translation>Kanalnummer</translation>
    </message>
    <message>
        <source>Module Address</source>
        <translation>Moduladresse</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Your system does not support this function</source>
        <translation>Ihr System unterstützt diese Funktion nicht</translation>
    </message>
    <message>
        <source>Select communications port</source>
        <translation>Bitte die Schnittstelle wählen</translation>
    </message>
    <message>
        <source>eXtended Addressing is intended for<byte value="xd"/>
experienced users only!</source>
        <translation>eXtended-Adressierung ist nur für<byte value="xd"/>
erfahrene Benutzer gedacht!</translation>
    </message>
    <message>
        <source>Nothing to Paste</source>
        <translation>Nichts zum Einfügen</translation>
    </message>
    <message>
        <source>Nothing to write: the module holds this configuration.</source>
        <translation>Nichts zu schreiben: das Modul enthält diese Konfiguration.</translation>
    </message>
    <message>
        <source>No valid response</source>
        <translation>Keine gültige Antwort</translation>
    </message>
    <message>
        <source>Invalid configuration file</source>
        <translation>Ungültige Konfigurationsdatei</translation>
    </message>
    <message>
        <source>Invalid definition file</source>
        <translation>Ungültige Definitionsdatei</translation>
    </message>
    <message>
        <source>No match found</source>
        <translation>Nichts Passendes gefunden</translation>
    </message>
    <message>
        <source>Help tool not available for this box with the selected command</source>
        <translation>Für dieses Feld gibt es mit dem gewählten Befehl kein Hilfswerkzeug</translation>
    </message>
    <message>
        <source>Can not find Device Configuration file at standard location</source>
        <translation>Die Bausteindefinitionsdatei ist am Standardort nicht zu finden</translation>
    </message>
    <message>
        <source>Load Device Definitions</source>
        <translation>Bausteindefinitionen laden</translation>
    </message>
    <message>
        <source>No Device Configuration available</source>
        <translation>Keine Bausteindefinitionen verfügbar</translation>
    </message>
    <message>
        <source>No Device Configuration file selected</source>
        <translation>Keine Bausteindefinitionsdatei gewählt</translation>
    </message>
    <message>
        <source>Select Devicename to load</source>
        <translation>Bitte den zu ladenden Baustein wählen</translation>
    </message>
    <message>
        <source>Referral is not a device</source>
        <translation>Der Verweis ist kein Baustein</translation>
    </message>
    <message>
        <source>Save Device</source>
        <translation>Baustein speichern</translation>
    </message>
    <message>
        <source>Function not supported by Device</source>
        <translation>Funktion vom Baustein nicht unterstützt</translation>
    </message>
    <message>
        <source>Lynx Flexible Addressing is a complex concept !!<byte value="xd"/>
It should only be activated by experienced users<byte value="xd"/>
that understand the details very well !</source>
        <translation>Lynx-Flex-Adressierung ist ein anspruchsvolles Konzept!<byte value="xd"/>
Sie sollte nur von erfahrenen Benutzern eingeschaltet werden,<byte value="xd"/>
die die Einzelheiten sehr gut verstehen!</translation>
    </message>
    <message>
        <source>Save Configuration</source>
        <translation>Konfiguration speichern</translation>
    </message>
    <message>
        <source>Load Configuration</source>
        <translation>Konfiguration laden</translation>
    </message>
    <message>
        <source>Your Corvid system supports Kestrel Tunneling<byte value="xd"/>
We recommend to use the Corvid Tunneling option instead<byte value="xd"/>
Do you still want to activate Transparant Mode?</source>
        <translation>Ihr Corvid-System unterstützt den Kestrel-Tunnel<byte value="xd"/>
Wir empfehlen, stattdessen die Option Corvid-Tunnel zu benutzen<byte value="xd"/>
Möchten Sie den Transparentmodus trotzdem aktivieren?</translation>
    </message>
    <message>
        <source>WARNING !!<byte value="xd"/>
This operation will erase the Kestrel Configuration Memory<byte value="xd"/>
Continue?</source>
        <translation>ACHTUNG!<byte value="xd"/>
Dieser Vorgang löscht den Konfigurationsspeicher des Kestrel-Moduls<byte value="xd"/>
Fortfahren?</translation>
    </message>
    <message>
        <source>WARNING !!<byte value="xd"/>
This operation will erase the Kestrel Configuration Memory<byte value="xd"/>
The green LED on the Kestrel will be ON during this process<byte value="xd"/>
The erase process may take up to 45 seconds, please be patient<byte value="xd"/>
<byte value="xd"/>
Do you want to cancel this operation?</source>
        <translation>ACHTUNG!<byte value="xd"/>
Dieser Vorgang löscht den Konfigurationsspeicher des Kestrel-Moduls<byte value="xd"/>
Die grüne LED des Moduls leuchtet währenddessen<byte value="xd"/>
Das Löschen kann bis zu 45 Sekunden dauern, bitte Geduld<byte value="xd"/>
<byte value="xd"/>
Möchten Sie diesen Vorgang abbrechen?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Reading ID string</source>
        <translation>ID-Text wird gelesen</translation>
    </message>
    <message>
        <source>Reading DCC settings</source>
        <translation>DCC-Einstellungen werden gelesen</translation>
    </message>
    <message>
        <source>Reading serial addressing</source>
        <translation>Serielle Adressierung wird gelesen</translation>
    </message>
    <message>
        <source>Reading LED control</source>
        <translation>LED-Steuerung wird gelesen</translation>
    </message>
    <message>
        <source>Reading hardware configuration</source>
        <translation>Hardware-Konfiguration wird gelesen</translation>
    </message>
    <message>
        <source>Reading serial port</source>
        <translation>Serielle Schnittstelle wird gelesen</translation>
    </message>
    <message>
        <source>Reading pins</source>
        <translation>Pins werden gelesen</translation>
    </message>
    <message>
        <source>Reading events</source>
        <translation>Ereignisse werden gelesen</translation>
    </message>
    <message>
        <source>Reading enable maps</source>
        <translation>Freigabetabellen werden gelesen</translation>
    </message>
    <message>
        <source>Writing ID string</source>
        <translation>ID-Text wird geschrieben</translation>
    </message>
    <message>
        <source>Writing DCC settings</source>
        <translation>DCC-Einstellungen werden geschrieben</translation>
    </message>
    <message>
        <source>Writing LED control</source>
        <translation>LED-Steuerung wird geschrieben</translation>
    </message>
    <message>
        <source>Writing hardware configuration</source>
        <translation>Hardware-Konfiguration wird geschrieben</translation>
    </message>
    <message>
        <source>Writing serial port</source>
        <translation>Serielle Schnittstelle wird geschrieben</translation>
    </message>
    <message>
        <source>Writing pins</source>
        <translation>Pins werden geschrieben</translation>
    </message>
    <message>
        <source>Writing events</source>
        <translation>Ereignisse werden geschrieben</translation>
    </message>
    <message>
        <source>Writing enable maps</source>
        <translation>Freigabetabellen werden geschrieben</translation>
    </message>
    <message>
        <source>Writing serial addressing</source>
        <translation>Serielle Adressierung wird geschrieben</translation>
    </message>
    <message>
        <source>Verifying general settings</source>
        <translation>Allgemeine Einstellungen werden geprüft</translation>
    </message>
    <message>
        <source>Verifying event control</source>
        <translation>Ereignissteuerung wird geprüft</translation>
    </message>
    <message>
        <source>Verifying pins</source>
        <translation>Pins werden geprüft</translation>
    </message>
    <message>
        <source>Verifying ID string</source>
        <translation>ID-Text wird geprüft</translation>
    </message>
    <message>
        <source>Verifying hardware configuration</source>
        <translation>Hardware-Konfiguration wird geprüft</translation>
    </message>
    <message>
        <source>Verifying DCC addresses</source>
        <translation>DCC-Adressen werden geprüft</translation>
    </message>
    <message>
        <source>Verifying DCC options</source>
        <translation>DCC-Optionen werden geprüft</translation>
    </message>
    <message>
        <source>Verifying serial addressing</source>
        <translation>Serielle Adressierung wird geprüft</translation>
    </message>
    <message>
        <source>Verifying eXtended address</source>
        <translation>eXtended-Adresse wird geprüft</translation>
    </message>
    <message>
        <source>Verifying eXtended group mask</source>
        <translation>eXtended-Gruppenmaske wird geprüft</translation>
    </message>
    <message>
        <source>Verifying LED control</source>
        <translation>LED-Steuerung wird geprüft</translation>
    </message>
    <message>
        <source>Verifying serial port</source>
        <translation>Serielle Schnittstelle wird geprüft</translation>
    </message>
    <message>
        <source>Pins read</source>
        <translation>Pins gelesen</translation>
    </message>
    <message>
        <source>Pins written</source>
        <translation>Pins geschrieben</translation>
    </message>
    <message>
        <source>Pins verified</source>
        <translation>Pins geprüft</translation>
    </message>
    <message>
        <source>%1 stopped by a program error; the configuration is as it was before</source>
        <translation>%1 wegen eines Programmfehlers angehalten; die Konfiguration ist wie vorher</translation>
    </message>
    <message>
        <source>%1; the module may hold only part of it</source>
        <translation>%1; das Modul enthält vielleicht nur einen Teil davon</translation>
    </message>
    <message>
        <source>%1: the pages show a partial read</source>
        <translation>%1: die Seiten zeigen einen teilweisen Lesestand</translation>
    </message>
    <message>
        <source>%1: the module holds the configuration</source>
        <translation>%1: das Modul enthält die Konfiguration</translation>
    </message>
    <message>
        <source>%1: the module differs, see the verification report</source>
        <translation>%1: das Modul weicht ab, siehe Prüfbericht</translation>
    </message>
    <message>
        <source>%1 done in %2 s</source>
        <translation>%1 fertig in %2 s</translation>
    </message>
    <message>
        <source>%1 cancelled %2</source>
        <translation>%1 abgebrochen %2</translation>
    </message>
    <message>
        <source>%1 stopped %2</source>
        <translation>%1 angehalten %2</translation>
    </message>
    <message>
        <source>at pin %1 of %2</source>
        <translation>bei Pin %1 von %2</translation>
    </message>
    <message>
        <source>The module differs in %1 items</source>
        <translation>Das Modul weicht in %1 Punkten ab</translation>
    </message>
    <message>
        <source>differs (%1 items)</source>
        <translation>weicht ab (%1 Punkte)</translation>
    </message>
    <message>
        <source>Reading pin %1</source>
        <translation>Pin %1 wird gelesen</translation>
    </message>
    <message>
        <source>Writing pin %1</source>
        <translation>Pin %1 wird geschrieben</translation>
    </message>
    <message>
        <source>Verifying pin %1</source>
        <translation>Pin %1 wird geprüft</translation>
    </message>
    <message>
        <source>Writing change %1 of %2</source>
        <translation>Änderung %1 von %2 wird geschrieben</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>%1 wird gefragt</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>%1 wird geschrieben</translation>
    </message>
    <message>
        <source>Verifying %1</source>
        <translation>%1 wird geprüft</translation>
    </message>
    <message>
        <source>Cannot open port %1: %2</source>
        <translation>Port %1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>Unknown configuration: %1</source>
        <translation>Unbekannte Konfiguration: %1</translation>
    </message>
    <message>
        <source>The module differs in 1 item</source>
        <translation>Das Modul weicht in 1 Punkt ab</translation>
    </message>
    <message>
        <source>differs (1 item)</source>
        <translation>weicht ab (1 Punkt)</translation>
    </message>
    <message>
        <source>Cannot open port %1</source>
        <translation>Port %1 lässt sich nicht öffnen</translation>
    </message>
</context>
<context>
    <name>PinMode</name>
    <message>
        <source>Not configured</source>
        <translation>Nicht konfiguriert</translation>
    </message>
    <message>
        <source>Servo</source>
        <translation>Servo</translation>
    </message>
    <message>
        <source>PWM</source>
        <translation>PWM</translation>
    </message>
    <message>
        <source>PWM, Inverted</source>
        <translation>PWM, umgekehrt</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Input, Inverted</source>
        <translation>Eingang, umgekehrt</translation>
    </message>
</context>
<context>
    <name>PinOverview</name>
    <message>
        <source>No addr in use</source>
        <translation>Keine Adr. belegt</translation>
    </message>
</context>
<context>
    <name>StepTable</name>
    <message>
        <source>Fade</source>
        <translation>Überblenden</translation>
    </message>
</context>
<context>
    <name>WorkState</name>
    <message>
        <source>What the module holds is not known</source>
        <translation>Was das Modul enthält, ist nicht bekannt</translation>
    </message>
    <message>
        <source>The module holds what is shown</source>
        <translation>Das Modul enthält das Gezeigte</translation>
    </message>
</context>
</TS>
