<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Dates</name>
    <message>
        <source>MMM d</source>
        <comment>as date formats write it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d MMM</source>
        <comment>as date formats write it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Details</name>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryRange</name>
    <message>
        <source>&amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whole history</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>90 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For ever</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>.</source>
        <comment>between a whole number and its decimals</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Newer versions come from where this copy was installed from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>discharging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>80 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C</source>
        <comment>the locale that names months, such as de_DE</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Very low</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No battery</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::BatteryView</name>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Copia tutto</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::GeneralPreferencesController</name>
    <message>
        <source>&amp;Celsius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::HelperPreferences</name>
    <message>
        <source>&amp;Celsius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mark battery data for automatic upload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No battery</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ascending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>descending</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
