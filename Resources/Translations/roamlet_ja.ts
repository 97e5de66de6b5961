<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
        <translation>フォルダー %1 を開く権限がありません。</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>ファイル %1 を読み取る権限がありません。</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>フォルダー %1 の所有者は %2 です。開く権限がありません。</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>ファイル %1 の所有者は %2 です。読み取る権限がありません。</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>プログラムのファイルまたはフォルダーの名前に制御文字が含まれています。</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>ブラウザーの履歴とブックマークを 1 か所に</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>ブックマーク</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>%1 のブックマーク</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>この場所にはファイル以外のものがあります。</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>追加日時</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>ブックマーク</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>ブックマークはまだありません</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>追加日時</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>ブックマーク</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>ブックマークはまだありません</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>ブラウザー</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>Roamlet は %1、%2 のデータを、以下のフォルダー、ベータ版・Flatpak・snap のフォルダー、Mac の保存場所から探します:</translation>
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
        <translation>ブラウザーのプロファイル</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>スペースキーでプロファイルのオン/オフを切り替え、Alt と矢印キーで移動します。</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>プロファイルをドラッグすると、サイドバーでの順序を変更できます。Roamlet はオンのプロファイルだけを読み取ります。新しいプロファイルは自動的にオンになります。</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>システムがこれ以上ファイルを監視できないため、Roamlet は 1 分ごとに変更を確認します。監視できる数は、システムの設定 fs.inotify.max_user_watches と fs.inotify.max_user_instances で決まります。</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>ブラウザーのプロファイルが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み取り中…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>個人用</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (アカウント)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>サイドバーから項目を選んでください</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>ブラウザーが見つかりません</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>ブックマークは暗号化されています</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 はこのプロファイルのブックマークを暗号化して保存しているため、%1 でのみ表示できます。</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>%1 のブックマークを編集</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>検索中</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>読み取り中</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>今日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>今週のこれまで</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>今月のこれまで</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Roamlet ですべて表示</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>ブックマークのエクスポート</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>すべてのサイトを表示</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>ブックマークファイル</translation>
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
        <translation>Safari、Chrome、Edge など、ほとんどのブラウザーでインポートできる HTML。</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>メモや文書に使える見出しとリスト。</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>1 行に 1 ブックマーク。Numbers や Excel 向け。</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>ブックマークのエクスポート</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>対象:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>形式:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>ブックマークなし</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>エクスポート中</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>すべてのブラウザー</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>フォルダーの階層が深すぎるため、この形式では保存できません。</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>メモリーが足りないため、エクスポートできません。</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>ブックマークのエクスポート</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>「%1」 はすでに存在します。置き換えますか?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>ブックマークツールバー</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>ブックマークメニュー</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>他のブックマーク</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>モバイルのブックマーク</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet はまだ Safari を読み取れません</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>「プライバシーとセキュリティ」›「フルディスクアクセス」で Roamlet をオンにしてから、再読み込みしてください。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>ログイン時に開く</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Dock アイコンを表示</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>「システム設定」›「一般」›「ログイン項目」で Roamlet を許可してください。</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>デスクトップの検索にページを表示</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>グループ化</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>最終訪問</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>訪問回数</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>ソース</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>よく見るページ</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>履歴はまだありません</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>%1 のみ表示</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>%1 のブックマークを編集</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>%1 の履歴を表示</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>元のブラウザーで開く</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>%1 で開く</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>%1 件の URL をコピー</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>URL をコピー</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>すべてのプロファイルが設定でオフになっています。</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>%2 で 「%1」 は見つかりませんでした</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>「%1」 は見つかりませんでした</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>%1 では何も見つかりませんでした</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>リンク</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>%1 はこのシステムにありません。</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>既定のブラウザーで開きます: %1 はこのシステムにありません。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>既定の順序</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>既定の列</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>メモリーが足りないため、この一覧を表示できません。</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>%1~%2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>Roamlet について</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;すべてのブラウザーの履歴とブックマークを 1 つのウィンドウに。Roamlet がブラウザーのファイルに書き込むことはありません。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>最近表示したページ</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Roamlet を開く</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>アップデートがあります…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Roamlet を終了</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>%1 に更新</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>履歴なし</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み取り中…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>ブックマークのエクスポート</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>「%1」 を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · 上位 %1 件</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · 最新 %1 件</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · 各ソースの上位 %1 件</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · 各ソースの最新 %1 件</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>よく見るページ</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>%1 の履歴</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>%1 のブックマーク</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>最近の履歴</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>すべてのブックマーク</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み取り中…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 項目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>日</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>サイト</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>Safari の主要なブックマークが含まれるため、常にオンです。</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS が %1 へのアクセスをブロックしました。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>%1 を読み取れませんでした: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>入れ子が深すぎます</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>有効な JSON ではありません: バイト順マークで始まっています</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>有効な JSON ではありません: NUL 文字が含まれています</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>有効な JSON ではありません (%1 バイト目)</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>有効な JSON ではありません: 数値が範囲外です</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>プロパティリストではありません: 展開すると内容より大きくなります</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>プロパティリストではありません: 値が自分自身を含んでいます</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>プロパティリストではありません: オブジェクトテーブルが壊れています</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>プロパティリストではありません</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>%1 にコピーを作成できません: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>辞書ではありません</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>新しいタブにアドレスを貼り付けてください</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>%1 はブラウザー自身でしか開けません。</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>アドレスをコピー</translation>
    </message>
</context>
<context>
    <name>roamlet::RowTips</name>
    <message>
        <source>%1, %2</source>
        <extracomment>An hour or a day, and how many pages were visited then: &quot;13:00 to 14:00, 12&quot;.</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>roamlet::SQLite</name>
    <message>
        <source>file is not a database</source>
        <extracomment>Words of the SQLite library.</extracomment>
        <translation>ファイルはデータベースではありません</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>データベースが壊れています</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>データベースファイルを開けません</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>ディスクの入出力エラー</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>データベースまたはディスクがいっぱいです</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>ブックマークメニュー</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>個人用</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>タイトルまたは URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>検索をクリア</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>ブラウザーのプロファイル</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>ブックマーク</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>ブックマークをエクスポート…</translation>
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
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>最近の履歴</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>よく見るページ</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>すべてのブックマーク</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>ブックマーク</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>すべてのサイトを表示</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>%1 のみ</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>その他</translation>
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
        <translation>矢印キーで列を選び、Ctrl と併用で移動、Shift と併用で幅を変更します。スペースキーでメニューを開きます。</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 項目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 項目</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1、フォルダー、%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Read aloud: the heading of a section, and how many items it has.</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateDialog</name>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
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
        <translation>このビルドの Roamlet はアップデートできません。</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>アドレスが安全でないため、アップデートを拒否しました。</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>アップデートサーバーの転送が終わりなく続いています。</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>アップデートサーバーに接続できないか、接続が切れました。</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>アップデートサーバーが応答しません。</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>アップデートサーバーがエラーを返しました。</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>長すぎるため、アップデートの一覧を拒否しました。</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>アップデートの一覧を読み取れません。</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>署名がないため、アップデートを拒否しました。</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>大きすぎるため、アップデートを拒否しました。</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>サイズが告知と異なるため、アップデートを拒否して削除しました。</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>署名が正しくないため、アップデートを拒否して削除しました。</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>告知されたバージョンではないため、アップデートを拒否して削除しました。</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>アップデートを保存できません。</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>許可されなかったため、アップデートはインストールされませんでした。</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>アップデートをインストールできません。</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet はすでにアップデートされています。新しいバージョンを使うには、終了してからもう一度開いてください。</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>アップデートをダウンロードしましたが、パッケージをインストールできるプログラムがありません。</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>文書型宣言</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>フィードではありません</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>要素の入れ子が深すぎます</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>長すぎます</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>文字の符号化方式が不明です</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>パッケージの内容が大きすぎます</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>Debian パッケージではありません</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>名前空間が多すぎます</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>属性が多すぎます</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Roamlet は最新です</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>バージョン %1 が最新です。</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Roamlet %1 を利用できます</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>現在のバージョンは %1 です。</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>ダウンロードのサイズは %1 です。</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>これは重要なアップデートです。お早めにインストールしてください。</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>アップデートをダウンロードしています…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>アップデートを検証しています…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>アップデートをインストールしています…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>システムからパスワードを求められることがあります。</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 をインストールしました</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>新しいバージョンを使うには、Roamlet を終了してからもう一度開いてください。</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 はまだインストールされていません</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>アップデートをパッケージ用のプログラムで開きました。そこでインストールした後、新しいバージョンを使うには Roamlet を終了してからもう一度開いてください。</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>Roamlet をアップデートできませんでした</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>ブックマークをエクスポート…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Roamlet を終了</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>サイドバーを広げる</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>サイドバーを狭める</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>Roamlet について</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
</context>
</TS>
