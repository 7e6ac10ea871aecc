<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Dates</name>
    <message>
        <source>MMM d</source>
        <comment>as date formats write it</comment>
        <translation>d. MMM</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>MMMM yyyy</translation>
    </message>
    <message>
        <source>d MMM</source>
        <comment>as date formats write it</comment>
        <translation>d. MMM</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>d. MMM yyyy</translation>
    </message>
</context>
<context>
    <name>Details</name>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Stromquelle</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>Stromquelle %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>Registry: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1 Watt</translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 Zyklus</numerusform>
            <numerusform>%1 Zyklen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 Tag</numerusform>
            <numerusform>%1 Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 Monat</numerusform>
            <numerusform>%1 Monate</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation>%1 Jahre</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1 Zyklus</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Netzteil</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batterie %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>Alter der Batterie</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>Gerät der Batterie</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>Batterie vollständig geladen</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>Batterie von</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>Gebaut: %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Wird berechnet …</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Ladegrenze</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>Lädt mit</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>Lädt mit</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Lädt …</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>Alter des Computers</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Angeschlossen</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Ladezyklen</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>Entlädt</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>Entlädt mit</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Entlädt …</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Mäßig</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Volle Ladung</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>Hergestellt: %1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>Keine Fehler</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Keine Batterie</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>Nennkapazität fehlt</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht angeschlossen</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Schlecht</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation>Die tatsächliche Kapazität der Batterie ab Werk (nach Angabe des Herstellers).</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>Die Kapazität, die die Batterie nach eigener Angabe ab Werk hatte (in der Firmware gespeichert).</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>Die Zahl der Lade- und Entladezyklen der Batterie.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>Zeit bis leer</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>Zeit bis voll</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
</context>
<context>
    <name>HistoryRange</name>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alles</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Monat</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Woche</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Jahr</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>letzte 24 Stunden</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>letzte 30 Tage</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>letzte 365 Tage</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>letzte 7 Tage</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>gesamter Verlauf</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 Tag</numerusform>
            <numerusform>%1 Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 Jahr</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10 Jahre</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2 Jahre</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 Tage</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 Jahre</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90 Tage</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>Unbegrenzt</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>Text in der Menüleiste …</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>Programm öffnen</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>Batterie anzeigen …</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>.</source>
        <comment>between a whole number and its decimals</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>C</source>
        <comment>the language&apos;s locale, such as de_DE</comment>
        <translation>de_DE</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>Verlauf der Batterie</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Batteriestatus</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>Ladung, Zustand und Restzeit der Batterie in der Leiste</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>Ladung und Zustand der Batterie und was daraus wird</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>Ladung, Leistung, Restzeit, Zustand, Ladezyklen, Alter und Temperatur</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATUM</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>FORMAT</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>Nichts wird gesendet, wenn es nicht erlaubt wurde</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>Quindle zeigt alles, was die Batterien eines tragbaren Computers melden, in einem Fenster. Sein Begleiter, Quindle Helper, sitzt in der Leiste mit einem Titel nach eigener Vorlage und einem Symbol; ein Klick darauf öffnet die Batterieansicht.</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>Mehrere Batterien als eine zusammengefasst</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>Leisten unter X11 und Wayland</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>Ladung, Zustand und Restzeit der Batterie in der Leiste</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>Ladung und Zustand der Batterie und was daraus wird</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>Batterie;Akku;Strom;Ladung;Zustand;Laptop;Notebook;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>Batterie;Akku;Strom;Ladung;Zustand;Verschleiß;Laptop;Notebook;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>gibt die Batterie aus, wie Quindle Helper sie sieht</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Momentaufnahmen</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>Ladezyklen</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>Ladung in Prozent</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>Lädt oder entlädt</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>Strom in Milliampere</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>Leistung in Watt</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>Verbleibende Zeit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Newer versions come from where this copy was installed from.</source>
        <translation>Neuere Versionen kommen daher, woher diese Kopie installiert wurde.</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>Jetzt würde nichts gesendet: Es fehlt ein Wert, der die Batterie benennt.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>Diese Kopie wurde auf diesem Computer erstellt. Zum Aktualisieren wird sie aus neuerem Quelltext erneut erstellt.</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>Das ist das Paket „%1“. Neuere Versionen installiert %2, wie die der anderen Pakete dieses Systems.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>Update</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>In dieser Zeit wurde nichts aufgezeichnet.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>lädt</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>entlädt</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>von UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>voll</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>Archive von Momentaufnahmen (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>Momentaufnahmen exportieren</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>Momentaufnahmen importieren</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Mit Serien&amp;nummern</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 Tag</numerusform>
            <numerusform>%1 Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1 Punkte</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 Momentaufnahme</numerusform>
            <numerusform>%1 Momentaufnahmen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>%1 Momentaufnahme gelöscht</numerusform>
            <numerusform>%1 Momentaufnahmen gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>%1 Momentaufnahme importiert</numerusform>
            <numerusform>%1 Momentaufnahmen importiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>%1 Momentaufnahme wiederhergestellt</numerusform>
            <numerusform>%1 Momentaufnahmen wiederhergestellt</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 Momentaufnahme</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>1 Momentaufnahme gelöscht</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>1 Momentaufnahme importiert</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>1 Momentaufnahme wiederhergestellt</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>1 Momentaufnahme gespeichert</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>Alle Momentaufnahmen gelöscht</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Ladezyklen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Nennkapazität</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Volle Ladung</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>Für Momentaufnahmen fehlt ein Ordner: Der Benutzer hat kein persönliches Verzeichnis</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 Zyklus</numerusform>
            <numerusform>%1 Zyklen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 Tagen</numerusform>
            <numerusform>%1 Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>%1 Punkte im Jahr</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>Bisher aus %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1, aus %2</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1, aus %2 und %3</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1 Zyklus</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80 %</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>80 % der ersten vollen Ladung</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>Schon unter %1</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>Bei diesem Tempo %1 %2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>In %1 kein Verschleiß zu sehen</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>Noch nicht genug Verlauf (60 Tage nötig)</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>etwa jetzt</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>zwischen %1 und %2</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>Anfang %1</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>Ende %1</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>Mitte %1</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>in mehr als 20 Jahren</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>weniger als %1 Punkte im Jahr</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>nicht vor %1</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>Auf diesem Desktop warnt die Energieverwaltung von %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie schwach</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Ladegrenze</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>Befehl bei schwacher Batterie</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>Befehl bei voller Batterie</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>Befehl bei fast leerer Batterie</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>Befehl bei erreichter Ladegrenze</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>Befehl bei sehr schwacher Batterie</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>Fast leer</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>Prozentwert für schwache Batterie</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>Prozentwert für volle Batterie</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>Prozentwert für fast leere Batterie</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>Prozentwert für die Ladegrenze</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>Prozentwert für sehr schwache Batterie</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>Wenn der Desktop nicht warnt</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>Sehr schwach</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>Noch %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>Noch etwa %1 Minute</numerusform>
            <numerusform>Noch etwa %1 Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Noch etwa eine Minute</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>Batterie voll</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie schwach</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>Batterie fast leer</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>Batterie sehr schwach</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>Ladegrenze erreicht</translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation>Batterie %1</translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation>Nennkapazität %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>Erste volle Ladung %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>Noch keine Momentaufnahmen: Jeden Tag wird eine gespeichert.</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>Batterien</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Keine Batterie</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryView</name>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterien</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Alles kopieren</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>Momentaufnahmen vergleichen</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>Als &amp;Text kopieren</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>Als &amp;Maschinendatei speichern …</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>Eine Datei, auf der das Programm statt auf diesem Computer laufen kann, für Fehlerberichte</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>Maschinendateien (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>Als Maschinendatei speichern</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>Details durchsuchen</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Mit Serien&amp;nummern</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>Klicken wechselt die Einheit</translation>
    </message>
</context>
<context>
    <name>quindle::GeneralPreferencesController</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>&amp;Celsius</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>&amp;Fahrenheit</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>&amp;Kelvin</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Platzhalter</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>Titel&amp;text</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>Text der Menüleiste</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>Es kann nichts gesendet werden: Für die Statistik ist kein Dienst eingerichtet.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>Text der Menüleiste zurücksetzen</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>Was &amp;genau gesendet wird …</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>Was genau gesendet wird</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>Zustand der &amp;Batterie einmal am Tag senden</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>Zustand der Batterie einmal am Tag senden</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Batteries&amp;ymbol zeigen</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Batteriesymbol zeigen</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>Bei der &amp;Anmeldung starten</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>Die Seriennummer ist unkenntlich gemacht.</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>Diese Option lässt sich nur im Hauptprogramm ausschalten. Es öffnet sich über „Programm öffnen“ im Menü</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>quindle::HelperPreferences</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>&amp;Celsius</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>&amp;Fahrenheit</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>&amp;Kelvin</translation>
    </message>
    <message>
        <source>&amp;Mark battery data for automatic upload</source>
        <translation>Daten der Batterie für den Versand vor&amp;merken</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Platzhalter</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>Nach der Anmeldung im &amp;Hintergrund laufen</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>&amp;Standardtitel</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Schließ&amp;en</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>Ei&amp;gener Text</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>Eigener Text der Menüleiste</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>Daten der Batterie für den Versand vormerken</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Text in der Menüleiste</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>Nach der Anmeldung im Hintergrund laufen</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Batteries&amp;ymbol zeigen</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Batteriesymbol zeigen</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>Diese Vormerkung allein sendet nichts. Der tägliche Versand wird in den Einstellungen unter „Allgemein“ geschaltet.</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>&amp;Ladung</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>Leist&amp;ung</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>&amp;Bild sichern …</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>Ladung, %1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>Zeichnungen (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>Volle Ladung, mAh</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>Volle Ladung, gesamter Verlauf</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Noch kein Verlauf</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>Eine Momentaufnahme am Tag zeigt, wie die Batterie altert</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>Leistung, %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>Die Aufzeichnung ist aus, es kommt nichts hinzu.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild sichern</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>Einstellungen der Aufzeichnung</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>Mit 95 % Wahrscheinlichkeit zwischen %1 und %2 Punkten im Jahr</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>Ruhezustand offen</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>Laden schattiert</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>ältere Werte sind Mittel</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>blass von UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>Verlauf &amp;löschen …</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>Alle Momentaufnahmen und alle aufgezeichneten Werte von Ladung und Leistung löschen?</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>Sie bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>Ladung und Leistung behalten</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>Ladung, Leistung und täglich eine Momentau&amp;fnahme aufzeichnen</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>Ladung, Leistung und täglich eine Momentaufnahme aufzeichnen</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Das lässt sich nicht rückgängig machen.</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>&amp;Nur das Symbol</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>Ein &amp;breites Bild mit dem Text</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>Symbol mit Text &amp;daneben</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>&amp;Text in der Menüleiste …</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Text in der Menüleiste</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>Nicht jede Leiste hat Platz für Text. Im Hinweis und im Menü steht er immer. Eine Leiste, die nur Quadrate zeigt, zeigt statt eines breiten Bildes die Ladung als Zahl.</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>Was zur &amp;Leiste passt</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Keine Batterie</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1, %2, jetzt %3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>Zum Einfügen einen Platzhalter wählen</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>Platzhalter für den Text der Menüleiste</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>Bereiche</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>Es würde nichts gesendet: Für die Statistik ist kein Server eingerichtet.</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>Das würde jetzt gesendet, höchstens einmal am Tag:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Was gesendet wird</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>Momentaufnahmen</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren …</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>Jetzt &amp;sichern</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exportiert</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>Noch keine Momentaufnahmen</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>Momentaufnahmen werden gelesen</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Momentaufnahmen</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>Es ist keine Batterie da, von der sich eine Momentaufnahme sichern ließe</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>Zwei gewählte Momentaufnahmen nebeneinander</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>Löschen rückgängig machen</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Nach %1 sortieren</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>Sortiert nach %1, %2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>aufsteigend</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>absteigend</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>Zeigt jetzt</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>Zeigt jetzt %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>Würde zeigen</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>Würde zeigen: %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>keinen Text</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>ohne Batterie keinen Text</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>nichts, ohne Leiste</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>nur das Symbol</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>die Zahl %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>Quindle Helper sucht nicht selbst nach Updates.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>Ein Programm, das dann mit Stufe, Prozentwert und Zustand als Argumenten gestartet wird</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>Auto: die Grenze, die der Computer meldet</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>Dann auszuführender Befehl</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>Auf diesem Desktop warnt keine Energieverwaltung.</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Warnen</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
</context>
</TS>
