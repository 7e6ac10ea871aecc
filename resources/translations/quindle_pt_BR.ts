<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>Não</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Fonte de energia</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>Fonte de energia %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>Registro: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1&#xa0;watts</translation>
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
            <numerusform>%1&#xa0;dia</numerusform>
            <numerusform>%1&#xa0;dias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1&#xa0;mês</numerusform>
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
        <translation>%1&#xa0;anos</translation>
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
        <translation>Idade</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Bateria %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>Idade da bateria</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>Componente (bateria)</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>Bateria carregada</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>Fabricante (bateria)</translation>
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
        <translation>Limite de carga</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Carregada</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>Carregando com</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>Carregando com</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Carregando…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>Idade do computador</translation>
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
        <translation>Descarregando</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>Descarregando com</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Descarregando…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Falhas</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Cheia</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Carga completa</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Boa</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixa</translation>
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
        <translation>Nenhum erro</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Nenhuma bateria</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>Sem valor de projeto</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>Desconhecida</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Ruim</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potência</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de série</translation>
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
        <translation>A capacidade real da bateria ao sair da fábrica (informada pelo fabricante).</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>A capacidade que a bateria informa ter tido ao sair da fábrica (gravada no firmware).</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>O número de ciclos de carga e descarga pelos quais a bateria passou.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>Bateria vazia em</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>Carga completa em</translation>
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
        <translation>&amp;Tudo</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Dia</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mês</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semana</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>últimas 24 horas</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>últimos 30 dias</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>últimos 365 dias</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>últimos 7 dias</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>todo o histórico</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;dia</numerusform>
            <numerusform>%1&#xa0;dias</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1&#xa0;ano</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10&#xa0;anos</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2&#xa0;anos</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30&#xa0;dias</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5&#xa0;anos</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90&#xa0;dias</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>Sem limite</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>Texto da barra de menus…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>Abrir o aplicativo</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferências…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>Mostrar a bateria…</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
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
        <translation>pt_BR</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>Histórico da bateria</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Estado da bateria</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>Carga, saúde e tempo restante da bateria no painel</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>Carga e saúde da bateria e como elas evoluem</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>Carga, potência, tempo restante, saúde, ciclos, idade e temperatura</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATA</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>PASTA</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARQUIVO</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>FORMATO</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>Nada é enviado a lugar algum sem permissão</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>O Quindle mostra em uma única janela tudo o que as baterias de um computador portátil informam. Seu companheiro, o Quindle Helper, fica na bandeja do painel com um título feito a partir de um modelo próprio e um ícone; um clique nele abre a visão da bateria.</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SINOPSE</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>Várias baterias reunidas em uma só</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>Bandejas no X11 e no Wayland</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>carga, saúde e tempo restante da bateria no painel</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>carga e saúde da bateria e como elas evoluem</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>bateria;energia;alimentação;carga;saúde;notebook;laptop;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>bateria;energia;alimentação;carga;saúde;desgaste;notebook;laptop;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>mostra a bateria como o Quindle Helper a vê</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantâneos</translation>
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
        <translation>Carga em porcentagem</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>Carregando ou descarregando</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>Corrente em miliampères</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>Potência em watts</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>Tempo restante</translation>
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
        <translation>As versões mais novas vêm de onde esta cópia foi instalada.</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>Nada seria enviado agora: falta um valor que identifica a bateria.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>Esta cópia foi compilada neste computador. Para atualizá-la, compila-se um código-fonte mais novo.</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>Este é o pacote “%1”. As versões mais novas dele são instaladas com %2, como as dos outros pacotes deste sistema.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>Desconhecida</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>Atualização</translation>
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
        <translation>Nada foi registrado neste período.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potência</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>carregando</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>descarregando</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>do UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>cheia</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>Pacotes de instantâneos (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>Exportar instantâneos</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>Importar instantâneos</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabela (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Com &amp;números de série</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;dia</numerusform>
            <numerusform>%1&#xa0;dias</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1&#xa0;pontos</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1&#xa0;instantâneo</numerusform>
            <numerusform>%1&#xa0;instantâneos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>%1&#xa0;instantâneo excluído</numerusform>
            <numerusform>%1&#xa0;instantâneos excluídos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>%1&#xa0;instantâneo importado</numerusform>
            <numerusform>%1&#xa0;instantâneos importados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>%1&#xa0;instantâneo restaurado</numerusform>
            <numerusform>%1&#xa0;instantâneos restaurados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;dia</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1&#xa0;instantâneo</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>1&#xa0;instantâneo excluído</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>1&#xa0;instantâneo importado</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>1&#xa0;instantâneo restaurado</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>1&#xa0;instantâneo salvo</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>Todos os instantâneos excluídos</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Ciclos de carga</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacidade de projeto</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Carga completa</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>Não há pasta para os instantâneos: o usuário não tem pasta pessoal</translation>
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
            <numerusform>%1&#xa0;dia</numerusform>
            <numerusform>%1&#xa0;dias</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>%1&#xa0;pontos por ano</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>%1 até agora</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1, com base em %2</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1, com base em %2 e %3</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1&#xa0;ciclo</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;dia</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>80% da primeira carga completa</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>Já abaixo de %1</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>Nesse ritmo, %1 %2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>Nenhum desgaste visível em %1</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>Ainda não há histórico suficiente (são necessários 60&#xa0;dias)</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>mais ou menos agora</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>por volta de %1</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>por volta de %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>entre %1 e %2</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>no início de %1</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>no fim de %1</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>em meados de %1</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>daqui a mais de 20&#xa0;anos</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>menos de %1&#xa0;ponto por ano</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>não antes de %1</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>Neste ambiente, quem avisa é o gerenciador de energia do %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Bateria fraca</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite de carga</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>Comando para bateria fraca</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>Comando para bateria cheia</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>Comando para bateria quase vazia</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>Comando para o limite de carga</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>Comando para bateria muito fraca</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Cheia</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>Quase vazia</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>Porcentagem para bateria fraca</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>Porcentagem para bateria cheia</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>Porcentagem para bateria quase vazia</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>Porcentagem para o limite de carga</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>Porcentagem para bateria muito fraca</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>A menos que o ambiente avise</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>Muito fraca</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>Restam %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>Resta cerca de %1&#xa0;minuto</numerusform>
            <numerusform>Restam cerca de %1&#xa0;minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Resta cerca de um minuto</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>Bateria cheia</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Bateria fraca</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>Bateria quase vazia</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>Bateria muito fraca</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>Limite de carga atingido</translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation>Bateria %1</translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation>Capacidade de projeto %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>Primeira carga completa %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>Ainda não há instantâneos: um é salvo a cada dia.</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>Baterias</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Nenhuma bateria</translation>
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
        <translation>Baterias</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Copiar tudo</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>Comparar instantâneos</translation>
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
        <translation>&amp;Salvar como arquivo de máquina…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>Um arquivo com o qual o programa pode ser executado no lugar deste computador, para relatos de defeitos</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>Arquivos de máquina (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>Salvar como arquivo de máquina</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>Pesquisar nos detalhes</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Com &amp;números de série</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>Clicar para trocar a unidade</translation>
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
        <translation>&amp;Parâmetros</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Redefinir</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Sessão</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menus</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>&amp;Texto da barra de menus</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>Texto da barra de menus</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>Nada pode ser enviado: nenhum serviço de estatísticas está configurado.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>Redefinir o texto da barra de menus</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>Ver &amp;exatamente o que é enviado…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>Ver exatamente o que é enviado</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>Enviar a &amp;saúde da bateria uma vez por dia</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>Enviar a saúde da bateria uma vez por dia</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>&amp;Mostrar o ícone da bateria</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Mostrar o ícone da bateria</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>&amp;Iniciar ao entrar na sessão</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>Iniciar ao entrar na sessão</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>O número de série está mascarado.</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>Esta opção só pode ser desativada no aplicativo principal. Ele é aberto com “Abrir o aplicativo” no menu</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
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
        <translation>Marcar os &amp;dados da bateria para envio automático</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Parâmetros</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>Executar em &amp;segundo plano ao entrar na sessão</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>&amp;Título padrão</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Fec&amp;har</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>Te&amp;xto personalizado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>Texto personalizado da barra de menus</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Ícone</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Sessão</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>Marcar os dados da bateria para envio automático</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Texto da barra de menus</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menus</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>Executar em segundo plano ao entrar na sessão</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>&amp;Mostrar o ícone da bateria</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Mostrar o ícone da bateria</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>Esta marca sozinha não envia nada. O envio diário é ativado nas preferências, em “Geral”.</translation>
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
        <translation>&amp;Potência</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>Salvar &amp;imagem…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>Carga, %1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>Desenhos (*.svg)</translation>
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
        <translation>Carga completa, todo o histórico</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ainda não há histórico</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>Um instantâneo por dia mostra como a bateria se desgasta</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Imagens (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>Potência, %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeza</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>O registro está desativado, então nada é acrescentado.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Salvar imagem</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>Configurações do registro</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabelas (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>Com uma probabilidade de 95%, entre %1 e %2&#xa0;pontos por ano</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>suspensão em branco</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>carregamento sombreado</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>valores mais antigos são médias</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>em tom claro, do UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>Exc&amp;luir histórico…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>M&amp;anter</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>Excluir histórico</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>Excluir todos os instantâneos e todos os valores registrados de carga e potência?</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>Tudo fica neste computador.</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>Manter carga e potência</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>Registrar carga, p&amp;otência e um instantâneo por dia</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>Registrar carga, potência e um instantâneo por dia</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Esta ação não pode ser desfeita.</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>&amp;Só o ícone</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>&amp;Uma única imagem larga com o texto</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>Ícone, com o texto &amp;ao lado</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barra de menus</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>&amp;Texto da barra de menus…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Texto da barra de menus</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menus</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>Nem todo painel tem espaço para texto. O texto está sempre na dica e no menu. Um painel que só mostra quadrados exibe a carga como número em vez de uma imagem larga.</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>&amp;Conforme o painel</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Nenhuma bateria</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1, %2, agora %3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>Escolher um parâmetro para inseri-lo</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>Parâmetros do texto da barra de menus</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>Seções</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>Nada seria enviado: nenhum servidor de estatísticas está configurado.</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>Isto é o que seria enviado agora, no máximo uma vez por dia:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>O que é enviado</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
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
        <translation>Instantâneos</translation>
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
        <translation>&amp;Excluir</translation>
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
        <translation>&amp;Salvar agora</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exportado</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>Ainda não há instantâneos</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>Lendo os instantâneos</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantâneos</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>Não há bateria da qual salvar um instantâneo</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>Dois instantâneos selecionados, lado a lado</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>Desfazer a exclusão</translation>
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
        <translation>Mostra agora</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>Mostra agora %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>Mostraria</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>Mostraria %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>nenhum texto</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>nenhum texto sem bateria</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>nada, sem painel</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>apenas o ícone</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>o número %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>O Quindle Helper não procura atualizações por conta própria.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>Um programa a executar nesse momento, com o nível, a porcentagem e o estado como argumentos</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>Auto: o limite informado pelo computador</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>Comando a executar nesse momento</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>Nenhum gerenciador de energia avisa neste ambiente.</translation>
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
