<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Dates</name>
    <message>
        <source>MMM d</source>
        <comment>as date formats write it</comment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>MMMM yyyy</translation>
    </message>
    <message>
        <source>d MMM</source>
        <comment>as date formats write it</comment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>d MMM yyyy</translation>
    </message>
</context>
<context>
    <name>Details</name>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Fonte di alimentazione</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>Fonte di alimentazione %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>Registro: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1&#xa0;watt</translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1&#xa0;ciclo</numerusform>
            <numerusform>%1&#xa0;cicli</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1&#xa0;giorno</numerusform>
            <numerusform>%1&#xa0;giorni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1&#xa0;mese</numerusform>
            <numerusform>%1&#xa0;mesi</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation>%1&#xa0;anni</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1&#xa0;ciclo</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Alimentatore</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Età</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batteria %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>Età della batteria</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>Componente batteria</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>Batteria carica</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>Produttore batteria</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>Assemblato: %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Calcolo in corso…</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite di carica</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Completamente carica</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>In carica a</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>In carica</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>In carica a</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>In carica…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>Età del computer</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Collegato</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critica</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cicli di carica</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Componente</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>In scarica</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>In scarica a</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>In scarica…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Guasti</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Discreta</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Piena</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Carica completa</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buona</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Produttore</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>Prodotta: %1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>Nessun errore</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Nessuna batteria</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>Senza val. nominale</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non collegato</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>Non nota</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Scarsa</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation>La capacità effettiva della batteria all’uscita dalla fabbrica (secondo il produttore).</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>La capacità che la batteria dichiara di aver avuto all’uscita dalla fabbrica (memorizzata nel firmware).</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>Il numero di cicli di carica e scarica che la batteria ha avuto.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>Batteria scarica tra</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>Carica completa tra</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>HistoryRange</name>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tutto</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Giorno</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mese</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Settimana</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Anno</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>ultime 24 ore</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>ultimi 30 giorni</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>ultimi 365 giorni</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>ultimi 7 giorni</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>intera cronologia</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;giorno</numerusform>
            <numerusform>%1&#xa0;giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1&#xa0;anno</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10&#xa0;anni</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2&#xa0;anni</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30&#xa0;giorni</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5&#xa0;anni</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90&#xa0;giorni</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>Senza limite</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>Testo nella barra dei menu…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>Apri l’applicazione</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferenze…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>Mostra la batteria…</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
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
        <translation>it_IT</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>Cronologia della batteria</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Stato della batteria</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>Carica, salute e autonomia della batteria nel pannello</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>Carica e salute della batteria e il loro andamento</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>Carica, potenza, tempo rimanente, salute, cicli, età e temperatura</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATA</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>CARTELLA</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>FORMATO</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>Nulla viene inviato senza autorizzazione</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>Quindle mostra in un’unica finestra tutto ciò che indicano le batterie di un computer portatile. Il suo compagno, Quindle Helper, si trova nell’area di notifica del pannello con un titolo composto da un modello personale e un’icona; un clic su di essa apre la vista della batteria.</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SINTASSI</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>Più batterie riunite in una</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>Aree di notifica su X11 e su Wayland</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>carica, salute e autonomia della batteria nel pannello</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>carica e salute della batteria e il loro andamento</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>batteria;energia;alimentazione;carica;salute;portatile;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>batteria;energia;alimentazione;carica;salute;usura;portatile;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>mostra la batteria come la vede Quindle Helper</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Istantanee</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>Cicli di carica</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>Carica in percentuale</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>In carica o in scarica</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>Corrente in milliampere</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>Potenza in watt</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>Tempo rimanente</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Newer versions come from where this copy was installed from.</source>
        <translation>Le nuove versioni provengono da dove è stata installata questa copia.</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>Ora non verrebbe inviato nulla: manca un valore che identifica la batteria.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>Questa copia è stata compilata su questo computer. Per aggiornarla si compila un codice sorgente più recente.</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>Questo è il pacchetto «%1». Le sue nuove versioni si installano con %2, come quelle degli altri pacchetti di questo sistema.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>Sconosciuta</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>Aggiornamento</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>In questo periodo non è stato registrato nulla.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>in carica</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>in scarica</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>da UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>piena</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>Archivi di istantanee (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>Esporta istantanee</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>Importa istantanee</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabella (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Con i &amp;numeri di serie</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;giorno</numerusform>
            <numerusform>%1&#xa0;giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1&#xa0;punti</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1&#xa0;istantanea</numerusform>
            <numerusform>%1&#xa0;istantanee</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>%1&#xa0;istantanea eliminata</numerusform>
            <numerusform>%1&#xa0;istantanee eliminate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>%1&#xa0;istantanea importata</numerusform>
            <numerusform>%1&#xa0;istantanee importate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>%1&#xa0;istantanea ripristinata</numerusform>
            <numerusform>%1&#xa0;istantanee ripristinate</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;giorno</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1&#xa0;istantanea</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>1&#xa0;istantanea eliminata</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>1&#xa0;istantanea importata</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>1&#xa0;istantanea ripristinata</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>1&#xa0;istantanea salvata</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>Tutte le istantanee eliminate</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cicli di carica</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacità nominale</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Carica completa</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>Non c’è una cartella per le istantanee: l’utente non ha una cartella personale</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1&#xa0;ciclo</numerusform>
            <numerusform>%1&#xa0;cicli</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;giorno</numerusform>
            <numerusform>%1&#xa0;giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>%1&#xa0;punti all’anno</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>%1 finora</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1, in base a %2</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1, in base a %2 e %3</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1&#xa0;ciclo</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;giorno</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>80% della prima carica completa</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>Già sotto l’%1</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>A questo ritmo, l’%1 %2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>Nessuna usura visibile in %1</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>Cronologia ancora insufficiente (servono 60&#xa0;giorni)</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>più o meno ora</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>verso %1</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>verso il %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>tra il %1 e il %2</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>all’inizio del %1</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>alla fine del %1</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>a metà del %1</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>tra più di 20&#xa0;anni</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>meno di %1&#xa0;punti all’anno</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>non prima del %1</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>In questo ambiente desktop avvisa il gestore dell’energia di %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batteria bassa</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite di carica</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>Comando per batteria bassa</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>Comando per batteria piena</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>Comando per batteria quasi scarica</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>Comando per il limite di carica</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>Comando per batteria molto bassa</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Piena</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>Quasi scarica</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>Percentuale per batteria bassa</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>Percentuale per batteria piena</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>Percentuale per batteria quasi scarica</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>Percentuale per il limite di carica</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>Percentuale per batteria molto bassa</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>Se non avvisa l’ambiente desktop</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>Molto bassa</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>Carica rimanente: %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>Rimane circa %1&#xa0;minuto</numerusform>
            <numerusform>Rimangono circa %1&#xa0;minuti</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Rimane circa un minuto</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>Batteria piena</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batteria bassa</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>Batteria quasi scarica</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>Batteria molto bassa</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>Limite di carica raggiunto</translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation>Batteria %1</translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation>Capacità nominale %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>Prima carica completa %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>Ancora nessuna istantanea: ne viene salvata una al giorno.</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Nessuna batteria</translation>
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
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
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
        <translation>Confronta istantanee</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>&amp;Copia come testo</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>&amp;Salva come file della macchina…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>Un file su cui il programma può essere eseguito al posto di questo computer, per segnalare difetti</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiato</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>File della macchina (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>Salva come file della macchina</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>Cerca nei dettagli</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Con i &amp;numeri di serie</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>Fare clic per cambiare unità</translation>
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
        <translation>&amp;Parametri</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra dei menu</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>&amp;Testo nella barra dei menu</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>Testo nella barra dei menu</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>Non si può inviare nulla: non è configurato alcun servizio di statistiche.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>Ripristina il testo nella barra dei menu</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>Mostra &amp;esattamente cosa viene inviato…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>Mostra esattamente cosa viene inviato</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>Invia la &amp;salute della batteria una volta al giorno</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>Invia la salute della batteria una volta al giorno</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Mostra l’&amp;icona della batteria</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Mostra l’icona della batteria</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>&amp;Avvia all’accesso</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>Avvia all’accesso</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiche</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>Il numero di serie è mascherato.</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>Questa opzione si può disattivare solo nell’applicazione principale, che si apre con «Apri l’applicazione» nel menu</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
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
        <translation>Contrassegna i &amp;dati della batteria per l’invio automatico</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Parametri</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>Esegui in &amp;secondo piano all’accesso</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>Titolo s&amp;tandard</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Chi&amp;udi</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>Testo p&amp;ersonalizzato</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>Testo personalizzato nella barra dei menu</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>Contrassegna i dati della batteria per l’invio automatico</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Testo nella barra dei menu</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra dei menu</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>Esegui in secondo piano all’accesso</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Mostra l’&amp;icona della batteria</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Mostra l’icona della batteria</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiche</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>Questo contrassegno da solo non invia nulla. L’invio quotidiano si attiva nelle preferenze, in «Generali».</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>&amp;Carica</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta…</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>&amp;Potenza</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>Salva &amp;immagine…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>Carica, %1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>Disegni (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>Carica completa, mAh</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>Carica completa, intera cronologia</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ancora nessuna cronologia</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>Un’istantanea al giorno mostra come si usura la batteria</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Immagini (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>Potenza, %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandezza</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Periodo</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>La registrazione è disattivata, quindi non si aggiunge nulla.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Salva immagine</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>Impostazioni di registrazione</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>Con una probabilità del 95%, tra %1 e %2&#xa0;punti all’anno</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>sospensione lasciata vuota</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>carica ombreggiata</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>i valori meno recenti sono medie</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>in chiaro, da UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>E&amp;limina la cronologia…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>Co&amp;nserva</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>Elimina la cronologia</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>Eliminare tutte le istantanee e tutti i valori registrati di carica e potenza?</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>Tutto resta su questo computer.</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>Conserva carica e potenza</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>Registra carica, p&amp;otenza e un’istantanea al giorno</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>Registra carica, potenza e un’istantanea al giorno</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Questa operazione non può essere annullata.</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>Solo l’&amp;icona</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>&amp;Un’unica immagine larga con il testo</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>Icona con il testo &amp;accanto</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barra dei menu</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>&amp;Testo nella barra dei menu…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Testo nella barra dei menu</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra dei menu</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>Non tutti i pannelli hanno spazio per il testo. Il testo è sempre nel suggerimento e nel menu. Un pannello che mostra solo quadrati indica la carica come numero invece di un’immagine larga.</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>&amp;Secondo il pannello</translation>
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
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Nessuna batteria</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1, %2, ora %3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>Scegliere un parametro per inserirlo</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>Parametri del testo nella barra dei menu</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>Riquadri</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>Non verrebbe inviato nulla: non è configurato alcun server di statistiche.</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>Ecco cosa verrebbe inviato ora, al massimo una volta al giorno:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Cosa viene inviato</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>Istantanee</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Confronta</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>Es&amp;porta…</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importa…</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>&amp;Salva ora</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Esportato</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>Ancora nessuna istantanea</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>Lettura delle istantanee</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Istantanee</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>Non c’è una batteria di cui salvare un’istantanea</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>Due istantanee selezionate, una accanto all’altra</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>Annulla l’eliminazione</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>Ordina</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Ordina per %1</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>Ordinato per %1, %2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>crescente</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>decrescente</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>Mostra ora</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>Mostra ora %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>Mostrerebbe</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>Mostrerebbe %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>nessun testo</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>nessun testo senza batteria</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>nulla, senza pannello</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>solo l’icona</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>il numero %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>Quindle Helper non cerca aggiornamenti da solo.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>Un programma da eseguire in quel momento, con livello, percentuale e stato come argomenti</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>Auto: il limite indicato dal computer</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>Comando da eseguire in quel momento</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>In questo ambiente desktop non avvisa alcun gestore dell’energia.</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Avvisa</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avvisi</translation>
    </message>
</context>
</TS>
