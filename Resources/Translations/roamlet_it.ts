<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
        <translation>Manca il permesso di aprire la cartella %1.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>Manca il permesso di leggere il file %1.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>La cartella %1 appartiene a %2; manca il permesso di aprirla.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>Il file %1 appartiene a %2; manca il permesso di leggerlo.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>Il nome del file o della cartella del programma contiene un carattere di controllo.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>Cronologia e segnalibri dei browser in un unico posto</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>Segnalibri</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>Segnalibri di %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>In questa posizione c’è qualcosa che non è un file.</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Aggiunto</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Segnalibri</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Ancora nessun segnalibro</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Aggiunto</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Segnalibri</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Ancora nessun segnalibro</translation>
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
        <translation>Roamlet cerca i dati di %1 e %2 in queste cartelle, in quelle delle versioni beta, Flatpak e snap, e dove li conserva un Mac:</translation>
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
        <translation>Profili dei browser</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>Spazio attiva o disattiva un profilo, Alt con un tasto freccia lo sposta.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>Trascinare i profili per cambiarne l’ordine nella barra laterale. Roamlet legge solo i profili attivi; quelli nuovi sono attivi automaticamente.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>Il sistema non può sorvegliare altri file, perciò Roamlet cerca le modifiche una volta al minuto. Le impostazioni di sistema fs.inotify.max_user_watches e fs.inotify.max_user_instances ne stabiliscono il numero.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>Nessun profilo di browser trovato.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lettura…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>Personale</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (account)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>Scegliere un elemento nella barra laterale</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>Nessun browser trovato</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>I segnalibri sono cifrati</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 conserva cifrati i segnalibri di questo profilo, quindi solo %1 può mostrarli.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>Modifica i segnalibri di %1</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>Ricerca in corso</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lettura in corso</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>Nei giorni scorsi di questa settimana</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>La settimana scorsa</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>Nei giorni scorsi di questo mese</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Mostra tutto in Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Raggruppa per</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Esporta segnalibri</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menù</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>Mostra tutti i siti</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Cancella ricerca</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>File di segnalibri</translation>
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
        <translation>HTML che Safari, Chrome, Edge e la maggior parte degli altri browser possono importare.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>Titoli ed elenchi, per appunti e documenti.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>Una riga per segnalibro, per Numbers o Excel.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Esporta segnalibri</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Da:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>Nessun segnalibro</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Esportazione in corso</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>Tutti i browser</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>Le cartelle hanno troppi livelli per questo formato.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>Memoria insufficiente per questa esportazione.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Esporta segnalibri</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«%1» esiste già. Sostituirlo?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>Barra dei segnalibri</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menu segnalibri</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Altri segnalibri</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Segnalibri dispositivi mobili</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet non può ancora leggere Safari</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>Attivare Roamlet in Privacy e sicurezza › Accesso completo al disco, quindi ricaricare.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Apri impostazioni</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>Apri all’accesso</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Mostra l’icona nel Dock</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Controlla automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controlla aggiornamenti…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>Approvare Roamlet in Impostazioni di Sistema › Generali › Elementi login.</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>Mostra le pagine nella ricerca del desktop</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>Raggruppa per</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>Ultima visita</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>Visite</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>Origine</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Più visitati</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ancora nessuna cronologia</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>Mostra solo %1</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Modifica i segnalibri di %1</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Mostra la cronologia di %1</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>Apri nei browser di origine</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>Apri in %1</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>Copia %1 URL</numerusform>
            <numerusform>Copia %1 URL</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>Copia URL</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>Tutti i profili sono disattivati nelle impostazioni.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>Nessun risultato per «%1» su %2</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Nessun risultato per «%1»</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>Nessun risultato su %1</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>Collegamenti</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>%1 non esiste su questo sistema.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>Si apre nel browser predefinito di questo ambiente: %1 non esiste su questo sistema.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Ordina per</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>Ordine predefinito</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>Colonne predefinite</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>Memoria insufficiente per questo elenco.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>%1 - %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>Informazioni su Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;La cronologia e i segnalibri di tutti i browser in un’unica finestra. Roamlet non scrive mai nei file dei browser.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>Visitati di recente</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Apri Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>Aggiornamento disponibile…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Esci da Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>Aggiornato alle %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>Nessuna cronologia</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lettura…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Esporta segnalibri</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>Impossibile salvare «%1».</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · i primi %1</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · gli ultimi %1</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · i primi %1 di ogni origine</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · gli ultimi %1 di ogni origine</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Più visitati</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>Cronologia di %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>Segnalibri di %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Cronologia recente</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Tutti i segnalibri</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lettura…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 elemento</numerusform>
            <numerusform>%1 elementi</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>Sito</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>Contiene i segnalibri principali di Safari, quindi è sempre attivo.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS ha bloccato l’accesso a %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>ha troppi livelli annidati</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>JSON non valido: inizia con un indicatore dell’ordine dei byte</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>JSON non valido: contiene un carattere NUL</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>JSON non valido al byte %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>JSON non valido: un numero è fuori dai limiti</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>non è un elenco di proprietà: si espande in più di quanto contiene</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>non è un elenco di proprietà: un valore contiene sé stesso</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>non è un elenco di proprietà: la tabella degli oggetti è danneggiata</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>non è un elenco di proprietà</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>impossibile creare una copia in %1: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>non è un dizionario</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>Incollare l’indirizzo nella nuova scheda</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>Solo il browser stesso apre %1.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Copia indirizzo</translation>
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
        <translation>il file non è una base di dati</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>la base di dati è danneggiata</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>impossibile aprire il file della base di dati</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>errore di lettura o scrittura del disco</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>la base di dati o il disco sono pieni</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Menu Segnalibri</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>Personale</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>Titolo o URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Cancella ricerca</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>Profili dei browser</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Segnalibri</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Esporta segnalibri…</translation>
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
        <translation>Libreria</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Cronologia recente</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Più visitati</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Tutti i segnalibri</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Segnalibri</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>Mostra tutti i siti</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>Solo %1</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>I tasti freccia scelgono una colonna, la spostano con Ctrl e la ridimensionano con Maiusc. Spazio apre il menù.</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 elemento</numerusform>
            <numerusform>%1 elementi</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1, cartella, %2</translation>
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
        <translation>Aggiornamento software</translation>
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
        <translation>Questa versione compilata di Roamlet non può essere aggiornata.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>L’aggiornamento è stato rifiutato perché il suo indirizzo non è sicuro.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>Il server degli aggiornamenti rimanda Roamlet da un indirizzo all’altro senza fine.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>Il server degli aggiornamenti non è raggiungibile o la connessione è stata persa.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>Il server degli aggiornamenti non risponde.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>Il server degli aggiornamenti ha risposto con un errore.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>L’elenco degli aggiornamenti è stato rifiutato perché è troppo lungo.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>L’elenco degli aggiornamenti non può essere letto.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>L’aggiornamento è stato rifiutato perché non è firmato.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>L’aggiornamento è stato rifiutato perché è troppo grande.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>L’aggiornamento è stato rifiutato ed eliminato perché la sua lunghezza non è quella annunciata.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>L’aggiornamento è stato rifiutato ed eliminato perché la sua firma è errata.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>L’aggiornamento è stato rifiutato ed eliminato perché non è la versione annunciata.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>L’aggiornamento non può essere salvato.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>L’aggiornamento non è stato installato perché nessuno ha dato il permesso.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>L’aggiornamento non può essere installato.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet è già stato aggiornato. Chiuderlo e riaprirlo per usare la nuova versione.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>L’aggiornamento è stato scaricato, ma qui nessun programma installa pacchetti.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>Dichiarazione del tipo di documento</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>Non è un feed</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>Elementi con troppi livelli annidati</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Troppo lungo</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>Caratteri di una codifica sconosciuta</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>Il contenuto del pacchetto è troppo grande</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>Non è un pacchetto Debian</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>Troppi spazi dei nomi</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>Troppi attributi</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Controllo degli aggiornamenti…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Roamlet è aggiornato</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>La versione %1 è la più recente.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Roamlet %1 è disponibile</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>La versione in uso è la %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>Lo scaricamento occupa %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>Questo aggiornamento è importante: installarlo al più presto.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Note di rilascio</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Ricorda più tardi</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Scaricamento dell’aggiornamento…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>Verifica dell’aggiornamento…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Installazione dell’aggiornamento…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>Il sistema potrebbe chiedere la password.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 è installato</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>Chiudere Roamlet e riaprirlo per usare la nuova versione.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 non è ancora installato</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>L’aggiornamento è stato aperto con il programma per i pacchetti. Installarlo da lì, quindi chiudere Roamlet e riaprirlo per usare la nuova versione.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>Impossibile aggiornare Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Esporta segnalibri…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Chiudi finestra</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Esci da Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>Allarga la barra laterale</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>Restringi la barra laterale</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barra dei menù</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controlla aggiornamenti…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>Informazioni su Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;iuto</translation>
    </message>
</context>
</TS>
