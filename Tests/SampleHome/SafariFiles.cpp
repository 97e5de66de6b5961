// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/SafariFiles.h"

#include "SampleHome/PlainFiles.h"

#include <QCryptographicHash>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

// The tables and indexes as Safari creates them.

constexpr auto safariHistoryTables = R"(
CREATE TABLE history_items (id INTEGER PRIMARY KEY AUTOINCREMENT,url TEXT NOT NULL UNIQUE,domain_expansion TEXT NULL,visit_count INTEGER NOT NULL,daily_visit_counts BLOB NOT NULL,weekly_visit_counts BLOB NULL,autocomplete_triggers BLOB NULL,should_recompute_derived_visit_counts INTEGER NOT NULL,visit_count_score INTEGER NOT NULL,status_code INTEGER NOT NULL DEFAULT 0);
CREATE TABLE history_visits (id INTEGER PRIMARY KEY AUTOINCREMENT,history_item INTEGER NOT NULL REFERENCES history_items(id) ON DELETE CASCADE,visit_time REAL NOT NULL,title TEXT NULL,load_successful BOOLEAN NOT NULL DEFAULT 1,http_non_get BOOLEAN NOT NULL DEFAULT 0,synthesized BOOLEAN NOT NULL DEFAULT 0,redirect_source INTEGER NULL UNIQUE REFERENCES history_visits(id) ON DELETE CASCADE,redirect_destination INTEGER NULL UNIQUE REFERENCES history_visits(id) ON DELETE CASCADE,origin INTEGER NOT NULL DEFAULT 0,generation INTEGER NOT NULL DEFAULT 0,attributes INTEGER NOT NULL DEFAULT 0,score INTEGER NOT NULL DEFAULT 0);
CREATE TABLE history_tombstones (id INTEGER PRIMARY KEY AUTOINCREMENT,start_time REAL NOT NULL,end_time REAL NOT NULL,url TEXT,generation INTEGER NOT NULL DEFAULT 0);
CREATE TABLE metadata (key TEXT NOT NULL UNIQUE,value);
INSERT INTO metadata VALUES('latestGeneration',1),('next_version',1);
CREATE TABLE history_client_versions (client_version INTEGER PRIMARY KEY,last_seen REAL NOT NULL);
CREATE TABLE history_event_listeners (listener_name TEXT PRIMARY KEY NOT NULL UNIQUE,last_seen REAL NOT NULL);
CREATE TABLE history_events (id INTEGER PRIMARY KEY AUTOINCREMENT,event_type TEXT NOT NULL,event_time REAL NOT NULL,pending_listeners TEXT NOT NULL,value BLOB);
CREATE TABLE history_tags (id INTEGER PRIMARY KEY AUTOINCREMENT,type INTEGER NOT NULL,level INTEGER NOT NULL,identifier TEXT NOT NULL,title TEXT NOT NULL,modification_timestamp REAL NOT NULL,item_count INTEGER NOT NULL DEFAULT 0);
CREATE TABLE history_items_to_tags (history_item INTEGER NOT NULL REFERENCES history_items(id) ON DELETE CASCADE,tag_id INTEGER NOT NULL REFERENCES history_tags(id) ON DELETE CASCADE,timestamp REAL NOT NULL,UNIQUE(history_item,tag_id) ON CONFLICT REPLACE);
)";

constexpr auto safariHistoryIndexes = R"(
CREATE INDEX history_items__domain_expansion ON history_items (domain_expansion);
CREATE INDEX history_visits__last_visit ON history_visits (history_item,visit_time DESC,synthesized ASC);
CREATE INDEX history_visits__origin ON history_visits (origin,generation);
CREATE INDEX history_tombstones__generation ON history_tombstones (generation);
CREATE INDEX history_tombstones__end_time ON history_tombstones (end_time);
CREATE INDEX history_events__event_time ON history_events (event_time);
CREATE INDEX history_tags__identifier ON history_tags (identifier);
)";

constexpr auto tabTables = R"(
CREATE TABLE bookmarks (id INTEGER PRIMARY KEY AUTOINCREMENT,special_id INTEGER DEFAULT 0,parent INTEGER REFERENCES bookmarks(id) ON DELETE CASCADE,type INTEGER,title TEXT,url TEXT COLLATE NOCASE,num_children INTEGER DEFAULT 0,editable INTEGER DEFAULT 1,deletable INTEGER DEFAULT 1,hidden INTEGER DEFAULT 0,hidden_ancestor_count INTEGER DEFAULT 0,order_index INTEGER NOT NULL,external_uuid TEXT UNIQUE,read INTEGER DEFAULT NULL,last_modified REAL DEFAULT NULL,server_id TEXT,sync_key TEXT,sync_data BLOB,added INTEGER DEFAULT 1,deleted INTEGER DEFAULT 0,extra_attributes BLOB DEFAULT NULL,local_attributes BLOB DEFAULT NULL,fetched_icon BOOL DEFAULT 0,icon BLOB DEFAULT NULL,dav_generation INTEGER DEFAULT 0,locally_added BOOL DEFAULT 0,archive_status INTEGER DEFAULT 0,syncable BOOL DEFAULT 1,web_filter_status INTEGER DEFAULT 0,modified_attributes UNSIGNED BIG INT DEFAULT 0,date_closed REAL DEFAULT NULL,last_selected_child INTEGER DEFAULT NULL,subtype INTEGER DEFAULT 0);
CREATE TABLE bookmark_title_words (id INTEGER PRIMARY KEY,bookmark_id INTEGER NOT NULL REFERENCES bookmarks(id) ON DELETE CASCADE,word TEXT,word_index INTEGER);
CREATE TABLE folder_ancestors (id INTEGER PRIMARY KEY,folder_id INTEGER NOT NULL REFERENCES bookmarks(id) ON DELETE CASCADE,ancestor_id INTEGER NOT NULL REFERENCES bookmarks(id) ON DELETE CASCADE);
CREATE TABLE generations (generation INTEGER DEFAULT 0 NOT NULL);
CREATE TABLE sync_properties (key TEXT NOT NULL UNIQUE,value TEXT NOT NULL);
CREATE TABLE settings (id INTEGER PRIMARY KEY AUTOINCREMENT,generation INTEGER NOT NULL,device_identifier TEXT,setting TEXT NOT NULL,value);
CREATE TABLE windows (id INTEGER PRIMARY KEY AUTOINCREMENT,active_tab_group_id INTEGER,date_closed REAL,extra_attributes BLOB,is_last_session INTEGER,local_tab_group_id INTEGER,private_tab_group_id INTEGER,scene_id TEXT,tab_group_count INTEGER,uuid TEXT UNIQUE NOT NULL);
INSERT INTO bookmarks(id,special_id,parent,type,title,order_index,editable,deletable,server_id,subtype) VALUES(0,0,NULL,1,'Root',0,0,0,'Root',0);
INSERT INTO bookmarks(special_id,parent,type,title,order_index,external_uuid,server_id,subtype) VALUES(2,0,1,'',0,'DefaultProfile','DefaultProfile',2);
)";

constexpr auto tabIndexes = R"(
CREATE INDEX bookmarks_parent_index ON bookmarks (parent);
CREATE INDEX bookmarks_type_index ON bookmarks (type);
CREATE INDEX bookmarks_order_index ON bookmarks (order_index);
CREATE INDEX bookmarks_deleted_index ON bookmarks (deleted);
)";

constexpr auto safariIconTables = R"(
CREATE TABLE database_info (key TEXT NOT NULL UNIQUE ON CONFLICT REPLACE,value TEXT NOT NULL);
CREATE TABLE page_url (url TEXT PRIMARY KEY ON CONFLICT REPLACE,uuid TEXT);
CREATE TABLE icon_info (uuid TEXT PRIMARY KEY NOT NULL ON CONFLICT REPLACE,url TEXT NOT NULL,timestamp REAL NOT NULL,width INTEGER,height INTEGER,has_generated_representations INTEGER);
CREATE TABLE rejected_resources (page_url TEXT,icon_url TEXT,timestamp REAL NOT NULL);
)";

constexpr auto safariIconIndexes = R"(
CREATE INDEX page_url_uuid ON page_url (uuid);
CREATE INDEX icon_info_url ON icon_info (url);
)";

} // namespace

void writeSafariHistory(const QString &path, const Rows<SafariItem> &items, const Rows<SafariVisit> &visits,
                        Journal journal)
{
    const auto fill = [&](Database &database, Share share) {
        Statement insertItem = database.prepare("INSERT INTO history_items(id, url, visit_count, "
                                                "daily_visit_counts, should_recompute_derived_visit_counts,"
                                                " visit_count_score) VALUES(?, ?, ?, x'64000000', 0, 100)");
        Statement insertVisit =
            database.prepare("INSERT INTO history_visits(history_item, visit_time, title) VALUES(?, ?, ?)");
        const auto [firstItem, endItem] = share.of(items.count());
        for (qsizetype index = firstItem; index < endItem; ++index) {
            const SafariItem item = items.at(index);
            insertItem.run(item.id, item.url, item.visitCount);
        }
        const auto [firstVisit, endVisit] = share.of(visits.count());
        for (qsizetype index = firstVisit; index < endVisit; ++index) {
            const SafariVisit visit = visits.at(index);
            insertVisit.run(visit.itemID, visit.time, visit.title);
        }
    };
    writeDatabase(path,
                  {.tables = safariHistoryTables,
                   .indexes = safariHistoryIndexes,
                   .fill = fill,
                   .unfinishedChange = "UPDATE history_visits SET title = upper(title)"
                                       " WHERE id IN (SELECT id FROM history_visits ORDER BY id LIMIT 2000)",
                   .unfinishedBulk =
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                       " INSERT INTO metadata SELECT 'unfinished' || i, zeroblob(600) FROM n",
                   .isWalDatabase = true},
                  journal);
}

void writeSafariTabs(const QString &path, const Rows<SafariProfileRow> &rows, Journal journal)
{
    const auto fill = [&rows](Database &database, Share share) {
        Statement insert = database.prepare("INSERT INTO bookmarks(parent, type, title, order_index, "
                                            "server_id, extra_attributes, subtype, deleted)"
                                            " VALUES(0, 1, ?, ?, ?, ?, ?, ?)");
        const auto [first, end] = share.of(rows.count());
        for (qsizetype index = first; index < end; ++index) {
            const SafariProfileRow row = rows.at(index);
            insert.run(row.title, row.orderIndex.value_or(index), row.serverID, row.extraAttributes,
                       row.subtype, row.deleted);
        }
    };
    writeDatabase(path,
                  {.tables = tabTables,
                   .indexes = tabIndexes,
                   .fill = fill,
                   .unfinishedChange = "UPDATE bookmarks SET title = upper(title)",
                   .unfinishedBulk =
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                       " INSERT INTO sync_properties SELECT 'unfinished' || i, hex(zeroblob(300)) FROM n",
                   .isWalDatabase = true},
                  journal);
}

void writeSafariFavicons(const QString &folder, const Rows<SafariIcon> &icons,
                         const Rows<SafariIconPage> &pages, Journal journal)
{
    const QString images = folder % u"/favicons/";
    makeFolder(images);
    const auto fill = [&](Database &database, Share share) {
        Statement insertIcon = database.prepare(
            "INSERT INTO icon_info(uuid, url, timestamp, width, height, has_generated_representations)"
            " VALUES(?, 'https://icons.test/' || ?, ?, 32, 32, 1)");
        Statement insertPage = database.prepare("INSERT INTO page_url(url, uuid) VALUES(?, ?)");
        const auto [firstIcon, endIcon] = share.of(icons.count());
        for (qsizetype index = firstIcon; index < endIcon; ++index) {
            const SafariIcon icon = icons.at(index);
            insertIcon.run(icon.uuid, icon.uuid, icon.timestamp);
            if (icon.image)
                writeFile(images % safariIconFileName(icon.uuid.bytes().value_or(QByteArray())), *icon.image);
        }
        const auto [firstPage, endPage] = share.of(pages.count());
        for (qsizetype index = firstPage; index < endPage; ++index) {
            const SafariIconPage page = pages.at(index);
            insertPage.run(page.url, page.uuid);
        }
    };
    writeDatabase(folder % u"/favicons.db",
                  {.tables = safariIconTables,
                   .indexes = safariIconIndexes,
                   .fill = fill,
                   .unfinishedChange = "UPDATE icon_info SET timestamp = -timestamp",
                   .unfinishedBulk =
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                       " INSERT INTO rejected_resources SELECT 'unfinished', hex(zeroblob(300)), i FROM n",
                   .isWalDatabase = true},
                  journal);
}

QString safariIconFileName(const QByteArray &uuid)
{
    return QString::fromLatin1(QCryptographicHash::hash(uuid, QCryptographicHash::Md5).toHex().toUpper());
}

QVariantMap safariBookmark(const QString &uuid, const QString &title, const QString &url,
                           const QDateTime &dateAdded)
{
    return {{u"WebBookmarkType"_s, u"WebBookmarkTypeLeaf"_s},
            {u"WebBookmarkUUID"_s, uuid},
            {u"URLString"_s, url},
            {u"URIDictionary"_s, QVariantMap{{u"title"_s, title}}},
            {u"dateAdded"_s, dateAdded}};
}

QVariantMap safariFolder(const QString &uuid, const QString &title, const QVariantList &children,
                         const QString &serverID)
{
    QVariantMap folder{{u"WebBookmarkType"_s, u"WebBookmarkTypeList"_s},
                       {u"WebBookmarkUUID"_s, uuid},
                       {u"Title"_s, title},
                       {u"Children"_s, children}};
    if (!serverID.isEmpty())
        folder.insert(u"Sync"_s, QVariantMap{{u"ServerID"_s, serverID}});
    return folder;
}

} // namespace roamlet::sample
