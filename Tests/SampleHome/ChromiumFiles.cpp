// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/ChromiumFiles.h"

#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleText.h"

#include <QJsonDocument>

#include <array>
#include <utility>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

// The tables and indexes as Chromium 156 creates them.

constexpr auto historyTables = R"(
CREATE TABLE meta(key LONGVARCHAR NOT NULL UNIQUE PRIMARY KEY, value LONGVARCHAR);
INSERT INTO meta VALUES('mmap_status','-1'),('version','70'),('last_compatible_version','16');
CREATE TABLE urls(id INTEGER PRIMARY KEY AUTOINCREMENT,url LONGVARCHAR,title LONGVARCHAR,visit_count INTEGER DEFAULT 0 NOT NULL,typed_count INTEGER DEFAULT 0 NOT NULL,last_visit_time INTEGER NOT NULL,hidden INTEGER DEFAULT 0 NOT NULL);
CREATE TABLE visits(id INTEGER PRIMARY KEY AUTOINCREMENT,url INTEGER NOT NULL,visit_time INTEGER NOT NULL,from_visit INTEGER,external_referrer_url TEXT,transition INTEGER DEFAULT 0 NOT NULL,segment_id INTEGER,visit_duration INTEGER DEFAULT 0 NOT NULL,incremented_omnibox_typed_score BOOLEAN DEFAULT FALSE NOT NULL,opener_visit INTEGER,originator_cache_guid TEXT,originator_visit_id INTEGER,originator_from_visit INTEGER,originator_opener_visit INTEGER,is_known_to_sync BOOLEAN DEFAULT FALSE NOT NULL,consider_for_ntp_most_visited BOOLEAN DEFAULT FALSE NOT NULL,visited_link_id INTEGER DEFAULT 0 NOT NULL,app_id TEXT);
CREATE TABLE visit_source(id INTEGER PRIMARY KEY,source INTEGER NOT NULL);
CREATE TABLE keyword_search_terms (keyword_id INTEGER NOT NULL,url_id INTEGER NOT NULL,term LONGVARCHAR NOT NULL,normalized_term LONGVARCHAR NOT NULL);
CREATE TABLE downloads (id INTEGER PRIMARY KEY,guid VARCHAR NOT NULL,current_path LONGVARCHAR NOT NULL,target_path LONGVARCHAR NOT NULL,start_time INTEGER NOT NULL,received_bytes INTEGER NOT NULL,total_bytes INTEGER NOT NULL,state INTEGER NOT NULL,danger_type INTEGER NOT NULL,interrupt_reason INTEGER NOT NULL,hash BLOB NOT NULL,end_time INTEGER NOT NULL,opened INTEGER NOT NULL,last_access_time INTEGER NOT NULL,transient INTEGER NOT NULL,referrer VARCHAR NOT NULL,site_url VARCHAR NOT NULL,embedder_download_data VARCHAR NOT NULL,tab_url VARCHAR NOT NULL,tab_referrer_url VARCHAR NOT NULL,http_method VARCHAR NOT NULL,by_ext_id VARCHAR NOT NULL,by_ext_name VARCHAR NOT NULL,by_web_app_id VARCHAR NOT NULL,etag VARCHAR NOT NULL,last_modified VARCHAR NOT NULL,mime_type VARCHAR(255) NOT NULL,original_mime_type VARCHAR(255) NOT NULL);
CREATE TABLE downloads_url_chains (id INTEGER NOT NULL,chain_index INTEGER NOT NULL,url LONGVARCHAR NOT NULL, PRIMARY KEY (id, chain_index) );
CREATE TABLE downloads_slices (download_id INTEGER NOT NULL,offset INTEGER NOT NULL,received_bytes INTEGER NOT NULL,finished INTEGER NOT NULL DEFAULT 0,PRIMARY KEY (download_id, offset) );
CREATE TABLE segments (id INTEGER PRIMARY KEY,name VARCHAR,url_id INTEGER NON NULL);
CREATE TABLE segment_usage (id INTEGER PRIMARY KEY,segment_id INTEGER NOT NULL,time_slot INTEGER NOT NULL,visit_count INTEGER DEFAULT 0 NOT NULL);
CREATE TABLE content_annotations(visit_id INTEGER PRIMARY KEY,visibility_score NUMERIC,floc_protected_score NUMERIC,categories VARCHAR,page_topics_model_version INTEGER,annotation_flags INTEGER NOT NULL,entities VARCHAR,related_searches VARCHAR,search_normalized_url VARCHAR,search_terms LONGVARCHAR,alternative_title VARCHAR,page_language VARCHAR,password_state INTEGER DEFAULT 0 NOT NULL,has_url_keyed_image BOOLEAN NOT NULL);
CREATE TABLE context_annotations(visit_id INTEGER PRIMARY KEY,context_annotation_flags INTEGER NOT NULL,duration_since_last_visit INTEGER,page_end_reason INTEGER,total_foreground_duration INTEGER,browser_type INTEGER DEFAULT 0 NOT NULL,window_id INTEGER DEFAULT -1 NOT NULL,tab_id INTEGER DEFAULT -1 NOT NULL,task_id INTEGER DEFAULT -1 NOT NULL,root_task_id INTEGER DEFAULT -1 NOT NULL,parent_task_id INTEGER DEFAULT -1 NOT NULL,response_code INTEGER DEFAULT 0 NOT NULL);
CREATE TABLE clusters(cluster_id INTEGER PRIMARY KEY AUTOINCREMENT,should_show_on_prominent_ui_surfaces BOOLEAN NOT NULL,label VARCHAR NOT NULL,raw_label VARCHAR NOT NULL,triggerability_calculated BOOLEAN NOT NULL,originator_cache_guid TEXT NOT NULL,originator_cluster_id INTEGER NOT NULL);
CREATE TABLE clusters_and_visits(cluster_id INTEGER NOT NULL,visit_id INTEGER NOT NULL,score NUMERIC DEFAULT 0 NOT NULL,engagement_score NUMERIC DEFAULT 0 NOT NULL,url_for_deduping LONGVARCHAR NOT NULL,normalized_url LONGVARCHAR NOT NULL,url_for_display LONGVARCHAR NOT NULL,interaction_state INTEGER DEFAULT 0 NOT NULL,PRIMARY KEY(cluster_id,visit_id))WITHOUT ROWID;
CREATE TABLE cluster_keywords(cluster_id INTEGER NOT NULL,keyword VARCHAR NOT NULL,type INTEGER NOT NULL,score NUMERIC NOT NULL,collections VARCHAR NOT NULL);
CREATE TABLE cluster_visit_duplicates(visit_id INTEGER NOT NULL,duplicate_visit_id INTEGER NOT NULL,PRIMARY KEY(visit_id,duplicate_visit_id))WITHOUT ROWID;
CREATE TABLE visited_links(id INTEGER PRIMARY KEY AUTOINCREMENT,link_url_id INTEGER NOT NULL,top_level_url LONGVARCHAR NOT NULL,frame_url LONGVARCHAR NOT NULL,visit_count INTEGER DEFAULT 0 NOT NULL);
CREATE TABLE history_sync_metadata (storage_key INTEGER PRIMARY KEY NOT NULL, value BLOB);
)";

constexpr auto historyIndexes = R"(
CREATE INDEX visits_url_index ON visits (url);
CREATE INDEX visits_from_index ON visits (from_visit);
CREATE INDEX visits_time_index ON visits (visit_time);
CREATE INDEX visits_originator_id_index ON visits (originator_visit_id);
CREATE INDEX keyword_search_terms_index1 ON keyword_search_terms (keyword_id, normalized_term);
CREATE INDEX keyword_search_terms_index2 ON keyword_search_terms (url_id);
CREATE INDEX keyword_search_terms_index3 ON keyword_search_terms (term);
CREATE INDEX segments_name ON segments(name);
CREATE INDEX segments_url_id ON segments(url_id);
CREATE INDEX segment_usage_time_slot_segment_id ON segment_usage(time_slot, segment_id);
CREATE INDEX segments_usage_seg_id ON segment_usage(segment_id);
CREATE INDEX clusters_for_visit ON clusters_and_visits(visit_id);
CREATE INDEX cluster_keywords_cluster_id_index ON cluster_keywords(cluster_id);
CREATE INDEX visited_links_index ON visited_links (link_url_id, top_level_url, frame_url);
CREATE INDEX urls_url_index ON urls (url);
)";

constexpr auto faviconTables = R"(
CREATE TABLE meta(key LONGVARCHAR NOT NULL UNIQUE PRIMARY KEY, value LONGVARCHAR);
INSERT INTO meta VALUES('mmap_status','-1'),('version','9'),('last_compatible_version','9');
CREATE TABLE icon_mapping(id INTEGER PRIMARY KEY,page_url LONGVARCHAR NOT NULL,icon_id INTEGER,page_url_type INTEGER DEFAULT 0);
CREATE TABLE favicons(id INTEGER PRIMARY KEY,url LONGVARCHAR NOT NULL,icon_type INTEGER DEFAULT 1);
CREATE TABLE favicon_bitmaps(id INTEGER PRIMARY KEY,icon_id INTEGER NOT NULL,last_updated INTEGER DEFAULT 0,image_data BLOB,width INTEGER DEFAULT 0,height INTEGER DEFAULT 0,last_requested INTEGER DEFAULT 0);
)";

constexpr auto faviconIndexes = R"(
CREATE INDEX icon_mapping_page_url_idx ON icon_mapping(page_url);
CREATE INDEX icon_mapping_icon_id_idx ON icon_mapping(icon_id);
CREATE INDEX favicons_url ON favicons(url);
CREATE INDEX favicon_bitmaps_icon_id ON favicon_bitmaps(icon_id);
)";

constexpr qint64 typedInTheAddressBar = 0x30000001; // a whole redirect chain of one page

QByteArray indented(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace

void writeHistory(const QString &path, const Rows<HistoryRow> &rows, Journal journal)
{
    const auto fill = [&rows](Database &database, Share share) {
        Statement insertURL = database.prepare("INSERT INTO urls(id, url, title, visit_count, "
                                               "last_visit_time, hidden) VALUES(?, ?, ?, ?, ?, ?)");
        Statement insertVisit = database.prepare(
            "INSERT INTO visits(url, visit_time, from_visit, transition, segment_id, opener_visit,"
            " consider_for_ntp_most_visited) VALUES(?, ?, 0, ?, 0, 0, 1)");
        const auto [first, end] = share.of(rows.count());
        for (qsizetype index = first; index < end; ++index) {
            const HistoryRow row = rows.at(index);
            insertURL.run(row.id, row.url, row.title, row.visitCount, row.lastVisitTime, row.hidden);
            if (row.lastVisitTime > 0)
                insertVisit.run(database.lastKey(), row.lastVisitTime, typedInTheAddressBar);
        }
    };
    writeDatabase(path,
                  {.tables = historyTables,
                   .indexes = historyIndexes,
                   .fill = fill,
                   .unfinishedChange = "UPDATE urls SET hidden = 1 - hidden"
                                       " WHERE id IN (SELECT id FROM urls ORDER BY id LIMIT 2000)",
                   .unfinishedBulk =
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                       " INSERT INTO history_sync_metadata SELECT i, zeroblob(600) FROM n"},
                  journal);
}

void writeFavicons(const QString &path, const Rows<FaviconBitmap> &bitmaps,
                   const Rows<FaviconMapping> &mappings, Journal journal)
{
    const auto fill = [&](Database &database, Share share) {
        Statement insertIcon = database.prepare("INSERT OR IGNORE INTO favicons(id, url) VALUES(?, ?)");
        Statement insertBitmap = database.prepare("INSERT INTO favicon_bitmaps(icon_id, last_updated, "
                                                  "image_data, width, height) VALUES(?, 1, ?, ?, ?)");
        Statement insertMapping =
            database.prepare("INSERT INTO icon_mapping(page_url, icon_id) VALUES(?, ?)");
        const auto [firstBitmap, endBitmap] = share.of(bitmaps.count());
        for (qsizetype index = firstBitmap; index < endBitmap; ++index) {
            const FaviconBitmap bitmap = bitmaps.at(index);
            insertIcon.run(bitmap.iconID, Text(u"https://icons.test/%1.png"_s.arg(bitmap.iconID)));
            insertBitmap.run(bitmap.iconID, bitmap.image, bitmap.width, bitmap.width);
        }
        const auto [firstMapping, endMapping] = share.of(mappings.count());
        for (qsizetype index = firstMapping; index < endMapping; ++index) {
            const FaviconMapping mapping = mappings.at(index);
            insertMapping.run(mapping.pageURL, mapping.iconID);
        }
    };
    writeDatabase(path,
                  {.tables = faviconTables,
                   .indexes = faviconIndexes,
                   .fill = fill,
                   .unfinishedChange = "UPDATE favicon_bitmaps SET image_data = zeroblob(length(image_data))"
                                       " WHERE image_data IS NOT NULL",
                   .unfinishedBulk =
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                       " INSERT INTO meta SELECT 'unfinished' || i, hex(zeroblob(300)) FROM n",
                   .pageSize = 2048},
                  journal);
}

QJsonObject bookmarkNode(const QString &id, const QString &name, const QString &url, qint64 dateAdded)
{
    return {{u"id"_s, id},
            {u"name"_s, name},
            {u"type"_s, u"url"_s},
            {u"url"_s, url},
            {u"date_added"_s, QString::number(dateAdded)},
            {u"date_last_used"_s, u"0"_s}};
}

QJsonObject folderNode(const QString &id, const QString &name, const QJsonArray &children)
{
    return {{u"id"_s, id},
            {u"name"_s, name},
            {u"type"_s, u"folder"_s},
            {u"children"_s, children},
            {u"date_added"_s, u"0"_s},
            {u"date_modified"_s, u"0"_s}};
}

void writeBookmarks(const QString &path, const QJsonObject &roots)
{
    writeFile(path, indented({{u"checksum"_s, QString()}, {u"roots"_s, roots}, {u"version"_s, 1}}));
}

void writeDeepBookmarks(const QString &path, qsizetype folders)
{
    const QByteArray open = R"({"type":"folder","name":"f","children":[)";
    writeFile(path, R"({"roots": {"bookmark_bar": )" + open.repeated(folders) +
                        R"({"type": "url", "name": "deep", "url": "https://a.example/"})" +
                        QByteArray("]}").repeated(folders) + "}}");
}

QJsonObject operaCustomRoot(const QMap<QString, QJsonArray> &children)
{
    constexpr std::array<std::pair<QStringView, QStringView>, 5> folders{
        {{u"pinboard", u"Pinboard"},
         {u"speedDial", u"Speed Dial"},
         {u"trash", u"Trash"},
         {u"unsorted", u"Unsorted Bookmarks"},
         {u"userRoot", u"User Root"}}};
    QJsonObject root;
    for (qint64 id = 1'000'000; const auto &[key, name] : folders)
        root.insert(key, folderNode(QString::number(id++), name.toString(), children.value(key.toString())));
    return root;
}

void writeEncryptedBookmarks(const QString &path, const QByteArray &beginning)
{
    Random random(quint64(beginning.size()));
    QByteArray bytes = beginning;
    while (bytes.size() < 400)
        bytes.append(char(random.below(256)));
    writeFile(path, bytes);
}

QJsonObject profileInfo(const QString &name)
{
    return {{u"name"_s, name},
            {u"is_using_default_name"_s, false},
            {u"is_ephemeral"_s, false},
            {u"active_time"_s, 1'700'000'000.0},
            {u"avatar_icon"_s, u"chrome://theme/IDR_PROFILE_AVATAR_26"_s},
            {u"user_name"_s, u""_s}};
}

QJsonObject ephemeralProfileInfo(const QString &name)
{
    QJsonObject info = profileInfo(name);
    info.insert(u"is_ephemeral"_s, true);
    return info;
}

void writeLocalState(const QString &path, const QJsonObject &infoCache)
{
    const QJsonObject profile{{u"info_cache"_s, infoCache},
                              {u"last_active_profiles"_s, QJsonArray()},
                              {u"last_used"_s, u"Default"_s},
                              {u"profiles_order"_s, QJsonArray::fromStringList(infoCache.keys())}};
    const QJsonObject localState{{u"browser"_s, QJsonObject{{u"enabled_labs_experiments"_s, QJsonArray()}}},
                                 {u"profile"_s, profile},
                                 {u"was"_s, QJsonObject{{u"restarted"_s, false}}}};
    writeFile(path, QJsonDocument(localState).toJson(QJsonDocument::Compact));
}

} // namespace roamlet::sample
