<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>No tiene permiso para abrir la carpeta %1.</translation>
    </message>
    <message>
        <source>Your permission to read the file %1 is missing.</source>
        <translation>No tiene permiso para leer el archivo %1.</translation>
    </message>
    <message>
        <source>The folder %1 belongs to %2; your permission to open it is missing.</source>
        <translation>La carpeta %1 pertenece a %2; no tiene permiso para abrirla.</translation>
    </message>
    <message>
        <source>The file %1 belongs to %2; your permission to read it is missing.</source>
        <translation>El archivo %1 pertenece a %2; no tiene permiso para leerlo.</translation>
    </message>
</context>
<context>
    <name>roamlet::AutostartLoginService</name>
    <message>
        <source>The name of the program&apos;s file or folder contains a control character.</source>
        <translation>El nombre del archivo o de la carpeta del programa contiene un carácter de control.</translation>
    </message>
    <message>
        <source>Browser history and bookmarks in one place</source>
        <translation>Historial y marcadores de los navegadores en un solo lugar</translation>
    </message>
</context>
<context>
    <name>roamlet::BookmarkExport</name>
    <message>
        <source>Bookmarks</source>
        <extracomment>The name of a file, without its ending.</extracomment>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The name of a file, without its ending. %1 is a browser, with or without a profile.</extracomment>
        <translation>Marcadores de %1</translation>
    </message>
    <message>
        <source>There is something else than a file at this place.</source>
        <translation>En este lugar hay algo que no es un archivo.</translation>
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
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Added</source>
        <extracomment>The column that says when a bookmark was added.</extracomment>
        <translation>Añadido</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>The column that says from which browser and profile a bookmark is.</extracomment>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Aún no hay marcadores</translation>
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
        <translation>Añadido</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>No bookmarks yet</source>
        <translation>Aún no hay marcadores</translation>
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
        <translation>Roamlet busca los datos de %1 y %2 en estas carpetas, en las de sus versiones beta, Flatpak y snap, y donde los guarda un Mac:</translation>
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
        <translation>Perfiles de navegador</translation>
    </message>
    <message>
        <source>Space turns a profile on or off, Alt with an arrow key moves it.</source>
        <translation>La barra espaciadora activa o desactiva un perfil; Alt con una tecla de flecha lo mueve.</translation>
    </message>
    <message>
        <source>Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that are on, and new ones are on automatically.</source>
        <translation>Arrastre los perfiles para cambiar su orden en la barra lateral. Roamlet solo lee los perfiles activados; los nuevos se activan automáticamente.</translation>
    </message>
    <message>
        <source>The system has no more watches for files, so Roamlet looks for changes once a minute. The system&apos;s settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.</source>
        <translation>El sistema no puede vigilar más archivos, así que Roamlet busca cambios una vez por minuto. Los ajustes del sistema fs.inotify.max_user_watches y fs.inotify.max_user_instances indican cuántos se permiten.</translation>
    </message>
    <message>
        <source>No browser profiles were found.</source>
        <translation>No se encontraron perfiles de navegador.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
</context>
<context>
    <name>roamlet::Chromium</name>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Microsoft Edge itself calls so.</extracomment>
        <translation>Personal</translation>
    </message>
    <message>
        <source>%1 (Account)</source>
        <extracomment>%1 is a folder of bookmarks; this one is stored in the user&apos;s account.</extracomment>
        <translation>%1 (cuenta)</translation>
    </message>
</context>
<context>
    <name>roamlet::ContentView</name>
    <message>
        <source>Pick something in the sidebar</source>
        <translation>Elija algo en la barra lateral</translation>
    </message>
    <message>
        <source>No browsers found</source>
        <translation>No se encontraron navegadores</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Bookmarks are encrypted</source>
        <translation>Los marcadores están cifrados</translation>
    </message>
    <message>
        <source>%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show them.</source>
        <translation>%1 guarda cifrados los marcadores de este perfil, así que solo %1 puede mostrarlos.</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <translation>Editar los marcadores de %1</translation>
    </message>
    <message>
        <source>Searching</source>
        <extracomment>Read aloud: what the program is doing.</extracomment>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Leyendo</translation>
    </message>
</context>
<context>
    <name>roamlet::DayGroups</name>
    <message>
        <source>Today</source>
        <extracomment>The heading of a section of pages by when they were visited.</extracomment>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Earlier This Week</source>
        <translation>Antes esta semana</translation>
    </message>
    <message>
        <source>Last Week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>Earlier This Month</source>
        <translation>Antes este mes</translation>
    </message>
</context>
<context>
    <name>roamlet::DesktopSearch</name>
    <message>
        <source>Show All in Roamlet</source>
        <translation>Mostrar todo en Roamlet</translation>
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
        <translation>Exportar marcadores</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
</context>
<context>
    <name>roamlet::EmptyListPage</name>
    <message>
        <source>Show All Sites</source>
        <translation>Mostrar todos los sitios</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
</context>
<context>
    <name>roamlet::ExportPanel</name>
    <message>
        <source>Bookmark File</source>
        <translation>Archivo de marcadores</translation>
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
        <translation>HTML que Safari, Chrome, Edge y la mayoría de los demás navegadores pueden importar.</translation>
    </message>
    <message>
        <source>Headings and lists, for notes and documents.</source>
        <translation>Encabezados y listas, para notas y documentos.</translation>
    </message>
    <message>
        <source>One row per bookmark, for Numbers or Excel.</source>
        <translation>Una fila por marcador, para Numbers o Excel.</translation>
    </message>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exportar marcadores</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Desde:</translation>
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
        <translation>Desde</translation>
    </message>
    <message>
        <source>No bookmarks</source>
        <translation>No hay marcadores</translation>
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
        <translation>Todos los navegadores</translation>
    </message>
    <message>
        <source>The folders are nested too deeply for this format.</source>
        <translation>Hay demasiados niveles de carpetas para este formato.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>No hay memoria suficiente para esta exportación.</translation>
    </message>
</context>
<context>
    <name>roamlet::FileSavePanel</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exportar marcadores</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«%1» ya existe. ¿Quiere reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>roamlet::Firefox</name>
    <message>
        <source>Bookmarks Toolbar</source>
        <extracomment>The four folders of bookmarks that Firefox calls so.</extracomment>
        <translation>Barra de herramientas de marcadores</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menú de marcadores</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Otros marcadores</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Marcadores del móvil</translation>
    </message>
</context>
<context>
    <name>roamlet::FullDiskAccessBanner</name>
    <message>
        <source>Roamlet can&apos;t read Safari yet</source>
        <translation>Roamlet aún no puede leer Safari</translation>
    </message>
    <message>
        <source>Turn on Roamlet in Privacy &amp; Security › Full Disk Access, then reload.</source>
        <translation>Active Roamlet en Privacidad y seguridad › Acceso total al disco y recargue después.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir los ajustes</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
</context>
<context>
    <name>roamlet::GeneralSettings</name>
    <message>
        <source>Open at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Show Dock icon</source>
        <translation>Mostrar el icono en el Dock</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Approve Roamlet in System Settings › General › Login Items.</source>
        <translation>Apruebe Roamlet en Ajustes del Sistema › General › Ítems de inicio.</translation>
    </message>
    <message>
        <source>Show pages in the desktop&apos;s search</source>
        <translation>Mostrar páginas en la búsqueda del escritorio</translation>
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
        <translation>Origen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Más visitados</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Aún no hay historial</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkMenu</name>
    <message>
        <source>Show Only %1</source>
        <extracomment>%1 is a web site, such as &quot;example.org&quot;.</extracomment>
        <translation>Mostrar solo %1</translation>
    </message>
    <message>
        <source>Edit %1 Bookmarks</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Editar los marcadores de %1</translation>
    </message>
    <message>
        <source>Show %1 History</source>
        <extracomment>%1 is a browser.</extracomment>
        <translation>Mostrar el historial de %1</translation>
    </message>
    <message>
        <source>Open in Original Browsers</source>
        <extracomment>Each link in the browser that it came from.</extracomment>
        <translation>Abrir en los navegadores de origen</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>Abrir en %1</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 URLs</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>
            <numerusform>Copiar %1 URL</numerusform>
            <numerusform>Copiar %1 URL</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy URL</source>
        <translation>Copiar la URL</translation>
    </message>
</context>
<context>
    <name>roamlet::LinkTable</name>
    <message>
        <source>All profiles are switched off in the settings.</source>
        <translation>Todos los perfiles están desactivados en los ajustes.</translation>
    </message>
    <message>
        <source>Nothing found for “%1” on %2</source>
        <translation>No se encontró nada para «%1» en %2</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>No se encontró nada para «%1»</translation>
    </message>
    <message>
        <source>Nothing found on %1</source>
        <translation>No se encontró nada en %1</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>The name, read aloud, of the menu of the selected links.</extracomment>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>%1 does not exist on this system.</source>
        <translation>%1 no existe en este sistema.</translation>
    </message>
    <message>
        <source>Opens in this desktop’s own browser: %1 does not exist on this system.</source>
        <translation>Se abre en el navegador predeterminado de este escritorio: %1 no existe en este sistema.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Default Order</source>
        <translation>Orden predeterminado</translation>
    </message>
    <message>
        <source>Default Columns</source>
        <translation>Columnas predeterminadas</translation>
    </message>
    <message>
        <source>There is not enough memory for this list.</source>
        <translation>No hay memoria suficiente para esta lista.</translation>
    </message>
</context>
<context>
    <name>roamlet::LocalText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>An hour of a day: &quot;13:00 to 14:00&quot;.</extracomment>
        <translation>de %1 a %2</translation>
    </message>
</context>
<context>
    <name>roamlet::MainWindow</name>
    <message>
        <source>About Roamlet</source>
        <translation>Acerca de Roamlet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;Your history and bookmarks from every browser, in one window. Roamlet never writes to the browsers’ files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Roamlet %1&lt;/h3&gt;&lt;p&gt;El historial y los marcadores de todos sus navegadores, en una sola ventana. Roamlet nunca escribe en los archivos de los navegadores.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>roamlet::MenuBarMenu</name>
    <message>
        <source>Recently Visited</source>
        <translation>Visitado recientemente</translation>
    </message>
    <message>
        <source>Open Roamlet</source>
        <translation>Abrir Roamlet</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Update Available…</source>
        <translation>Actualización disponible…</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Salir de Roamlet</translation>
    </message>
    <message>
        <source>Updated at %1</source>
        <translation>Actualizado: %1</translation>
    </message>
    <message>
        <source>No history</source>
        <translation>No hay historial</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
</context>
<context>
    <name>roamlet::MessageAlert</name>
    <message>
        <source>Export Bookmarks</source>
        <translation>Exportar marcadores</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>No se pudo guardar «%1».</translation>
    </message>
</context>
<context>
    <name>roamlet::PaneText</name>
    <message>
        <source> · top %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · top 1,000&quot;. These are the most visited pages.</extracomment>
        <translation> · los primeros %1</translation>
    </message>
    <message>
        <source> · latest %1</source>
        <extracomment>After the number of rows: &quot;1,000 items · latest 1,000&quot;.</extracomment>
        <translation> · los últimos %1</translation>
    </message>
    <message>
        <source> · top %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · top 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · los primeros %1 de cada origen</translation>
    </message>
    <message>
        <source> · latest %1 from each source</source>
        <extracomment>After the number of rows: &quot;3,000 items · latest 1,000 from each source&quot;. A source is a profile.</extracomment>
        <translation> · los últimos %1 de cada origen</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Más visitados</translation>
    </message>
    <message>
        <source>%1 History</source>
        <extracomment>The history of a browser or a profile, which %1 names: &quot;Firefox History&quot;, &quot;Work History&quot;.</extracomment>
        <translation>Historial de %1</translation>
    </message>
    <message>
        <source>%1 Bookmarks</source>
        <extracomment>The bookmarks of a browser or a profile, which %1 names: &quot;Firefox Bookmarks&quot;, &quot;Work Bookmarks&quot;.</extracomment>
        <translation>Marcadores de %1</translation>
    </message>
    <message>
        <source>Recent History</source>
        <translation>Historial reciente</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Todos los marcadores</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
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
            <numerusform>%1 elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Beside &quot;Group By&quot;: the list has no sections.</extracomment>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Beside &quot;Group By&quot;.</extracomment>
        <translation>Día</translation>
    </message>
    <message>
        <source>Site</source>
        <extracomment>Beside &quot;Group By&quot;: by web site.</extracomment>
        <translation>Sitio</translation>
    </message>
</context>
<context>
    <name>roamlet::ProfileListModel</name>
    <message>
        <source>Holds Safari&apos;s main bookmarks, so it&apos;s always on.</source>
        <translation>Contiene los marcadores principales de Safari, así que siempre está activado.</translation>
    </message>
</context>
<context>
    <name>roamlet::ReadError</name>
    <message>
        <source>macOS blocked access to %1.</source>
        <translation>macOS bloqueó el acceso a %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file, %2 says why: &quot;Couldn&apos;t read /home/anna/History: file is not a database&quot;.</extracomment>
        <translation>No se pudo leer %1: %2</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>tiene demasiados niveles anidados</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>not valid JSON: it begins with a byte-order mark</source>
        <translation>JSON no válido: empieza con una marca de orden de bytes</translation>
    </message>
    <message>
        <source>not valid JSON: it holds a NUL</source>
        <translation>JSON no válido: contiene un carácter NUL</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1</source>
        <translation>JSON no válido en el byte %1</translation>
    </message>
    <message>
        <source>not valid JSON: a number is out of range</source>
        <translation>JSON no válido: un número está fuera de rango</translation>
    </message>
    <message>
        <source>not a property list: it unfolds to more than it holds</source>
        <translation>no es una lista de propiedades: se despliega en más de lo que contiene</translation>
    </message>
    <message>
        <source>not a property list: a value contains itself</source>
        <translation>no es una lista de propiedades: un valor se contiene a sí mismo</translation>
    </message>
    <message>
        <source>not a property list: its object table is damaged</source>
        <translation>no es una lista de propiedades: su tabla de objetos está dañada</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>no es una lista de propiedades</translation>
    </message>
    <message>
        <source>cannot make a copy in %1: %2</source>
        <extracomment>%1 is a folder, %2 says why.</extracomment>
        <translation>no se puede hacer una copia en %1: %2</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>no es un diccionario</translation>
    </message>
</context>
<context>
    <name>roamlet::ReloadButton</name>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
</context>
<context>
    <name>roamlet::RoamletApp</name>
    <message>
        <source>Paste the address into the new tab</source>
        <translation>Pegue la dirección en la pestaña nueva</translation>
    </message>
    <message>
        <source>Only the browser itself opens %1.</source>
        <translation>Solo el propio navegador abre %1.</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Copiar la dirección</translation>
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
        <translation>el archivo no es una base de datos</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>la base de datos está dañada</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>no se puede abrir el archivo de la base de datos</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>error de entrada/salida del disco</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>la base de datos o el disco están llenos</translation>
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
        <translation>Menú de marcadores</translation>
    </message>
    <message>
        <source>Personal</source>
        <extracomment>The profile that Safari itself calls so.</extracomment>
        <translation>Personal</translation>
    </message>
</context>
<context>
    <name>roamlet::SearchField</name>
    <message>
        <source>Title or URL</source>
        <translation>Título o URL</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>roamlet::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Browser Profiles</source>
        <translation>Perfiles de navegador</translation>
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
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Exportar marcadores…</translation>
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
        <translation>Historial reciente</translation>
    </message>
    <message>
        <source>Most Visited</source>
        <translation>Más visitados</translation>
    </message>
    <message>
        <source>All Bookmarks</source>
        <translation>Todos los marcadores</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Marcadores</translation>
    </message>
</context>
<context>
    <name>roamlet::SiteFilterBar</name>
    <message>
        <source>Show All Sites</source>
        <translation>Mostrar todos los sitios</translation>
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
        <translation>Otros</translation>
    </message>
</context>
<context>
    <name>roamlet::TableHeader</name>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu.</source>
        <translation>Las teclas de flecha eligen una columna, la mueven con Ctrl y cambian su anchura con Mayús. La barra espaciadora abre el menú.</translation>
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
            <numerusform>%1 elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, folder, %2</source>
        <extracomment>Read aloud: the name of a folder, and how many items it has.</extracomment>
        <translation>%1, carpeta, %2</translation>
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
        <translation>Actualización de software</translation>
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
        <translation>Esta compilación de Roamlet no se puede actualizar.</translation>
    </message>
    <message>
        <source>The update was refused because its address is not secure.</source>
        <translation>La actualización se rechazó porque su dirección no es segura.</translation>
    </message>
    <message>
        <source>The update server sends Roamlet from one address to the next without end.</source>
        <translation>El servidor de actualizaciones envía a Roamlet de una dirección a otra sin fin.</translation>
    </message>
    <message>
        <source>The update server cannot be reached, or the connection was lost.</source>
        <translation>No se puede acceder al servidor de actualizaciones o se perdió la conexión.</translation>
    </message>
    <message>
        <source>The update server does not answer.</source>
        <translation>El servidor de actualizaciones no responde.</translation>
    </message>
    <message>
        <source>The update server answered with an error.</source>
        <translation>El servidor de actualizaciones respondió con un error.</translation>
    </message>
    <message>
        <source>The list of updates was refused because it is far too long.</source>
        <translation>La lista de actualizaciones se rechazó porque es demasiado larga.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>La lista de actualizaciones no se puede leer.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed.</source>
        <translation>La actualización se rechazó porque no está firmada.</translation>
    </message>
    <message>
        <source>The update was refused because it is far too large.</source>
        <translation>La actualización se rechazó porque es demasiado grande.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its length is not the announced one.</source>
        <translation>La actualización se rechazó y se eliminó porque su longitud no es la anunciada.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because its signature is wrong.</source>
        <translation>La actualización se rechazó y se eliminó porque su firma es incorrecta.</translation>
    </message>
    <message>
        <source>The update was refused and deleted because it is not the version that was announced.</source>
        <translation>La actualización se rechazó y se eliminó porque no es la versión anunciada.</translation>
    </message>
    <message>
        <source>The update cannot be saved.</source>
        <translation>La actualización no se puede guardar.</translation>
    </message>
    <message>
        <source>The update was not installed because nobody gave permission to do so.</source>
        <translation>La actualización no se instaló porque nadie dio permiso para ello.</translation>
    </message>
    <message>
        <source>The update cannot be installed.</source>
        <translation>La actualización no se puede instalar.</translation>
    </message>
    <message>
        <source>Roamlet has been updated already. Quit it and open it again to use the new version.</source>
        <translation>Roamlet ya se ha actualizado. Ciérrelo y vuelva a abrirlo para usar la versión nueva.</translation>
    </message>
    <message>
        <source>The update was downloaded, but no program here installs packages.</source>
        <translation>La actualización se descargó, pero aquí ningún programa instala paquetes.</translation>
    </message>
    <message>
        <source>Document type declaration</source>
        <translation>Declaración de tipo de documento</translation>
    </message>
    <message>
        <source>No feed</source>
        <translation>No es un canal</translation>
    </message>
    <message>
        <source>Elements nested too deep</source>
        <translation>Elementos con demasiados niveles anidados</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Demasiado largo</translation>
    </message>
    <message>
        <source>Characters in an unknown encoding</source>
        <translation>Caracteres de una codificación desconocida</translation>
    </message>
    <message>
        <source>Too much is packed</source>
        <translation>El contenido empaquetado es demasiado grande</translation>
    </message>
    <message>
        <source>No Debian package</source>
        <translation>No es un paquete de Debian</translation>
    </message>
    <message>
        <source>Too many namespaces</source>
        <translation>Demasiados espacios de nombres</translation>
    </message>
    <message>
        <source>Too many attributes</source>
        <translation>Demasiados atributos</translation>
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
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Roamlet is up to date</source>
        <translation>Roamlet está actualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>La versión %1 es la más reciente.</translation>
    </message>
    <message>
        <source>Roamlet %1 is available</source>
        <translation>Roamlet %1 está disponible</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Tiene la versión %1.</translation>
    </message>
    <message>
        <source>The download takes %1.</source>
        <translation>La descarga ocupa %1.</translation>
    </message>
    <message>
        <source>This is an important update: please install it soon.</source>
        <translation>Esta actualización es importante: instálela pronto.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Descargando la actualización…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much was downloaded: &quot;1.2 MB of 3.4 MB&quot;.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Checking the update…</source>
        <translation>Comprobando la actualización…</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <translation>Instalando la actualización…</translation>
    </message>
    <message>
        <source>Your system may ask for your password.</source>
        <translation>Es posible que el sistema le pida su contraseña.</translation>
    </message>
    <message>
        <source>Roamlet %1 is installed</source>
        <translation>Roamlet %1 está instalado</translation>
    </message>
    <message>
        <source>Quit Roamlet and open it again to use the new version.</source>
        <translation>Cierre Roamlet y vuelva a abrirlo para usar la versión nueva.</translation>
    </message>
    <message>
        <source>Roamlet %1 is not installed yet</source>
        <translation>Roamlet %1 aún no está instalado</translation>
    </message>
    <message>
        <source>It was opened with your program for packages. Install it there, then quit Roamlet and open it again to use the new version.</source>
        <translation>La actualización se abrió con su programa de paquetes. Instálela allí, cierre Roamlet y vuelva a abrirlo para usar la versión nueva.</translation>
    </message>
    <message>
        <source>Roamlet could not be updated</source>
        <translation>No se pudo actualizar Roamlet</translation>
    </message>
</context>
<context>
    <name>roamlet::WindowCommands</name>
    <message>
        <source>Export Bookmarks…</source>
        <translation>Exportar marcadores…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>Quit Roamlet</source>
        <translation>Salir de Roamlet</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Wider Sidebar</source>
        <translation>Ensanchar la barra lateral</translation>
    </message>
    <message>
        <source>Narrower Sidebar</source>
        <translation>Estrechar la barra lateral</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>About Roamlet</source>
        <translation>Acerca de Roamlet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
</context>
</TS>
