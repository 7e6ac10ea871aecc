<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
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
        <translation>Nie</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Źródło zasilania</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>Źródło zasilania %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>Rejestr: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1 W</translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 cykl</numerusform>
            <numerusform>%1 cykle</numerusform>
            <numerusform>%1 cykli</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 dzień</numerusform>
            <numerusform>%1 dni</numerusform>
            <numerusform>%1 dni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 miesiąc</numerusform>
            <numerusform>%1 miesiące</numerusform>
            <numerusform>%1 miesięcy</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation>%1 roku</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1 cykl</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Zasilacz</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Wiek</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Bateria %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>Wiek baterii</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>Urządzenie baterii</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>Bateria w pełni naładowana</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>Producent baterii</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>Pobór mocy</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>Zbudowano: %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Obliczanie…</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Naładowanie</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limit ładowania</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Naładowana</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>Ładowanie z mocą</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Ładowanie</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>Ładowanie z mocą</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Ładowanie…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>Wiek komputera</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Podłączony</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Krytyczny</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cykle</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>Rozładowywanie</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>Rozładowanie z mocą</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Rozładowywanie…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Usterki</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Średnia</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pełny</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Pełne naładowanie</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Dobra</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Kondycja</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Wysoki</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niski</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Producent</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>Wyprodukowano: %1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>Brak błędów</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Brak baterii</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>Brak pojemności projektowej</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalny</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niepodłączony</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>Nieznana</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Zła</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Moc</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numer seryjny</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation>Rzeczywista pojemność baterii po opuszczeniu fabryki (według producenta).</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>Pojemność, którą bateria miała po opuszczeniu fabryki według własnych danych (zapisana w oprogramowaniu układowym).</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>Liczba cykli ładowania i rozładowania, które przeszła bateria.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>Do rozładowania</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>Do naładowania</translation>
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
        <translation>&amp;Wszystko</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Dzień</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Miesiąc</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Tydzień</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Rok</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>ostatnie 24 godziny</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>ostatnie 30 dni</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>ostatnie 365 dni</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>ostatnie 7 dni</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>cała historia</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 dzień</numerusform>
            <numerusform>%1 dni</numerusform>
            <numerusform>%1 dni</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 rok</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10 lat</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2 lata</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 dni</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 lat</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90 dni</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>Bez ograniczeń</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>Tekst na pasku menu…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>Otwórz aplikację</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>Pokaż baterię…</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
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
        <translation>pl_PL</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>Historia baterii</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Stan baterii</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>Naładowanie, kondycja i czas pracy baterii na panelu</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>Naładowanie i kondycja baterii oraz ich przebieg</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>Naładowanie, moc, pozostały czas, kondycja, cykle, wiek i temperatura</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATA</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>KATALOG</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>PLIK</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>FORMAT</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>Bez zgody użytkownika nic nie jest nigdzie wysyłane</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>Quindle pokazuje w jednym oknie wszystko, co zgłaszają baterie komputera przenośnego. Towarzyszący mu Quindle Helper działa w zasobniku panelu i wyświetla ikonę oraz tytuł według własnego szablonu; kliknięcie otwiera widok baterii.</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SKŁADNIA</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>Kilka baterii połączonych w jedną</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>Zasobniki w X11 i Wayland</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>naładowanie, kondycja i czas pracy baterii na panelu</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>naładowanie i kondycja baterii oraz ich przebieg</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>bateria;akumulator;zasilanie;ładowanie;kondycja;laptop;notebook;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>bateria;akumulator;zasilanie;ładowanie;kondycja;zużycie;laptop;notebook;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>wypisuje baterię tak, jak widzi ją Quindle Helper</translation>
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
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Migawki</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>Cykle ładowania</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>Naładowanie w procentach</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>Ładowanie lub rozładowywanie</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>Natężenie prądu w miliamperach</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>Moc w watach</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>Pozostały czas</translation>
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
        <translation>Nowsze wersje pochodzą stamtąd, skąd zainstalowano tę kopię.</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>Teraz nic nie zostałoby wysłane: brakuje wartości identyfikującej baterię.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>Ta kopia została zbudowana na tym komputerze. Aktualizuje ją ponowne zbudowanie z nowszego kodu źródłowego.</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>To jest pakiet „%1”. Jego nowsze wersje instaluje %2, tak jak wersje innych pakietów tego systemu.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>Nieznana</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>Aktualizacja</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>Naładowanie</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>W tym czasie niczego nie zapisano.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Moc</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>ładowanie</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>rozładowywanie</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>z UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>naładowana</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>Archiwa migawek (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>Eksport migawek</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>Import migawek</translation>
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
        <translation>Z &amp;numerami seryjnymi</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 dzień</numerusform>
            <numerusform>%1 dni</numerusform>
            <numerusform>%1 dni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1 p.p.</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 migawka</numerusform>
            <numerusform>%1 migawki</numerusform>
            <numerusform>%1 migawek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>Usunięto %1 migawkę</numerusform>
            <numerusform>Usunięto %1 migawki</numerusform>
            <numerusform>Usunięto %1 migawek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>Zaimportowano %1 migawkę</numerusform>
            <numerusform>Zaimportowano %1 migawki</numerusform>
            <numerusform>Zaimportowano %1 migawek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>Przywrócono %1 migawkę</numerusform>
            <numerusform>Przywrócono %1 migawki</numerusform>
            <numerusform>Przywrócono %1 migawek</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 dzień</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 migawka</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>Usunięto 1 migawkę</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>Zaimportowano 1 migawkę</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>Przywrócono 1 migawkę</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>Zapisano 1 migawkę</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>Usunięto wszystkie migawki</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cykle</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Pojemność projektowa</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Pełne naładowanie</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Kondycja</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>Brak katalogu na migawki: użytkownik nie ma katalogu domowego</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 cykl</numerusform>
            <numerusform>%1 cykle</numerusform>
            <numerusform>%1 cykli</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 dnia</numerusform>
            <numerusform>%1 dni</numerusform>
            <numerusform>%1 dni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>%1 p.p. rocznie</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>Na razie dane z %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1 (dane z %2)</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1 (dane z %2, %3)</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1 cykl</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 dnia</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>80% pierwszego pełnego naładowania</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>Już poniżej %1</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>Przy tym tempie %1 %2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>Brak widocznego zużycia w ciągu %1</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>Za mało historii (potrzeba 60 dni)</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>mniej więcej teraz</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>około %1</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>około %1 r.</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>między %1 a %2 r.</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>na początku %1 r.</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>pod koniec %1 r.</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>w połowie %1 r.</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>za ponad 20 lat</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>mniej niż %1 p.p. rocznie</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>nie przed %1 r.</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>W tym środowisku ostrzega zarządzanie energią %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Zawsze</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Niski poziom baterii</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limit ładowania</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>Polecenie przy niskim poziomie baterii</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>Polecenie przy pełnym naładowaniu</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>Polecenie przy prawie pustej baterii</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>Polecenie po osiągnięciu limitu ładowania</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>Polecenie przy bardzo niskim poziomie</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pełna</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>Prawie pusta</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nigdy</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>Wartość procentowa niskiego poziomu baterii</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>Wartość procentowa pełnego naładowania</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>Wartość procentowa prawie pustej baterii</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>Wartość procentowa limitu ładowania</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>Wartość procentowa bardzo niskiego poziomu</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>Gdy nie ostrzega środowisko</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>Bardzo niski poziom</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>Pozostało %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>Pozostała około %1 minuta</numerusform>
            <numerusform>Pozostały około %1 minuty</numerusform>
            <numerusform>Pozostało około %1 minut</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Pozostała około minuta</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>Bateria naładowana</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Niski poziom baterii</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>Bateria prawie pusta</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>Bardzo niski poziom baterii</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>Osiągnięto limit ładowania</translation>
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
        <translation>Pojemność projektowa %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>Pierwsze pełne naładowanie %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>Nie ma jeszcze migawek: codziennie zapisywana jest jedna.</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>Baterie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Naładowanie</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Urządzenia</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Kondycja</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Brak baterii</translation>
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
        <translation>Baterie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Naładowanie</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Urządzenia</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Kondycja</translation>
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
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Kopiuj wszystko</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>Porównanie migawek</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>&amp;Kopiuj jako tekst</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>&amp;Zapisz jako plik maszyny…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>Plik, z którym program można uruchomić zamiast na tym komputerze, do zgłaszania usterek</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Skopiowano</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>Pliki maszyn (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nic nie znaleziono</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>Zapis jako plik maszyny</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>Szukaj w szczegółach</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Z &amp;numerami seryjnymi</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>Kliknięcie zmienia jednostkę</translation>
    </message>
</context>
<context>
    <name>quindle::GeneralPreferencesController</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>&amp;Celsjusz</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>&amp;Fahrenheit</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>&amp;Kelwin</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Parametry</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Resetuj</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Logowanie</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Pasek menu</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>&amp;Tekst paska menu</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>Tekst paska menu</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>Nie można nic wysłać: nie skonfigurowano usługi statystyk.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>Resetuj tekst paska menu</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>Pokaż &amp;dokładnie, co jest wysyłane…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>Pokaż dokładnie, co jest wysyłane</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>Wysyłaj kondycję &amp;baterii raz dziennie</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>Wysyłaj kondycję baterii raz dziennie</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Pokazuj &amp;ikonę baterii</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Pokazuj ikonę baterii</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>Uruchamiaj po zal&amp;ogowaniu</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>Uruchamiaj po zalogowaniu</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statystyki</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>Numer seryjny jest zamaskowany.</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>Tę opcję można wyłączyć tylko w głównej aplikacji. Aby ją uruchomić, należy wybrać „Otwórz aplikację” z menu</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
</context>
<context>
    <name>quindle::HelperPreferences</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>&amp;Celsjusz</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>&amp;Fahrenheit</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>&amp;Kelwin</translation>
    </message>
    <message>
        <source>&amp;Mark battery data for automatic upload</source>
        <translation>&amp;Oznacz dane baterii do automatycznego wysyłania</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Parametry</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>&amp;Uruchamiaj w tle po zalogowaniu</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>Tytuł &amp;standardowy</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>&amp;Własny tekst</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>Własny tekst paska menu</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Ikona</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Logowanie</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>Oznacz dane baterii do automatycznego wysyłania</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Tekst na pasku menu</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Pasek menu</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>Uruchamiaj w tle po zalogowaniu</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Pokazuj &amp;ikonę baterii</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Pokazuj ikonę baterii</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statystyki</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>Samo oznaczenie niczego nie wysyła. Codzienne wysyłanie włącza się w ustawieniach, w sekcji „Ogólne”.</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>&amp;Naładowanie</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksportuj…</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>Mo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>Zapi&amp;sz obraz…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>Naładowanie, %1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>Rysunki (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>Pełne naładowanie, mAh</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>Pełne naładowanie, cała historia</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Kondycja</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Nie ma jeszcze historii</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>Jedna migawka dziennie pokazuje, jak zużywa się bateria</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Obrazy (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>Moc, %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Wielkość</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Zakres</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>Zapisywanie jest wyłączone, więc nic nie przybywa.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Zapis obrazu</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>Ustawienia zapisywania</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabele (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>Z prawdopodobieństwem 95% od %1 do %2 p.p. rocznie</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>przerwy: uśpienie</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>cieniowanie: ładowanie</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>starsze wartości to średnie</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>blade: z UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>&amp;Usuń historię…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Zachowaj</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>Usuwanie historii</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>Usunąć wszystkie migawki oraz wszystkie zapisane wartości naładowania i mocy?</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>Dane pozostają na tym komputerze.</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>Przechowuj naładowanie i moc</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>Zapisuj &amp;naładowanie, moc i codzienną migawkę</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>Zapisuj naładowanie, moc i codzienną migawkę</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Tego nie można cofnąć.</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>Tylko &amp;ikona</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>&amp;Jeden szeroki obraz z tekstem</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>Ikona z tekstem &amp;obok</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Pasek menu</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>&amp;Tekst na pasku menu…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Tekst na pasku menu</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Pasek menu</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>Nie każdy panel ma miejsce na tekst. Tekst jest zawsze w podpowiedzi i w menu. Panel, który pokazuje tylko kwadraty, zamiast szerokiego obrazu pokazuje naładowanie jako liczbę.</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>&amp;Dopasuj do panelu</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Urządzenia</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Brak baterii</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1, %2, teraz %3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>Wybór parametru do wstawienia</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>Parametry tekstu paska menu</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>Panele ustawień</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>Nic nie zostałoby wysłane: nie skonfigurowano serwera usługi statystyk.</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>To zostałoby teraz wysłane, najwyżej raz dziennie:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Co jest wysyłane</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>Migawki</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Porównaj</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksportuj…</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importuj…</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>&amp;Zapisz teraz</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Wyeksportowano</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>Nie ma jeszcze migawek</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>Wczytywanie migawek</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Migawki</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>Brak baterii, której migawkę można by zapisać</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>Dwie zaznaczone migawki obok siebie</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>Cofnij usunięcie</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>Sortowanie</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Sortowanie: %1</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>Posortowano: %1, %2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>rosnąco</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>malejąco</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>Teraz widać</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>Teraz widać: %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>Będzie widać</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>Będzie widać: %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>brak tekstu</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>brak tekstu bez baterii</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>nic, bez panelu</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>sama ikona</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>liczba %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>Quindle Helper nie szuka aktualizacji samodzielnie.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>Program uruchamiany w tym momencie, z poziomem, wartością procentową i stanem jako argumentami</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>Auto: limit zgłaszany przez komputer</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>Uruchamiane polecenie</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>W tym środowisku nie ostrzega żadne zarządzanie energią.</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Ostrzegaj</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Ostrzeżenia</translation>
    </message>
</context>
</TS>
