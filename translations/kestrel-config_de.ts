<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Lang</name>
    <message>
        <source>Click for copy/paste tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click for help-tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2 opens the help tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The module has no command to test an aspect, so this is not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pin Tool...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Aspect Tool...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Step Tool...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pin&apos;s description, kept in the configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first pin of the device this pin belongs to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device&apos;s name, kept by its first pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aspects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addresses:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DCC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtd DCC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DCC addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtd DCC addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;ad Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aspect program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aspect description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial aspect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The aspect the pin shows after power-up; -1 for none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instruction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to Insert/Delete step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instruction, step </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade, step </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows or hides the transfer buttons, the step headings and the pin configuration&apos;s parameter buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Asp&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Asp&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Aspect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test Aspect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device definitions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device to load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload &amp;DD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aspect timeline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aspect %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore from backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The read reported problems: this backup may hold values the module never sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read A&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verif&amp;y All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Chan&amp;ges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes only what differs from the module as it was last read, written or verified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare wi&amp;th Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads the module beside the configuration and lists every difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write pin configurations too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also writes each pin&apos;s servo, PWM or input parameters to flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift+Save File to save compact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;oad File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read All &amp;Pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads the 32 pins from the module, without the general settings and events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write All Pi&amp;ns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the 32 pins to the module, without the general settings and events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ver&amp;ify All Pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compares the 32 pins of the module with the configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take All from Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep All Mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the items chosen &quot;take the module&apos;s&quot; into the configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply and &amp;Write Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applies, then writes to the module what you kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keep mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take the module&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The module holds this configuration: no differences.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 difference between the module and the configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 differences between the module and the configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, aspect %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean &amp;Aspect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clears the description and everything after the first empty step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, step %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rea&amp;d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InitialEvent_ON Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Event_OFF Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Enable Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Ena&amp;ble Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read All Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write All Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verify Event Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (compact)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restored the backup </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load stopped at a fault in </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was loaded from </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;quest Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most 12 characters, letters, digits and signs without accents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DCC Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtended DCC Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packet Repeat Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Basic Packet State Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Address 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Addressing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Native Kestrel Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Lynx Flex-Addresss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flex-Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first Lynx address of the module; addresses come in groups of 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtended Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtended Group Mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sink Driver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source Driver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LED Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Basic DCC Packet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtd DCC Packet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lynx Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green 6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle Flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DCC Checksum Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange 6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Received Datagrams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Green LED&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Orange LED&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase Flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erases the whole configuration of the module (takes up to 45 seconds)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Time =</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Time =</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output +&amp;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No Dark-phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event Input &amp;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No &amp;action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Time Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0..127: 16 x level + time index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port %1 open at %2 bit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks every bus address of the route in use (0..15 directly, 0..31 through the Corvid system) for its version and ID string; each address is given 500 ms to answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also every eXtended address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Modules also asks eXtended addresses 0..95 on each address that answered (about 48 s an address)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back Up All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read All of each module in the list, kept with its backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compares each module in the list with its newest backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modules of the layout:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modules of the layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Route</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newest Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click a module (or press Return) to make it the target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use eXtended Addr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eXtended address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bidirectional Comm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Corvid Tunneling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ctivate Transparent Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Hub-A or Linkbox in Transparant Mode for Kestrel Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start numbering at 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel Verification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verification report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corvid Communication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corvid communication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;Compact...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore from backup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload &amp;Device Definitions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ppend Device Definitions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forget Remembered Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program starts afresh next time: port, addresses, window and files are forgotten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Request &amp;Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Read All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verify &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare wi&amp;th Module...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Erase Flash...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read &amp;Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write P&amp;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read &amp;Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Devi&amp;ce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Aspe&amp;cts of the Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Aspects o&amp;f the Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the Selected Asp&amp;ect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read All Pi&amp;ns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write All Pin&amp;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verify All Pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Event Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Event Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;Modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back &amp;Up All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chec&amp;k All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Corvid Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Traffic Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pin Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language changes when Kestrel Config starts next.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Kestrel Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Kestrel Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads, edits, writes back and verifies what a Kestrel accessory module stores.&lt;br&gt;&lt;br&gt;Build: %1, Qt %2&lt;br&gt;&lt;br&gt;The user guide (Help &amp;gt; User Guide) is also a file: /usr/share/doc/kestrel-config/user-guide.md when installed from the Debian package, user-guide.md in the program&apos;s folder on Windows (C:\Program Files\Kestrel Config when installed). Its section &quot;Data files&quot; describes the data-file format, and &quot;Readable configurations and differences&quot; every item of it; on Linux the manual page kestrel-cli(1) describes the format too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If checked, use active dynamic parameters, else go directly to position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin is not configured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not configured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pin no longer drives anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pin drives a servo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pin drives a PWM output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pin reads an input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picking this page changes the pin&apos;s mode: %1. It asks first when the pin&apos;s parameters would be replaced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Pin Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;ad Pin Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Pin Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Pin Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gets the active parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads the parameters from Flash memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets Active Servo parameters (not permanent)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes Servo Parameters to Flash memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Jump</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jump to target position immediately, override dynamic parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1/Mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MaxSpd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MaxAcc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BounceDown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BounceDownFactor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BounceUp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BounceUpFactor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Suspend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If checked, the servo is not activated until the first position is sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo Initialised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J&amp;ump</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jump to the level immediately, without the slow change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logaritmic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off - Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On-Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debounce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON-delay (debounce)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF-delay (debounce)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1 at %2 baud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traffic Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decoded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames that arrive while paused are not kept, only counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the frames shown as plain text, one line per frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 not kept while paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Traffic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel Config User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working ... Please WAIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The serial port; &quot;sim&quot; is a simulated layout built into the program, &quot;sim (Corvid)&quot; the same behind a simulated Corvid system. Return or a choice from the list opens it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorkState</name>
    <message>
        <source>What the module holds is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The module holds what is shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
