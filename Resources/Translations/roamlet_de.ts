<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Ihnen fehlt die Berechtigung, den Ordner %1 zu öffnen.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>Ihnen fehlt die Berechtigung, die Datei %1 zu lesen.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>Der Ordner %1 gehört %2; Ihnen fehlt die Berechtigung, ihn zu öffnen.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>Die Datei %1 gehört %2; Ihnen fehlt die Berechtigung, sie zu lesen.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>Der Name der Programmdatei oder ihres Ordners enthält ein Steuerzeichen.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>Browser-Verlauf und Lesezeichen an einem Ort</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>Lesezeichen von %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>An dieser Stelle befindet sich etwas anderes als eine Datei.</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Noch keine Lesezeichen</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Noch keine Lesezeichen</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>Roamlet sucht die Daten von %1 und %2 in diesen Ordnern, in denen ihrer Beta-Versionen, Flatpaks und Snaps und dort, wo ein Mac sie ablegt:</translation>
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
        <translation>Browser-Profile</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>Mit der Leertaste wird ein Profil ein- oder ausgeschaltet, mit Alt und einer Pfeiltaste verschoben.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>Ziehen Sie Profile, um ihre Reihenfolge in der Seitenleiste zu ändern. Roamlet liest nur eingeschaltete Profile; neue sind automatisch eingeschaltet.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>Das System kann keine weiteren Dateien überwachen, daher sucht Roamlet einmal pro Minute nach Änderungen. Wie viele es sein dürfen, legen die Systemeinstellungen fs.inotify.max_user_watches und fs.inotify.max_user_instances fest.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>Es wurden keine Browser-Profile gefunden.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>Persönlich</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (Konto)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>Wählen Sie etwas in der Seitenleiste aus</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>Keine Browser gefunden</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>Die Lesezeichen sind verschlüsselt</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 bewahrt die Lesezeichen dieses Profils verschlüsselt auf, sodass nur %1 selbst sie anzeigen kann.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>Lesezeichen in %1 bearbeiten</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Daten werden gelesen</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>Früher in dieser Woche</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>Früher in diesem Monat</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Alle in Roamlet anzeigen</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Gruppieren nach</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Lesezeichen exportieren</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>Alle Websites anzeigen</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>Lesezeichen-Datei</translation>
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
        <translation>HTML, das Safari, Chrome, Edge und die meisten anderen Browser importieren können.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>Überschriften und Listen, für Notizen und Dokumente.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>Eine Zeile je Lesezeichen, für Numbers oder Excel.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Lesezeichen exportieren</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Aus:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>Keine Lesezeichen</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Export läuft</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>Alle Browser</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>Die Ordner sind für dieses Format zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>Der Speicher reicht für diesen Export nicht aus.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Lesezeichen exportieren</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>„%1“ ist bereits vorhanden. Möchten Sie die Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>Lesezeichen-Symbolleiste</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Lesezeichen-Menü</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Weitere Lesezeichen</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Mobile Lesezeichen</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet kann Safari noch nicht lesen</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>Schalten Sie Roamlet unter „Datenschutz &amp; Sicherheit“ › „Festplattenvollzugriff“ ein und laden Sie dann neu.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>Bei der Anmeldung öffnen</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Symbol im Dock anzeigen</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>Erlauben Sie Roamlet unter „Systemeinstellungen“ › „Allgemein“ › „Anmeldeobjekte“.</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>Seiten in der Suche des Desktops anzeigen</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>Gruppieren nach</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>Zuletzt besucht</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>Besuche</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Meistbesucht</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Noch kein Verlauf</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>Nur %1 anzeigen</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Lesezeichen in %1 bearbeiten</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Verlauf in %1 anzeigen</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>In den ursprünglichen Browsern öffnen</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>In %1 öffnen</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>%1 URL kopieren</numerusform>
            <numerusform>%1 URLs kopieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>URL kopieren</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>Alle Profile sind in den Einstellungen ausgeschaltet.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>Keine Treffer für „%1“ auf %2</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Keine Treffer für „%1“</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>Keine Treffer auf %1</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>Links</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>%1 gibt es auf diesem System nicht.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>Wird im Standard-Browser dieses Systems geöffnet: %1 gibt es hier nicht.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>Standardreihenfolge</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>Standardspalten</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>Der Speicher reicht für diese Liste nicht aus.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>Über Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Verlauf und Lesezeichen aus allen Browsern in einem Fenster. Roamlet schreibt niemals in die Dateien der Browser.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>Kürzlich besucht</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Roamlet öffnen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>Aktualisierung verfügbar&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Roamlet beenden</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>Aktualisiert um %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>Kein Verlauf</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Lesezeichen exportieren</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>„%1“ konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · die ersten %1</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · die neuesten %1</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · die ersten %1 jeder Quelle</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · die neuesten %1 jeder Quelle</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Meistbesucht</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>Verlauf von %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>Lesezeichen von %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Neuester Verlauf</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Alle Lesezeichen</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen&#xa0;…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Eintrag</numerusform>
            <numerusform>%1 Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>Website</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>Enthält die Haupt-Lesezeichen von Safari und ist daher immer eingeschaltet.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS hat den Zugriff auf %1 verweigert.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>zu tief verschachtelt</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>kein gültiges JSON: beginnt mit einer Byte-Reihenfolge-Marke</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>kein gültiges JSON: enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>kein gültiges JSON bei Byte %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>kein gültiges JSON: eine Zahl liegt außerhalb des Wertebereichs</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>keine Property-Liste: entfaltet sich zu mehr, als sie enthält</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>keine Property-Liste: ein Wert enthält sich selbst</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>keine Property-Liste: die Objekttabelle ist beschädigt</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>keine Property-Liste</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>in %1 kann keine Kopie angelegt werden: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>kein Wörterbuch</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>Fügen Sie die Adresse in den neuen Tab ein</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>Nur der Browser selbst öffnet %1.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Adresse kopieren</translation>
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
        <translation>die Datei ist keine Datenbank</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>die Datenbank ist beschädigt</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>die Datenbankdatei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>Ein-/Ausgabefehler des Datenträgers</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>die Datenbank oder der Datenträger ist voll</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Lesezeichenmenü</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>Persönlich</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>Titel oder URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>Browser-Profile</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Lesezeichen exportieren&#xa0;…</translation>
    </message>
</context>
<context>
    <name>roamlet::SidebarModel</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud: a section of the sidebar and one of its rows, such as &quot;Firefox: History&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Library</source>
        <extracomment>The section of the sidebar that has the lists of all browsers.</extracomment>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Neuester Verlauf</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Meistbesucht</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Alle Lesezeichen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>Alle Websites anzeigen</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>Nur %1</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>Sonstige</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>Die Pfeiltasten wählen eine Spalte, verschieben sie mit Strg und ändern ihre Breite mit der Umschalttaste. Die Leertaste öffnet das Menü.</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Eintrag</numerusform>
            <numerusform>%1 Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1, Ordner, %2</translation>
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
        <translation>Software-Aktualisierung</translation>
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
        <translation>Diese Fassung von Roamlet kann nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>Die Aktualisierung wurde abgelehnt, weil ihre Adresse nicht sicher ist.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>Der Aktualisierungsserver leitet Roamlet endlos von einer Adresse zur nächsten weiter.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>Der Aktualisierungsserver ist nicht erreichbar, oder die Verbindung wurde unterbrochen.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>Der Aktualisierungsserver antwortet nicht.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>Der Aktualisierungsserver hat mit einem Fehler geantwortet.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>Die Liste der Aktualisierungen wurde abgelehnt, weil sie viel zu lang ist.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Die Liste der Aktualisierungen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>Die Aktualisierung wurde abgelehnt, weil sie nicht signiert ist.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>Die Aktualisierung wurde abgelehnt, weil sie viel zu groß ist.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>Die Aktualisierung wurde abgelehnt und gelöscht, weil ihre Länge nicht die angekündigte ist.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>Die Aktualisierung wurde abgelehnt und gelöscht, weil ihre Signatur falsch ist.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>Die Aktualisierung wurde abgelehnt und gelöscht, weil sie nicht die angekündigte Version ist.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>Die Aktualisierung kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>Die Aktualisierung wurde nicht installiert, weil niemand die Erlaubnis dazu gegeben hat.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>Die Aktualisierung kann nicht installiert werden.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet wurde bereits aktualisiert. Beenden Sie es und öffnen Sie es erneut, um die neue Version zu verwenden.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>Die Aktualisierung wurde heruntergeladen, aber kein Programm auf diesem System installiert Pakete.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>Dokumenttyp-Deklaration</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>Kein Feed</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>Elemente zu tief verschachtelt</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Zu lang</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>Zeichen in unbekannter Kodierung</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>Es ist zu viel gepackt</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>Kein Debian-Paket</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>Zu viele Namensräume</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>Zu viele Attribute</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Es wird nach Aktualisierungen gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Roamlet ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>Version %1 ist die neueste, die es gibt.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Roamlet %1 ist verfügbar</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Sie haben Version %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>Der Download umfasst %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>Diese Aktualisierung ist wichtig: bitte installieren Sie sie bald.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Die Aktualisierung wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>Die Aktualisierung wird geprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Die Aktualisierung wird installiert&#xa0;…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>Möglicherweise fragt das System nach Ihrem Passwort.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 ist installiert</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>Beenden Sie Roamlet und öffnen Sie es erneut, um die neue Version zu verwenden.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 ist noch nicht installiert</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>Die neue Version wurde mit Ihrem Programm für Pakete geöffnet. Installieren Sie sie dort, beenden Sie dann Roamlet und öffnen Sie es erneut, um sie zu verwenden.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>Roamlet konnte nicht aktualisiert werden</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Lesezeichen exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Roamlet beenden</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>Breitere Seitenleiste</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>Schmalere Seitenleiste</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>Über Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
</TS>
