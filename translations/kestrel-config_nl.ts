<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>EventPatternTool</name>
    <message>
        <source>Enable Off-Event</source>
        <translation>&amp;Uit-gebeurtenis inschakelen</translation>
    </message>
    <message>
        <source>Disable Off-Event</source>
        <translation>Uit-gebeurtenis &amp;blokkeren</translation>
    </message>
    <message>
        <source>Execute Off-Event</source>
        <translation>Uit-gebeurtenis uit&amp;voeren</translation>
    </message>
    <message>
        <source>Enable On-Event</source>
        <translation>&amp;Aan-gebeurtenis inschakelen</translation>
    </message>
    <message>
        <source>Disable On-Event</source>
        <translation>Aan-gebeurtenis bl&amp;okkeren</translation>
    </message>
    <message>
        <source>Execute On-Event</source>
        <translation>Aan-gebeurtenis uitvoe&amp;ren</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
</context>
<context>
    <name>Lang</name>
    <message>
        <source>Click for copy/paste tools</source>
        <translation>Klik voor kopiëren/plakken</translation>
    </message>
    <message>
        <source>Double-click for help-tool</source>
        <translation>Dubbelklik voor het hulpgereedschap</translation>
    </message>
    <message>
        <source>The module has no command to test an aspect, so this is not available</source>
        <translation>De module kent geen opdracht om een seinbeeld te testen, daarom is dit niet beschikbaar</translation>
    </message>
    <message>
        <source>&amp;Pin Tool...</source>
        <translation>&amp;Pin-gereedschap...</translation>
    </message>
    <message>
        <source>&amp;Aspect Tool...</source>
        <translation>Sein&amp;beeld-gereedschap...</translation>
    </message>
    <message>
        <source>&amp;Step Tool...</source>
        <translation>Sta&amp;p-gereedschap...</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Pin</translation>
    </message>
    <message>
        <source>The pin&apos;s description, kept in the configuration</source>
        <translation>De beschrijving van de pin, bewaard in de configuratie</translation>
    </message>
    <message>
        <source>The first pin of the device this pin belongs to</source>
        <translation>De eerste pin van het apparaat waartoe deze pin behoort</translation>
    </message>
    <message>
        <source>The device&apos;s name, kept by its first pin</source>
        <translation>De naam van het apparaat, bewaard bij de eerste pin</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Device pin</source>
        <translation>Apparaatpin</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>Aspects</source>
        <translation>Seinbeelden</translation>
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
        <translation>Serieel</translation>
    </message>
    <message>
        <source>DCC addresses</source>
        <translation>DCC-adressen</translation>
    </message>
    <message>
        <source>eXtd DCC addresses</source>
        <translation>eXtd-DCC-adressen</translation>
    </message>
    <message>
        <source>Serial addresses</source>
        <translation>Seriële adressen</translation>
    </message>
    <message>
        <source>Re&amp;ad Pin</source>
        <translation>Pin &amp;lezen</translation>
    </message>
    <message>
        <source>Write Pin</source>
        <translation>Pin schrijven</translation>
    </message>
    <message>
        <source>Read Device</source>
        <translation>Apparaat lezen</translation>
    </message>
    <message>
        <source>Write Device</source>
        <translation>Apparaat schrijven</translation>
    </message>
    <message>
        <source>Aspect program</source>
        <translation>Seinbeeldprogramma</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Seinbeeld</translation>
    </message>
    <message>
        <source>Aspect description</source>
        <translation>Beschrijving van het seinbeeld</translation>
    </message>
    <message>
        <source>Initial aspect</source>
        <translation>Beginseinbeeld</translation>
    </message>
    <message>
        <source>The aspect the pin shows after power-up; -1 for none</source>
        <translation>Het seinbeeld dat de pin na het inschakelen toont; -1 voor geen</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Stap</translation>
    </message>
    <message>
        <source>Instruction</source>
        <translation>Instructie</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Overvloeien</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Click to Insert/Delete step</source>
        <translation>Klik om een stap in te voegen/te wissen</translation>
    </message>
    <message>
        <source>Instruction, step </source>
        <translation>Instructie, stap </translation>
    </message>
    <message>
        <source>Fade, step </source>
        <translation>Overvloeien, stap </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details tonen</translation>
    </message>
    <message>
        <source>Shows or hides the transfer buttons, the step headings and the pin configuration&apos;s parameter buttons</source>
        <translation>Toont of verbergt de overdrachtknoppen, de stapkoppen en de parameterknoppen van de pinconfiguratie</translation>
    </message>
    <message>
        <source>Read Asp&apos;s</source>
        <translation>Seinb. lezen</translation>
    </message>
    <message>
        <source>Write Asp&apos;s</source>
        <translation>Seinb. schrijven</translation>
    </message>
    <message>
        <source>Write Aspect</source>
        <translation>Seinbeeld schrijven</translation>
    </message>
    <message>
        <source>Test Aspect</source>
        <translation>Seinbeeld testen</translation>
    </message>
    <message>
        <source>Device definitions</source>
        <translation>Apparaatdefinities</translation>
    </message>
    <message>
        <source>Device to load</source>
        <translation>Te laden apparaat</translation>
    </message>
    <message>
        <source>Load Device</source>
        <translation>Apparaat laden</translation>
    </message>
    <message>
        <source>Save Device</source>
        <translation>Apparaat opslaan</translation>
    </message>
    <message>
        <source>Reload &amp;DD</source>
        <translation>AD opnieuw &amp;laden</translation>
    </message>
    <message>
        <source>Aspect timeline</source>
        <translation>Tijdlijn van de seinbeelden</translation>
    </message>
    <message>
        <source>Aspect %1</source>
        <translation>Seinbeeld %1</translation>
    </message>
    <message>
        <source>Restore from backup</source>
        <translation>Herstellen uit reservekopie</translation>
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
        <translation>Versie</translation>
    </message>
    <message>
        <source>The read reported problems: this backup may hold values the module never sent</source>
        <translation>Bij het lezen waren er problemen: deze reservekopie kan waarden bevatten die de module nooit heeft gestuurd</translation>
    </message>
    <message>
        <source>&amp;Backups</source>
        <translation>&amp;Reservekopieën</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuleren</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Read A&amp;ll</source>
        <translation>A&amp;lles lezen</translation>
    </message>
    <message>
        <source>&amp;Write All</source>
        <translation>Alles &amp;schrijven</translation>
    </message>
    <message>
        <source>Verif&amp;y All</source>
        <translation>Alles &amp;controleren</translation>
    </message>
    <message>
        <source>Write Chan&amp;ges</source>
        <translation>&amp;Wijzigingen schrijven</translation>
    </message>
    <message>
        <source>Writes only what differs from the module as it was last read, written or verified</source>
        <translation>Schrijft alleen wat afwijkt van de module zoals die het laatst gelezen, geschreven of gecontroleerd is</translation>
    </message>
    <message>
        <source>Compare wi&amp;th Module</source>
        <translation>Ver&amp;gelijken met module</translation>
    </message>
    <message>
        <source>Reads the module beside the configuration and lists every difference</source>
        <translation>Leest de module naast de configuratie en toont elk verschil</translation>
    </message>
    <message>
        <source>Write pin configurations too</source>
        <translation>Ook pinconfiguraties schrijven</translation>
    </message>
    <message>
        <source>Also writes each pin&apos;s servo, PWM or input parameters to flash</source>
        <translation>Schrijft ook de servo-, PWM- of ingangsparameters van elke pin naar het flashgeheugen</translation>
    </message>
    <message>
        <source>&amp;Save File</source>
        <translation>Bestand &amp;opslaan</translation>
    </message>
    <message>
        <source>Shift+Save File to save compact</source>
        <translation>Shift+Bestand opslaan slaat compact op</translation>
    </message>
    <message>
        <source>L&amp;oad File</source>
        <translation>Bestand la&amp;den</translation>
    </message>
    <message>
        <source>Read All &amp;Pins</source>
        <translation>Alle &amp;pins lezen</translation>
    </message>
    <message>
        <source>Reads the 32 pins from the module, without the general settings and events</source>
        <translation>Leest de 32 pins uit de module, zonder de algemene instellingen en gebeurtenissen</translation>
    </message>
    <message>
        <source>Write All Pi&amp;ns</source>
        <translation>Alle pi&amp;ns schrijven</translation>
    </message>
    <message>
        <source>Writes the 32 pins to the module, without the general settings and events</source>
        <translation>Schrijft de 32 pins naar de module, zonder de algemene instellingen en gebeurtenissen</translation>
    </message>
    <message>
        <source>Ver&amp;ify All Pins</source>
        <translation>Alle pins contr&amp;oleren</translation>
    </message>
    <message>
        <source>Compares the 32 pins of the module with the configuration</source>
        <translation>Vergelijkt de 32 pins van de module met de configuratie</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Algemene instellingen</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Pins</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Gebeurtenissen</translation>
    </message>
    <message>
        <source>Compare with Module</source>
        <translation>Vergelijken met module</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Verschillen</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Onderdeel</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuratie</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Keuze</translation>
    </message>
    <message>
        <source>&amp;Take All from Module</source>
        <translation>Alles van de module &amp;overnemen</translation>
    </message>
    <message>
        <source>&amp;Keep All Mine</source>
        <translation>Al het &amp;mijne houden</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Toepassen</translation>
    </message>
    <message>
        <source>Takes the items chosen &quot;take the module&apos;s&quot; into the configuration</source>
        <translation>Neemt de onderdelen met de keuze „van de module overnemen” op in de configuratie</translation>
    </message>
    <message>
        <source>Apply and &amp;Write Changes</source>
        <translation>Toepassen en wijzigingen &amp;schrijven</translation>
    </message>
    <message>
        <source>Applies, then writes to the module what you kept</source>
        <translation>Past toe en schrijft daarna wat u hield naar de module</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
    <message>
        <source>keep mine</source>
        <translation>het mijne houden</translation>
    </message>
    <message>
        <source>take the module&apos;s</source>
        <translation>van de module overnemen</translation>
    </message>
    <message>
        <source>The module holds this configuration: no differences.</source>
        <translation>De module bevat deze configuratie: geen verschillen.</translation>
    </message>
    <message>
        <source>1 difference between the module and the configuration</source>
        <translation>1 verschil tussen de module en de configuratie</translation>
    </message>
    <message>
        <source>%1 differences between the module and the configuration</source>
        <translation>%1 verschillen tussen de module en de configuratie</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Pin %1</translation>
    </message>
    <message>
        <source>, aspect %1</source>
        <translation>, seinbeeld %1</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Annu&amp;leren</translation>
    </message>
    <message>
        <source>Clean &amp;Aspect</source>
        <translation>Seinbeeld &amp;opschonen</translation>
    </message>
    <message>
        <source>Clears the description and everything after the first empty step</source>
        <translation>Wist de beschrijving en alles na de eerste lege stap</translation>
    </message>
    <message>
        <source>&amp;Insert Step</source>
        <translation>Stap &amp;invoegen</translation>
    </message>
    <message>
        <source>&amp;Delete Step</source>
        <translation>Stap &amp;wissen</translation>
    </message>
    <message>
        <source>, step %1</source>
        <translation>, stap %1</translation>
    </message>
    <message>
        <source>Event Control</source>
        <translation>Gebeurtenisbesturing</translation>
    </message>
    <message>
        <source>Rea&amp;d</source>
        <translation>&amp;Lezen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schrijven</translation>
    </message>
    <message>
        <source>Copy to &amp;All</source>
        <translation>Naar &amp;alle kopiëren</translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Ingang %1</translation>
    </message>
    <message>
        <source>ON:</source>
        <translation>AAN:</translation>
    </message>
    <message>
        <source>OFF:</source>
        <translation>UIT:</translation>
    </message>
    <message>
        <source>InitialEvent_ON Enable</source>
        <translation>Beginsgebeurtenis AAN inschakelen</translation>
    </message>
    <message>
        <source>Initial Event_OFF Enable</source>
        <translation>Beginsgebeurtenis UIT inschakelen</translation>
    </message>
    <message>
        <source>Read Enable Map</source>
        <translation>Vrijgaven lezen</translation>
    </message>
    <message>
        <source>Write Ena&amp;ble Map</source>
        <translation>Vrij&amp;gaven schrijven</translation>
    </message>
    <message>
        <source>All Pins</source>
        <translation>Alle pins</translation>
    </message>
    <message>
        <source>Read All Events</source>
        <translation>Alle gebeurtenissen lezen</translation>
    </message>
    <message>
        <source>Write All Events</source>
        <translation>Alle gebeurtenissen schrijven</translation>
    </message>
    <message>
        <source>Verify Event Control</source>
        <translation>Gebeurtenisbesturing controleren</translation>
    </message>
    <message>
        <source>Saved %1%2</source>
        <translation>%1%2 opgeslagen</translation>
    </message>
    <message>
        <source> (compact)</source>
        <translation> (compact)</translation>
    </message>
    <message>
        <source>Re&amp;quest Version</source>
        <translation>&amp;Versie opvragen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <source>At most 12 characters, letters, digits and signs without accents</source>
        <translation>Hoogstens 12 tekens: letters, cijfers en tekens zonder accenten</translation>
    </message>
    <message>
        <source>ID String</source>
        <translation>ID-tekst</translation>
    </message>
    <message>
        <source>DCC Address</source>
        <translation>DCC-adres</translation>
    </message>
    <message>
        <source>eXtended DCC Address</source>
        <translation>eXtended-DCC-adres</translation>
    </message>
    <message>
        <source>Packet Repeat Period</source>
        <translation>Herhaaltijd van pakketten</translation>
    </message>
    <message>
        <source>Basic Packet State Invert</source>
        <translation>Toestand van basispakketten omkeren</translation>
    </message>
    <message>
        <source>Allow Address 0</source>
        <translation>Adres 0 toestaan</translation>
    </message>
    <message>
        <source>Serial Addressing</source>
        <translation>Seriële adressering</translation>
    </message>
    <message>
        <source>Enable Native Kestrel Mode</source>
        <translation>Eigen Kestrel-modus inschakelen</translation>
    </message>
    <message>
        <source>Enable Lynx Flex-Addresss</source>
        <translation>Lynx-flexadressen inschakelen</translation>
    </message>
    <message>
        <source>Flex-Address</source>
        <translation>Flexadres</translation>
    </message>
    <message>
        <source>The first Lynx address of the module; addresses come in groups of 4</source>
        <translation>Het eerste Lynx-adres van de module; adressen komen in groepen van 4</translation>
    </message>
    <message>
        <source>eXtended Address</source>
        <translation>eXtended-adres</translation>
    </message>
    <message>
        <source>eXtended Group Mask</source>
        <translation>eXtended-groepsmasker</translation>
    </message>
    <message>
        <source>Hardware Configuration</source>
        <translation>Hardwareconfiguratie</translation>
    </message>
    <message>
        <source>Sink Driver</source>
        <translation>Sink-driver</translation>
    </message>
    <message>
        <source>Source Driver</source>
        <translation>Source-driver</translation>
    </message>
    <message>
        <source>LED Control</source>
        <translation>Led-besturing</translation>
    </message>
    <message>
        <source>Basic DCC Packet</source>
        <translation>Basis-DCC-pakket</translation>
    </message>
    <message>
        <source>eXtd DCC Packet</source>
        <translation>eXtd-DCC-pakket</translation>
    </message>
    <message>
        <source>Lynx Message</source>
        <translation>Lynx-bericht</translation>
    </message>
    <message>
        <source>Kestrel Message</source>
        <translation>Kestrel-bericht</translation>
    </message>
    <message>
        <source>Green 4</source>
        <translation>Groen 4</translation>
    </message>
    <message>
        <source>Green 5</source>
        <translation>Groen 5</translation>
    </message>
    <message>
        <source>Green 6</source>
        <translation>Groen 6</translation>
    </message>
    <message>
        <source>Idle Flash</source>
        <translation>Knipperen bij rust</translation>
    </message>
    <message>
        <source>DCC Checksum Error</source>
        <translation>DCC-controlesomfout</translation>
    </message>
    <message>
        <source>Orange 1</source>
        <translation>Oranje 1</translation>
    </message>
    <message>
        <source>Orange 2</source>
        <translation>Oranje 2</translation>
    </message>
    <message>
        <source>Orange 3</source>
        <translation>Oranje 3</translation>
    </message>
    <message>
        <source>Orange 4</source>
        <translation>Oranje 4</translation>
    </message>
    <message>
        <source>Orange 5</source>
        <translation>Oranje 5</translation>
    </message>
    <message>
        <source>Orange 6</source>
        <translation>Oranje 6</translation>
    </message>
    <message>
        <source>All Received Datagrams</source>
        <translation>Alle ontvangen datagrammen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Green LED&lt;/b&gt;</source>
        <translation>&lt;b&gt;Groene led&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Orange LED&lt;/b&gt;</source>
        <translation>&lt;b&gt;Oranje led&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Serial Port</source>
        <translation>Seriële poort</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Inschakelen</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baud</translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation>Databits</translation>
    </message>
    <message>
        <source>Stop Bits</source>
        <translation>Stopbits</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Pariteit</translation>
    </message>
    <message>
        <source>7 bits</source>
        <translation>7 bits</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 bits</translation>
    </message>
    <message>
        <source>1 bit</source>
        <translation>1 bit</translation>
    </message>
    <message>
        <source>2 bits</source>
        <translation>2 bits</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Even</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Oneven</translation>
    </message>
    <message>
        <source>Configuration Memory</source>
        <translation>Configuratiegeheugen</translation>
    </message>
    <message>
        <source>Erase Flash</source>
        <translation>Flash wissen</translation>
    </message>
    <message>
        <source>Erases the whole configuration of the module (takes up to 45 seconds)</source>
        <translation>Wist de hele configuratie van de module (duurt tot 45 seconden)</translation>
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
        <translation>&amp;Tijd =</translation>
    </message>
    <message>
        <source>Max Time =</source>
        <translation>Max. tijd =</translation>
    </message>
    <message>
        <source>Output +&amp;%1</source>
        <translation>Uitgang +&amp;%1</translation>
    </message>
    <message>
        <source>&amp;All Dark</source>
        <translation>&amp;Alles donker</translation>
    </message>
    <message>
        <source>&amp;No Dark-phase</source>
        <translation>&amp;Geen donkerfase</translation>
    </message>
    <message>
        <source>&amp;Parameter</source>
        <translation>&amp;Parameter</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Origineel</translation>
    </message>
    <message>
        <source>Event inputs</source>
        <translation>Gebeurtenisingangen</translation>
    </message>
    <message>
        <source>Event Input &amp;%1</source>
        <translation>Gebeurtenisingang &amp;%1</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>No &amp;action</source>
        <translation>&amp;Geen actie</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>&amp;Niveau</translation>
    </message>
    <message>
        <source>&amp;Time Index</source>
        <translation>&amp;Tijdindex</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Vertraging</translation>
    </message>
    <message>
        <source>0..127: 16 x level + time index</source>
        <translation>0..127: 16 x niveau + tijdindex</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Pin Configuration</source>
        <translation>Pinconfiguratie</translation>
    </message>
    <message>
        <source>Pin Overview</source>
        <translation>Pinoverzicht</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Baan</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>naamloos</translation>
    </message>
    <message>
        <source>Port %1 open at %2 bit/s</source>
        <translation>Poort %1 open op %2 bit/s</translation>
    </message>
    <message>
        <source>Port closed</source>
        <translation>Poort gesloten</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Find Modules</source>
        <translation>Modules zoeken</translation>
    </message>
    <message>
        <source>Asks every bus address of the route in use (0..15 directly, 0..31 through the Corvid system) for its version and ID string; each address is given 500 ms to answer</source>
        <translation>Vraagt elk busadres van de gebruikte route (0..15 rechtstreeks, 0..31 via het Corvid-systeem) naar versie en ID-tekst; elk adres krijgt 500 ms om te antwoorden</translation>
    </message>
    <message>
        <source>Also every eXtended address</source>
        <translation>Ook elk eXtended-adres</translation>
    </message>
    <message>
        <source>Find Modules also asks eXtended addresses 0..95 on each address that answered (about 48 s an address)</source>
        <translation>Modules zoeken vraagt ook de eXtended-adressen 0..95 op elk adres dat antwoordde (ongeveer 48 s per adres)</translation>
    </message>
    <message>
        <source>Back Up All</source>
        <translation>Alles reservekopiëren</translation>
    </message>
    <message>
        <source>Read All of each module in the list, kept with its backups</source>
        <translation>Alles lezen van elke module in de lijst, bewaard bij zijn reservekopieën</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Alles controleren</translation>
    </message>
    <message>
        <source>Compares each module in the list with its newest backup</source>
        <translation>Vergelijkt elke module in de lijst met zijn nieuwste reservekopie</translation>
    </message>
    <message>
        <source>Modules of the layout:</source>
        <translation>Modules van de baan:</translation>
    </message>
    <message>
        <source>Modules of the layout</source>
        <translation>Modules van de baan</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>eXtended</source>
        <translation>eXtended</translation>
    </message>
    <message>
        <source>Newest Backup</source>
        <translation>Nieuwste reservekopie</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Double-click a module (or press Return) to make it the target</source>
        <translation>Dubbelklik op een module (of druk op Enter) om die het doel te maken</translation>
    </message>
    <message>
        <source>Summary:</source>
        <translation>Samenvatting:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Communication</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Poort:</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Vernieuwen</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitsnelheid</translation>
    </message>
    <message>
        <source>Module Address</source>
        <translation>Moduleadres</translation>
    </message>
    <message>
        <source>Use eXtended Addr</source>
        <translation>eXtended-adres gebruiken</translation>
    </message>
    <message>
        <source>eXtended address</source>
        <translation>eXtended-adres</translation>
    </message>
    <message>
        <source>Bidirectional Comm.</source>
        <translation>Bidirectionele verb.</translation>
    </message>
    <message>
        <source>Use Corvid Tunneling</source>
        <translation>Corvid-tunnel gebruiken</translation>
    </message>
    <message>
        <source>A&amp;ctivate Transparent Mode</source>
        <translation>Transparante modus a&amp;ctiveren</translation>
    </message>
    <message>
        <source>Switch Hub-A or Linkbox in Transparant Mode for Kestrel Configuration</source>
        <translation>Zet Hub-A of Linkbox in transparante modus voor de Kestrel-configuratie</translation>
    </message>
    <message>
        <source>Start numbering at 1</source>
        <translation>Nummering bij 1 beginnen</translation>
    </message>
    <message>
        <source>Response:</source>
        <translation>Antwoord:</translation>
    </message>
    <message>
        <source>Kestrel Verification</source>
        <translation>Kestrel-controle</translation>
    </message>
    <message>
        <source>Verification report</source>
        <translation>Controlerapport</translation>
    </message>
    <message>
        <source>Show Differences</source>
        <translation>Verschillen tonen</translation>
    </message>
    <message>
        <source>Corvid Communication</source>
        <translation>Corvid-verbinding</translation>
    </message>
    <message>
        <source>Corvid communication</source>
        <translation>Corvid-verbinding</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leegmaken</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Load File...</source>
        <translation>Bestand &amp;laden...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Opslaan</translation>
    </message>
    <message>
        <source>Save &amp;Compact...</source>
        <translation>&amp;Compact opslaan...</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Opslaan &amp;als...</translation>
    </message>
    <message>
        <source>&amp;Restore from backup...</source>
        <translation>&amp;Herstellen uit reservekopie...</translation>
    </message>
    <message>
        <source>Reload &amp;Device Definitions...</source>
        <translation>&amp;Apparaatdefinities opnieuw laden...</translation>
    </message>
    <message>
        <source>A&amp;ppend Device Definitions...</source>
        <translation>Apparaatdefinities &amp;toevoegen...</translation>
    </message>
    <message>
        <source>&amp;Forget Remembered Settings</source>
        <translation>Onthouden instellingen &amp;vergeten</translation>
    </message>
    <message>
        <source>The program starts afresh next time: port, addresses, window and files are forgotten</source>
        <translation>Het programma begint de volgende keer opnieuw: poort, adressen, venster en bestanden zijn vergeten</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation>&amp;Module</translation>
    </message>
    <message>
        <source>Request &amp;Version</source>
        <translation>&amp;Versie opvragen</translation>
    </message>
    <message>
        <source>&amp;Read All</source>
        <translation>Alles &amp;lezen</translation>
    </message>
    <message>
        <source>Verify &amp;All</source>
        <translation>Alles &amp;controleren</translation>
    </message>
    <message>
        <source>Compare wi&amp;th Module...</source>
        <translation>Ver&amp;gelijken met module...</translation>
    </message>
    <message>
        <source>&amp;Erase Flash...</source>
        <translation>Flash &amp;wissen...</translation>
    </message>
    <message>
        <source>Read &amp;Pin</source>
        <translation>&amp;Pin lezen</translation>
    </message>
    <message>
        <source>Write P&amp;in</source>
        <translation>P&amp;in schrijven</translation>
    </message>
    <message>
        <source>Read &amp;Device</source>
        <translation>&amp;Apparaat lezen</translation>
    </message>
    <message>
        <source>Write Devi&amp;ce</source>
        <translation>App&amp;araat schrijven</translation>
    </message>
    <message>
        <source>Read Aspe&amp;cts of the Pin</source>
        <translation>Seinbeel&amp;den van de pin lezen</translation>
    </message>
    <message>
        <source>Write Aspects o&amp;f the Pin</source>
        <translation>Seinbeelden van de pin sc&amp;hrijven</translation>
    </message>
    <message>
        <source>Write the Selected Asp&amp;ect</source>
        <translation>Gekozen seinbeeld schrijven</translation>
    </message>
    <message>
        <source>Read All Pi&amp;ns</source>
        <translation>Alle pi&amp;ns lezen</translation>
    </message>
    <message>
        <source>Write All Pin&amp;s</source>
        <translation>Alle pins schrijven</translation>
    </message>
    <message>
        <source>Verify All Pins</source>
        <translation>Alle pins controleren</translation>
    </message>
    <message>
        <source>Read Event Control</source>
        <translation>Gebeurtenisbesturing lezen</translation>
    </message>
    <message>
        <source>Write Event Control</source>
        <translation>Gebeurtenisbesturing schrijven</translation>
    </message>
    <message>
        <source>Find &amp;Modules</source>
        <translation>&amp;Modules zoeken</translation>
    </message>
    <message>
        <source>Back &amp;Up All</source>
        <translation>Alles &amp;reservekopiëren</translation>
    </message>
    <message>
        <source>Chec&amp;k All</source>
        <translation>Alles contr&amp;oleren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Beel&amp;d</translation>
    </message>
    <message>
        <source>&amp;Corvid Log</source>
        <translation>&amp;Corvid-logboek</translation>
    </message>
    <message>
        <source>&amp;Traffic Monitor</source>
        <translation>&amp;Verkeersmonitor</translation>
    </message>
    <message>
        <source>&amp;Pin Overview</source>
        <translation>&amp;Pinoverzicht</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Baan</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>The language changes when Kestrel Config starts next.</source>
        <translation>De taal verandert wanneer Kestrel Config de volgende keer start.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Gebruikershandleiding</translation>
    </message>
    <message>
        <source>&amp;About Kestrel Config</source>
        <translation>&amp;Over Kestrel Config</translation>
    </message>
    <message>
        <source>About Kestrel Config</source>
        <translation>Over Kestrel Config</translation>
    </message>
    <message>
        <source>Reads, edits, writes back and verifies what a Kestrel accessory module stores.&lt;br&gt;&lt;br&gt;Build: %1, Qt %2&lt;br&gt;&lt;br&gt;The user guide (Help &amp;gt; User Guide) is also a file: /usr/share/doc/kestrel-config/user-guide.md when installed from the Debian package, user-guide.md in the program&apos;s folder on Windows (C:\Program Files\Kestrel Config when installed). Its section &quot;Data files&quot; describes the data-file format, and &quot;Readable configurations and differences&quot; every item of it; on Linux the manual page kestrel-cli(1) describes the format too.</source>
        <translation>Leest, bewerkt, schrijft terug en controleert wat een Kestrel-accessoiremodule bewaart.&lt;br&gt;&lt;br&gt;Build: %1, Qt %2&lt;br&gt;&lt;br&gt;De gebruikershandleiding (Help &amp;gt; Gebruikershandleiding, in het Engels) is ook een bestand: /usr/share/doc/kestrel-config/user-guide.md bij installatie uit het Debian-pakket, user-guide.md in de programmamap onder Windows (C:\Program Files\Kestrel Config bij installatie). Het hoofdstuk &quot;Data files&quot; beschrijft de indeling van de gegevensbestanden en &quot;Readable configurations and differences&quot; elk onderdeel ervan; onder Linux beschrijft ook de handleidingpagina kestrel-cli(1) de indeling.</translation>
    </message>
    <message>
        <source>default</source>
        <translation>standaard</translation>
    </message>
    <message>
        <source>If checked, use active dynamic parameters, else go directly to position</source>
        <translation>Indien aangevinkt gelden de actieve dynamische parameters, anders direct naar de stand</translation>
    </message>
    <message>
        <source>Pin </source>
        <translation>Pin </translation>
    </message>
    <message>
        <source>Pin is not configured</source>
        <translation>Pin is niet geconfigureerd</translation>
    </message>
    <message>
        <source>Not configured</source>
        <translation>Niet geconfigureerd</translation>
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
        <translation>Ingang</translation>
    </message>
    <message>
        <source>the pin no longer drives anything</source>
        <translation>de pin stuurt niets meer aan</translation>
    </message>
    <message>
        <source>the pin drives a servo</source>
        <translation>de pin stuurt een servo aan</translation>
    </message>
    <message>
        <source>the pin drives a PWM output</source>
        <translation>de pin stuurt een PWM-uitgang aan</translation>
    </message>
    <message>
        <source>the pin reads an input</source>
        <translation>de pin leest een ingang</translation>
    </message>
    <message>
        <source>Picking this page changes the pin&apos;s mode: %1. It asks first when the pin&apos;s parameters would be replaced.</source>
        <translation>Het kiezen van deze pagina wijzigt de modus van de pin: %1. Er wordt eerst gevraagd wanneer de parameters van de pin vervangen zouden worden.</translation>
    </message>
    <message>
        <source>Get Pin Config</source>
        <translation>Pinconfig. ophalen</translation>
    </message>
    <message>
        <source>Re&amp;ad Pin Config</source>
        <translation>Pinconfig. &amp;lezen</translation>
    </message>
    <message>
        <source>Set Pin Config</source>
        <translation>Pinconfig. instellen</translation>
    </message>
    <message>
        <source>Write Pin Config</source>
        <translation>Pinconfig. schrijven</translation>
    </message>
    <message>
        <source>Gets the active parameters</source>
        <translation>Haalt de actieve parameters op</translation>
    </message>
    <message>
        <source>Reads the parameters from Flash memory</source>
        <translation>Leest de parameters uit het flashgeheugen</translation>
    </message>
    <message>
        <source>Sets Active Servo parameters (not permanent)</source>
        <translation>Stelt de actieve servoparameters in (niet blijvend)</translation>
    </message>
    <message>
        <source>Writes Servo Parameters to Flash memory</source>
        <translation>Schrijft de servoparameters naar het flashgeheugen</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Omgekeerd</translation>
    </message>
    <message>
        <source>Set Position</source>
        <translation>Stand instellen</translation>
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
        <translation>Direct naar de doelstand springen, dynamische parameters negeren</translation>
    </message>
    <message>
        <source>Servo Position</source>
        <translation>Servostand</translation>
    </message>
    <message>
        <source>Servo Parameters</source>
        <translation>Servoparameters</translation>
    </message>
    <message>
        <source>Initial Position</source>
        <translation>Beginstand</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Middenstand</translation>
    </message>
    <message>
        <source>1/Mass</source>
        <translation>1/massa</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>Demping</translation>
    </message>
    <message>
        <source>MaxSpd</source>
        <translation>Max. snelh.</translation>
    </message>
    <message>
        <source>MaxAcc</source>
        <translation>Max. versn.</translation>
    </message>
    <message>
        <source>BounceDown</source>
        <translation>Stuiteren omlaag</translation>
    </message>
    <message>
        <source>BounceDownFactor</source>
        <translation>Stuitfactor omlaag</translation>
    </message>
    <message>
        <source>BounceUp</source>
        <translation>Stuiteren omhoog</translation>
    </message>
    <message>
        <source>BounceUpFactor</source>
        <translation>Stuitfactor omhoog</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereik</translation>
    </message>
    <message>
        <source>Servo State</source>
        <translation>Servotoestand</translation>
    </message>
    <message>
        <source>Auto Suspend</source>
        <translation>Automatisch uitschakelen</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>If checked, the servo is not activated until the first position is sent</source>
        <translation>Indien aangevinkt wordt de servo pas actief wanneer de eerste stand is verzonden</translation>
    </message>
    <message>
        <source>Servo Initialised</source>
        <translation>Servo geïnitialiseerd</translation>
    </message>
    <message>
        <source>Set Level</source>
        <translation>Niveau instellen</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langzaam</translation>
    </message>
    <message>
        <source>J&amp;ump</source>
        <translation>Spr&amp;ingen</translation>
    </message>
    <message>
        <source>Jump to the level immediately, without the slow change</source>
        <translation>Direct naar het niveau springen, zonder langzame overgang</translation>
    </message>
    <message>
        <source>PWM Level</source>
        <translation>PWM-niveau</translation>
    </message>
    <message>
        <source>Drive Mode</source>
        <translation>Aanstuurwijze</translation>
    </message>
    <message>
        <source>Acceleration Mode</source>
        <translation>Versnellingswijze</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineair</translation>
    </message>
    <message>
        <source>Logaritmic</source>
        <translation>Logaritmisch</translation>
    </message>
    <message>
        <source>PWM Parameters</source>
        <translation>PWM-parameters</translation>
    </message>
    <message>
        <source>Initial Level</source>
        <translation>Beginniveau</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Versnelling</translation>
    </message>
    <message>
        <source>Off - Level</source>
        <translation>Uit-niveau</translation>
    </message>
    <message>
        <source>On-Level</source>
        <translation>Aan-niveau</translation>
    </message>
    <message>
        <source>Debounce</source>
        <translation>Ontdenderen</translation>
    </message>
    <message>
        <source>ON-delay (debounce)</source>
        <translation>AAN-vertraging (ontdenderen)</translation>
    </message>
    <message>
        <source>OFF-delay (debounce)</source>
        <translation>UIT-vertraging (ontdenderen)</translation>
    </message>
    <message>
        <source>Pin overview</source>
        <translation>Pinoverzicht</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Weggooien</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>About %1 left</source>
        <translation>Nog ongeveer %1</translation>
    </message>
    <message>
        <source>About %1 at %2 baud</source>
        <translation>Ongeveer %1 bij %2 baud</translation>
    </message>
    <message>
        <source>Traffic Monitor</source>
        <translation>Verkeersmonitor</translation>
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
        <translation>Gedecodeerd</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Alle opdrachten</translation>
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
        <translation>&amp;Pauze</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>Frames that arrive while paused are not kept, only counted</source>
        <translation>Frames die tijdens de pauze binnenkomen worden alleen geteld, niet bewaard</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Opslaan &amp;als...</translation>
    </message>
    <message>
        <source>Saves the frames shown as plain text, one line per frame</source>
        <translation>Slaat de getoonde frames op als tekst, één regel per frame</translation>
    </message>
    <message>
        <source>%1 not kept while paused</source>
        <translation>%1 niet bewaard tijdens pauze</translation>
    </message>
    <message>
        <source>Save Traffic</source>
        <translation>Verkeer opslaan</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Tekstbestanden</translation>
    </message>
    <message>
        <source>Kestrel Config User Guide</source>
        <translation>Kestrel Config gebruikershandleiding</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Gebruikershandleiding</translation>
    </message>
    <message>
        <source>Working ... Please WAIT</source>
        <translation>Bezig ... Even WACHTEN</translation>
    </message>
    <message>
        <source>The serial port; &quot;sim&quot; is a simulated layout built into the program, &quot;sim (Corvid)&quot; the same behind a simulated Corvid system. Return or a choice from the list opens it.</source>
        <translation>De seriële poort; &quot;sim&quot; is een in het programma ingebouwde gesimuleerde baan, &quot;sim (Corvid)&quot; dezelfde achter een gesimuleerd Corvid-systeem. Enter of een keuze uit de lijst opent hem.</translation>
    </message>
    <message>
        <source>Reads this pin from the module: aspects, addresses and pin configuration</source>
        <translation>Leest deze pin uit de module: seinbeelden, adressen en pinconfiguratie</translation>
    </message>
    <message>
        <source>Writes this pin to the module: aspects and addresses</source>
        <translation>Schrijft deze pin naar de module: seinbeelden en adressen</translation>
    </message>
    <message>
        <source>Reads every pin of this pin&apos;s device from the module</source>
        <translation>Leest elke pin van het apparaat van deze pin uit de module</translation>
    </message>
    <message>
        <source>Writes every pin of this pin&apos;s device to the module</source>
        <translation>Schrijft elke pin van het apparaat van deze pin naar de module</translation>
    </message>
    <message>
        <source>Reads this pin&apos;s aspects, initial aspect and addresses from the module</source>
        <translation>Leest de seinbeelden, het beginseinbeeld en de adressen van deze pin uit de module</translation>
    </message>
    <message>
        <source>Writes this pin&apos;s aspects, initial aspect and addresses to the module</source>
        <translation>Schrijft de seinbeelden, het beginseinbeeld en de adressen van deze pin naar de module</translation>
    </message>
    <message>
        <source>Writes only the steps of the selected aspect to the module</source>
        <translation>Schrijft alleen de stappen van het gekozen seinbeeld naar de module</translation>
    </message>
    <message>
        <source>Places the chosen device on the pins, its first pin on this pin</source>
        <translation>Plaatst het gekozen apparaat op de pins, zijn eerste pin op deze pin</translation>
    </message>
    <message>
        <source>Saves this pin&apos;s device to a definitions file of its own</source>
        <translation>Slaat het apparaat van deze pin op in een eigen definitiebestand</translation>
    </message>
    <message>
        <source>Reload DD to load new file, Shift + Reload DD to append</source>
        <translation>AD opnieuw laden laadt een nieuw bestand, Shift + AD opnieuw laden voegt toe</translation>
    </message>
    <message>
        <source>Re&amp;ad</source>
        <translation>Le&amp;zen</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lezen</translation>
    </message>
    <message>
        <source>Read Config</source>
        <translation>Config. lezen</translation>
    </message>
    <message>
        <source>Write Config</source>
        <translation>Config. schrijven</translation>
    </message>
    <message>
        <source>Read Settings</source>
        <translation>Instellingen lezen</translation>
    </message>
    <message>
        <source>Write Settings</source>
        <translation>Instellingen schrijven</translation>
    </message>
    <message>
        <source>choosing %1 in %2</source>
        <translation>kiezen van %1 in %2</translation>
    </message>
    <message>
        <source>checking %1</source>
        <translation>aanvinken van %1</translation>
    </message>
    <message>
        <source>unchecking %1</source>
        <translation>uitvinken van %1</translation>
    </message>
    <message>
        <source>typing in %1</source>
        <translation>typen in %1</translation>
    </message>
    <message>
        <source>choosing %1</source>
        <translation>kiezen van %1</translation>
    </message>
    <message>
        <source>choosing a step in the timeline</source>
        <translation>kiezen van een stap in de tijdlijn</translation>
    </message>
    <message>
        <source>Time tool</source>
        <translation>Tijdgereedschap</translation>
    </message>
    <message>
        <source>Pattern tool</source>
        <translation>Patroongereedschap</translation>
    </message>
    <message>
        <source>Event pattern tool</source>
        <translation>Gebeurtenispatroongereedschap</translation>
    </message>
    <message>
        <source>Level tool</source>
        <translation>Niveaugereedschap</translation>
    </message>
    <message>
        <source>Aspect %1: %2</source>
        <translation>Seinbeeld %1: %2</translation>
    </message>
    <message>
        <source>no steps</source>
        <translation>geen stappen</translation>
    </message>
    <message>
        <source>step %1, %2</source>
        <translation>stap %1, %2</translation>
    </message>
    <message>
        <source>, does not wait</source>
        <translation>, wacht niet</translation>
    </message>
    <message>
        <source>, time too long for the module (%1)</source>
        <translation>, tijd te lang voor de module (%1)</translation>
    </message>
    <message>
        <source>, jumps to aspect %1 step %2</source>
        <translation>, springt naar seinbeeld %1 stap %2</translation>
    </message>
    <message>
        <source>Aspect %1, </source>
        <translation>Seinbeeld %1, </translation>
    </message>
    <message>
        <source> (incomplete)</source>
        <translation> (onvolledig)</translation>
    </message>
    <message>
        <source>changing %1</source>
        <translation>wijzigen van %1</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerking</translation>
    </message>
    <message>
        <source>Pin tool</source>
        <translation>Pingereedschap</translation>
    </message>
    <message>
        <source>Aspect tool</source>
        <translation>Seinbeeldgereedschap</translation>
    </message>
    <message>
        <source>Step tool</source>
        <translation>Stapgereedschap</translation>
    </message>
    <message>
        <source>The configuration has changes that are not saved.<byte value="xd"/>
%1 would lose them. Save them first?</source>
        <translation>De configuratie heeft wijzigingen die niet zijn opgeslagen.<byte value="xd"/>
%1 zou ze verliezen. Eerst opslaan?</translation>
    </message>
    <message>
        <source> has changed on disk since it was loaded or saved here.<byte value="xd"/>
Replace it with the configuration shown?</source>
        <translation> is op de schijf gewijzigd sinds het hier geladen of opgeslagen is.<byte value="xd"/>
Vervangen door de getoonde configuratie?</translation>
    </message>
    <message>
        <source>The backups folder is the program&apos;s own: choose another folder for the file.</source>
        <translation>De map met reservekopieën is van het programma zelf: kies een andere map voor het bestand.</translation>
    </message>
    <message>
        <source>; it does not hold everything shown, so the work is still unsaved</source>
        <translation>; het bevat niet alles wat getoond wordt, dus het werk is nog niet opgeslagen</translation>
    </message>
    <message>
        <source>Restoring a backup</source>
        <translation>Het herstellen van een reservekopie</translation>
    </message>
    <message>
        <source>Loading a file</source>
        <translation>Het laden van een bestand</translation>
    </message>
    <message>
        <source>Restore from Backup</source>
        <translation>Herstellen uit reservekopie</translation>
    </message>
    <message>
        <source>Load File</source>
        <translation>Bestand laden</translation>
    </message>
    <message>
        <source>Restored the backup %1 as an untitled configuration</source>
        <translation>Reservekopie %1 hersteld als naamloze configuratie</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>Load stopped at a fault in %1: the pages show what was read before it</source>
        <translation>Laden gestopt bij een fout in %1: de pagina&apos;s tonen wat daarvoor gelezen is</translation>
    </message>
    <message>
        <source>Nothing was loaded from %1</source>
        <translation>Uit %1 is niets geladen</translation>
    </message>
    <message>
        <source>; the backup was not saved: %1</source>
        <translation>; de reservekopie is niet opgeslagen: %1</translation>
    </message>
    <message>
        <source>ID string cut to 12 characters: </source>
        <translation>ID-tekst ingekort tot 12 tekens: </translation>
    </message>
    <message>
        <source>KestrelConfig CalcTime</source>
        <translation>KestrelConfig tijd berekenen</translation>
    </message>
    <message>
        <source>LynxConfig Calculate Pattern</source>
        <translation>LynxConfig patroon berekenen</translation>
    </message>
    <message>
        <source>KestrelConfig CalcETImap</source>
        <translation>KestrelConfig ETImap berekenen</translation>
    </message>
    <message>
        <source>LynxConfig Calculate Level</source>
        <translation>LynxConfig niveau berekenen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; writes to the module. Write now?</source>
        <translation>&quot;%1&quot; schrijft naar de module. Nu schrijven?</translation>
    </message>
    <message>
        <source>Closing the window</source>
        <translation>Het sluiten van het venster</translation>
    </message>
    <message>
        <source>Reading the module</source>
        <translation>Het lezen van de module</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>direct</source>
        <translation>rechtstreeks</translation>
    </message>
    <message>
        <source>Read All</source>
        <translation>Alles lezen</translation>
    </message>
    <message>
        <source>; the file held another module, so the configuration is now untitled</source>
        <translation>; het bestand bevatte een andere module, dus de configuratie is nu naamloos</translation>
    </message>
    <message>
        <source>Write All</source>
        <translation>Alles schrijven</translation>
    </message>
    <message>
        <source>Verify All</source>
        <translation>Alles controleren</translation>
    </message>
    <message>
        <source>Read Pin</source>
        <translation>Pin lezen</translation>
    </message>
    <message>
        <source>Read All Pins</source>
        <translation>Alle pins lezen</translation>
    </message>
    <message>
        <source>Write All Pins</source>
        <translation>Alle pins schrijven</translation>
    </message>
    <message>
        <source>Write Changes</source>
        <translation>Wijzigingen schrijven</translation>
    </message>
    <message>
        <source>Take from Module</source>
        <translation>Van de module overnemen</translation>
    </message>
    <message>
        <source>Pin %1 becomes %2: its %3 parameters are replaced by cleared ones.<byte value="xd"/>
Change the pin&apos;s mode?</source>
        <translation>Pin %1 wordt %2: zijn %3-parameters worden vervangen door gewiste.<byte value="xd"/>
De modus van de pin wijzigen?</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>%1 ongedaan maken</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>%1 opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Kestrel Config Data</source>
        <translation>Kestrel Config-gegevens</translation>
    </message>
    <message>
        <source>Kestrel Device Definitions</source>
        <translation>Kestrel-apparaatdefinities</translation>
    </message>
    <message>
        <source>%1 aspects</source>
        <translation>%1 seinbeelden</translation>
    </message>
    <message>
        <source>Parameter %1, step %2</source>
        <translation>Parameter %1, stap %2</translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation>%1, stap %2</translation>
    </message>
    <message>
        <source>Parameter %1</source>
        <translation>Parameter %1</translation>
    </message>
    <message>
        <source>Event-On input %1</source>
        <translation>Aan-gebeurtenis ingang %1</translation>
    </message>
    <message>
        <source>Event-Off input %1</source>
        <translation>Uit-gebeurtenis ingang %1</translation>
    </message>
    <message>
        <source>%1 input %2</source>
        <translation>%1 ingang %2</translation>
    </message>
    <message>
        <source>Group mask %1</source>
        <translation>Groepsmasker %1</translation>
    </message>
    <message>
        <source>%1 pins %2</source>
        <translation>%1 pins %2</translation>
    </message>
    <message>
        <source>Sink driver</source>
        <translation>Sink-driver</translation>
    </message>
    <message>
        <source>Source driver</source>
        <translation>Source-driver</translation>
    </message>
    <message>
        <source>Range %1</source>
        <translation>Bereik %1</translation>
    </message>
    <message>
        <source>%1 drive mode</source>
        <translation>Aanstuurwijze %1</translation>
    </message>
    <message>
        <source>%1 acceleration mode</source>
        <translation>Versnellingswijze %1</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>The module&apos;s first DCC accessory address; the pins&apos; DCC addresses follow it. 0 to 8191.</source>
        <translation>Het eerste DCC-accessoireadres van de module; de DCC-adressen van de pinnen volgen daarop. 0 tot 8191.</translation>
    </message>
    <message>
        <source>The module&apos;s first eXtended DCC address; the pins&apos; eXtended DCC addresses follow it. 0 to 8191.</source>
        <translation>Het eerste eXtended-DCC-adres van de module; de eXtended-DCC-adressen van de pinnen volgen daarop. 0 tot 8191.</translation>
    </message>
    <message>
        <source>How often the module repeats a DCC packet that it sends on (the packet repeat period).</source>
        <translation>Hoe vaak de module een DCC-pakket herhaalt dat zij doorgeeft (de pakketherhalingstijd).</translation>
    </message>
    <message>
        <source>Inverts the state that a basic DCC accessory packet switches: the packet for &quot;on&quot; switches off and the other way round.</source>
        <translation>Keert de toestand om die een eenvoudig DCC-accessoirepakket schakelt: het pakket voor „aan” schakelt uit en omgekeerd.</translation>
    </message>
    <message>
        <source>Lets the module use DCC address 0; otherwise the addresses start at 1.</source>
        <translation>Laat de module DCC-adres 0 gebruiken; anders beginnen de adressen bij 1.</translation>
    </message>
    <message>
        <source>The module takes messages of its own serial protocol. Off while Lynx flex-addressing is on.</source>
        <translation>De module neemt berichten van haar eigen seriële protocol aan. Uit zolang Lynx-flexadressering aan staat.</translation>
    </message>
    <message>
        <source>The module answers Lynx messages at the flex-address below instead of its own address. For experienced users only.</source>
        <translation>De module beantwoordt Lynx-berichten op het flexadres hieronder in plaats van op haar eigen adres. Alleen voor ervaren gebruikers.</translation>
    </message>
    <message>
        <source>The module&apos;s eXtended address on the serial bus: the address that the program reaches it by. 0 to 95 (1 to 96 when numbering starts at 1).</source>
        <translation>Het eXtended-adres van de module op de seriële bus: het adres waarop het programma haar bereikt. 0 tot 95 (1 tot 96 als de nummering bij 1 begint).</translation>
    </message>
    <message>
        <source>The eXtended group mask: the module also acts on messages sent to each checked group.</source>
        <translation>Het eXtended-groepsmasker: de module reageert ook op berichten aan elke aangevinkte groep.</translation>
    </message>
    <message>
        <source>This group of eight pins has sink drivers fitted (outputs switch to ground).</source>
        <translation>Deze groep van acht pinnen heeft sink-drivers (de uitgangen schakelen naar massa).</translation>
    </message>
    <message>
        <source>This group of eight pins has source drivers fitted (outputs switch to the supply).</source>
        <translation>Deze groep van acht pinnen heeft source-drivers (de uitgangen schakelen naar de voeding).</translation>
    </message>
    <message>
        <source>The green LED flashes for each checked kind of traffic. With none checked it flashes while the module is idle.</source>
        <translation>De groene led knippert bij elk aangevinkt soort verkeer. Is niets aangevinkt, dan knippert zij zolang de module rust.</translation>
    </message>
    <message>
        <source>The orange LED flashes for each checked kind of traffic. With none checked it flashes for every message received.</source>
        <translation>De oranje led knippert bij elk aangevinkt soort verkeer. Is niets aangevinkt, dan knippert zij bij elk ontvangen bericht.</translation>
    </message>
    <message>
        <source>Switches the module&apos;s own serial port on.</source>
        <translation>Zet de eigen seriële poort van de module aan.</translation>
    </message>
    <message>
        <source>The speed of the module&apos;s own serial port, in bits per second.</source>
        <translation>De snelheid van de eigen seriële poort van de module, in bits per seconde.</translation>
    </message>
    <message>
        <source>Data bits per character on the module&apos;s own serial port.</source>
        <translation>Databits per teken op de eigen seriële poort van de module.</translation>
    </message>
    <message>
        <source>Stop bits per character on the module&apos;s own serial port.</source>
        <translation>Stopbits per teken op de eigen seriële poort van de module.</translation>
    </message>
    <message>
        <source>The parity bit of the module&apos;s own serial port.</source>
        <translation>De pariteitsbit van de eigen seriële poort van de module.</translation>
    </message>
    <message>
        <source>The pin shown; every page shows the same pin.</source>
        <translation>De getoonde pin; elke pagina toont dezelfde pin.</translation>
    </message>
    <message>
        <source>Moves the servo at once: the position is sent as the slider moves.</source>
        <translation>Beweegt de servo meteen: de positie wordt verzonden terwijl de schuif beweegt.</translation>
    </message>
    <message>
        <source>The servo&apos;s position now; 0 is the midpoint.</source>
        <translation>De huidige positie van de servo; 0 is het midden.</translation>
    </message>
    <message>
        <source>The position that the servo takes when the module starts.</source>
        <translation>De positie die de servo inneemt als de module start.</translation>
    </message>
    <message>
        <source>Moves the servo&apos;s whole travel: the pulse that position 0 gives.</source>
        <translation>Verschuift de hele slag van de servo: de puls die positie 0 geeft.</translation>
    </message>
    <message>
        <source>One over the mass that the servo moves: a higher value speeds up and slows down more quickly.</source>
        <translation>Eén gedeeld door de massa die de servo beweegt: een hogere waarde versnelt en remt sneller.</translation>
    </message>
    <message>
        <source>Damping of the movement: a higher value brakes harder and swings less.</source>
        <translation>Demping van de beweging: een hogere waarde remt harder en slingert minder.</translation>
    </message>
    <message>
        <source>The highest speed of the servo.</source>
        <translation>De hoogste snelheid van de servo.</translation>
    </message>
    <message>
        <source>The highest acceleration of the servo.</source>
        <translation>De hoogste versnelling van de servo.</translation>
    </message>
    <message>
        <source>How far the servo bounces back at the lower end of its travel; 0 is no bounce.</source>
        <translation>Hoe ver de servo aan het onderste einde van zijn slag terugveert; 0 is geen terugvering.</translation>
    </message>
    <message>
        <source>How much of each bounce at the lower end is left for the next one.</source>
        <translation>Hoeveel van elke terugvering aan het onderste einde overblijft voor de volgende.</translation>
    </message>
    <message>
        <source>How far the servo bounces back at the upper end of its travel; 0 is no bounce.</source>
        <translation>Hoe ver de servo aan het bovenste einde van zijn slag terugveert; 0 is geen terugvering.</translation>
    </message>
    <message>
        <source>How much of each bounce at the upper end is left for the next one.</source>
        <translation>Hoeveel van elke terugvering aan het bovenste einde overblijft voor de volgende.</translation>
    </message>
    <message>
        <source>The servo&apos;s range of travel, from 0 (narrowest) to 4 (widest).</source>
        <translation>Het slagbereik van de servo, van 0 (het smalst) tot 4 (het breedst).</translation>
    </message>
    <message>
        <source>The module stops the servo&apos;s pulses once it has reached its position.</source>
        <translation>De module stopt de pulsen van de servo zodra hij zijn positie heeft bereikt.</translation>
    </message>
    <message>
        <source>The module has set the servo up; shown as read, not sent.</source>
        <translation>De module heeft de servo ingesteld; getoond zoals gelezen, niet verzonden.</translation>
    </message>
    <message>
        <source>Sets the output&apos;s level at once: the level is sent as the slider moves.</source>
        <translation>Zet het niveau van de uitgang meteen: het niveau wordt verzonden terwijl de schuif beweegt.</translation>
    </message>
    <message>
        <source>The output&apos;s level now; 0 is off.</source>
        <translation>Het huidige niveau van de uitgang; 0 is uit.</translation>
    </message>
    <message>
        <source>The level that the output takes when the module starts.</source>
        <translation>Het niveau dat de uitgang aanneemt als de module start.</translation>
    </message>
    <message>
        <source>How fast the level changes when the output switches.</source>
        <translation>Hoe snel het niveau verandert als de uitgang schakelt.</translation>
    </message>
    <message>
        <source>The level that &quot;off&quot; gives.</source>
        <translation>Het niveau dat „uit” geeft.</translation>
    </message>
    <message>
        <source>The level that &quot;on&quot; gives.</source>
        <translation>Het niveau dat „aan” geeft.</translation>
    </message>
    <message>
        <source>How the level maps to the output: in equal steps or in steps that look equal to the eye.</source>
        <translation>Hoe het niveau op de uitgang werkt: in gelijke stappen of in stappen die voor het oog gelijk lijken.</translation>
    </message>
    <message>
        <source>How the level changes over time: in equal steps or in steps that look equal to the eye.</source>
        <translation>Hoe het niveau in de tijd verandert: in gelijke stappen of in stappen die voor het oog gelijk lijken.</translation>
    </message>
    <message>
        <source>The output is on when its level is low.</source>
        <translation>De uitgang is aan als zijn niveau laag is.</translation>
    </message>
    <message>
        <source>How long the input must stay on before the module takes it as on (debounce).</source>
        <translation>Hoe lang de ingang aan moet blijven voordat de module hem als aan beschouwt (ontdendering).</translation>
    </message>
    <message>
        <source>How long the input must stay off before the module takes it as off (debounce).</source>
        <translation>Hoe lang de ingang uit moet blijven voordat de module hem als uit beschouwt (ontdendering).</translation>
    </message>
    <message>
        <source>The input counts as on when its contact is open.</source>
        <translation>De ingang telt als aan als zijn contact open is.</translation>
    </message>
    <message>
        <source>Range: %1 to %2.</source>
        <translation>Bereik: %1 tot %2.</translation>
    </message>
    <message>
        <source>Input %1 here is &quot;Event Input %2&quot; in the event-pattern tool of the &quot;Event Input&quot; instruction, and Event-On(%2) and Event-Off(%2) in the verification report.</source>
        <translation>Ingang %1 hier is „Gebeurtenisingang %2” in het gebeurtenispatroon-hulpmiddel van de instructie „Event Input”, en Event-On(%2) en Event-Off(%2) in het verificatierapport.</translation>
    </message>
    <message>
        <source>The action when the input switches on: the number of the aspect that this pin takes, 0 to 11, or -1 for none.</source>
        <translation>De actie als de ingang aanschakelt: het nummer van het seinbeeld dat deze pin aanneemt, 0 tot 11, of -1 voor geen.</translation>
    </message>
    <message>
        <source>The action when the input switches off: the number of the aspect that this pin takes, 0 to 11, or -1 for none.</source>
        <translation>De actie als de ingang uitschakelt: het nummer van het seinbeeld dat deze pin aanneemt, 0 tot 11, of -1 voor geen.</translation>
    </message>
    <message>
        <source>Event-On of this input is enabled when the module starts.</source>
        <translation>Event-On van deze ingang is ingeschakeld als de module start.</translation>
    </message>
    <message>
        <source>Event-Off of this input is enabled when the module starts.</source>
        <translation>Event-Off van deze ingang is ingeschakeld als de module start.</translation>
    </message>
    <message>
        <source>&quot;Event Input %1&quot; is &quot;Input %2&quot; on the Event Control page.</source>
        <translation>„Gebeurtenisingang %1” is „Ingang %2” op de pagina Gebeurtenisbesturing.</translation>
    </message>
    <message>
        <source>Pin offset: the pin that this step acts on, counted from this pin (0 is this pin, -1 the pin before it).</source>
        <translation>Pinverschuiving: de pin waarop deze stap werkt, geteld vanaf deze pin (0 is deze pin, -1 de pin ervoor).</translation>
    </message>
    <message>
        <source>The aspect to jump to.</source>
        <translation>Het seinbeeld waarheen gesprongen wordt.</translation>
    </message>
    <message>
        <source>The step of that aspect to go on with (0 is its first step).</source>
        <translation>De stap van dat seinbeeld waarmee het verder gaat (0 is de eerste stap).</translation>
    </message>
    <message>
        <source>Which of the two green-yellow-red sequences runs.</source>
        <translation>Welke van de twee groen-geel-rood-reeksen loopt.</translation>
    </message>
    <message>
        <source>The byte that the module sends on its own serial port.</source>
        <translation>De byte die de module via haar eigen seriële poort verzendt.</translation>
    </message>
    <message>
        <source>The second byte that the module sends on its own serial port.</source>
        <translation>De tweede byte die de module via haar eigen seriële poort verzendt.</translation>
    </message>
    <message>
        <source>The length of the pulse in sixtieths of a second (60 is one second).</source>
        <translation>De lengte van de puls in zestigsten van een seconde (60 is één seconde).</translation>
    </message>
    <message>
        <source>The time in sixtieths of a second (60 is one second).</source>
        <translation>De tijd in zestigsten van een seconde (60 is één seconde).</translation>
    </message>
    <message>
        <source>The pin whose output this pin copies (its number, not an offset).</source>
        <translation>De pin waarvan deze pin de uitgang overneemt (zijn nummer, geen verschuiving).</translation>
    </message>
    <message>
        <source>Which outputs are on, one bit each from the pin at P.O. on (1 = +0, 2 = +1, 4 = +2 ...).</source>
        <translation>Welke uitgangen aan zijn, één bit per uitgang vanaf de pin bij P.O. (1 = +0, 2 = +1, 4 = +2 ...).</translation>
    </message>
    <message>
        <source>The event inputs and actions: bits 0 to 3 are &quot;Event Input 0&quot; to &quot;Event Input 3&quot; (Input 1 to Input 4 on the Event Control page); the bits above choose the On- and Off-Event actions.</source>
        <translation>De gebeurtenisingangen en acties: bit 0 tot 3 zijn „Gebeurtenisingang 0” tot „Gebeurtenisingang 3” (Ingang 1 tot Ingang 4 op de pagina Gebeurtenisbesturing); de bits daarboven kiezen de acties voor On- en Off-Event.</translation>
    </message>
    <message>
        <source>The aspect that is reported back.</source>
        <translation>Het seinbeeld dat wordt teruggemeld.</translation>
    </message>
    <message>
        <source>The pin that gets the pulse (its number, not an offset).</source>
        <translation>De pin die de puls krijgt (zijn nummer, geen verschuiving).</translation>
    </message>
    <message>
        <source>The level during the pulse.</source>
        <translation>Het niveau tijdens de puls.</translation>
    </message>
    <message>
        <source>The output level: 0 is off, 31 is full.</source>
        <translation>Het uitgangsniveau: 0 is uit, 31 is vol.</translation>
    </message>
    <message>
        <source>The servo position; 0 is the midpoint.</source>
        <translation>De servopositie; 0 is het midden.</translation>
    </message>
    <message>
        <source>How fast the level changes; -1 is kept as 127.</source>
        <translation>Hoe snel het niveau verandert; -1 wordt als 127 bewaard.</translation>
    </message>
    <message>
        <source>The chance that the output is switched on: 0 never, 31 nearly always.</source>
        <translation>De kans dat de uitgang wordt aangezet: 0 nooit, 31 bijna altijd.</translation>
    </message>
    <message>
        <source>The longest wait, in units of the base; the step waits a random time up to it.</source>
        <translation>De langste wachttijd, in eenheden van de basis; de stap wacht een willekeurige tijd tot daaraan.</translation>
    </message>
    <message>
        <source>How long the step waits, in units of the base.</source>
        <translation>Hoe lang de stap wacht, in eenheden van de basis.</translation>
    </message>
    <message>
        <source>The unit of the time: 0 = 20 ms, 1 = 160 ms, 2 = 1.28 s, 3 = 10.24 s.</source>
        <translation>De eenheid van de tijd: 0 = 20 ms, 1 = 160 ms, 2 = 1,28 s, 3 = 10,24 s.</translation>
    </message>
    <message>
        <source>The value that the output of the pin at P.O. is compared with.</source>
        <translation>De waarde waarmee de uitgang van de pin bij P.O. wordt vergeleken.</translation>
    </message>
    <message>
        <source>Not used by this instruction.</source>
        <translation>Niet gebruikt door deze instructie.</translation>
    </message>
    <message>
        <source>Double-click or F2 opens the help tool.</source>
        <translation>Dubbelklik of F2 opent het hulpmiddel.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
</context>
<context>
    <name>LayoutList</name>
    <message>
        <source>holds its newest backup</source>
        <translation>bevat zijn nieuwste reservekopie</translation>
    </message>
    <message>
        <source>did not answer</source>
        <translation>heeft niet geantwoord</translation>
    </message>
    <message>
        <source>not checked</source>
        <translation>niet gecontroleerd</translation>
    </message>
</context>
<context>
    <name>LinkControl</name>
    <message>
        <source>Channel Number</source>
        <translation>Kanaalnummer</translation>
    </message>
    <message>
        <source>Module Address</source>
        <translation>Moduleadres</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Your system does not support this function</source>
        <translation>Uw systeem ondersteunt deze functie niet</translation>
    </message>
    <message>
        <source>Select communications port</source>
        <translation>Kies de communicatiepoort</translation>
    </message>
    <message>
        <source>eXtended Addressing is intended for<byte value="xd"/>
experienced users only!</source>
        <translation>eXtended-adressering is alleen bedoeld<byte value="xd"/>
voor ervaren gebruikers!</translation>
    </message>
    <message>
        <source>Nothing to Paste</source>
        <translation>Niets om te plakken</translation>
    </message>
    <message>
        <source>Nothing to write: the module holds this configuration.</source>
        <translation>Niets te schrijven: de module bevat deze configuratie.</translation>
    </message>
    <message>
        <source>No valid response</source>
        <translation>Geen geldig antwoord</translation>
    </message>
    <message>
        <source>Invalid configuration file</source>
        <translation>Ongeldig configuratiebestand</translation>
    </message>
    <message>
        <source>Invalid definition file</source>
        <translation>Ongeldig definitiebestand</translation>
    </message>
    <message>
        <source>No match found</source>
        <translation>Geen overeenkomst gevonden</translation>
    </message>
    <message>
        <source>Help tool not available for this box with the selected command</source>
        <translation>Voor dit vak is er met de gekozen instructie geen hulpgereedschap</translation>
    </message>
    <message>
        <source>Can not find Device Configuration file at standard location</source>
        <translation>Het apparaatdefinitiebestand is niet te vinden op de standaardplaats</translation>
    </message>
    <message>
        <source>Load Device Definitions</source>
        <translation>Apparaatdefinities laden</translation>
    </message>
    <message>
        <source>No Device Configuration available</source>
        <translation>Geen apparaatdefinities beschikbaar</translation>
    </message>
    <message>
        <source>No Device Configuration file selected</source>
        <translation>Geen apparaatdefinitiebestand gekozen</translation>
    </message>
    <message>
        <source>Select Devicename to load</source>
        <translation>Kies het te laden apparaat</translation>
    </message>
    <message>
        <source>Referral is not a device</source>
        <translation>De verwijzing is geen apparaat</translation>
    </message>
    <message>
        <source>Save Device</source>
        <translation>Apparaat opslaan</translation>
    </message>
    <message>
        <source>Function not supported by Device</source>
        <translation>Functie niet ondersteund door het apparaat</translation>
    </message>
    <message>
        <source>Lynx Flexible Addressing is a complex concept !!<byte value="xd"/>
It should only be activated by experienced users<byte value="xd"/>
that understand the details very well !</source>
        <translation>Lynx-flexadressering is een ingewikkeld concept!<byte value="xd"/>
Het mag alleen worden ingeschakeld door ervaren gebruikers<byte value="xd"/>
die de details zeer goed begrijpen!</translation>
    </message>
    <message>
        <source>Save Configuration</source>
        <translation>Configuratie opslaan</translation>
    </message>
    <message>
        <source>Load Configuration</source>
        <translation>Configuratie laden</translation>
    </message>
    <message>
        <source>Your Corvid system supports Kestrel Tunneling<byte value="xd"/>
We recommend to use the Corvid Tunneling option instead<byte value="xd"/>
Do you still want to activate Transparant Mode?</source>
        <translation>Uw Corvid-systeem ondersteunt de Kestrel-tunnel<byte value="xd"/>
Wij raden aan in plaats daarvan de optie Corvid-tunnel te gebruiken<byte value="xd"/>
Wilt u de transparante modus toch activeren?</translation>
    </message>
    <message>
        <source>WARNING !!<byte value="xd"/>
This operation will erase the Kestrel Configuration Memory<byte value="xd"/>
Continue?</source>
        <translation>WAARSCHUWING!<byte value="xd"/>
Deze handeling wist het configuratiegeheugen van de Kestrel-module<byte value="xd"/>
Doorgaan?</translation>
    </message>
    <message>
        <source>WARNING !!<byte value="xd"/>
This operation will erase the Kestrel Configuration Memory<byte value="xd"/>
The green LED on the Kestrel will be ON during this process<byte value="xd"/>
The erase process may take up to 45 seconds, please be patient<byte value="xd"/>
<byte value="xd"/>
Do you want to cancel this operation?</source>
        <translation>WAARSCHUWING!<byte value="xd"/>
Deze handeling wist het configuratiegeheugen van de Kestrel-module<byte value="xd"/>
De groene led van de module brandt gedurende dit proces<byte value="xd"/>
Het wissen kan tot 45 seconden duren, even geduld a.u.b.<byte value="xd"/>
<byte value="xd"/>
Wilt u deze handeling annuleren?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Reading ID string</source>
        <translation>ID-tekst wordt gelezen</translation>
    </message>
    <message>
        <source>Reading DCC settings</source>
        <translation>DCC-instellingen worden gelezen</translation>
    </message>
    <message>
        <source>Reading serial addressing</source>
        <translation>Seriële adressering wordt gelezen</translation>
    </message>
    <message>
        <source>Reading LED control</source>
        <translation>Led-besturing wordt gelezen</translation>
    </message>
    <message>
        <source>Reading hardware configuration</source>
        <translation>Hardwareconfiguratie wordt gelezen</translation>
    </message>
    <message>
        <source>Reading serial port</source>
        <translation>Seriële poort wordt gelezen</translation>
    </message>
    <message>
        <source>Reading pins</source>
        <translation>Pinnen worden gelezen</translation>
    </message>
    <message>
        <source>Reading events</source>
        <translation>Gebeurtenissen worden gelezen</translation>
    </message>
    <message>
        <source>Reading enable maps</source>
        <translation>Vrijgavetabellen worden gelezen</translation>
    </message>
    <message>
        <source>Writing ID string</source>
        <translation>ID-tekst wordt geschreven</translation>
    </message>
    <message>
        <source>Writing DCC settings</source>
        <translation>DCC-instellingen worden geschreven</translation>
    </message>
    <message>
        <source>Writing LED control</source>
        <translation>Led-besturing wordt geschreven</translation>
    </message>
    <message>
        <source>Writing hardware configuration</source>
        <translation>Hardwareconfiguratie wordt geschreven</translation>
    </message>
    <message>
        <source>Writing serial port</source>
        <translation>Seriële poort wordt geschreven</translation>
    </message>
    <message>
        <source>Writing pins</source>
        <translation>Pinnen worden geschreven</translation>
    </message>
    <message>
        <source>Writing events</source>
        <translation>Gebeurtenissen worden geschreven</translation>
    </message>
    <message>
        <source>Writing enable maps</source>
        <translation>Vrijgavetabellen worden geschreven</translation>
    </message>
    <message>
        <source>Writing serial addressing</source>
        <translation>Seriële adressering wordt geschreven</translation>
    </message>
    <message>
        <source>Verifying general settings</source>
        <translation>Algemene instellingen worden gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying event control</source>
        <translation>Gebeurtenisbesturing wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying pins</source>
        <translation>Pinnen worden gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying ID string</source>
        <translation>ID-tekst wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying hardware configuration</source>
        <translation>Hardwareconfiguratie wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying DCC addresses</source>
        <translation>DCC-adressen worden gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying DCC options</source>
        <translation>DCC-opties worden gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying serial addressing</source>
        <translation>Seriële adressering wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying eXtended address</source>
        <translation>eXtended-adres wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying eXtended group mask</source>
        <translation>eXtended-groepsmasker wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying LED control</source>
        <translation>Led-besturing wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Verifying serial port</source>
        <translation>Seriële poort wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Pins read</source>
        <translation>Pinnen gelezen</translation>
    </message>
    <message>
        <source>Pins written</source>
        <translation>Pinnen geschreven</translation>
    </message>
    <message>
        <source>Pins verified</source>
        <translation>Pinnen gecontroleerd</translation>
    </message>
    <message>
        <source>%1 stopped by a program error; the configuration is as it was before</source>
        <translation>%1 gestopt door een programmafout; de configuratie is zoals ze was</translation>
    </message>
    <message>
        <source>%1; the module may hold only part of it</source>
        <translation>%1; de module bevat misschien maar een deel ervan</translation>
    </message>
    <message>
        <source>%1: the pages show a partial read</source>
        <translation>%1: de pagina’s tonen een gedeeltelijk gelezen stand</translation>
    </message>
    <message>
        <source>%1: the module holds the configuration</source>
        <translation>%1: de module bevat de configuratie</translation>
    </message>
    <message>
        <source>%1: the module differs, see the verification report</source>
        <translation>%1: de module wijkt af, zie het verificatierapport</translation>
    </message>
    <message>
        <source>%1 done in %2 s</source>
        <translation>%1 klaar in %2 s</translation>
    </message>
    <message>
        <source>%1 cancelled %2</source>
        <translation>%1 afgebroken %2</translation>
    </message>
    <message>
        <source>%1 stopped %2</source>
        <translation>%1 gestopt %2</translation>
    </message>
    <message>
        <source>at pin %1 of %2</source>
        <translation>bij pin %1 van %2</translation>
    </message>
    <message>
        <source>The module differs in %1 items</source>
        <translation>De module wijkt af in %1 punten</translation>
    </message>
    <message>
        <source>differs (%1 items)</source>
        <translation>wijkt af (%1 punten)</translation>
    </message>
    <message>
        <source>Reading pin %1</source>
        <translation>Pin %1 wordt gelezen</translation>
    </message>
    <message>
        <source>Writing pin %1</source>
        <translation>Pin %1 wordt geschreven</translation>
    </message>
    <message>
        <source>Verifying pin %1</source>
        <translation>Pin %1 wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Writing change %1 of %2</source>
        <translation>Wijziging %1 van %2 wordt geschreven</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>%1 wordt gevraagd</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wordt gelezen</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>%1 wordt geschreven</translation>
    </message>
    <message>
        <source>Verifying %1</source>
        <translation>%1 wordt gecontroleerd</translation>
    </message>
    <message>
        <source>Cannot open port %1: %2</source>
        <translation>Poort %1 kan niet worden geopend: %2</translation>
    </message>
    <message>
        <source>Unknown configuration: %1</source>
        <translation>Onbekende configuratie: %1</translation>
    </message>
    <message>
        <source>The module differs in 1 item</source>
        <translation>De module wijkt af in 1 punt</translation>
    </message>
    <message>
        <source>differs (1 item)</source>
        <translation>wijkt af (1 punt)</translation>
    </message>
    <message>
        <source>Cannot open port %1</source>
        <translation>Poort %1 kan niet worden geopend</translation>
    </message>
</context>
<context>
    <name>PinMode</name>
    <message>
        <source>Not configured</source>
        <translation>Niet geconfigureerd</translation>
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
        <translation>PWM, omgekeerd</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Ingang</translation>
    </message>
    <message>
        <source>Input, Inverted</source>
        <translation>Ingang, omgekeerd</translation>
    </message>
</context>
<context>
    <name>PinOverview</name>
    <message>
        <source>No addr in use</source>
        <translation>Geen adres in gebruik</translation>
    </message>
</context>
<context>
    <name>StepTable</name>
    <message>
        <source>Fade</source>
        <translation>Overvloeien</translation>
    </message>
</context>
<context>
    <name>WorkState</name>
    <message>
        <source>What the module holds is not known</source>
        <translation>Wat de module bevat is niet bekend</translation>
    </message>
    <message>
        <source>The module holds what is shown</source>
        <translation>De module bevat wat getoond wordt</translation>
    </message>
</context>
</TS>
