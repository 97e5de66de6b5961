// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/FirefoxFiles.h"

#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleText.h"

#include <QHash>
#include <QMap>

#include <algorithm>
#include <utility>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

// The tables and indexes as Firefox ESR 153 creates them.

constexpr auto placesTables = R"(
PRAGMA user_version = 86;
CREATE TABLE moz_origins (id INTEGER PRIMARY KEY, prefix TEXT NOT NULL, host TEXT NOT NULL, frecency INTEGER NOT NULL, recalc_frecency INTEGER NOT NULL DEFAULT 0, alt_frecency INTEGER, recalc_alt_frecency INTEGER NOT NULL DEFAULT 0, block_until_ms INTEGER, block_pages_until_ms INTEGER, UNIQUE (prefix, host));
CREATE TABLE moz_places (id INTEGER PRIMARY KEY, url LONGVARCHAR, title LONGVARCHAR, rev_host LONGVARCHAR, visit_count INTEGER DEFAULT 0, hidden INTEGER DEFAULT 0 NOT NULL, typed INTEGER DEFAULT 0 NOT NULL, frecency INTEGER DEFAULT -1 NOT NULL, last_visit_date INTEGER, guid TEXT, foreign_count INTEGER DEFAULT 0 NOT NULL, url_hash INTEGER DEFAULT 0 NOT NULL, description TEXT, preview_image_url TEXT, site_name TEXT, origin_id INTEGER REFERENCES moz_origins(id), recalc_frecency INTEGER NOT NULL DEFAULT 0, alt_frecency INTEGER, recalc_alt_frecency INTEGER NOT NULL DEFAULT 0);
CREATE TABLE moz_places_extra (place_id INTEGER PRIMARY KEY NOT NULL, sync_json TEXT, FOREIGN KEY (place_id) REFERENCES moz_places(id) ON DELETE CASCADE);
CREATE TABLE moz_historyvisits (id INTEGER PRIMARY KEY, from_visit INTEGER, place_id INTEGER, visit_date INTEGER, visit_type INTEGER, session INTEGER, source INTEGER DEFAULT 0 NOT NULL, triggeringPlaceId INTEGER);
CREATE TABLE moz_historyvisits_extra (visit_id INTEGER PRIMARY KEY NOT NULL, sync_json TEXT, FOREIGN KEY (visit_id) REFERENCES moz_historyvisits(id) ON DELETE CASCADE);
CREATE TABLE moz_inputhistory (place_id INTEGER NOT NULL, input LONGVARCHAR NOT NULL, use_count INTEGER, PRIMARY KEY (place_id, input));
CREATE TABLE moz_bookmarks (id INTEGER PRIMARY KEY, type INTEGER, fk INTEGER DEFAULT NULL, parent INTEGER, position INTEGER, title LONGVARCHAR, keyword_id INTEGER, folder_type TEXT, dateAdded INTEGER, lastModified INTEGER, guid TEXT, syncStatus INTEGER NOT NULL DEFAULT 0, syncChangeCounter INTEGER NOT NULL DEFAULT 1);
CREATE TABLE moz_bookmarks_deleted (guid TEXT PRIMARY KEY, dateRemoved INTEGER NOT NULL DEFAULT 0);
CREATE TABLE moz_keywords (id INTEGER PRIMARY KEY AUTOINCREMENT, keyword TEXT UNIQUE, place_id INTEGER, post_data TEXT);
CREATE TABLE moz_anno_attributes (id INTEGER PRIMARY KEY, name VARCHAR(32) UNIQUE NOT NULL);
CREATE TABLE moz_annos (id INTEGER PRIMARY KEY, place_id INTEGER NOT NULL, anno_attribute_id INTEGER, content LONGVARCHAR, flags INTEGER DEFAULT 0, expiration INTEGER DEFAULT 0, type INTEGER DEFAULT 0, dateAdded INTEGER DEFAULT 0, lastModified INTEGER DEFAULT 0);
CREATE TABLE moz_items_annos (id INTEGER PRIMARY KEY, item_id INTEGER NOT NULL, anno_attribute_id INTEGER, content LONGVARCHAR, flags INTEGER DEFAULT 0, expiration INTEGER DEFAULT 0, type INTEGER DEFAULT 0, dateAdded INTEGER DEFAULT 0, lastModified INTEGER DEFAULT 0);
CREATE TABLE moz_meta (key TEXT PRIMARY KEY, value NOT NULL) WITHOUT ROWID;
CREATE TABLE moz_places_metadata (id INTEGER PRIMARY KEY, place_id INTEGER NOT NULL, referrer_place_id INTEGER, created_at INTEGER NOT NULL DEFAULT 0, updated_at INTEGER NOT NULL DEFAULT 0, total_view_time INTEGER NOT NULL DEFAULT 0, typing_time INTEGER NOT NULL DEFAULT 0, key_presses INTEGER NOT NULL DEFAULT 0, scrolling_time INTEGER NOT NULL DEFAULT 0, scrolling_distance INTEGER NOT NULL DEFAULT 0, document_type INTEGER NOT NULL DEFAULT 0, search_query_id INTEGER, FOREIGN KEY (place_id) REFERENCES moz_places(id) ON DELETE CASCADE, FOREIGN KEY (referrer_place_id) REFERENCES moz_places(id) ON DELETE CASCADE, FOREIGN KEY(search_query_id) REFERENCES moz_places_metadata_search_queries(id) ON DELETE CASCADE CHECK(place_id != referrer_place_id));
CREATE TABLE moz_places_metadata_search_queries (id INTEGER PRIMARY KEY, terms TEXT NOT NULL UNIQUE);
CREATE TABLE moz_previews_tombstones (hash TEXT PRIMARY KEY) WITHOUT ROWID;
CREATE TABLE moz_newtab_story_click (feature TEXT NOT NULL, timestamp_s INTEGER NOT NULL, card_format_enum INTEGER NOT NULL, position INTEGER NOT NULL, section_position INTEGER NOT NULL, feature_value REAL NOT NULL DEFAULT 1);
CREATE TABLE moz_newtab_story_impression (feature TEXT NOT NULL, timestamp_s INTEGER NOT NULL, card_format_enum INTEGER NOT NULL, position INTEGER NOT NULL, section_position INTEGER NOT NULL, feature_value REAL NOT NULL DEFAULT 1);
CREATE TABLE moz_newtab_shortcuts_interaction (id INTEGER PRIMARY KEY, place_id INTEGER NOT NULL REFERENCES moz_places(id) ON DELETE CASCADE, event_type INTEGER NOT NULL, timestamp_s INTEGER NOT NULL, pinned INTEGER NOT NULL CHECK (pinned IN (0, 1)), tile_position INTEGER NOT NULL);
INSERT INTO moz_bookmarks(id, type, parent, position, title, dateAdded, lastModified, guid, syncStatus) VALUES
 (1, 2, 0, 0, '', 1600000000000000, 1600000000000000, 'root________', 1),
 (2, 2, 1, 0, 'menu', 1600000000000000, 1600000000000000, 'menu________', 1),
 (3, 2, 1, 1, 'toolbar', 1600000000000000, 1600000000000000, 'toolbar_____', 1),
 (4, 2, 1, 2, 'tags', 1600000000000000, 1600000000000000, 'tags________', 1),
 (5, 2, 1, 3, 'unfiled', 1600000000000000, 1600000000000000, 'unfiled_____', 1),
 (6, 2, 1, 4, 'mobile', 1600000000000000, 1600000000000000, 'mobile______', 1);
)";

constexpr auto placesIndexes = R"(
CREATE INDEX moz_places_url_hashindex ON moz_places (url_hash);
CREATE INDEX moz_places_hostindex ON moz_places (rev_host);
CREATE INDEX moz_places_visitcount ON moz_places (visit_count);
CREATE INDEX moz_places_frecencyindex ON moz_places (frecency);
CREATE INDEX moz_places_lastvisitdateindex ON moz_places (last_visit_date);
CREATE UNIQUE INDEX moz_places_guid_uniqueindex ON moz_places (guid);
CREATE INDEX moz_places_originidindex ON moz_places (origin_id);
CREATE INDEX moz_places_altfrecencyindex ON moz_places (alt_frecency);
CREATE INDEX moz_historyvisits_placedateindex ON moz_historyvisits (place_id, visit_date);
CREATE INDEX moz_historyvisits_fromindex ON moz_historyvisits (from_visit);
CREATE INDEX moz_historyvisits_dateindex ON moz_historyvisits (visit_date);
CREATE INDEX moz_bookmarks_itemindex ON moz_bookmarks (fk, type);
CREATE INDEX moz_bookmarks_parentindex ON moz_bookmarks (parent, position);
CREATE INDEX moz_bookmarks_itemlastmodifiedindex ON moz_bookmarks (fk, lastModified);
CREATE INDEX moz_bookmarks_dateaddedindex ON moz_bookmarks (dateAdded);
CREATE UNIQUE INDEX moz_bookmarks_guid_uniqueindex ON moz_bookmarks (guid);
CREATE UNIQUE INDEX moz_keywords_placepostdata_uniqueindex ON moz_keywords (place_id, post_data);
CREATE UNIQUE INDEX moz_annos_placeattributeindex ON moz_annos (place_id, anno_attribute_id);
CREATE UNIQUE INDEX moz_items_annos_itemattributeindex ON moz_items_annos (item_id, anno_attribute_id);
CREATE UNIQUE INDEX moz_places_metadata_placecreated_uniqueindex ON moz_places_metadata (place_id, created_at);
CREATE INDEX moz_places_metadata_referrerindex ON moz_places_metadata (referrer_place_id);
CREATE INDEX moz_newtab_story_click_newtab_click_timestampindex ON moz_newtab_story_click (timestamp_s);
CREATE INDEX moz_newtab_story_impression_newtab_impression_timestampindex ON moz_newtab_story_impression (timestamp_s);
CREATE INDEX moz_newtab_shortcuts_interaction_timestampindex ON moz_newtab_shortcuts_interaction (timestamp_s);
CREATE INDEX moz_newtab_shortcuts_interaction_placeidindex ON moz_newtab_shortcuts_interaction (place_id);
)";

constexpr auto firefoxIconTables = R"(
CREATE TABLE moz_icons (id INTEGER PRIMARY KEY, icon_url TEXT NOT NULL, fixed_icon_url_hash INTEGER NOT NULL, width INTEGER NOT NULL DEFAULT 0, root INTEGER NOT NULL DEFAULT 0, color INTEGER, expire_ms INTEGER NOT NULL DEFAULT 0, flags INTEGER NOT NULL DEFAULT 0, data BLOB);
CREATE TABLE moz_pages_w_icons (id INTEGER PRIMARY KEY, page_url TEXT NOT NULL, page_url_hash INTEGER NOT NULL);
CREATE TABLE moz_icons_to_pages (page_id INTEGER NOT NULL, icon_id INTEGER NOT NULL, expire_ms INTEGER NOT NULL DEFAULT 0, PRIMARY KEY (page_id, icon_id), FOREIGN KEY (page_id) REFERENCES moz_pages_w_icons ON DELETE CASCADE, FOREIGN KEY (icon_id) REFERENCES moz_icons ON DELETE CASCADE) WITHOUT ROWID;
)";

constexpr auto firefoxIconIndexes = R"(
CREATE INDEX moz_icons_iconurlhashindex ON moz_icons (fixed_icon_url_hash);
CREATE INDEX moz_pages_w_icons_urlhashindex ON moz_pages_w_icons (page_url_hash);
)";

constexpr auto groupTables = R"(
PRAGMA user_version = 7;
CREATE TABLE "Profiles" (id INTEGER NOT NULL, path TEXT NOT NULL UNIQUE, name TEXT NOT NULL, avatar TEXT NOT NULL, themeId TEXT NOT NULL, themeFg TEXT NOT NULL, themeBg TEXT NOT NULL, PRIMARY KEY(id));
CREATE TABLE "SharedPrefs" (id INTEGER NOT NULL, name TEXT NOT NULL UNIQUE, value BLOB, isBoolean INTEGER, PRIMARY KEY(id));
CREATE TABLE "NimbusEnrollments" (id INTEGER NOT NULL, profileId INTEGER NOT NULL, slug TEXT NOT NULL, branchSlug TEXT NOT NULL, recipe JSONB, active BOOLEAN NOT NULL, unenrollReason TEXT, lastSeen TEXT NOT NULL, setPrefs JSONB, prefFlips JSONB, source TEXT NOT NULL, PRIMARY KEY(id), UNIQUE (profileId, slug) ON CONFLICT FAIL);
CREATE TABLE "Heartbeats" (id INTEGER NOT NULL, recipeId TEXT NOT NULL UNIQUE, lastShown INTEGER, lastInteraction INTEGER, PRIMARY KEY(id));
CREATE TABLE "MessagingSystemMessageImpressions" (id INTEGER PRIMARY KEY, messageId TEXT UNIQUE NOT NULL, impressions JSONB);
CREATE TABLE "MessagingSystemMessageBlocklist" (id INTEGER PRIMARY KEY, messageId TEXT UNIQUE NOT NULL);
CREATE TABLE "NimbusSyncTimestamps" (id INTEGER NOT NULL, profileId TEXT NOT NULL, collection TEXT NOT NULL, lastModified INTEGER NOT NULL, PRIMARY KEY(id), UNIQUE (profileId, collection) ON CONFLICT FAIL);
)";

constexpr int firefoxPageSize = 32'768;
constexpr qint64 someTime = 1'600'000'000'000'000;
constexpr qint64 neverExpires = 4'000'000'000'000;
constexpr qint64 followedLink = 1;

quint32 textHash(QByteArrayView text)
{
    quint32 hash = 0;
    for (const char character : text)
        hash = 0x9e37'79b9 * ((hash << 5 | hash >> 27) ^ quint8(character));
    return hash;
}

/// The number by which Firefox finds an address: one of the scheme above one of the whole.
qint64 addressHash(const QByteArray &url)
{
    constexpr qsizetype hashedLength = 1500;
    constexpr qsizetype longestScheme = 50;
    const qsizetype colon = QByteArrayView(url).first(std::min(url.size(), longestScheme)).indexOf(':');
    const qint64 scheme = colon < 0 ? 0 : textHash(QByteArrayView(url).first(colon)) & 0xffff;
    return (scheme << 32) + textHash(QByteArrayView(url).first(std::min(url.size(), hashedLength)));
}

qint64 addressHash(const Text &url)
{
    return addressHash(url.bytes().value_or(QByteArray()));
}

/// An icon is found by its address without the scheme and "www.".
qint64 iconAddressHash(const Text &url)
{
    QByteArray address = url.bytes().value_or(QByteArray());
    for (const QByteArrayView beginning : {"http://", "https://", "www."}) {
        if (address.startsWith(beginning))
            address.remove(0, beginning.size());
    }
    return addressHash(address);
}

/// An address as Firefox takes it apart: "https://", "www.example.org:8080", "gro.elpmaxe.www.".
struct Origin {
    explicit Origin(const QByteArray &url);

    QByteArray prefix;
    QByteArray host;
    QByteArray reversedHost;
};

Origin::Origin(const QByteArray &url)
{
    const qsizetype colon = url.indexOf(':');
    const bool hasHost = url.sliced(std::max(colon, qsizetype(0))).startsWith("://");
    prefix = url.first(hasHost ? colon + 3 : colon + 1);
    if (hasHost) {
        host = url.sliced(prefix.size());
        const auto *end =
            std::find_if(host.cbegin(), host.cend(), [](char c) { return c == '/' || c == '?' || c == '#'; });
        host.truncate(end - host.cbegin());
        host.remove(0, host.lastIndexOf('@') + 1);
    }
    const qsizetype port = host.lastIndexOf(':');
    reversedHost = port > host.lastIndexOf(']') ? host.first(port) : host;
    std::reverse(reversedHost.begin(), reversedHost.end());
    reversedHost.append('.');
}

/// The identifier of the row of a table that is written as this one.
Text guidOf(const char *table, qint64 number)
{
    return Random(quint64(textHash(table)) << 32 ^ quint64(number)).guid();
}

/// Writes the rows of one "places.sqlite"; it remembers what it wrote from one share to the next.
class PlacesWriter final
{
public:
    PlacesWriter(const Rows<FirefoxPage> &pages, const Rows<FirefoxBookmarkRow> &bookmarks);

    void write(Database &database, Share share);

private:
    struct Statements;

    qint64 insertPage(Database &database, Statements &statements, const FirefoxPage &page);
    void insertBookmark(Database &database, Statements &statements, const FirefoxBookmarkRow &row);
    std::optional<qint64> pageOf(Database &database, Statements &statements, const FirefoxBookmarkRow &row);

    Rows<FirefoxPage> m_pages;
    Rows<FirefoxBookmarkRow> m_bookmarks;
    qint64 m_writtenPages = 0;
    qint64 m_writtenBookmarks = 0;
    QHash<QByteArray, qint64> m_origins;
    /// The pages that bookmarks ask for by their address; 0 until they are written.
    QHash<QByteArray, qint64> m_bookmarkedPages;
};

struct PlacesWriter::Statements {
    explicit Statements(Database &database);

    Statement origin;
    Statement page;
    Statement visit;
    Statement bookmark;
    Statement reference;
};

PlacesWriter::Statements::Statements(Database &database)
    : origin(database.prepare("INSERT INTO moz_origins(prefix, host, frecency) VALUES(?, ?, 100)")),
      page(database.prepare("INSERT INTO moz_places(id, url, title, rev_host, visit_count, hidden, frecency,"
                            " last_visit_date, guid, url_hash, origin_id)"
                            " VALUES(?, ?, ?, ?, ?, ?, 100, ?, ?, ?, ?)")),
      visit(database.prepare("INSERT INTO moz_historyvisits(from_visit, place_id, visit_date, visit_type,"
                             " session) VALUES(0, ?, ?, ?, 0)")),
      bookmark(database.prepare("REPLACE INTO moz_bookmarks(id, type, fk, parent, position, title, dateAdded,"
                                " lastModified, guid) VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?)")),
      reference(database.prepare("UPDATE moz_places SET foreign_count = foreign_count + 1 WHERE id = ?"))
{
}

PlacesWriter::PlacesWriter(const Rows<FirefoxPage> &pages, const Rows<FirefoxBookmarkRow> &bookmarks)
    : m_pages(pages), m_bookmarks(bookmarks)
{
    for (qsizetype index = 0; index < bookmarks.count(); ++index) {
        if (const auto url = bookmarks.at(index).url.bytes())
            m_bookmarkedPages.insert(*url, 0);
    }
}

void PlacesWriter::write(Database &database, Share share)
{
    Statements statements(database);
    const auto [first, end] = share.of(m_pages.count());
    for (qsizetype index = first; index < end; ++index)
        insertPage(database, statements, m_pages.at(index));
    // Only then is it known which of their pages were visited.
    for (qsizetype index = 0; index < m_bookmarks.count() && share.which != Share::Which::Earlier; ++index)
        insertBookmark(database, statements, m_bookmarks.at(index));
}

qint64 PlacesWriter::insertPage(Database &database, Statements &statements, const FirefoxPage &page)
{
    Text reversedHost;
    std::optional<qint64> originID;
    if (const auto &url = page.url.bytes()) {
        const Origin origin(*url);
        reversedHost = Text::raw(origin.reversedHost);
        qint64 &known = m_origins[origin.prefix + origin.host];
        if (known == 0) {
            statements.origin.run(Text::raw(origin.prefix), Text::raw(origin.host));
            known = database.lastKey();
        }
        originID = known;
    }
    statements.page.run(page.id, page.url, page.title, reversedHost, page.visitCount, page.hidden,
                        page.lastVisitDate, guidOf("moz_places", ++m_writtenPages), addressHash(page.url),
                        originID);
    const qint64 id = database.lastKey();
    if (page.lastVisitDate.value_or(0) > 0)
        statements.visit.run(id, *page.lastVisitDate, followedLink);
    if (const auto &url = page.url.bytes(); url && !m_bookmarkedPages.isEmpty()) {
        if (const auto wanted = m_bookmarkedPages.find(*url); wanted != m_bookmarkedPages.end())
            *wanted = id;
    }
    return id;
}

void PlacesWriter::insertBookmark(Database &database, Statements &statements, const FirefoxBookmarkRow &row)
{
    const std::optional<qint64> page = pageOf(database, statements, row);
    statements.bookmark.run(row.id, row.type, page, row.parent, row.position, row.title, row.dateAdded,
                            row.dateAdded,
                            row.guid ? *row.guid : guidOf("moz_bookmarks", ++m_writtenBookmarks));
    if (page)
        statements.reference.run(*page);
}

std::optional<qint64> PlacesWriter::pageOf(Database &database, Statements &statements,
                                           const FirefoxBookmarkRow &row)
{
    const auto &url = row.url.bytes();
    if (!url)
        return row.page;
    if (const qint64 known = m_bookmarkedPages.value(*url))
        return known;
    return insertPage(database, statements, {.url = row.url, .title = row.title, .visitCount = 0});
}

/// Numbers nodes and turns them into rows.
class RowCollector final
{
public:
    void add(const QList<FirefoxNode> &nodes, qint64 parent);
    /// All rows; those of the tags are the last.
    QList<FirefoxBookmarkRow> finish();

private:
    qint64 append(FirefoxBookmarkRow row)
    {
        row.id = firefox_folder::firstFree + m_rows.size();
        m_rows.append(row);
        return *row.id;
    }

    QList<FirefoxBookmarkRow> m_rows;
    QMap<QString, QList<Text>> m_taggedURLs;
};

void RowCollector::add(const QList<FirefoxNode> &nodes, qint64 parent)
{
    for (qint64 position = 0; const FirefoxNode &node : nodes) {
        const qint64 id = append({.type = node.type,
                                  .parent = parent,
                                  .position = position++,
                                  .title = node.title,
                                  .url = node.url,
                                  .dateAdded = node.dateAdded,
                                  .guid = node.guid});
        for (const QString &tag : node.tags)
            m_taggedURLs[tag].append(node.url);
        add(node.children, id);
    }
}

QList<FirefoxBookmarkRow> RowCollector::finish()
{
    for (qint64 position = 0; const auto &[tag, urls] : m_taggedURLs.asKeyValueRange()) {
        const qint64 folder = append({.type = FirefoxBookmarkRow::folder,
                                      .parent = firefox_folder::tags,
                                      .position = position++,
                                      .title = tag,
                                      .dateAdded = someTime});
        for (qint64 inFolder = 0; const Text &url : urls)
            append({.parent = folder, .position = inFolder++, .url = url, .dateAdded = someTime});
    }
    return std::exchange(m_rows, {});
}

/// An INI file in the making.
class IniText final
{
public:
    struct Entry {
        QString key;
        QString value;
    };

    explicit IniText(const IniStyle &style) : m_style(style) {}

    void add(const QString &section, const QList<Entry> &entries);
    QByteArray bytes() const;

private:
    IniStyle m_style;
    QString m_text;
};

void IniText::add(const QString &section, const QList<Entry> &entries)
{
    if (m_style.hasComments)
        m_text += u";[Commented]\n#[Commented]\n";
    m_text += u'[' % section % u"]\n";
    for (const Entry &entry : entries) {
        if (m_style.hasComments)
            m_text += u";%1=comment\n#%1=comment\n"_s.arg(entry.key);
        if (m_style.repeatsKeys)
            m_text += entry.key % u"=an earlier value\n";
        m_text += entry.key % u'=' % entry.value % u'\n';
    }
    m_text += u'\n';
}

QByteArray IniText::bytes() const
{
    QByteArray bytes = m_text.toUtf8();
    if (m_style.hasWindowsLineEnds)
        bytes.replace("\n", "\r\n");
    return m_style.hasByteOrderMark ? "\xef\xbb\xbf" + bytes : bytes;
}

} // namespace

FirefoxNode firefoxBookmark(const QString &title, const QString &url, qint64 dateAdded,
                            const QStringList &tags)
{
    return {.title = title, .url = url, .dateAdded = dateAdded, .tags = tags};
}

FirefoxNode firefoxFolder(const QString &title, const QList<FirefoxNode> &children)
{
    return {.type = FirefoxBookmarkRow::folder, .title = title, .dateAdded = someTime, .children = children};
}

FirefoxNode firefoxSeparator()
{
    return {.type = FirefoxBookmarkRow::separator, .title = u""_s, .dateAdded = someTime};
}

QList<FirefoxBookmarkRow> firefoxBookmarkRows(const FirefoxBookmarks &bookmarks)
{
    RowCollector rows;
    rows.add(bookmarks.toolbar, firefox_folder::toolbar);
    rows.add(bookmarks.menu, firefox_folder::menu);
    rows.add(bookmarks.unfiled, firefox_folder::unfiled);
    rows.add(bookmarks.mobile, firefox_folder::mobile);
    return rows.finish();
}

void writeFirefoxPlaces(const QString &path, const Rows<FirefoxPage> &pages,
                        const Rows<FirefoxBookmarkRow> &bookmarks, Journal journal)
{
    PlacesWriter writer(pages, bookmarks);
    writeDatabase(path,
                  {.tables = placesTables,
                   .indexes = placesIndexes,
                   .fill = [&](Database &database, Share share) { writer.write(database, share); },
                   .unfinishedChange = "UPDATE moz_places SET hidden = 1 - hidden"
                                       " WHERE id IN (SELECT id FROM moz_places ORDER BY id LIMIT 2000)",
                   .unfinishedBulk =
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                       " INSERT INTO moz_meta SELECT 'unfinished' || i, zeroblob(600) FROM n",
                   .pageSize = firefoxPageSize,
                   .isWalDatabase = true,
                   .hasSharedMemory = false},
                  journal);
}

void writeFirefoxFavicons(const QString &path, const Rows<FirefoxIcon> &icons,
                          const Rows<FirefoxIconPage> &pages, Journal journal)
{
    const auto fill = [&](Database &database, Share share) {
        Statement insertIcon =
            database.prepare("INSERT INTO moz_icons(id, icon_url, fixed_icon_url_hash, width, root, "
                             "expire_ms, data) VALUES(?, ?, ?, ?, ?, ?, ?)");
        Statement insertPage =
            database.prepare("INSERT INTO moz_pages_w_icons(page_url, page_url_hash) VALUES(?, ?)");
        Statement insertMapping =
            database.prepare("INSERT INTO moz_icons_to_pages(page_id, icon_id, expire_ms) VALUES(?, ?, ?)");
        const auto [firstIcon, endIcon] = share.of(icons.count());
        for (qsizetype index = firstIcon; index < endIcon; ++index) {
            const FirefoxIcon icon = icons.at(index);
            insertIcon.run(icon.id, icon.url, iconAddressHash(icon.url), icon.width, icon.root, neverExpires,
                           icon.data);
        }
        const auto [firstPage, endPage] = share.of(pages.count());
        for (qsizetype index = firstPage; index < endPage; ++index) {
            const FirefoxIconPage page = pages.at(index);
            insertPage.run(page.url, addressHash(page.url));
            for (const qint64 id = database.lastKey(); const qint64 icon : page.icons)
                insertMapping.run(id, icon, neverExpires);
        }
    };
    writeDatabase(path,
                  {.tables = firefoxIconTables,
                   .indexes = firefoxIconIndexes,
                   .fill = fill,
                   .unfinishedChange = "UPDATE moz_icons SET data = zeroblob(length(data))"
                                       " WHERE data IS NOT NULL",
                   .unfinishedBulk =
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                       " INSERT INTO moz_pages_w_icons(page_url, page_url_hash)"
                       " SELECT 'about:' || hex(zeroblob(300)), 0 FROM n",
                   .pageSize = firefoxPageSize,
                   .isWalDatabase = true,
                   .hasSharedMemory = false},
                  journal);
}

void writeFirefoxProfiles(const QString &path, const QList<FirefoxProfile> &profiles,
                          const QList<FirefoxInstall> &installs, const IniStyle &style)
{
    IniText text(style);
    for (qsizetype index = profiles.size() - 1; index >= 0; --index) {
        const FirefoxProfile &profile = profiles.at(index);
        const QString header = u"Profile%1"_s.arg(index * style.step);
        QList<IniText::Entry> entries{{u"Name"_s, profile.name},
                                      {u"IsRelative"_s, profile.isRelative ? u"1"_s : u"0"_s},
                                      {u"Path"_s, profile.path}};
        if (!profile.storeID.isEmpty())
            entries += {{u"StoreID"_s, profile.storeID}, {u"ShowSelector"_s, u"1"_s}};
        if (profile.isDefault)
            entries += {u"Default"_s, u"1"_s};
        const qsizetype first = style.splitsSections ? 1 : entries.size();
        text.add(header, entries.first(first));
        if (style.splitsSections)
            text.add(header, entries.sliced(first));
    }
    text.add(u"General"_s, {{u"StartWithLastProfile"_s, u"1"_s}, {u"Version"_s, u"2"_s}});
    for (const FirefoxInstall &install : installs)
        text.add(u"Install" % install.hash, {{u"Default"_s, install.defaultPath}, {u"Locked"_s, u"1"_s}});
    writeFile(path, text.bytes());
}

void writeFirefoxGroup(const QString &path, const Rows<FirefoxGroupProfile> &profiles, Journal journal)
{
    const auto fill = [&](Database &database, Share share) {
        Statement insert = database.prepare("INSERT INTO Profiles(path, name, avatar, themeId, themeFg, "
                                            "themeBg) VALUES(?, ?, ?, ?, ?, ?)");
        const Text theme(u"default-theme@mozilla.org"_s);
        const auto [first, end] = share.of(profiles.count());
        for (qsizetype index = first; index < end; ++index) {
            const FirefoxGroupProfile profile = profiles.at(index);
            insert.run(Text(profile.path), Text(profile.name), Text(profile.avatar), theme,
                       Text(u"rgb(21, 20, 26)"_s), Text(u"rgb(240, 240, 244)"_s));
        }
    };
    writeDatabase(
        path,
        {.tables = groupTables,
         .fill = fill,
         .unfinishedChange = "UPDATE Profiles SET name = upper(name)",
         .unfinishedBulk =
             "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
             " INSERT INTO SharedPrefs(name, value) SELECT 'unfinished.' || i, zeroblob(600) FROM n",
         .pageSize = firefoxPageSize,
         .isWalDatabase = true},
        journal);
}

} // namespace roamlet::sample
