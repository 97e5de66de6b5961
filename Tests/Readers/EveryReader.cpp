// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/EveryReader.h"

#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/FaviconReader.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/SafariFiles.h"

#include <cmath>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int rowCount = 120;

QString urlOf(qint64 number)
{
    return u"https://www.site%1.example/path/%2"_s.arg(number % 20).arg(number);
}

/// The error of a read, after a look at everything that it handed out.
template<typename Result>
std::optional<ReadError> errorOf(const std::expected<Result, ReadError> &result, const auto &look)
{
    if (!result)
        return result.error();
    look(*result);
    return {};
}

void lookAtItems(const QList<HistoryItem> &items)
{
    for (const HistoryItem &item : items) {
        EXPECT_TRUE(item.id.startsWith(item.source.id() + u'/'));
        EXPECT_TRUE(!item.title.isEmpty() || item.url.isEmpty());
        EXPECT_EQ(item.searchKey.size() > 0, true);
    }
    EXPECT_LE(items.size(), HistoryQuery::defaultLimit);
}

void lookAtNodes(const QList<BookmarkNode> &nodes)
{
    for (const BookmarkNode &node : nodes) {
        EXPECT_GT(node.bookmarkCount(), 0);
        for (const Bookmark &bookmark : node.flattened({}, {}))
            EXPECT_TRUE(!bookmark.dateAdded || std::isfinite(secondsSince1970(*bookmark.dateAdded)));
    }
}

void lookAtFavicons(const Favicons &favicons)
{
    for (auto favicon = favicons.cbegin(); favicon != favicons.cend(); ++favicon) {
        const auto *data = std::get_if<FaviconData>(&favicon.value());
        EXPECT_TRUE(data == nullptr || !data->bytes.isEmpty());
    }
}

std::optional<ReadError> readHistory(const Source &source, const ReadContext &context)
{
    const auto reader = source.kind == Source::Kind::Safari ? SafariReader::history : ChromiumReader::history;
    const auto searched =
        reader(source, HistoryQuery::matching(u"site1 ä"_s, u"site1.example"_s, {}), context);
    if (searched)
        lookAtItems(*searched);
    return errorOf(reader(source, HistoryQuery::recent(), context), lookAtItems);
}

constexpr auto chromiumHistoryTables =
    "CREATE TABLE urls(id INTEGER PRIMARY KEY, url, title, last_visit_time, visit_count, hidden);"
    "INSERT INTO urls VALUES(1, 'https://a.example/', 'a', 1, 1, 0)";
constexpr auto chromiumFaviconTables =
    "CREATE TABLE favicon_bitmaps(icon_id, image_data, width); INSERT INTO favicon_bitmaps VALUES(1, x'01', "
    "32);"
    "CREATE TABLE icon_mapping(page_url, icon_id); INSERT INTO icon_mapping VALUES('https://a.example/', 1)";
constexpr auto safariHistoryTables = "CREATE TABLE history_items(id INTEGER PRIMARY KEY, url, visit_count);"
                                     "INSERT INTO history_items VALUES(1, 'https://a.example/', 1);"
                                     "CREATE TABLE history_visits(history_item, title, visit_time); INSERT "
                                     "INTO history_visits VALUES(1, 'a', 1)";
constexpr auto safariTabTables =
    "CREATE TABLE bookmarks(title, server_id, extra_attributes, subtype, deleted, order_index);"
    "INSERT INTO bookmarks VALUES('Work', 'ID', NULL, 2, 0, 1)";
constexpr auto safariFaviconTables =
    "CREATE TABLE page_url(url, uuid); INSERT INTO page_url VALUES('https://a.example/', 'u');"
    "CREATE TABLE icon_info(uuid, timestamp); INSERT INTO icon_info VALUES('u', 1)";

} // namespace

EveryReader::EveryReader()
    : readings{
          {"Chromium history", chromeFile(u"History"_s),
           [](const ReadContext &context) { return readHistory(chrome(), context); }, true, true,
           chromiumHistoryTables},
          {"Chromium icons", chromeFile(u"Favicons"_s),
           [](const ReadContext &context) {
               return errorOf(FaviconReader::chromium(chrome(), context), lookAtFavicons);
           },
           true, true, chromiumFaviconTables},
          {"Safari history", safariFile(u"History.db"_s),
           [](const ReadContext &context) { return readHistory(Source::safari(), context); }, true, true,
           safariHistoryTables},
          {"Safari icons", safariFile(u"Favicon Cache/favicons.db"_s),
           [](const ReadContext &context) { return errorOf(FaviconReader::safari(context), lookAtFavicons); },
           true, true, safariFaviconTables},
          {"Safari profiles", safariContainerFile(u"SafariTabs.db"_s),
           [](const ReadContext &context) {
               EXPECT_GE(SafariReader::profiles(context).size(), 1);
               return std::optional<ReadError>();
           },
           true, false, safariTabTables},
          {"Chromium bookmarks", chromeFile(u"Bookmarks"_s),
           [](const ReadContext &context) {
               return errorOf(ChromiumReader::bookmarks(chrome(), context), lookAtNodes);
           },
           false, true, ""},
          {"Chromium profiles", chromeFile(u"Local State"_s, {}),
           [](const ReadContext &context) {
               for (const Source &source : ChromiumReader::profiles(Source::Kind::Chrome, context))
                   EXPECT_TRUE(source.profile.has_value());
               return std::optional<ReadError>();
           },
           false, false, ""},
          {"Safari bookmarks", safariFile(u"Bookmarks.plist"_s),
           [](const ReadContext &context) {
               const auto favourites =
                   SafariReader::bookmarks(namedSafari(u"P"_s, Source::Folder{u"X"_s}), context);
               if (favourites)
                   lookAtNodes(*favourites);
               return errorOf(SafariReader::bookmarks(Source::safari(), context), lookAtNodes);
           },
           false, true, ""}}
{
}

void EveryReader::writeHome(sample::Journal journal, sample::PropertyListFormat format) const
{
    QList<sample::HistoryRow> rows;
    QList<sample::FaviconBitmap> bitmaps;
    QList<sample::FaviconMapping> mappings;
    QList<sample::SafariItem> items;
    QList<sample::SafariVisit> visits;
    QList<sample::SafariIcon> icons;
    QList<sample::SafariIconPage> pages;
    QJsonArray nodes;
    QVariantList entries;
    const QDateTime added(QDate(2026, 5, 9), QTime(6, 13, 20), Qt::UTC);
    for (int i = 1; i <= rowCount; ++i) {
        const QString url = urlOf(i);
        const QString title = u"Title %1 – ä"_s.arg(i);
        const QString id = QString::number(i);
        rows.append({.url = url, .title = title, .lastVisitTime = sample::chromiumTime(1'700'000'000 + i)});
        bitmaps.append({.iconID = i, .image = QByteArray(40, 'i'), .width = i % 2 == 0 ? 16 : 32});
        mappings.append({.pageURL = url, .iconID = i});
        items.append({.id = i, .url = url});
        visits.append({.itemID = i, .time = double(i), .title = title});
        icons.append({.uuid = id, .timestamp = double(i)});
        pages.append({.url = url, .uuid = id});
        nodes.append(i % 10 == 0 ? sample::folderNode(id, title, nodes)
                                 : sample::bookmarkNode(id, title, url, i));
        if (i % 10 == 0)
            entries = {QVariant(sample::safariFolder(id, title, entries, u"X"_s))};
        else
            entries.append(sample::safariBookmark(id, title, url, added));
        while (nodes.size() > 10)
            nodes.removeFirst();
    }
    sample::writeHistory(chromeFile(u"History"_s), rows, journal);
    sample::writeFavicons(chromeFile(u"Favicons"_s), bitmaps, mappings, journal);
    sample::writeSafariHistory(safariFile(u"History.db"_s), items, visits, journal);
    sample::writeSafariFavicons(safariFile(u"Favicon Cache"_s), icons, pages, journal);
    const QByteArray favourites =
        sample::propertyList(QVariantMap{{u"CustomFavoritesFolderServerID"_s, u"X"_s}}, format);
    sample::writeSafariTabs(safariContainerFile(u"SafariTabs.db"_s),
                            {{.title = u"Work"_s, .serverID = u"ID"_s, .extraAttributes = favourites},
                             {.title = u"Home"_s, .serverID = u"ID2"_s, .extraAttributes = favourites}},
                            journal);
    sample::writeBookmarks(chromeFile(u"Bookmarks"_s),
                           {{u"bookmark_bar"_s, sample::folderNode(u"0"_s, u"Bar"_s, nodes)}});
    sample::writeLocalState(chromeFile(u"Local State"_s, {}),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"Person 1"_s}}},
                             {u"Profile 1"_s, QJsonObject{{u"name"_s, u"Zoë"_s}}}});
    sample::writePropertyList(safariFile(u"Bookmarks.plist"_s), sample::safariFolder(u"root"_s, {}, entries),
                              format);
}

} // namespace roamlet::testing
