<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>Translate this as &quot;LTR&quot;, or as &quot;RTL&quot; for a language that is read from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>RefusedFile</name>
    <message>
        <source>Your permission to open the folder %1 is missing.</source>
        <translation>Vous n’avez pas le droit d’ouvrir le dossier %1.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>Vous n’avez pas le droit de lire le fichier %1.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>Le dossier %1 appartient à %2&#xa0;; vous n’avez pas le droit de l’ouvrir.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>Le fichier %1 appartient à %2&#xa0;; vous n’avez pas le droit de le lire.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>Le nom du fichier ou du dossier du programme contient un caractère de contrôle.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>Historique et signets des navigateurs en un seul endroit</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>Signets</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>Signets de %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>Il y a autre chose qu’un fichier à cet emplacement.</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>Source</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Signets</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Aucun signet pour l’instant</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Signets</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Aucun signet pour l’instant</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>Navigateurs</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>Roamlet cherche les données de %1 et %2 dans ces dossiers, dans ceux de leurs versions bêta, Flatpak et snap, et là où un Mac les conserve&#xa0;:</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the names of browsers</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserProfileSettings</name>
    <message>
        <source>Browser Profiles</source>
        <translation>Profils de navigateur</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>Espace active ou désactive un profil, Alt et une touche fléchée le déplacent.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>Faites glisser les profils pour changer leur ordre dans le panneau latéral. Roamlet ne lit que les profils activés&#xa0;; les nouveaux sont activés automatiquement.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>Le système ne peut pas surveiller d’autres fichiers&#xa0;; Roamlet cherche donc les changements une fois par minute. Les réglages système fs.inotify.max_user_watches et fs.inotify.max_user_instances en fixent le nombre.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>Aucun profil de navigateur n’a été trouvé.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>Personnel</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (compte)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>Choisissez un élément dans le panneau latéral</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>Aucun navigateur trouvé</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>Les signets sont chiffrés</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 conserve les signets de ce profil sous forme chiffrée&#xa0;; seul %1 peut donc les afficher.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>Modifier les signets de %1</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>Recherche en cours</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture en cours</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>Plus tôt cette semaine</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>Plus tôt ce mois-ci</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Tout afficher dans Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Grouper par</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exporter les signets</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>Afficher tous les sites</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Actualiser</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>Fichier de signets</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>HTML that Safari, Chrome, Edge and most other browsers can import.</source>
        <translation>Du HTML que Safari, Chrome, Edge et la plupart des autres navigateurs peuvent importer.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>Des titres et des listes, pour des notes et des documents.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>Une ligne par signet, pour Numbers ou Excel.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exporter les signets</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Depuis&#xa0;:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format&#xa0;:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Depuis</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>Aucun signet</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>Tous les navigateurs</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>L’imbrication des dossiers est trop profonde pour ce format.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>La mémoire ne suffit pas pour cette exportation.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exporter les signets</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>Barre personnelle</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menu des marque-pages</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Autres marque-pages</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Marque-pages des appareils mobiles</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet ne peut pas encore lire Safari</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>Activez Roamlet dans Confidentialité et sécurité › Accès complet au disque, puis actualisez.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les paramètres</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Actualiser</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>Ouvrir à la connexion</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Afficher l’icône dans le Dock</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>Autorisez Roamlet dans Réglages Système › Général › Ouverture.</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>Afficher les pages dans la recherche du bureau</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>Grouper par</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>Dernière visite</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>Visites</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>Source</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Les plus visités</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Aucun historique pour l’instant</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>N’afficher que %1</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Modifier les signets de %1</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Afficher l’historique de %1</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>Ouvrir dans les navigateurs d’origine</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>Ouvrir dans %1</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>Copier %1 URL</numerusform>
            <numerusform>Copier %1 URL</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>Copier l’URL</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>Tous les profils sont désactivés dans les paramètres.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>Aucun résultat pour «&#xa0;%1&#xa0;» sur %2</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Aucun résultat pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>Aucun résultat sur %1</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>Liens</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>%1 n’existe pas sur ce système.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>S’ouvre dans le navigateur par défaut de ce bureau&#xa0;: %1 n’existe pas sur ce système.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>Ordre par défaut</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>Colonnes par défaut</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>La mémoire ne suffit pas pour cette liste.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>de %1 à %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>À propos de Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;L’historique et les signets de tous vos navigateurs, dans une seule fenêtre. Roamlet n’écrit jamais dans les fichiers des navigateurs.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>Visités récemment</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Ouvrir Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>Mise à jour disponible…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Quitter Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>Actualisé à %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>Aucun historique</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exporter les signets</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être enregistré.</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · les %1 premiers</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · les %1 derniers</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · les %1 premiers de chaque source</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · les %1 derniers de chaque source</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Les plus visités</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>Historique de %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>Signets de %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Historique récent</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Tous les signets</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 élément</numerusform>
            <numerusform>%1 éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>Site</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>Contient les signets principaux de Safari&#xa0;: toujours activé.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS a bloqué l’accès à %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>l’imbrication est trop profonde</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>la taille est trop grande</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>JSON non valide&#xa0;: commence par un indicateur d’ordre des octets</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>JSON non valide&#xa0;: contient un caractère NUL</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>JSON non valide à l’octet %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>JSON non valide&#xa0;: un nombre est hors limites</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>pas une liste de propriétés&#xa0;: se déploie en plus qu’elle ne contient</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>pas une liste de propriétés&#xa0;: une valeur se contient elle-même</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>pas une liste de propriétés&#xa0;: la table des objets est endommagée</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>pas une liste de propriétés</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>impossible de faire une copie dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>pas un dictionnaire</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>Actualiser</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>Collez l’adresse dans le nouvel onglet</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>Seul le navigateur lui-même ouvre %1.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Copier l’adresse</translation>
    </message>
</context>
<context>
    <name>roamlet::RowTips</name>
    <message>
        <source>%1, %2</source>
        <extracomment>An hour or a day, and how many pages were visited then: &quot;13:00 to 14:00, 12&quot;.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>roamlet::SQLite</name>
    <message>
        <source>file is not a database</source>
        <extracomment>Words of the SQLite library.</extracomment>
        <translation>le fichier n’est pas une base de données</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>la base de données est endommagée</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>impossible d’ouvrir le fichier de la base de données</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>erreur d’entrée-sortie du disque</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>la base de données ou le disque est plein</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Menu Signets</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>Personnel</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>Titre ou URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>Profils de navigateur</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Signets</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Exporter les signets…</translation>
    </message>
</context>
<context>
    <name>roamlet::SidebarModel</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud: a section of the sidebar and one of its rows, such as &quot;Firefox: History&quot;.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Library</source>
        <extracomment>The section of the sidebar that has the lists of all browsers.</extracomment>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Historique récent</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Les plus visités</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Tous les signets</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Signets</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>Afficher tous les sites</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>Seulement %1</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>Autres</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>Les touches fléchées choisissent une colonne, la déplacent avec Ctrl et la redimensionnent avec Maj. Espace ouvre le menu.</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 élément</numerusform>
            <numerusform>%1 éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1, dossier, %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Read aloud: the heading of a section, and how many items it has.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateError</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>What happened, and the words of the system or the server.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This build of Roamlet cannot be updated.</source>
        <translation>Cette version compilée de Roamlet ne peut pas être mise à jour.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>La mise à jour a été refusée car son adresse n’est pas sécurisée.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>Le serveur de mise à jour renvoie Roamlet sans fin d’une adresse à l’autre.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>Le serveur de mise à jour est injoignable, ou la connexion a été perdue.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>Le serveur de mise à jour ne répond pas.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>Le serveur de mise à jour a répondu par une erreur.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>La liste des mises à jour a été refusée car elle est beaucoup trop longue.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>La liste des mises à jour ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>La mise à jour a été refusée car elle n’est pas signée.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>La mise à jour a été refusée car elle est beaucoup trop volumineuse.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>La mise à jour a été refusée et supprimée car sa longueur n’est pas celle annoncée.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>La mise à jour a été refusée et supprimée car sa signature est incorrecte.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>La mise à jour a été refusée et supprimée car ce n’est pas la version annoncée.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>La mise à jour ne peut pas être enregistrée.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>La mise à jour n’a pas été installée car personne n’en a donné l’autorisation.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>La mise à jour ne peut pas être installée.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet a déjà été mis à jour. Quittez-le et ouvrez-le à nouveau pour utiliser la nouvelle version.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>La mise à jour a été téléchargée, mais aucun programme n’installe de paquets ici.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>Déclaration de type de document</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>Pas un flux</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>Imbrication trop profonde des éléments</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Trop long</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>Caractères d’un codage inconnu</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>Le contenu empaqueté est trop volumineux</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>Pas un paquet Debian</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>Trop d’espaces de noms</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>Trop d’attributs</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Roamlet est à jour</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>La version %1 est la plus récente.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Roamlet %1 est disponible</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Vous avez la version %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>Le téléchargement représente %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>Cette mise à jour est importante&#xa0;: installez-la rapidement.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Téléchargement de la mise à jour…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>Vérification de la mise à jour…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Installation de la mise à jour…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>Votre système peut demander votre mot de passe.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 est installé</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>Quittez Roamlet et ouvrez-le à nouveau pour utiliser la nouvelle version.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 n’est pas encore installé</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>La mise à jour a été ouverte avec votre gestionnaire de paquets. Installez-la, puis quittez Roamlet et ouvrez-le à nouveau pour utiliser la nouvelle version.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>Roamlet n’a pas pu être mis à jour</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Exporter les signets…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Quitter Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>Élargir le panneau latéral</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>Rétrécir le panneau latéral</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barre de menus</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>À propos de Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
</context>
</TS>
