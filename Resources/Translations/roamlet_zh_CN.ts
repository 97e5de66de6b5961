<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>您没有打开文件夹 %1 的权限。</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>您没有读取文件 %1 的权限。</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>文件夹 %1 属于 %2；您没有打开它的权限。</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>文件 %1 属于 %2；您没有读取它的权限。</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>程序的文件名或文件夹名含有控制字符。</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>浏览器历史记录和书签集中在一处</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>书签</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>%1 的书签</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>此位置上的不是文件。</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>添加时间</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>来源</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>书签</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>还没有书签</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>添加时间</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>书签</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>还没有书签</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>Roamlet 在这些文件夹、各浏览器测试版、Flatpak 和 snap 的文件夹以及 Mac 的存放位置查找 %1 和 %2 的数据：</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the names of browsers</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserProfileSettings</name>
    <message>
        <source>Browser Profiles</source>
        <translation>浏览器配置文件</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>按空格键可启用或停用配置文件，按 Alt 加方向键可移动它。</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>拖动配置文件可更改其在侧边栏中的顺序。Roamlet 只读取已启用的配置文件，新的配置文件会自动启用。</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>系统无法监视更多文件，因此 Roamlet 每分钟查找一次更改。可监视的数量由系统设置 fs.inotify.max_user_watches 和 fs.inotify.max_user_instances 决定。</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>未找到浏览器配置文件。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>个人</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1（账号）</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>请在侧边栏中选择一项</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>未找到浏览器</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>书签已加密</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 以加密方式保存此配置文件的书签，因此只有 %1 自己才能显示它们。</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>编辑 %1 书签</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>正在读取</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>今天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>本周早些时候</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>本月早些时候</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>在 Roamlet 中显示全部</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>分组方式</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>导出书签</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>显示所有网站</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>书签文件</translation>
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
        <translation>Safari、Chrome、Edge 及大多数其他浏览器都能导入的 HTML。</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>标题和列表，适用于笔记和文档。</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>每个书签一行，适用于 Numbers 或 Excel。</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>导出书签</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>来自：</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>来自</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>没有书签</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>正在导出</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>所有浏览器</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>文件夹嵌套过深，无法使用此格式。</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>内存不足，无法完成此次导出。</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>导出书签</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>“%1”已存在。要替换它吗？</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>书签工具栏</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>书签菜单</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>其他书签</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>移动设备上的书签</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet 尚无法读取 Safari</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>请在“隐私与安全性”›“完全磁盘访问权限”中启用 Roamlet，然后重新加载。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>登录时打开</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>显示程序坞图标</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>请在“系统设置”›“通用”›“登录项”中允许 Roamlet。</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>在桌面搜索中显示网页</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>分组方式</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>上次访问</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>访问次数</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>来源</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>最常访问</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>还没有历史记录</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>只显示 %1</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>编辑 %1 书签</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>显示 %1 历史记录</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>在原来的浏览器中打开</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>在 %1 中打开</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>复制 %1 个网址</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>复制网址</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>所有配置文件都已在设置中停用。</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>在 %2 上未找到“%1”</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>未找到“%1”</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>在 %1 上未找到任何内容</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>链接</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>此系统上没有 %1。</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>将在此桌面的默认浏览器中打开：此系统上没有 %1。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>默认顺序</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>默认列</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>内存不足，无法显示此列表。</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>%1 至 %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>关于 Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;所有浏览器的历史记录和书签，尽在一个窗口。Roamlet 从不写入浏览器的文件。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>最近访问</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>打开 Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>有可用更新…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>退出 Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>更新于 %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>没有历史记录</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>导出书签</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>无法保存“%1”。</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · 前 %1 项</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · 最近 %1 项</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · 每个来源的前 %1 项</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · 每个来源最近 %1 项</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>最常访问</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>%1 的历史记录</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>%1 的书签</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>最近的历史记录</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>所有书签</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 项</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>日期</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>网站</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>包含 Safari 的主要书签，因此始终启用。</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS 阻止了对 %1 的访问。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>嵌套过深</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>不是有效的 JSON：以字节顺序标记开头</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>不是有效的 JSON：含有 NUL 字符</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>不是有效的 JSON，位于第 %1 字节</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>不是有效的 JSON：数字超出范围</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>不是属性列表：展开后超出其所含内容</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>不是属性列表：有值包含自身</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>不是属性列表：对象表已损坏</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>不是属性列表</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>无法在 %1 中创建副本：%2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>不是字典</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>请将地址粘贴到新标签页</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>只有浏览器自己才能打开 %1。</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>复制地址</translation>
    </message>
</context>
<context>
    <name>roamlet::RowTips</name>
    <message>
        <source>%1, %2</source>
        <extracomment>An hour or a day, and how many pages were visited then: &quot;13:00 to 14:00, 12&quot;.</extracomment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>roamlet::SQLite</name>
    <message>
        <source>file is not a database</source>
        <extracomment>Words of the SQLite library.</extracomment>
        <translation>文件不是数据库</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>数据库已损坏</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>无法打开数据库文件</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>磁盘读写错误</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>数据库或磁盘已满</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>个人收藏</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>书签菜单</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>个人</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>标题或网址</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>浏览器配置文件</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>书签</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>导出书签…</translation>
    </message>
</context>
<context>
    <name>roamlet::SidebarModel</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud: a section of the sidebar and one of its rows, such as &quot;Firefox: History&quot;.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Library</source>
        <extracomment>The section of the sidebar that has the lists of all browsers.</extracomment>
        <translation>资料库</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>最近的历史记录</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>最常访问</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>所有书签</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>书签</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>显示所有网站</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>仅 %1</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>其他</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>方向键选择列，加 Ctrl 可移动列，加 Shift 可调整列宽。空格键打开菜单。</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 项</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 项</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1，文件夹，%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Read aloud: the heading of a section, and how many items it has.</extracomment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateDialog</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateError</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>What happened, and the words of the system or the server.</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>This build of Roamlet cannot be updated.</source>
        <translation>此 Roamlet 版本无法更新。</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>更新已被拒绝，因为其地址不安全。</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>更新服务器让 Roamlet 无休止地跳转。</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>无法连接到更新服务器，或连接已中断。</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>更新服务器没有响应。</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>更新服务器返回了错误。</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>更新列表已被拒绝，因为它过长。</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>无法读取更新列表。</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>更新已被拒绝，因为它没有签名。</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>更新已被拒绝，因为它过大。</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>更新已被拒绝并删除，因为其长度与公布的不符。</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>更新已被拒绝并删除，因为其签名有误。</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>更新已被拒绝并删除，因为它不是公布的版本。</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>无法保存更新。</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>更新未安装，因为没有获得许可。</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>无法安装更新。</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet 已经更新。请退出并重新打开它以使用新版本。</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>更新已下载，但这里没有可安装软件包的程序。</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>文档类型声明</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>不是订阅源</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>元素嵌套过深</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>过长</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>字符编码未知</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>软件包内容过大</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>不是 Debian 软件包</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>命名空间过多</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>属性过多</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Roamlet 已是最新版本</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>版本 %1 是最新版本。</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Roamlet %1 可用</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>您的版本是 %1。</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>下载大小为 %1。</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>这是一个重要更新：请尽快安装。</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>正在下载更新…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>正在验证更新…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>正在安装更新…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>系统可能会要求您输入密码。</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 已安装</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>请退出并重新打开 Roamlet 以使用新版本。</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 尚未安装</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>更新已用您的软件包程序打开。请在其中安装，然后退出并重新打开 Roamlet 以使用新版本。</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>无法更新 Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>导出书签…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>退出 Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>加宽侧边栏</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>缩窄侧边栏</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>菜单栏</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>关于 Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
</context>
</TS>
