<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>MMMM &apos;de&apos; yyyy</translation>
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
        <translation>Fuente de alimentación</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>Fuente de alimentación %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>Registro: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1&#xa0;vatios</translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1&#xa0;ciclo</numerusform>
            <numerusform>%1&#xa0;ciclos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1&#xa0;día</numerusform>
            <numerusform>%1&#xa0;días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1&#xa0;mes</numerusform>
            <numerusform>%1&#xa0;meses</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation>%1&#xa0;años</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1&#xa0;ciclo</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Adaptador</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Antigüedad</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batería %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>Antigüedad (batería)</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>Componente (batería)</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>Batería cargada</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>Fabricante (batería)</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>Montado: %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Calculando…</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Límite de carga</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Cargada</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>Cargando a</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>Cargando a</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>Antigüedad (equipo)</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítica</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Ciclos de carga</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Componente</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>Descargando</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>Descargando a</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Descargando…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Fallos</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Llena</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Carga completa</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buena</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>Fabricada: %1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>Ningún error</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Sin batería</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>Sin valor de diseño</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>Desconocida</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Mala</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
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
        <translation>La capacidad real de la batería al salir de fábrica (según el fabricante).</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>La capacidad que la batería indica que tenía al salir de fábrica (guardada en el firmware).</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>El número de ciclos de carga y descarga que ha tenido la batería.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>Batería agotada en</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>Carga completa en</translation>
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
        <translation>&amp;Todo</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mes</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semana</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Año</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>últimas 24 horas</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>últimos 30 días</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>últimos 365 días</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>últimos 7 días</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>todo el historial</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;día</numerusform>
            <numerusform>%1&#xa0;días</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1&#xa0;año</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10&#xa0;años</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2&#xa0;años</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30&#xa0;días</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5&#xa0;años</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90&#xa0;días</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>Sin límite</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>Texto de la barra de menús…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>Abrir la aplicación</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>Mostrar la batería…</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
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
        <translation>es_ES</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>Historial de la batería</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Estado de la batería</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>Carga, salud y tiempo restante de la batería en el panel</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>Carga y salud de la batería, y cómo evolucionan</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>Carga, potencia, tiempo restante, salud, ciclos, antigüedad y temperatura</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>FECHA</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>CARPETA</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>FORMATO</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>No se envía nada a ningún sitio sin permiso</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>Quindle muestra en una sola ventana todo lo que indican las baterías de un equipo portátil. Su acompañante, Quindle Helper, se coloca en la bandeja del panel con un título hecho a partir de una plantilla propia y un icono; un clic en él abre la vista de la batería.</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SINOPSIS</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>Varias baterías reunidas en una</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>Bandejas en X11 y en Wayland</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>carga, salud y tiempo restante de la batería en el panel</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>carga y salud de la batería, y cómo evolucionan</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>batería;energía;alimentación;carga;salud;portátil;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>batería;energía;alimentación;carga;salud;desgaste;portátil;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>muestra la batería tal como la ve Quindle Helper</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantáneas</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>Ciclos de carga</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>Carga en porcentaje</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>Cargando o descargando</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>Corriente en miliamperios</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>Potencia en vatios</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>Tiempo restante</translation>
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
        <translation>Las versiones nuevas proceden de donde se instaló esta copia.</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>Ahora no se enviaría nada: falta un valor que identifique la batería.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>Esta copia se compiló en este equipo. Se actualiza compilando un código fuente más reciente.</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>Este es el paquete «%1». Sus versiones nuevas se instalan con %2, como las de los demás paquetes de este sistema.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>Desconocida</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>Actualización</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>No se registró nada en este periodo.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>cargando</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>descargando</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>de UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>llena</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>Archivos comprimidos de instantáneas (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>Exportar instantáneas</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>Importar instantáneas</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabla (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Con &amp;números de serie</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;día</numerusform>
            <numerusform>%1&#xa0;días</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1&#xa0;puntos</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1&#xa0;instantánea</numerusform>
            <numerusform>%1&#xa0;instantáneas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>%1&#xa0;instantánea eliminada</numerusform>
            <numerusform>%1&#xa0;instantáneas eliminadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>%1&#xa0;instantánea importada</numerusform>
            <numerusform>%1&#xa0;instantáneas importadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>%1&#xa0;instantánea restaurada</numerusform>
            <numerusform>%1&#xa0;instantáneas restauradas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;día</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1&#xa0;instantánea</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>1&#xa0;instantánea eliminada</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>1&#xa0;instantánea importada</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>1&#xa0;instantánea restaurada</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>1&#xa0;instantánea guardada</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>Todas las instantáneas eliminadas</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Ciclos de carga</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacidad de diseño</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Carga completa</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>No hay carpeta para las instantáneas: el usuario no tiene carpeta personal</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1&#xa0;ciclo</numerusform>
            <numerusform>%1&#xa0;ciclos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;día</numerusform>
            <numerusform>%1&#xa0;días</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>%1&#xa0;puntos al año</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>%1 hasta ahora</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1, a partir de %2</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1, a partir de %2 y %3</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1&#xa0;ciclo</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;día</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80&#xa0;%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>80&#xa0;% de la primera carga completa</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>Ya por debajo del %1</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>A este ritmo, el %1 %2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>No se aprecia desgaste en %1</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>Aún no hay suficiente historial (se necesitan 60&#xa0;días)</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>más o menos ahora</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>hacia %1</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>hacia %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>entre %1 y %2</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>a principios de %1</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>a finales de %1</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>a mediados de %1</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>dentro de más de 20&#xa0;años</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>menos de %1&#xa0;puntos al año</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>no antes de %1</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>En este escritorio avisa el gestor de energía de %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batería baja</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Límite de carga</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>Orden para batería baja</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>Orden para batería llena</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>Orden para batería casi agotada</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>Orden para el límite de carga</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>Orden para batería muy baja</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Llena</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>Casi agotada</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>Porcentaje para batería baja</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>Porcentaje para batería llena</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>Porcentaje para batería casi agotada</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>Porcentaje para el límite de carga</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>Porcentaje para batería muy baja</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>Salvo que avise el escritorio</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>Muy baja</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>Queda un %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>Queda aproximadamente %1&#xa0;minuto</numerusform>
            <numerusform>Quedan aproximadamente %1&#xa0;minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Queda aproximadamente un minuto</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>Batería llena</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batería baja</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>Batería casi agotada</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>Batería muy baja</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>Límite de carga alcanzado</translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation>Batería %1</translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation>Capacidad de diseño %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>Primera carga completa %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>Aún no hay instantáneas: se guarda una cada día.</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Sin batería</translation>
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
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Copiar todo</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>Comparar instantáneas</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>&amp;Copiar como texto</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>&amp;Guardar como archivo de máquina…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>Un archivo con el que el programa puede ejecutarse en lugar de con este equipo, para informar de defectos</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>Archivos de máquina (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>Guardar como archivo de máquina</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>Buscar en los detalles</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Con &amp;números de serie</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>Hacer clic para cambiar la unidad</translation>
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
        <translation>&amp;Parámetros</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>&amp;Texto de la barra de menús</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>Texto de la barra de menús</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>No se puede enviar nada: no hay ningún servicio de estadísticas configurado.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>Restablecer el texto de la barra de menús</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>Ver &amp;exactamente qué se envía…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>Ver exactamente qué se envía</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>Enviar la &amp;salud de la batería una vez al día</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>Enviar la salud de la batería una vez al día</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Mostrar el &amp;icono de la batería</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Mostrar el icono de la batería</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>&amp;Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>El número de serie está oculto.</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>Esta opción solo se puede desactivar en la aplicación principal. Se abre con «Abrir la aplicación» en el menú</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
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
        <translation>&amp;Marcar los datos de la batería para el envío automático</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Parámetros</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>Funcionar en &amp;segundo plano al iniciar sesión</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>Título &amp;estándar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>Texto pers&amp;onalizado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>Texto personalizado de la barra de menús</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>Marcar los datos de la batería para el envío automático</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Texto de la barra de menús</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>Funcionar en segundo plano al iniciar sesión</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Mostrar el &amp;icono de la batería</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Mostrar el icono de la batería</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>Esta marca por sí sola no envía nada. El envío diario se activa en Preferencias, «General».</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>&amp;Carga</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>&amp;Potencia</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>&amp;Guardar imagen…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>Carga, %1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>Dibujos (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>Carga completa, mAh</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>Carga completa, todo el historial</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Aún no hay historial</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>Una instantánea al día muestra cómo se desgasta la batería</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Imágenes (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>Potencia, %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Magnitud</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Periodo</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>El registro está desactivado, así que no se añade nada.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>Configuración del registro</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tablas (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>Con una probabilidad del 95&#xa0;%, entre %1 y %2&#xa0;puntos al año</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>suspensión en blanco</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>carga sombreada</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>los valores antiguos son medias</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>en tono claro, de UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>E&amp;liminar historial…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>Conser&amp;var</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>Eliminar historial</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>¿Eliminar todas las instantáneas y todos los valores registrados de carga y potencia?</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>Todo se queda en este equipo.</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>Conservar la carga y la potencia</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>Registrar la carga, la potencia y una instantánea &amp;diaria</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>Registrar la carga, la potencia y una instantánea diaria</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Esta acción no se puede deshacer.</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>Solo el &amp;icono</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>&amp;Una sola imagen ancha con el texto</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>Icono, con el texto &amp;al lado</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>&amp;Texto de la barra de menús…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Texto de la barra de menús</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>No todos los paneles tienen sitio para texto. El texto está siempre en la ayuda emergente y en el menú. Un panel que solo muestra cuadrados presenta la carga como número en lugar de una imagen ancha.</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>&amp;Según el panel</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Sin batería</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1, %2, ahora %3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>Elegir un parámetro para insertarlo</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>Parámetros del texto de la barra de menús</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>Secciones</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>No se enviaría nada: no hay ningún servidor de estadísticas configurado.</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>Esto es lo que se enviaría ahora, una vez al día como máximo:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Qué se envía</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>Instantáneas</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>&amp;Guardar ahora</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exportado</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>Aún no hay instantáneas</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>Leyendo las instantáneas</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>No hay ninguna batería de la que guardar una instantánea</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>Dos instantáneas seleccionadas, una al lado de la otra</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>Deshacer la eliminación</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>Ordenar</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Ordenar por %1</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>Ordenado por %1, %2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>ascendente</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>descendente</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>Muestra ahora</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>Muestra ahora %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>Mostraría</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>Mostraría %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>ningún texto</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>ningún texto sin batería</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>nada, sin panel</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>solo el icono</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>el número %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>Quindle Helper no busca actualizaciones por sí mismo.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>Un programa que se ejecuta entonces, con el nivel, el porcentaje y el estado como argumentos</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>Auto: el límite que indica el equipo</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>Orden que se ejecuta entonces</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>Ningún gestor de energía avisa en este escritorio.</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Avisar</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avisos</translation>
    </message>
</context>
</TS>
