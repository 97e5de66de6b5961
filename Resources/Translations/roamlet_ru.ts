<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
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
        <translation>Нет прав на открытие папки %1.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>Нет прав на чтение файла %1.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>Папка %1 принадлежит пользователю %2; нет прав на её открытие.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>Файл %1 принадлежит пользователю %2; нет прав на его чтение.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>Имя файла или папки программы содержит управляющий символ.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>История и закладки браузеров в одном месте</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>Закладки</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>Закладки %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>В этом месте находится не файл.</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Добавлено</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Закладки</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Закладок пока нет</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Добавлено</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Закладки</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Закладок пока нет</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>Браузеры</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>Roamlet ищет данные %1 и %2 в этих папках, в папках их бета-версий, пакетов Flatpak и snap, а также там, где их хранит Mac:</translation>
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
        <translation>Профили браузеров</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>Пробел включает или отключает профиль, Alt со стрелкой перемещает его.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>Перетаскивайте профили, чтобы изменить их порядок на боковой панели. Roamlet читает только включённые профили, новые включаются автоматически.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>Система не может отслеживать больше файлов, поэтому Roamlet ищет изменения раз в минуту. Их число задают системные параметры fs.inotify.max_user_watches и fs.inotify.max_user_instances.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>Профили браузеров не найдены.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>Личный</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (учётная запись)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>Выберите что-нибудь на боковой панели</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>Браузеры не найдены</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>Закладки зашифрованы</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 хранит закладки этого профиля в зашифрованном виде, поэтому показать их может только %1.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>Изменить закладки в %1</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Чтение</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>Ранее на этой неделе</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>На прошлой неделе</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>Ранее в этом месяце</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Показать всё в Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Группировать по</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Экспорт закладок</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>Показать все сайты</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Очистить поиск</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>Файл закладок</translation>
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
        <translation>HTML, который могут импортировать Safari, Chrome, Edge и большинство других браузеров.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>Заголовки и списки для заметок и документов.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>По строке на закладку, для Numbers или Excel.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Экспорт закладок</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Откуда:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Формат:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспортировать…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Откуда</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>Нет закладок</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>Все браузеры</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>Слишком большая вложенность папок для этого формата.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>Недостаточно памяти для этого экспорта.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Экспорт закладок</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«%1» уже существует. Заменить?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>Панель закладок</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Меню закладок</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Другие закладки</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Мобильные закладки</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet пока не может прочитать Safari</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>Включите Roamlet в разделе «Конфиденциальность и безопасность» › «Полный доступ к диску», затем обновите.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Открыть параметры</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>Открывать при входе в систему</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Показывать значок в Dock</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Автоматически проверять обновления</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>Разрешите Roamlet в разделе «Системные настройки» › «Основные» › «Объекты входа».</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>Показывать страницы в поиске рабочего стола</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>Группировать по</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>Последнее посещение</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>Посещения</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>Источник</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Часто посещаемые</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Истории пока нет</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>Показать только %1</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Изменить закладки в %1</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Показать историю в %1</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>Открыть в исходных браузерах</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>Открыть в %1</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>Копировать %1 адрес</numerusform>
            <numerusform>Копировать %1 адреса</numerusform>
            <numerusform>Копировать %1 адресов</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>Копировать адрес</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>Все профили отключены в параметрах.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>По запросу «%1» на %2 ничего не найдено</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>По запросу «%1» ничего не найдено</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>На %1 ничего не найдено</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>Ссылки</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>%1 нет в этой системе.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>Откроется в браузере по умолчанию: %1 нет в этой системе.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Столбцы</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Сортировать по</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>Порядок по умолчанию</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>Столбцы по умолчанию</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>Недостаточно памяти для этого списка.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>с %1 до %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>О программе Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;История и закладки всех браузеров в одном окне. Roamlet никогда ничего не записывает в файлы браузеров.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>Недавно посещённые</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Открыть Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>Доступно обновление…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Завершить Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>Обновлено в %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>Истории нет</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Экспорт закладок</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>Не удалось сохранить «%1».</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · первые %1</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · последние %1</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · первые %1 из каждого источника</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · последние %1 из каждого источника</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Часто посещаемые</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>История %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>Закладки %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Недавняя история</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Все закладки</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 элемент</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 элемент</numerusform>
            <numerusform>%1 элемента</numerusform>
            <numerusform>%1 элементов</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Папки</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>День</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>Сайт</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>Содержит основные закладки Safari, поэтому всегда включён.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS запретила доступ к %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>Не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>слишком большая вложенность</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>слишком большой размер</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>неверный JSON: начинается с метки порядка байтов</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>неверный JSON: содержит символ NUL</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>неверный JSON в байте %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>неверный JSON: число вне допустимых пределов</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>не список свойств: разворачивается в большее, чем содержит</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>не список свойств: значение содержит само себя</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>не список свойств: таблица объектов повреждена</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>не список свойств</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>не удаётся создать копию в %1: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>не словарь</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>Вставьте адрес в новую вкладку</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>%1 открывает только сам браузер.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Копировать адрес</translation>
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
        <translation>файл не является базой данных</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>база данных повреждена</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>не удаётся открыть файл базы данных</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>ошибка ввода-вывода диска</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>база данных или диск заполнены</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Меню закладок</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>Личный</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>Название или адрес</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Очистить поиск</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>Профили браузеров</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Закладки</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Экспорт закладок…</translation>
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
        <translation>Библиотека</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Недавняя история</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Часто посещаемые</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Все закладки</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Закладки</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>Показать все сайты</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>Только %1</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>Прочее</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>Столбцы</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>Стрелки выбирают столбец, с Ctrl перемещают его, а с Shift меняют его ширину. Пробел открывает меню.</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 элемент</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 элемент</numerusform>
            <numerusform>%1 элемента</numerusform>
            <numerusform>%1 элементов</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1, папка, %2</translation>
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
        <translation>Обновление программы</translation>
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
        <translation>Эту сборку Roamlet нельзя обновить.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>Обновление отклонено, так как его адрес небезопасен.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>Сервер обновлений бесконечно перенаправляет Roamlet с одного адреса на другой.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>Сервер обновлений недоступен, или соединение потеряно.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>Сервер обновлений не отвечает.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>Сервер обновлений ответил ошибкой.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>Список обновлений отклонён, так как он слишком длинный.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Не удаётся прочитать список обновлений.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>Обновление отклонено, так как оно не подписано.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>Обновление отклонено, так как оно слишком большое.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>Обновление отклонено и удалено, так как его длина не совпадает с объявленной.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>Обновление отклонено и удалено, так как его подпись неверна.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>Обновление отклонено и удалено, так как это не объявленная версия.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>Не удаётся сохранить обновление.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>Обновление не установлено, так как никто не дал на это разрешения.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>Не удаётся установить обновление.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet уже обновлён. Завершите его и откройте снова, чтобы использовать новую версию.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>Обновление загружено, но в системе нет программы для установки пакетов.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>Объявление типа документа</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>Не лента</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>Слишком большая вложенность элементов</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Слишком длинно</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>Символы в неизвестной кодировке</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>Содержимое пакета слишком велико</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>Не пакет Debian</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>Слишком много пространств имён</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>Слишком много атрибутов</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Проверка обновлений…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Установлена последняя версия Roamlet</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>Новее версии %1 нет.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Доступен Roamlet %1</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>У вас версия %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>Размер загрузки: %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>Это важное обновление: установите его в ближайшее время.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Сведения о выпуске</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Загрузка обновления…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>Проверка обновления…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Установка обновления…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>Система может запросить пароль.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 установлен</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>Завершите Roamlet и откройте его снова, чтобы использовать новую версию.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 ещё не установлен</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>Обновление открыто в программе для работы с пакетами. Установите его там, затем завершите Roamlet и откройте его снова, чтобы использовать новую версию.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>Не удалось обновить Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Экспорт закладок…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Закрыть окно</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Завершить Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>Расширить боковую панель</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>Сузить боковую панель</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Строка меню</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>О программе Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
</context>
</TS>
