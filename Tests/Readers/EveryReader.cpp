// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/EveryReader.h"

#include "Model/LowerCase.h"
#include "Platform/Files.h"
#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/FaviconReader.h"
#include "Readers/Firefox/FirefoxReader.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/FirefoxFiles.h"
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
        EXPECT_EQ(item.searchKey(), lowerCased(item.title) % u'\n' % lowerCased(item.url));
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

/// The error of a read of bookmarks, after a look at all of them.
std::optional<ReadError> errorOf(const std::expected<BookmarkTrees, ReadErrors> &result)
{
    if (!result)
        return result.error().first();
    lookAtNodes(result->roots);
    return {};
}

/// Profiles are never missing and never the same: the default one, alone or before those with names.
void lookAtSafariProfiles(const QList<Source> &profiles)
{
    ASSERT_FALSE(profiles.isEmpty());
    EXPECT_EQ(profiles.first().profile, std::nullopt);
    EXPECT_EQ(profiles.first().name, profiles.size() == 1 ? u"Safari" : u"Personal");
    for (const Source &named : profiles.sliced(1))
        EXPECT_TRUE(named.profile.has_value() && !named.name.isEmpty());
}

std::optional<ReadError> readHistory(const Source &source, const ReadContext &context)
{
    const auto searched =
        BrowserReader::history(source, HistoryQuery::matching(u"site1 ä"_s, u"site1.example"_s, {}), context);
    if (searched)
        lookAtItems(*searched);
    return errorOf(BrowserReader::history(source, HistoryQuery::recent(), context), lookAtItems);
}

std::optional<ReadError> readPlaces(const Source &source, const ReadContext &context)
{
    const std::optional<ReadError> ofHistory = readHistory(source, context);
    const FirefoxReader::Content content = FirefoxReader::content(source, HistoryQuery::recent(), context);
    EXPECT_EQ(errorOf(content.history, lookAtItems), ofHistory);
    const std::optional<ReadError> ofBookmarks = errorOf(content.bookmarks);
    return ofHistory ? ofHistory : ofBookmarks;
}

std::optional<ReadError> readProfiles(Source::Kind kind, const ReadContext &context)
{
    // What is listed has a folder, and no folder is listed twice.
    const QList<Source> profiles = BrowserReader::profiles(kind, context);
    QSet<QString> folders;
    for (const Source &source : profiles) {
        const QString folder = context.folders.profile(source, *context.files);
        EXPECT_TRUE(context.files->exists(folder)) << folder.toStdString();
        folders.insert(folder);
    }
    EXPECT_EQ(folders.size(), profiles.size());
    return {};
}

/// Firefox's pages are large and mostly empty. In small ones more of the file counts, and comparing it takes
/// less time.
void pack(const QString &database)
{
    sample::Database(database).execute(
        "PRAGMA journal_mode = DELETE; PRAGMA page_size = 1024; VACUUM; PRAGMA journal_mode = WAL");
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
constexpr auto firefoxPlacesTables =
    "CREATE TABLE moz_places(id INTEGER PRIMARY KEY, url, title, last_visit_date, visit_count, hidden);"
    "INSERT INTO moz_places VALUES(1, 'https://a.example/', 'a', 1, 1, 0);"
    "CREATE TABLE moz_bookmarks(id INTEGER PRIMARY KEY, type, fk, parent, position, title, dateAdded, guid);"
    "INSERT INTO moz_bookmarks VALUES(1, 2, NULL, 0, 0, '', 1, 'toolbar_____'),"
    " (2, 1, 1, 1, 0, 'a', 1, 'abcdefghijkl')";
constexpr auto firefoxIconTables =
    "CREATE TABLE moz_icons(id INTEGER PRIMARY KEY, icon_url, width, root, data);"
    "INSERT INTO moz_icons VALUES(1, 'https://a.example/i', 32, 0, x'01');"
    "CREATE TABLE moz_pages_w_icons(id INTEGER PRIMARY KEY, page_url);"
    "INSERT INTO moz_pages_w_icons VALUES(1, 'https://a.example/');"
    "CREATE TABLE moz_icons_to_pages(page_id, icon_id); INSERT INTO moz_icons_to_pages VALUES(1, 1)";
constexpr auto firefoxGroupTables =
    "CREATE TABLE Profiles(path, name); INSERT INTO Profiles VALUES('abcd.default', 'Default')";

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
               lookAtSafariProfiles(SafariReader::profiles(context));
               return std::optional<ReadError>();
           },
           true, false, safariTabTables},
          {"Chromium bookmarks", chromeFile(u"Bookmarks"_s),
           [](const ReadContext &context) { return errorOf(ChromiumReader::bookmarks(chrome(), context)); },
           false, true, ""},
          {"Chromium profiles", chromeFile(u"Local State"_s, {}),
           [](const ReadContext &context) { return readProfiles(Source::Kind::Chrome, context); }, false,
           false, ""},
          {"Firefox history and bookmarks", firefoxFile(u"places.sqlite"_s),
           [](const ReadContext &context) { return readPlaces(firefox(), context); }, true, true,
           firefoxPlacesTables},
          {"Firefox icons", firefoxFile(u"favicons.sqlite"_s),
           [](const ReadContext &context) {
               return errorOf(FaviconReader::firefox(firefox(), context), lookAtFavicons);
           },
           true, true, firefoxIconTables},
          {"Firefox group of profiles", firefoxFile(u"Profile Groups/1234abcd.sqlite"_s, {}),
           [](const ReadContext &context) { return readProfiles(firefox().kind, context); }, true, false,
           firefoxGroupTables},
          {"Firefox profiles", firefoxFile(u"profiles.ini"_s, {}),
           [](const ReadContext &context) { return readProfiles(firefox().kind, context); }, false, false,
           ""},
          {"Chromium bookmarks of an account", chromeFile(u"AccountBookmarks"_s, accountProfile),
           [](const ReadContext &context) {
               return errorOf(ChromiumReader::bookmarks(chrome(accountProfile), context));
           },
           false, true, ""},
          {"Encrypted bookmarks", chromeFile(u"EncryptedBookmarks2"_s, encryptedProfile),
           [](const ReadContext &context) {
               const auto trees = ChromiumReader::bookmarks(chrome(encryptedProfile), context);
               EXPECT_TRUE(!trees || trees->roots.isEmpty());
               return std::optional<ReadError>();
           },
           false, false, ""},
          {"Safari bookmarks", safariFile(u"Bookmarks.plist"_s),
           [](const ReadContext &context) {
               const auto favourites =
                   SafariReader::bookmarks(namedSafari(u"P"_s, Source::Folder{u"X"_s}), context);
               if (favourites)
                   lookAtNodes(favourites->roots);
               return errorOf(SafariReader::bookmarks(Source::safari(), context));
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
    QList<sample::FirefoxPage> places;
    QList<sample::FirefoxIcon> placeIcons;
    QList<sample::FirefoxIconPage> iconPlaces;
    sample::FirefoxBookmarks bookmarks;
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
        places.append({.url = url, .title = title, .lastVisitDate = sample::firefoxTime(1'700'000'000 + i)});
        placeIcons.append({.url = url, .width = i % 2 == 0 ? 16 : 32, .root = i % 3 == 0, .data = "i"});
        iconPlaces.append({.url = url, .icons = {i}});
        if (i % 10 == 0)
            bookmarks.toolbar = {sample::firefoxFolder(title, bookmarks.toolbar)};
        else
            bookmarks.toolbar.append(sample::firefoxBookmark(title, url, i, {u"tag"_s}));
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
    sample::writeFirefoxPlaces(firefoxFile(u"places.sqlite"_s), places,
                               sample::firefoxBookmarkRows(bookmarks), journal);
    sample::writeFirefoxFavicons(firefoxFile(u"favicons.sqlite"_s), placeIcons, iconPlaces, journal);
    sample::writeFirefoxGroup(
        firefoxFile(u"Profile Groups/1234abcd.sqlite"_s, {}),
        {{.path = u"abcd.default"_s, .name = u"Default"_s}, {.path = u"efgh.work"_s, .name = u"Work"_s}},
        journal);
    if (journal == sample::Journal::Clean) {
        for (const Reading &reading : readings) {
            if (reading.isDatabase && reading.path.startsWith(firefoxFile({}, {})))
                pack(reading.path);
        }
    }
    sample::writeFirefoxProfiles(firefoxFile(u"profiles.ini"_s, {}),
                                 {{.name = u"default"_s, .path = u"abcd.default"_s, .isDefault = true},
                                  {.name = u"Zoë"_s, .path = u"ijkl.zoë"_s}},
                                 {{.hash = u"4F96D1932A9F858E"_s, .defaultPath = u"abcd.default"_s}});
    const QByteArray favourites =
        sample::propertyList(QVariantMap{{u"CustomFavoritesFolderServerID"_s, u"X"_s}}, format);
    sample::writeSafariTabs(safariContainerFile(u"SafariTabs.db"_s),
                            {{.title = u"Work"_s, .serverID = u"ID"_s, .extraAttributes = favourites},
                             {.title = u"Home"_s, .serverID = u"ID2"_s, .extraAttributes = favourites}},
                            journal);
    const QJsonObject roots{{u"bookmark_bar"_s, sample::folderNode(u"0"_s, u"Bar"_s, nodes)}};
    sample::writeBookmarks(chromeFile(u"Bookmarks"_s), roots);
    sample::writeBookmarks(chromeFile(u"AccountBookmarks"_s, accountProfile), roots);
    sample::writeEncryptedBookmarks(chromeFile(u"EncryptedBookmarks2"_s, encryptedProfile));
    sample::writeLocalState(chromeFile(u"Local State"_s, {}),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"Person 1"_s}}},
                             {u"Profile 1"_s, QJsonObject{{u"name"_s, u"Zoë"_s}}}});
    sample::writePropertyList(safariFile(u"Bookmarks.plist"_s), sample::safariFolder(u"root"_s, {}, entries),
                              format);
}

} // namespace roamlet::testing
