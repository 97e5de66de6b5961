<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>Você não tem permissão para abrir a pasta %1.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>Você não tem permissão para ler o arquivo %1.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>A pasta %1 pertence a %2; você não tem permissão para abri-la.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>O arquivo %1 pertence a %2; você não tem permissão para lê-lo.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>O nome do arquivo ou da pasta do programa contém um caractere de controle.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>Histórico e favoritos dos navegadores em um só lugar</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>Favoritos de %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>Há algo que não é um arquivo neste local.</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTable</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Adicionado</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>Origem</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Ainda não há favoritos</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkTree</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Adicionado</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Ainda não há favoritos</translation>
    </message>
</context>
<context>
    <name>roamlet::BrowserPlaces</name>
    <message>
        <source>Browsers</source>
        <translation>Navegadores</translation>
    </message>
    <message>
        <source>Roamlet looks for the data of %1 and %2 in these folders, in those of their beta versions, Flatpaks and snaps, and where a Mac keeps them:</source>
        <extracomment>%1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.</extracomment>
        <translation>O Roamlet procura os dados de %1 e %2 nestas pastas, nas de suas versões beta, Flatpak e snap, e onde um Mac os guarda:</translation>
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
        <translation>Perfis de navegador</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>Espaço ativa ou desativa um perfil; Alt com uma seta o move.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>Arraste os perfis para mudar sua ordem na barra lateral. O Roamlet só lê os perfis ativados, e os novos são ativados automaticamente.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>O sistema não consegue monitorar mais arquivos, por isso o Roamlet procura alterações uma vez por minuto. As configurações do sistema fs.inotify.max_user_watches e fs.inotify.max_user_instances dizem quantos são permitidos.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>Nenhum perfil de navegador foi encontrado.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>Pessoal</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (conta)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>Escolha algo na barra lateral</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>Nenhum navegador encontrado</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>Os favoritos estão criptografados</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>O %1 guarda os favoritos deste perfil criptografados, portanto só o próprio %1 pode mostrá-los.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>Editar favoritos do %1</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>Pesquisando</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lendo</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>No início desta semana</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>No início deste mês</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Mostrar tudo no Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::DetailHeader</name>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Agrupar por</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exportar favoritos</translation>
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
        <translation>Mostrar todos os sites</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Limpar pesquisa</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>Arquivo de favoritos</translation>
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
        <translation>HTML que o Safari, o Chrome, o Edge e a maioria dos outros navegadores podem importar.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>Títulos e listas, para notas e documentos.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>Uma linha por favorito, para o Numbers ou o Excel.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exportar favoritos</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>De:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>Nenhum favorito</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportando</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A browser or a profile, and how many bookmarks it has.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All Browsers</source>
        <translation>Todos os navegadores</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>Há níveis de pastas demais para este formato.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>Não há memória suficiente para esta exportação.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exportar favoritos</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>“%1” já existe. Deseja substituí-lo?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>Barra de favoritos</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menu Favoritos</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Outros favoritos</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Favoritos em dispositivos móveis</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>O Roamlet ainda não consegue ler o Safari</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>Ative o Roamlet em Privacidade e Segurança › Acesso Total ao Disco e depois recarregue.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir configurações</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>Abrir ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Mostrar ícone no Dock</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Verificar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>Aprove o Roamlet em Ajustes do Sistema › Geral › Itens de Início.</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>Mostrar páginas na pesquisa do ambiente</translation>
    </message>
</context>
<context>
    <name>roamlet::GroupByButton</name>
    <message>
        <source>Group By</source>
        <translation>Agrupar por</translation>
    </message>
</context>
<context>
    <name>roamlet::HistoryTable</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Last Visited</source>
        <translation>Última visita</translation>
    </message>
    <message>
        <source>Visits</source>
        <extracomment>The column that says how often a page was visited.</extracomment>
        <translation>Visitas</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a page is.</extracomment>
        <translation>Origem</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Mais visitados</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ainda não há histórico</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>Mostrar somente %1</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Editar favoritos do %1</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Mostrar histórico do %1</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>Abrir nos navegadores de origem</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>Abrir no %1</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>Copiar %1 URL</numerusform>
            <numerusform>Copiar %1 URLs</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>Copiar URL</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>Todos os perfis estão desativados nas configurações.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>Nada encontrado para “%1” em %2</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Nada encontrado para “%1”</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>Nada encontrado em %1</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>Links</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>O %1 não existe neste sistema.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>Abre no navegador padrão deste ambiente: o %1 não existe neste sistema.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colunas</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>Ordem padrão</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>Colunas padrão</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>Não há memória suficiente para esta lista.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>%1 às %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>Sobre o Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;O histórico e os favoritos de todos os seus navegadores em uma só janela. O Roamlet nunca grava nos arquivos dos navegadores.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>Visitados recentemente</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Abrir o Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>Atualização disponível…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Sair do Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>Atualizado às %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>Nenhum histórico</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exportar favoritos</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>Não foi possível salvar “%1”.</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · os primeiros %1</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · os últimos %1</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · os primeiros %1 de cada origem</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · os últimos %1 de cada origem</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Mais visitados</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>Histórico de %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>Favoritos de %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Histórico recente</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Todos os favoritos</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message>
        <source>%1 item</source>
        <extracomment>How many rows a list has. %1 is the number.</extracomment>
        <translation>%1 item</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 item</numerusform>
            <numerusform>%1 itens</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Dia</translation>
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
        <translation>Contém os favoritos principais do Safari, por isso está sempre ativado.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>O macOS bloqueou o acesso a %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>Não foi possível ler %1: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>há níveis de aninhamento demais</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>é grande demais</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>JSON inválido: começa com uma marca de ordem de bytes</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>JSON inválido: contém um caractere NUL</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>JSON inválido no byte %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>JSON inválido: um número está fora do intervalo</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>não é uma lista de propriedades: expande-se em mais do que contém</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>não é uma lista de propriedades: um valor contém a si mesmo</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>não é uma lista de propriedades: sua tabela de objetos está danificada</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>não é uma lista de propriedades</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>não é possível fazer uma cópia em %1: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>não é um dicionário</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>Cole o endereço na nova aba</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>Somente o próprio navegador abre %1.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Copiar endereço</translation>
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
        <translation>o arquivo não é um banco de dados</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>o banco de dados está danificado</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>não é possível abrir o arquivo do banco de dados</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>erro de leitura ou gravação no disco</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>o banco de dados ou o disco está cheio</translation>
    </message>
</context>
<context>
    <name>roamlet::Safari</name>
    <message>
        <source>Favorites</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <extracomment>The folder of bookmarks that Safari calls so.</extracomment>
        <translation>Menu Favoritos</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>Pessoal</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>Título ou URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Limpar pesquisa</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>Perfis de navegador</translation>
    </message>
</context>
<context>
    <name>roamlet::Sidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Exportar favoritos…</translation>
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
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Histórico recente</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Mais visitados</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Todos os favoritos</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Favoritos</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>Mostrar todos os sites</translation>
    </message>
    <message>
        <source>Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;: the list shows nothing else.</extracomment>
        <translation>Somente %1</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteGroups</name>
    <message>
        <source>Other</source>
        <extracomment>The heading of a section of pages that belong to no web site, such as files.</extracomment>
        <translation>Outros</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>Colunas</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>As setas escolhem uma coluna, movem-na com Ctrl e mudam sua largura com Shift. Espaço abre o menu.</translation>
    </message>
</context>
<context>
    <name>roamlet::TableModel</name>
    <message>
        <source>1 item</source>
        <extracomment>How many rows a section or a folder has. %1 is the number.</extracomment>
        <translation>1 item</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 item</numerusform>
            <numerusform>%1 itens</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1, pasta, %2</translation>
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
        <translation>Atualização de software</translation>
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
        <translation>Esta compilação do Roamlet não pode ser atualizada.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>A atualização foi recusada porque seu endereço não é seguro.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>O servidor de atualizações envia o Roamlet de um endereço a outro sem fim.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>Não foi possível acessar o servidor de atualizações, ou a conexão foi perdida.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>O servidor de atualizações não responde.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>O servidor de atualizações respondeu com um erro.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>A lista de atualizações foi recusada porque é longa demais.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>A lista de atualizações não pode ser lida.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>A atualização foi recusada porque não está assinada.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>A atualização foi recusada porque é grande demais.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>A atualização foi recusada e excluída porque seu tamanho não é o anunciado.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>A atualização foi recusada e excluída porque sua assinatura está errada.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>A atualização foi recusada e excluída porque não é a versão anunciada.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>A atualização não pode ser salva.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>A atualização não foi instalada porque ninguém deu permissão para isso.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>A atualização não pode ser instalada.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>O Roamlet já foi atualizado. Feche-o e abra-o novamente para usar a nova versão.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>A atualização foi baixada, mas nenhum programa aqui instala pacotes.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>Declaração de tipo de documento</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>Não é um feed</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>Elementos com níveis de aninhamento demais</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Longo demais</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>Caracteres em uma codificação desconhecida</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>O conteúdo empacotado é grande demais</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>Não é um pacote Debian</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>Namespaces demais</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>Atributos demais</translation>
    </message>
</context>
<context>
    <name>roamlet::UpdateWindows</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Verificando atualizações…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>O Roamlet está atualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>A versão %1 é a mais recente.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>O Roamlet %1 está disponível</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Você tem a versão %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>O download ocupa %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>Esta atualização é importante: instale-a em breve.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Baixando a atualização…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>Verificando a atualização…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Instalando a atualização…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>Seu sistema pode pedir sua senha.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>O Roamlet %1 está instalado</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>Feche o Roamlet e abra-o novamente para usar a nova versão.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>O Roamlet %1 ainda não está instalado</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>A atualização foi aberta com seu programa de pacotes. Instale-a nele, depois feche o Roamlet e abra-o novamente para usar a nova versão.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>Não foi possível atualizar o Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Exportar favoritos…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fechar janela</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Sair do Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>Alargar a barra lateral</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>Estreitar a barra lateral</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barra de menus</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>Sobre o Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
</context>
</TS>
