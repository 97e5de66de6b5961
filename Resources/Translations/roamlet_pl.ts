<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
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
        <translation>Brak uprawnień do otwarcia katalogu %1.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>Brak uprawnień do odczytania pliku %1.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>Katalog %1 należy do użytkownika %2; brak uprawnień do jego otwarcia.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>Plik %1 należy do użytkownika %2; brak uprawnień do jego odczytania.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>Nazwa pliku lub katalogu programu zawiera znak sterujący.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>Historia i zakładki przeglądarek w jednym miejscu</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>Zakładki</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>Zakładki – %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>W tym miejscu znajduje się coś innego niż plik.</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Dodano</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>Źródło</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Zakładki</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Nie ma jeszcze zakładek</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Dodano</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Zakładki</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Nie ma jeszcze zakładek</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>Przeglądarki</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>Roamlet szuka danych przeglądarek %1 i %2 w tych katalogach, w katalogach ich wersji beta, pakietów Flatpak i snap oraz tam, gdzie przechowuje je Mac:</translation>
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
        <translation>Profile przeglądarek</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>Spacja włącza lub wyłącza profil, Alt z klawiszem strzałki go przesuwa.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>Przeciągnięcie profilu zmienia jego miejsce na panelu bocznym. Roamlet odczytuje tylko włączone profile, a nowe są włączane automatycznie.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>System nie może obserwować większej liczby plików, dlatego Roamlet szuka zmian co minutę. Ile ich może być, określają ustawienia systemowe fs.inotify.max_user_watches i fs.inotify.max_user_instances.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>Nie odnaleziono profili przeglądarek.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Odczytywanie…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>Osobisty</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (konto)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>Wybierz coś na panelu bocznym</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>Nie odnaleziono przeglądarek</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>Zakładki są zaszyfrowane</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 przechowuje zakładki tego profilu w postaci zaszyfrowanej, więc może je wyświetlić tylko %1.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>Modyfikuj zakładki w %1</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Odczytywanie</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>Wcześniej w tym tygodniu</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>W zeszłym tygodniu</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>Wcześniej w tym miesiącu</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Wyświetl wszystko w Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Grupuj według</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Eksport zakładek</translation>
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
        <translation>Wyświetl wszystkie strony</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Odśwież</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>Plik zakładek</translation>
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
        <translation>HTML, który można zaimportować w Safari, Chrome, Edge i większości innych przeglądarek.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>Nagłówki i listy, do notatek i dokumentów.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>Jeden wiersz na zakładkę, do Numbers lub Excela.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Eksport zakładek</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Z:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>Brak zakładek</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Eksportowanie</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>Wszystkie przeglądarki</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>Foldery są zbyt głęboko zagnieżdżone dla tego formatu.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>Za mało pamięci na ten eksport.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Eksport zakładek</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>„%1” już istnieje. Zastąpić?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>Pasek zakładek</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menu Zakładki</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Pozostałe zakładki</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Zakładki z telefonu</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet nie może jeszcze odczytać Safari</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>Włącz Roamlet w Prywatność i ochrona › Pełny dostęp do dysku, a następnie odśwież.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Otwórz ustawienia</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Odśwież</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>Otwieranie po zalogowaniu</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Wyświetlanie ikony w Docku</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatyczne sprawdzanie dostępności aktualizacji</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź dostępność aktualizacji…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>Zezwól programowi Roamlet w Ustawienia systemowe › Ogólne › Rzeczy otwierane podczas logowania.</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>Wyświetlanie stron w wyszukiwaniu środowiska</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>Grupuj według</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>Ostatnia wizyta</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>Wizyty</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>Źródło</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Najczęściej odwiedzane</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Nie ma jeszcze historii</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>Wyświetl tylko %1</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Modyfikuj zakładki w %1</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Wyświetl historię w %1</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>Otwórz w pierwotnych przeglądarkach</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>Otwórz w %1</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>Skopiuj %1 adres URL</numerusform>
            <numerusform>Skopiuj %1 adresy URL</numerusform>
            <numerusform>Skopiuj %1 adresów URL</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>Skopiuj adres URL</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>Wszystkie profile są wyłączone w ustawieniach.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>Brak wyników dla „%1” na %2</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Brak wyników dla „%1”</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>Brak wyników na %1</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>Odnośniki</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>%1 nie istnieje w tym systemie.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>Zostanie otwarte w domyślnej przeglądarce tego środowiska: %1 nie istnieje w tym systemie.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Kolumny</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Porządkuj według</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>Domyślna kolejność</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>Domyślne kolumny</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>Za mało pamięci na tę listę.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>od %1 do %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>O programie Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Historia i zakładki ze wszystkich przeglądarek w jednym oknie. Roamlet nigdy niczego nie zapisuje w plikach przeglądarek.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>Ostatnio odwiedzone</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Otwórz Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>Dostępna jest aktualizacja…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Zakończ Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>Zaktualizowano o %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>Brak historii</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Odczytywanie…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Eksport zakładek</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>Nie można zapisać „%1”.</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · pierwsze %1</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · najnowsze %1</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · pierwsze %1 z każdego źródła</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · najnowsze %1 z każdego źródła</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Najczęściej odwiedzane</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>Historia – %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>Zakładki – %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Ostatnia historia</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Wszystkie zakładki</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Odczytywanie…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 pozycja</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 pozycja</numerusform>
            <numerusform>%1 pozycje</numerusform>
            <numerusform>%1 pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>Strona</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>Zawiera główne zakładki Safari, więc jest zawsze włączony.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS zablokował dostęp do %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>Nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>zbyt głębokie zagnieżdżenie</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>zbyt duży rozmiar</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>nieprawidłowy JSON: zaczyna się od znacznika kolejności bajtów</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>nieprawidłowy JSON: zawiera znak NUL</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>nieprawidłowy JSON w bajcie %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>nieprawidłowy JSON: liczba spoza zakresu</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>to nie jest lista właściwości: rozwija się w więcej, niż zawiera</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>to nie jest lista właściwości: wartość zawiera samą siebie</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>to nie jest lista właściwości: tablica obiektów jest uszkodzona</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>to nie jest lista właściwości</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>nie można utworzyć kopii w %1: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>to nie jest słownik</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>Odśwież</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>Wklej adres w nowej karcie</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>Tylko sama przeglądarka otwiera %1.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Skopiuj adres</translation>
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
        <translation>plik nie jest bazą danych</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>baza danych jest uszkodzona</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>nie można otworzyć pliku bazy danych</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>błąd wejścia/wyjścia dysku</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>baza danych lub dysk są pełne</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Ulubione</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Menu Zakładki</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>Osobisty</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>Tytuł lub adres URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>Profile przeglądarek</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Zakładki</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Eksportuj zakładki…</translation>
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
        <translation>Biblioteka</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Ostatnia historia</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Najczęściej odwiedzane</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Wszystkie zakładki</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Zakładki</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>Wyświetl wszystkie strony</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>Tylko %1</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>Inne</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>Kolumny</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>Klawisze strzałek wybierają kolumnę, z Ctrl ją przesuwają, a z Shift zmieniają jej szerokość. Spacja otwiera menu.</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 pozycja</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 pozycja</numerusform>
            <numerusform>%1 pozycje</numerusform>
            <numerusform>%1 pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1, folder, %2</translation>
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
        <translation>Aktualizacja oprogramowania</translation>
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
        <translation>Tej kompilacji programu Roamlet nie można zaktualizować.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>Aktualizacja została odrzucona, ponieważ jej adres nie jest bezpieczny.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>Serwer aktualizacji bez końca odsyła program Roamlet od jednego adresu do drugiego.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>Serwer aktualizacji jest nieosiągalny lub utracono połączenie.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>Serwer aktualizacji nie odpowiada.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>Serwer aktualizacji odpowiedział błędem.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>Lista aktualizacji została odrzucona, ponieważ jest o wiele za długa.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Nie można odczytać listy aktualizacji.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>Aktualizacja została odrzucona, ponieważ nie jest podpisana.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>Aktualizacja została odrzucona, ponieważ jest o wiele za duża.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>Aktualizacja została odrzucona i usunięta, ponieważ jej długość jest inna niż zapowiedziana.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>Aktualizacja została odrzucona i usunięta, ponieważ jej podpis jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>Aktualizacja została odrzucona i usunięta, ponieważ nie jest to zapowiedziana wersja.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>Nie można zapisać aktualizacji.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>Aktualizacja nie została zainstalowana, ponieważ nikt nie wyraził na to zgody.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>Nie można zainstalować aktualizacji.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet został już zaktualizowany. Zakończ go i otwórz ponownie, aby używać nowej wersji.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>Aktualizacja została pobrana, ale żaden program w tym systemie nie instaluje pakietów.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>Deklaracja typu dokumentu</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>To nie jest kanał</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>Zbyt głęboko zagnieżdżone elementy</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Zbyt długie</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>Znaki w nieznanym kodowaniu</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>Zawartość pakietu jest zbyt duża</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>To nie jest pakiet Debiana</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>Zbyt wiele przestrzeni nazw</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>Zbyt wiele atrybutów</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie dostępności aktualizacji…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Roamlet jest aktualny</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>Wersja %1 jest najnowsza.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Dostępny jest Roamlet %1</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Obecna wersja to %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>Rozmiar pobierania: %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>To ważna aktualizacja: prosimy ją wkrótce zainstalować.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Informacje o wydaniu</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Pobieranie aktualizacji…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Instalowanie aktualizacji…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>System może poprosić o hasło.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 jest zainstalowany</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>Zakończ Roamlet i otwórz go ponownie, aby używać nowej wersji.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 nie jest jeszcze zainstalowany</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>Aktualizację otwarto w programie do obsługi pakietów. Zainstaluj ją tam, a następnie zakończ Roamlet i otwórz go ponownie, aby używać nowej wersji.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>Nie można zaktualizować programu Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Eksportuj zakładki…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Zamknij okno</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Zakończ Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>Szerszy panel boczny</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>Węższy panel boczny</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Pasek menu</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź dostępność aktualizacji…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>O programie Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
</context>
</TS>
