<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Non</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Source d’alimentation</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>Source d’alimentation %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>Registre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
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
            <numerusform>%1&#xa0;cycle</numerusform>
            <numerusform>%1&#xa0;cycles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1&#xa0;jour</numerusform>
            <numerusform>%1&#xa0;jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1&#xa0;mois</numerusform>
            <numerusform>%1&#xa0;mois</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation>%1&#xa0;ans</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1&#xa0;cycle</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>Adaptateur secteur</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batterie %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>Âge de la batterie</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>Composant (batterie)</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>Batterie chargée</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>Fabricant (batterie)</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>Consommation</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>Assemblé le %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Calcul en cours…</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite de charge</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Chargée</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>En charge à</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>En charge</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>En charge à</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>En charge…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>Âge de l’ordinateur</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cycles de charge</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Composant</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>En décharge</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>En décharge à</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>En décharge…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Défaillances</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pleine</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Charge complète</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bonne</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>Fabriquée le %1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>Aucune erreur</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Aucune batterie</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>Sans valeur nominale</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>Inconnue</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Mauvaise</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation>La capacité réelle de la batterie à sa sortie d’usine (selon le fabricant).</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>La capacité que la batterie indique avoir eue à sa sortie d’usine (enregistrée dans le micrologiciel).</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>Le nombre de cycles de charge et de décharge que la batterie a connus.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>Batterie vide dans</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>Charge complète dans</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>HistoryRange</name>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tout</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Jour</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mois</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semaine</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Année</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>24 dernières heures</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>365 derniers jours</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>tout l’historique</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;jour</numerusform>
            <numerusform>%1&#xa0;jours</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1&#xa0;an</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10&#xa0;ans</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2&#xa0;ans</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30&#xa0;jours</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5&#xa0;ans</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90&#xa0;jours</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>Sans limite</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>Texte de la barre des menus…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>Ouvrir l’application</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>Afficher la batterie…</translation>
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
        <translation>fr_FR</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>Historique de la batterie</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>Charge, santé et autonomie de la batterie dans le tableau de bord</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>Charge et santé de la batterie, et leur évolution</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>Charge, puissance, temps restant, santé, cycles, âge et température</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATE</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>DOSSIER</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>FORMAT</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>Rien n’est envoyé nulle part sans autorisation</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>Quindle affiche dans une seule fenêtre tout ce qu’indiquent les batteries d’un ordinateur portable. Son compagnon, Quindle Helper, se place dans la zone de notification du tableau de bord, avec un titre composé selon un modèle personnel et une icône&#xa0;; un clic y ouvre la vue de la batterie.</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>Plusieurs batteries réunies en une seule</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>Zones de notification sous X11 et sous Wayland</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>charge, santé et autonomie de la batterie dans le tableau de bord</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>charge et santé de la batterie, et leur évolution</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>batterie;énergie;alimentation;charge;santé;portable;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>batterie;énergie;alimentation;charge;santé;usure;portable;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>affiche la batterie telle que Quindle Helper la voit</translation>
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
        <translation>Détails</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Relevés</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>Cycles de charge</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>Charge en pour cent</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>En charge ou en décharge</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>Courant en milliampères</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>Puissance en watts</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Newer versions come from where this copy was installed from.</source>
        <translation>Les nouvelles versions viennent de là où cette copie a été installée.</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>Rien ne serait envoyé maintenant&#xa0;: il manque une valeur qui désigne la batterie.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>Cette copie a été compilée sur cet ordinateur. Un code source plus récent, compilé à son tour, la met à jour.</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>Il s’agit du paquet «&#xa0;%1&#xa0;». Ses nouvelles versions s’installent avec %2, comme celles des autres paquets de ce système.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>Inconnue</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>Mise à jour</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>Rien n’a été enregistré pendant cette période.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>en charge</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>en décharge</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>d’après UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>pleine</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>Archives de relevés (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>Exporter les relevés</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>Importer des relevés</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tableau (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Avec les &amp;numéros de série</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;jour</numerusform>
            <numerusform>%1&#xa0;jours</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1&#xa0;points</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1&#xa0;relevé</numerusform>
            <numerusform>%1&#xa0;relevés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>%1&#xa0;relevé supprimé</numerusform>
            <numerusform>%1&#xa0;relevés supprimés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>%1&#xa0;relevé importé</numerusform>
            <numerusform>%1&#xa0;relevés importés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>%1&#xa0;relevé rétabli</numerusform>
            <numerusform>%1&#xa0;relevés rétablis</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;jour</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1&#xa0;relevé</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>1&#xa0;relevé supprimé</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>1&#xa0;relevé importé</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>1&#xa0;relevé rétabli</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>1&#xa0;relevé enregistré</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>Tous les relevés ont été supprimés</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cycles de charge</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacité nominale</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>Charge complète</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>Il n’y a pas de dossier pour les relevés&#xa0;: l’utilisateur n’a pas de dossier personnel</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1&#xa0;cycle</numerusform>
            <numerusform>%1&#xa0;cycles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1&#xa0;jour</numerusform>
            <numerusform>%1&#xa0;jours</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>%1&#xa0;points par an</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>%1 jusqu’ici</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1, sur %2</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1, sur %2 et %3</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1&#xa0;cycle</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1&#xa0;jour</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80&#xa0;%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>80&#xa0;% de la première charge complète</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>Déjà moins de %1</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>À ce rythme, %1 %2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>Aucune usure visible en %1</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>Historique encore trop court (60&#xa0;jours nécessaires)</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>à peu près maintenant</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>vers %1</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>vers %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>entre %1 et %2</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>début %1</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>fin %1</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>mi-%1</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>dans plus de 20&#xa0;ans</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>moins de %1&#xa0;point par an</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>pas avant %1</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>Sur ce bureau, le gestionnaire d’énergie de %1 avertit.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie faible</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite de charge</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>Commande pour batterie faible</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>Commande pour batterie pleine</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>Commande pour batterie presque vide</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>Commande pour la limite de charge</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>Commande pour batterie très faible</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pleine</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>Presque vide</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>Pourcentage pour batterie faible</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>Pourcentage pour batterie pleine</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>Pourcentage pour batterie presque vide</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>Pourcentage pour la limite de charge</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>Pourcentage pour batterie très faible</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>Sauf si le bureau avertit</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>Très faible</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>Il reste %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>Il reste environ %1&#xa0;minute</numerusform>
            <numerusform>Il reste environ %1&#xa0;minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Il reste environ une minute</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>Batterie pleine</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batterie faible</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>Batterie presque vide</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>Batterie très faible</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>Limite de charge atteinte</translation>
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
        <translation>Capacité nominale %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>Première charge complète %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>Aucun relevé pour l’instant&#xa0;: il en est enregistré un chaque jour.</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Aucune batterie</translation>
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
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
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
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Tout copier</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>Comparer les relevés</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>&amp;Copier comme texte</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>&amp;Enregistrer comme fichier machine…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>Un fichier sur lequel le programme peut s’exécuter à la place de cet ordinateur, pour signaler des défauts</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>Fichiers machine (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>Enregistrer comme fichier machine</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>Rechercher dans les détails</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>Avec les &amp;numéros de série</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>Cliquer pour changer d’unité</translation>
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
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barre des menus</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>&amp;Texte de la barre des menus</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>Texte de la barre des menus</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>Rien ne peut être envoyé&#xa0;: aucun service de statistiques n’est configuré.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>Réinitialiser le texte de la barre des menus</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>Voir &amp;exactement ce qui est envoyé…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>Voir exactement ce qui est envoyé</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>Envoyer la &amp;santé de la batterie une fois par jour</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>Envoyer la santé de la batterie une fois par jour</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Afficher l’&amp;icône de la batterie</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Afficher l’icône de la batterie</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>Démarrer à l’&amp;ouverture de session</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>Démarrer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>Le numéro de série est masqué.</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>Cette option ne peut être désactivée que dans l’application principale. Celle-ci s’ouvre avec «&#xa0;Ouvrir l’application&#xa0;» dans le menu</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
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
        <translation>&amp;Marquer les données de la batterie pour l’envoi automatique</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>Rester en &amp;arrière-plan après l’ouverture de session</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>Titre &amp;standard</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>F&amp;ermer</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>Texte &amp;personnalisé</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>Texte personnalisé de la barre des menus</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>Marquer les données de la batterie pour l’envoi automatique</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Texte de la barre des menus</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barre des menus</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>Rester en arrière-plan après l’ouverture de session</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>Afficher l’&amp;icône de la batterie</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>Afficher l’icône de la batterie</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>Cette marque seule n’envoie rien. L’envoi quotidien se règle dans les préférences, sous «&#xa0;Général&#xa0;».</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>&amp;Charge</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>&amp;Puissance</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>Enregistrer l’&amp;image…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>Charge, %1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>Dessins (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>Charge complète, mAh</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>Charge complète, tout l’historique</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Aucun historique pour l’instant</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>Un relevé par jour montre comment la batterie s’use</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Images (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>Puissance, %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeur</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>L’enregistrement est désactivé, rien n’est ajouté.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>Paramètres d’enregistrement</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tableaux (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>Avec une probabilité de 95&#xa0;%, entre %1 et %2&#xa0;points par an</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>veille laissée vide</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>charge ombrée</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>valeurs anciennes moyennées</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>en pâle, d’après UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>Su&amp;pprimer l’historique…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>Co&amp;nserver</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>Supprimer l’historique</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>Supprimer tous les relevés et toutes les valeurs enregistrées de charge et de puissance&#xa0;?</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>Tout reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>Conserver la charge et la puissance</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>Enregistrer la charge, la p&amp;uissance et un relevé par jour</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>Enregistrer la charge, la puissance et un relevé par jour</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>&amp;Icône seule</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>&amp;Une seule image large avec le texte</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>Icône, avec le texte à &amp;côté</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barre des menus</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>&amp;Texte de la barre des menus…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>Texte de la barre des menus</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barre des menus</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>Tous les tableaux de bord n’ont pas la place pour du texte. Il figure toujours dans l’infobulle et dans le menu. Un tableau de bord qui n’affiche que des carrés montre la charge sous forme de nombre au lieu d’une image large.</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>&amp;Selon le tableau de bord</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>Aucune batterie</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1, %2, actuellement %3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>Choisir une variable pour l’insérer</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>Variables du texte de la barre des menus</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>Volets</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>Rien ne serait envoyé&#xa0;: aucun serveur de statistiques n’est configuré.</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>Voici ce qui serait envoyé maintenant, au plus une fois par jour&#xa0;:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Ce qui est envoyé</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>Relevés</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>Enregistrer &amp;maintenant</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exporté</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>Aucun relevé pour l’instant</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>Lecture des relevés</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Relevés</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>Il n’y a pas de batterie dont enregistrer un relevé</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>Deux relevés sélectionnés, côte à côte</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>Annuler la suppression</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>Trier</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Trier par %1</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>Trié par %1, %2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>croissant</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>décroissant</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>Affiche maintenant</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>Affiche maintenant %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>Afficherait</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>Afficherait %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>aucun texte</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>aucun texte sans batterie</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>rien, sans tableau de bord</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>l’icône seule</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>le nombre %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>Quindle Helper ne recherche pas lui-même de mises à jour.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
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
        <translation>Un programme à exécuter alors, avec le niveau, le pourcentage et l’état comme arguments</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>Auto&#xa0;: la limite indiquée par l’ordinateur</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>Commande à exécuter alors</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>Aucun gestionnaire d’énergie n’avertit sur ce bureau.</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Avertir</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
</context>
</TS>
