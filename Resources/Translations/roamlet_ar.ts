<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>Translate this as &quot;LTR&quot;, or as &quot;RTL&quot; for a language that is read from right to left.</extracomment>
        <translation>RTL</translation>
    </message>
</context>
<context>
    <name>RefusedFile</name>
    <message>
        <source>Your permission to open the folder %1 is missing.</source>
        <translation>لا تملك صلاحية فتح المجلد %1.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>لا تملك صلاحية قراءة الملف %1.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>المجلد %1 ملك المستخدم %2؛ ولا تملك صلاحية فتحه.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>الملف %1 ملك المستخدم %2؛ ولا تملك صلاحية قراءته.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>يحتوي اسم ملف البرنامج أو مجلده على محرف تحكم.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>سجل المتصفحات وعلاماتها في مكان واحد</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>العلامات</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>علامات %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>يوجد في هذا المكان شيء آخر غير ملف.</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>تاريخ الإضافة</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>العلامات</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>لا توجد علامات بعد</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>تاريخ الإضافة</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>العلامات</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>لا توجد علامات بعد</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>المتصفحات</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>يبحث Roamlet عن بيانات %1 و%2 في هذه المجلدات، وفي مجلدات إصداراتها التجريبية وحزم Flatpak وsnap، وحيث يحفظها جهاز ماك:</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the names of browsers</comment>
        <translation>، </translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserProfileSettings</name>
    <message>
        <source>Browser Profiles</source>
        <translation>ملفات تعريف المتصفحات</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>يشغّل مفتاح المسافة ملف التعريف أو يعطّله، وينقله Alt مع مفتاح سهم.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>اسحب ملفات التعريف لتغيير ترتيبها في الشريط الجانبي. لا يقرأ Roamlet إلا ملفات التعريف المفعّلة، وتُفعَّل الجديدة منها تلقائيًا.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>لا يستطيع النظام مراقبة ملفات أكثر، لذا يبحث Roamlet عن التغييرات مرة كل دقيقة. يحدد إعدادا النظام fs.inotify.max_user_watches وfs.inotify.max_user_instances العدد المسموح به.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>لم يُعثر على ملفات تعريف للمتصفحات.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>جارٍ القراءة…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>شخصي</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (الحساب)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>اختر شيئًا من الشريط الجانبي</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>لم يُعثر على متصفحات</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>إعادة التحميل</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>العلامات معمّاة</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>يحفظ %1 علامات ملف التعريف هذا معمّاة، لذا لا يستطيع عرضها إلا %1 نفسه.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>تحرير علامات %1</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>جارٍ البحث</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>جارٍ القراءة</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>في وقت سابق من هذا الأسبوع</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>الأسبوع الماضي</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>في وقت سابق من هذا الشهر</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>عرض الكل في Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>الشريط الجانبي</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>التجميع حسب</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>تصدير العلامات</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>عرض كل المواقع</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>إعادة التحميل</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>ملف علامات</translation>
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
        <translation>ملف HTML يستطيع Safari وChrome وEdge ومعظم المتصفحات الأخرى استيراده.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>عناوين وقوائم، للملاحظات والمستندات.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>صف لكل علامة، لبرنامج Numbers أو Excel.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>تصدير العلامات</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>من:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>الصيغة:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>لا توجد علامات</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>جارٍ التصدير</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>كل المتصفحات</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>تداخل المجلدات أعمق مما تسمح به هذه الصيغة.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>لا تكفي الذاكرة لهذا التصدير.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>تصدير العلامات</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>الملف «%1» موجود بالفعل. هل تريد استبداله؟</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>شريط العلامات</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>قائمة العلامات</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>علامات أخرى</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>علامات المحمول</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>لا يستطيع Roamlet قراءة Safari بعد</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>فعّل Roamlet في «الخصوصية والأمن» › «الوصول الكامل إلى القرص»، ثم أعد التحميل.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>إعادة التحميل</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>الفتح عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>إظهار الأيقونة في Dock</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>التحقق من التحديثات تلقائيًا</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>اسمح لـ Roamlet في «إعدادات النظام» › «عام» › «عناصر تسجيل الدخول».</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>عرض الصفحات في بحث سطح المكتب</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>التجميع حسب</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>آخر زيارة</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>الزيارات</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>الأكثر زيارة</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>لا يوجد سجل بعد</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>عرض %1 فقط</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>تحرير علامات %1</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>عرض سجل %1</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>الفتح في المتصفحات الأصلية</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>الفتح في %1</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>نسخ %1 عنوان URL</numerusform>
            <numerusform>نسخ %1 عنوان URL</numerusform>
            <numerusform>نسخ %1 عنواني URL</numerusform>
            <numerusform>نسخ %1 عناوين URL</numerusform>
            <numerusform>نسخ %1 عنوان URL</numerusform>
            <numerusform>نسخ %1 عنوان URL</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>نسخ عنوان URL</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>كل ملفات التعريف معطّلة في الإعدادات.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>لم يُعثر على شيء عن «%1» في %2</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>لم يُعثر على شيء عن «%1»</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>لم يُعثر على شيء في %1</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>الروابط</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>لا يوجد %1 على هذا النظام.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>يُفتح في المتصفح المبدئي لسطح المكتب: لا يوجد %1 على هذا النظام.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>الأعمدة</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>الترتيب حسب</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>الترتيب المبدئي</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>الأعمدة المبدئية</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>لا تكفي الذاكرة لهذه القائمة.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>%1 إلى %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>عن Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;سجلك وعلاماتك من كل المتصفحات في نافذة واحدة. لا يكتب Roamlet أبدًا في ملفات المتصفحات.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>زيارات حديثة</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>فتح Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>إعادة التحميل</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>يتوفر تحديث…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>إنهاء Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>حُدّث في %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>لا يوجد سجل</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>جارٍ القراءة…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>تصدير العلامات</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>تعذّر حفظ «%1».</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · أعلى %1</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · أحدث %1</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · أعلى %1 من كل مصدر</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · أحدث %1 من كل مصدر</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>الأكثر زيارة</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>سجل %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>علامات %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>السجل الحديث</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>كل العلامات</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>جارٍ القراءة…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 عنصر</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 عنصر</numerusform>
            <numerusform>%1 عنصر</numerusform>
            <numerusform>%1 عنصران</numerusform>
            <numerusform>%1 عناصر</numerusform>
            <numerusform>%1 عنصرًا</numerusform>
            <numerusform>%1 عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>المجلدات</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>الموقع</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>يحتوي على علامات Safari الرئيسية، لذا فهو مفعّل دائمًا.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>منع macOS الوصول إلى %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>تعذّرت قراءة %1: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>التداخل عميق جدًا</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>الحجم كبير جدًا</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>ملف JSON غير صالح: يبدأ بعلامة ترتيب البايتات</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>ملف JSON غير صالح: يحتوي على محرف NUL</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>ملف JSON غير صالح عند البايت %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>ملف JSON غير صالح: عدد خارج النطاق</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>ليس قائمة خصائص: يتوسع إلى أكثر مما يحتويه</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>ليس قائمة خصائص: قيمة تحتوي على نفسها</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>ليس قائمة خصائص: جدول الكائنات تالف</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>ليس قائمة خصائص</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>لا يمكن إنشاء نسخة في %1: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>ليس قاموسًا</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>إعادة التحميل</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>ألصق العنوان في اللسان الجديد</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>لا يفتح %1 إلا المتصفح نفسه.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>نسخ العنوان</translation>
    </message>
</context>
<context>
    <name>roamlet::RowTips</name>
    <message>
        <source>%1, %2</source>
        <extracomment>An hour or a day, and how many pages were visited then: &quot;13:00 to 14:00, 12&quot;.</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>roamlet::SQLite</name>
    <message>
        <source>file is not a database</source>
        <extracomment>Words of the SQLite library.</extracomment>
        <translation>الملف ليس قاعدة بيانات</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>قاعدة البيانات تالفة</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>لا يمكن فتح ملف قاعدة البيانات</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>خطأ في القراءة من القرص أو الكتابة عليه</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>قاعدة البيانات أو القرص ممتلئ</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>قائمة العلامات</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>شخصي</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>العنوان أو URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>مسح البحث</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>ملفات تعريف المتصفحات</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>الشريط الجانبي</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>العلامات</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>تصدير العلامات…</translation>
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
        <translation>المكتبة</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>السجل الحديث</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>الأكثر زيارة</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>كل العلامات</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>العلامات</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>عرض كل المواقع</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>%1 فقط</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>أخرى</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>الأعمدة</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>تختار مفاتيح الأسهم عمودًا، وتنقله مع Ctrl وتغيّر عرضه مع Shift. يفتح مفتاح المسافة القائمة.</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 عنصر</numerusform>
            <numerusform>%1 عنصر</numerusform>
            <numerusform>%1 عنصران</numerusform>
            <numerusform>%1 عناصر</numerusform>
            <numerusform>%1 عنصرًا</numerusform>
            <numerusform>%1 عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1، مجلد، %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Read aloud: the heading of a section, and how many items it has.</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateDialog</name>
    <message>
        <source>Software Update</source>
        <translation>تحديث البرنامج</translation>
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
        <translation>لا يمكن تحديث هذه النسخة المبنية من Roamlet.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>رُفض التحديث لأن عنوانه غير آمن.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>يحيل خادم التحديثات Roamlet من عنوان إلى آخر بلا نهاية.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>لا يمكن الوصول إلى خادم التحديثات، أو انقطع الاتصال.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>لا يستجيب خادم التحديثات.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>ردّ خادم التحديثات بخطأ.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>رُفضت قائمة التحديثات لأنها طويلة جدًا.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>لا يمكن قراءة قائمة التحديثات.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>رُفض التحديث لأنه غير موقّع.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>رُفض التحديث لأنه كبير جدًا.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>رُفض التحديث وحُذف لأن طوله ليس الطول المعلن.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>رُفض التحديث وحُذف لأن توقيعه خاطئ.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>رُفض التحديث وحُذف لأنه ليس الإصدار المعلن.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>لا يمكن حفظ التحديث.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>لم يُثبّت التحديث لأن أحدًا لم يسمح بذلك.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>لا يمكن تثبيت التحديث.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>حُدّث Roamlet بالفعل. أنهِه وافتحه مجددًا لاستخدام الإصدار الجديد.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>نُزّل التحديث، لكن لا يوجد هنا برنامج يثبّت الحزم.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>تصريح نوع المستند</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>ليس تلقيمة</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>تداخل العناصر عميق جدًا</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>طويل جدًا</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>محارف بترميز غير معروف</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>محتوى الحزمة كبير جدًا</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>ليست حزمة Debian</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>عدد مساحات الأسماء كبير جدًا</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>عدد السمات كبير جدًا</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>جارٍ التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>‏Roamlet محدّث</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>الإصدار %1 هو الأحدث.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>يتوفر Roamlet %1</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>لديك الإصدار %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>حجم التنزيل %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>هذا تحديث مهم: نرجو تثبيته قريبًا.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>ملاحظات الإصدار</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>تخطي هذا الإصدار</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>التذكير لاحقًا</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>جارٍ تنزيل التحديث…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>جارٍ فحص التحديث…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>جارٍ تثبيت التحديث…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>قد يطلب النظام كلمة السر.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>ثُبّت Roamlet %1</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>أنهِ Roamlet وافتحه مجددًا لاستخدام الإصدار الجديد.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>لم يُثبّت Roamlet %1 بعد</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>فُتح التحديث ببرنامج الحزم لديك. ثبّته هناك، ثم أنهِ Roamlet وافتحه مجددًا لاستخدام الإصدار الجديد.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>تعذّر تحديث Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>تصدير العلامات…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>إنهاء Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>إعادة التحميل</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>الشريط الجانبي</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>توسيع الشريط الجانبي</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>تضييق الشريط الجانبي</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>شريط القوائم</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>عن Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
</context>
</TS>
