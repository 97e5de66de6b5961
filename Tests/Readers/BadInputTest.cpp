// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/EveryReader.h"
#include "Readers/FaviconReader.h"
#include "Readers/Files/BinaryPropertyList.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <new>
#include <stop_token>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class BadInput : public EveryReader
{
protected:
    /// Puts these tables in the place of a reading's database.
    void writeTables(const Reading &reading, const QByteArray &sql)
    {
        change([&] {
            for (const QString &suffix : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
                QFile::remove(reading.path + suffix);
            sample::makeFolderOf(reading.path);
            sample::Database(reading.path).execute(sql.constData());
        });
    }

    /// The reason of an error in a query, or what else came.
    std::string reasonInQuery(const Reading &reading)
    {
        const std::optional<ReadError> error = reading.read(context());
        if (!error)
            return "no error";
        return error->path() == u"query" ? error->reason().toStdString()
                                         : error->errorDescription().toStdString();
    }

    void mode(const QString &path, mode_t mode) const
    {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
    }

    /// Lets every other user in, up to what a test closes.
    void openHome()
    {
        mode(QFileInfo(home.path()).path(), 0755);
        mode(home.temporary(), 0777);
    }

    QList<BookmarkNode> safariBookmarks()
    {
        const auto trees = SafariReader::bookmarks(Source::safari(), context());
        if (!trees)
            ADD_FAILURE() << trees.error().first();
        return trees.value_or(BookmarkTrees()).roots;
    }
};

/// Safari's bookmarks with folders inside each other, and a bookmark in the innermost.
QByteArray nestedFolders(int depth)
{
    BinaryPropertyList list;
    const int type = list.ascii("WebBookmarkType");
    const int leafType = list.ascii("WebBookmarkTypeLeaf");
    const int listType = list.ascii("WebBookmarkTypeList");
    const int children = list.ascii("Children");
    const int url = list.ascii("URLString");
    int entry = list.dictionary({{type, leafType}, {url, list.ascii("https://deep.example/")}});
    for (int i = 0; i < depth; ++i)
        entry = list.dictionary({{type, listType}, {children, list.array({entry})}});
    list.dictionary({{children, list.array({entry})}});
    return list.finish();
}

QByteArray nestedFoldersInXml(int depth)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist "
           "version=\"1.0\"><dict><key>Children</key><array>" +
           QByteArray("<dict><key>WebBookmarkType</key><string>WebBookmarkTypeList</string><key>Children</"
                      "key><array>")
               .repeated(depth) +
           "<dict><key>WebBookmarkType</key><string>WebBookmarkTypeLeaf</string><key>URLString</key>"
           "<string>https://deep.example/</string></dict>" +
           QByteArray("</array></dict>").repeated(depth) + "</array></dict></plist>";
}

} // namespace

TEST_F(BadInput, theSamplesThemselvesAreGood)
{
    writeHome();
    for (const Reading &reading : readings)
        EXPECT_EQ(reading.read(context()), std::nullopt) << reading.name;
    // None of them is good because there is nothing in it.
    const auto all = listing(HistoryQuery::Order::Latest);
    EXPECT_EQ(ChromiumReader::history(chrome(), all, context()).value().size(), 120);
    EXPECT_EQ(SafariReader::history(Source::safari(), all, context()).value().size(), 120);
    EXPECT_EQ(FaviconReader::chromium(chrome(), context()).value().size(), 20);
    EXPECT_EQ(FaviconReader::safari(context()).value().size(), 20);
    EXPECT_EQ(SafariReader::profiles(context()).size(), 3);
    EXPECT_EQ(BrowserReader::profiles(Source::Kind::Chrome, context()).size(), 1);
    EXPECT_GT(ChromiumReader::bookmarks(chrome(), context()).value().roots.value(0).bookmarkCount(), 10);
    EXPECT_EQ(ChromiumReader::bookmarks(chrome(accountProfile), context()).value().roots.size(), 1);
    EXPECT_TRUE(ChromiumReader::bookmarks(chrome(encryptedProfile), context()).value().areEncrypted);
    EXPECT_GT(SafariReader::bookmarks(Source::safari(), context()).value().roots.value(0).bookmarkCount(),
              10);
}

TEST_F(BadInput, missingFilesAreSilentExceptSafarisDefaultOnes)
{
    for (const Reading &reading : readings) {
        const std::optional<ReadError> error = reading.read(context());
        const bool mustExist =
            reading.path == safariFile(u"History.db"_s) || reading.path == safariFile(u"Bookmarks.plist"_s);
        EXPECT_EQ(error.has_value(), mustExist) << reading.name;
        if (error) {
            EXPECT_EQ(*error, ReadError::unreadable(reading.path, u"No such file or directory"_s));
        }
    }
}

TEST_F(BadInput, foreignFilesAreErrorsWithPathAndReason)
{
    writeHome();
    QByteArray noise(100'000, '\0');
    sample::Random random(7);
    for (char &byte : noise)
        byte = static_cast<char>(random.below(256));
    const QList<QByteArray> foreign{QByteArray(),
                                    "x",
                                    "%PDF-1.7 something else entirely, but with some length",
                                    QByteArray(5000, '\0'),
                                    QByteArray(5000, '\xFF'),
                                    noise,
                                    QByteArray("SQLite format 3\0", 16),
                                    QByteArray("SQLite format 3\0", 16) + noise,
                                    "bplist00" + noise,
                                    "<?xml version=\"1.0\"?><plist>" + noise,
                                    "{\"roots\": " + noise};
    for (const Reading &reading : readings) {
        for (const QByteArray &bytes : foreign) {
            change([&] { sample::writeFile(reading.path, bytes); });
            const std::optional<ReadError> error = reading.read(context());
            EXPECT_EQ(error.has_value(), reading.reportsErrors)
                << reading.name << ": " << bytes.left(30).constData();
            if (!error)
                continue;
            EXPECT_EQ(error->kind(), ReadError::Kind::Unreadable);
            EXPECT_EQ(error->path(), reading.isDatabase ? u"query"_s : reading.path);
            EXPECT_FALSE(error->reason().isEmpty());
        }
    }
}

TEST_F(BadInput, aTableThatIsMissingIsTheDatabasesMessage)
{
    const std::vector<std::pair<size_t, QStringList>> tables{
        {0, {u"urls"_s}},
        {1, {u"favicon_bitmaps"_s, u"icon_mapping"_s}},
        {2, {u"history_items"_s, u"history_visits"_s}},
        {3, {u"page_url"_s, u"icon_info"_s}},
        {4, {u"bookmarks"_s}},
        {7, {u"moz_places"_s, u"moz_bookmarks"_s}},
        {8, {u"moz_icons"_s, u"moz_icons_to_pages"_s, u"moz_pages_w_icons"_s}},
        {9, {u"Profiles"_s}}};
    for (const auto &[number, names] : tables) {
        const Reading &reading = readings[number];
        writeTables(reading, reading.tables);
        EXPECT_EQ(reading.read(context()), std::nullopt) << reading.name;
        for (const QString &name : names) {
            const std::string table = name.toStdString();
            const QByteArray sql = reading.tables + (u"; DROP TABLE "_s + name).toUtf8();
            writeTables(reading, sql);
            EXPECT_EQ(reasonInQuery(reading), reading.reportsErrors ? "no such table: " + table : "no error");
            // A view with the same rows does not count.
            writeTables(reading,
                        reading.tables + QString(u"; ALTER TABLE %1 RENAME TO hidden_away;"
                                                 " CREATE VIEW %1 AS SELECT * FROM hidden_away"_s.arg(name))
                                             .toUtf8());
            EXPECT_EQ(reasonInQuery(reading),
                      reading.reportsErrors ? "access to view \"" + table + "\" prohibited" : "no error");
        }
    }
}

TEST_F(BadInput, aColumnThatIsMissingIsTheDatabasesMessage)
{
    const std::vector<std::pair<size_t, QList<std::pair<QString, QString>>>> columns{
        {0,
         {{u"urls"_s, u"url"_s},
          {u"urls"_s, u"title"_s},
          {u"urls"_s, u"last_visit_time"_s},
          {u"urls"_s, u"visit_count"_s},
          {u"urls"_s, u"hidden"_s}}},
        {1,
         {{u"favicon_bitmaps"_s, u"icon_id"_s},
          {u"favicon_bitmaps"_s, u"image_data"_s},
          {u"favicon_bitmaps"_s, u"width"_s},
          {u"icon_mapping"_s, u"page_url"_s},
          {u"icon_mapping"_s, u"icon_id"_s}}},
        {2,
         {{u"history_items"_s, u"url"_s},
          {u"history_items"_s, u"visit_count"_s},
          {u"history_visits"_s, u"history_item"_s},
          {u"history_visits"_s, u"title"_s},
          {u"history_visits"_s, u"visit_time"_s}}},
        {3,
         {{u"page_url"_s, u"url"_s},
          {u"page_url"_s, u"uuid"_s},
          {u"icon_info"_s, u"uuid"_s},
          {u"icon_info"_s, u"timestamp"_s}}},
        {4, {{u"bookmarks"_s, u"title"_s}, {u"bookmarks"_s, u"order_index"_s}}},
        {7,
         {{u"moz_places"_s, u"id"_s},
          {u"moz_places"_s, u"url"_s},
          {u"moz_places"_s, u"title"_s},
          {u"moz_places"_s, u"last_visit_date"_s},
          {u"moz_places"_s, u"visit_count"_s},
          {u"moz_places"_s, u"hidden"_s},
          {u"moz_bookmarks"_s, u"id"_s},
          {u"moz_bookmarks"_s, u"type"_s},
          {u"moz_bookmarks"_s, u"fk"_s},
          {u"moz_bookmarks"_s, u"parent"_s},
          {u"moz_bookmarks"_s, u"position"_s},
          {u"moz_bookmarks"_s, u"title"_s},
          {u"moz_bookmarks"_s, u"dateAdded"_s},
          {u"moz_bookmarks"_s, u"guid"_s}}},
        {8,
         {{u"moz_icons"_s, u"id"_s},
          {u"moz_icons"_s, u"icon_url"_s},
          {u"moz_icons"_s, u"width"_s},
          {u"moz_icons"_s, u"root"_s},
          {u"moz_icons"_s, u"data"_s},
          {u"moz_pages_w_icons"_s, u"id"_s},
          {u"moz_pages_w_icons"_s, u"page_url"_s},
          {u"moz_icons_to_pages"_s, u"page_id"_s},
          {u"moz_icons_to_pages"_s, u"icon_id"_s}}},
        {9, {{u"Profiles"_s, u"path"_s}, {u"Profiles"_s, u"name"_s}}}};
    for (const auto &[number, names] : columns) {
        const Reading &reading = readings[number];
        for (const auto &[table, column] : names) {
            writeTables(
                reading,
                reading.tables +
                    QString(u"; ALTER TABLE %1 RENAME COLUMN %2 TO renamed"_s.arg(table, column)).toUtf8());
            const std::string reason = reasonInQuery(reading);
            EXPECT_EQ(reason.starts_with("no such column: "), reading.reportsErrors)
                << reading.name << ": " << reason;
            EXPECT_EQ(reason.ends_with(column.toStdString()), reading.reportsErrors)
                << reading.name << ": " << reason;
        }
    }
}

TEST_F(BadInput, moreColumnsThanAreReadDoNoHarm)
{
    for (const Reading &reading : readings) {
        if (!reading.isDatabase)
            continue;
        QByteArray sql = reading.tables;
        sql.replace("CREATE TABLE bookmarks(",
                    "CREATE TABLE bookmarks(extra DEFAULT 1, \"from the future\", ");
        sql.replace("INSERT INTO bookmarks VALUES(", "INSERT INTO bookmarks VALUES(NULL, 'x', ");
        writeTables(reading,
                    sql + "; CREATE TABLE new_table(x); CREATE TRIGGER t AFTER INSERT ON new_table BEGIN"
                          " SELECT 1; END; PRAGMA user_version = 99999");
        EXPECT_EQ(reading.read(context()), std::nullopt) << reading.name;
    }
}

TEST_F(BadInput, valuesOfOtherTypesDoNoHarm)
{
    writeTables(readings[0],
                "CREATE TABLE urls(id, url, title, last_visit_time, visit_count, hidden);"
                "INSERT INTO urls VALUES('x', x'C3', 5, '12', 1e300, 0), (NULL, NULL, NULL, 9e300, NULL, 0),"
                " (1.5, 7, x'', 'now', x'01', '0')");
    writeTables(readings[1],
                "CREATE TABLE favicon_bitmaps(icon_id, image_data, width);"
                "INSERT INTO favicon_bitmaps VALUES('1', 'text', 'wide'), (NULL, 5, NULL), (1.5, 0.5, 1e300);"
                "CREATE TABLE icon_mapping(page_url, icon_id);"
                "INSERT INTO icon_mapping VALUES(5, 1), (x'FF', 1), ('https://a.example/', '1')");
    writeTables(readings[2],
                "CREATE TABLE history_items(id, url, visit_count);"
                "INSERT INTO history_items VALUES(1, 5, 'many'), ('1', NULL, NULL), (NULL, x'FF', 1);"
                "CREATE TABLE history_visits(history_item, title, visit_time);"
                "INSERT INTO history_visits VALUES(1, 5, 'late'), (1, x'FF', 1e308), (1, NULL, NULL), ('1', "
                "'', 9e999)");
    writeTables(readings[4],
                "CREATE TABLE bookmarks(title, server_id, extra_attributes, subtype, deleted, order_index);"
                "INSERT INTO bookmarks VALUES(5, 6, 7, 2, 0, NULL), (x'FF', x'FE', 'text', '2', 0, 'z'), "
                "('a', 1.5, 1.5, 2, 0.0, x'')");
    writeTables(
        readings[7],
        "CREATE TABLE moz_places(id, url, title, last_visit_date, visit_count, hidden);"
        "INSERT INTO moz_places VALUES('x', x'C3', 5, '12', 1e300, 0), (NULL, NULL, NULL, 9e300, NULL,"
        " 0), (1.5, 7, x'', 'now', x'01', '0'), (2, x'FF', x'FE', -9e300, 'many', 0.0);"
        "CREATE TABLE moz_bookmarks(id, type, fk, parent, position, title, dateAdded, guid);"
        "INSERT INTO moz_bookmarks VALUES('3', 2, 'x', NULL, x'', 5, 'now', 'toolbar_____'),"
        " (x'FF', '1', 2, 3, 'last', x'FF', 9e300, 7), (NULL, 1.5, 1.5, 3.0, NULL, NULL, NULL, NULL),"
        " (NULL, NULL, NULL, NULL, NULL, NULL, NULL, x'FF')");
    writeTables(readings[8],
                "CREATE TABLE moz_icons(id, icon_url, width, root, data);"
                "INSERT INTO moz_icons VALUES('1', 5, 'wide', '1', 'text'), (NULL, NULL, NULL, NULL, 5),"
                " (1.5, x'FF', 1e300, 1.0, 0.5), (2, 'https://b.example/', '65535', 1, x'01');"
                "CREATE TABLE moz_pages_w_icons(id, page_url);"
                "INSERT INTO moz_pages_w_icons VALUES('1', 'https://a.example/'), (NULL, 5), (1.5, x'FF');"
                "CREATE TABLE moz_icons_to_pages(page_id, icon_id);"
                "INSERT INTO moz_icons_to_pages VALUES('1', '1'), (NULL, NULL), (1.5, 1.5), (x'FF', 'x')");
    writeTables(readings[9],
                "CREATE TABLE Profiles(path, name);"
                "INSERT INTO Profiles VALUES(5, 6), (x'FF', NULL), (NULL, 'x'), ('abcd.default', 1.5)");
    for (const Reading &reading : readings) {
        if (reading.isDatabase) {
            EXPECT_EQ(reading.read(context()), std::nullopt) << reading.name;
        }
    }
}

TEST_F(BadInput, aRefusalIsNoAccessForThisSourceAlone)
{
    writeHome();
    for (const Reading &refused : readings) {
        for (const std::errc error : {std::errc::permission_denied, std::errc::operation_not_permitted}) {
            refuse(refused.path, error);
            for (const Reading &reading : readings) {
                const bool isNoAccess = reading.path == refused.path && reading.reportsErrors;
                EXPECT_EQ(reading.read(context()),
                          isNoAccess ? std::optional(ReadError::noAccess(refused.path)) : std::nullopt)
                    << reading.name << " without " << refused.name;
            }
        }
    }
}

TEST_F(BadInput, filesAndFoldersThatAnotherUserClosedAreNoAccess)
{
    writeHome();
    openHome();
    for (const Reading &reading : readings) {
        const QString folder = QFileInfo(reading.path).path();
        const auto kindForAnotherUser = [&](const QString &closed) {
            return asAnotherUser([&] {
                const std::optional<ReadError> error = reading.read(context());
                if (!error)
                    return 0;
                // Of a closed folder nobody can tell which of two files there is.
                const bool isNamed = error->path() == closed || QFileInfo(error->path()).path() == closed;
                return error->kind() == ReadError::Kind::NoAccess && isNamed ? 1 : 2;
            });
        };
        EXPECT_EQ(kindForAnotherUser({}), 0) << reading.name;
        change([&] { mode(reading.path, 0); });
        EXPECT_EQ(kindForAnotherUser(reading.path), reading.reportsErrors ? 1 : 0) << reading.name;
        change([&] { mode(reading.path, 0644); });
        change([&] { mode(folder, 0); });
        EXPECT_EQ(kindForAnotherUser(folder), reading.reportsErrors ? 1 : 0)
            << reading.name << ", its folder";
        change([&] { mode(folder, 0755); });
    }
}

TEST_F(BadInput, whatIsNoRegularFileIsAnErrorAndNeverWaitedFor)
{
    writeHome();
    const auto put = [this](const QString &path, const std::function<void(const QByteArray &)> &make) {
        change([&] {
            QFile::remove(path);
            make(QFile::encodeName(path));
        });
    };
    for (const Reading &reading : readings) {
        const auto expectError = [&](const char *what) {
            const std::optional<ReadError> error = reading.read(context());
            EXPECT_EQ(error.has_value(), reading.reportsErrors) << reading.name << ": " << what;
            if (error) {
                EXPECT_EQ(error->path(), reading.path) << what;
                EXPECT_EQ(error->kind(), ReadError::Kind::Unreadable) << what;
                EXPECT_FALSE(error->reason().isEmpty()) << what;
            }
        };
        put(reading.path, [](const QByteArray &path) { ASSERT_EQ(::mkfifo(path.constData(), 0600), 0); });
        expectError("a pipe");
        put(reading.path,
            [](const QByteArray &path) { ASSERT_EQ(::symlink("/dev/zero", path.constData()), 0); });
        expectError("a device");
        put(reading.path,
            [](const QByteArray &path) { ASSERT_EQ(::symlink(path.constData(), path.constData()), 0); });
        expectError("a link to itself");
        put(reading.path, [](const QByteArray &path) { ASSERT_EQ(::mkdir(path.constData(), 0700), 0); });
        expectError("a folder");
        change([&] { QDir().rmdir(reading.path); });
    }
}

TEST_F(BadInput, oddThingsBesideADatabaseAreIgnored)
{
    writeHome();
    for (const Reading &reading : readings) {
        if (!reading.isDatabase)
            continue;
        change([&] {
            for (const QString &suffix : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
                QFile::remove(reading.path + suffix);
            ASSERT_EQ(::mkfifo(QFile::encodeName(reading.path + u"-wal"_s).constData(), 0600), 0);
            ASSERT_EQ(::mkdir(QFile::encodeName(reading.path + u"-shm"_s).constData(), 0700), 0);
            sample::writeFile(reading.path + u"-journal"_s, {});
        });
        EXPECT_EQ(reading.read(context()), std::nullopt) << reading.name;
    }
}

TEST_F(BadInput, aFullOrUnusableTemporaryFolderIsUnreadableWithTheReason)
{
    writeHome();
    for (const Reading &reading : readings) {
        if (!reading.isDatabase || !reading.reportsErrors)
            continue;
        const auto noCopy = [&reading](const QString &temporary, const QString &reason) {
            return ReadError::unreadable(reading.path,
                                         u"cannot make a copy in " % temporary % u": " % reason);
        };
        for (const auto &[error, reason] :
             {std::pair(std::errc::no_space_on_device, u"No space left on device"_s),
              std::pair(std::errc::read_only_file_system, u"Read-only file system"_s),
              std::pair(std::errc::permission_denied, u"Permission denied"_s)}) {
            home.files.privateFolderFailure = std::make_error_code(error);
            EXPECT_EQ(reading.read(context()), noCopy(home.temporary(), reason));
        }
        home.files.privateFolderFailure = {};
        ReadContext below = context();
        below.folders.temporary = reading.path % u"/below";
        EXPECT_EQ(reading.read(below), noCopy(below.folders.temporary, u"Not a directory"_s));
        below.folders.temporary = u"/proc/nowhere"_s;
        EXPECT_EQ(reading.read(below), noCopy(below.folders.temporary, u"No such file or directory"_s));
    }
}

TEST_F(BadInput, aRequestToStopEndsEveryReadOfADatabase)
{
    writeHome();
    std::stop_source stop;
    stop.request_stop();
    ReadContext reading = context();
    reading.stop = stop.get_token();
    for (const Reading &each : readings) {
        if (each.isDatabase) {
            EXPECT_EQ(each.read(reading).has_value(), each.reportsErrors) << each.name;
        }
        expectNothingTouched();
    }
}

TEST_F(BadInput, safarisFoldersMayBeNestedDeep)
{
    for (const auto &nested : {nestedFolders, nestedFoldersInXml}) {
        change([&] { sample::writeFile(safariFile(u"Bookmarks.plist"_s), nested(5'000)); });
        onAnotherThread([&] {
            const QList<BookmarkNode> nodes = safariBookmarks();
            ASSERT_EQ(nodes.size(), 1);
            EXPECT_EQ(nodes[0].folderCount(), 5'000);
            EXPECT_EQ(nodes[0].bookmarkCount(), 1);
            const auto none =
                SafariReader::bookmarks(namedSafari(u"P"_s, Source::Folder{u"gone"_s}), context());
            EXPECT_TRUE(none.has_value() && none->roots.isEmpty());
        });
        change([&] { sample::writeFile(safariFile(u"Bookmarks.plist"_s), nested(200'000)); });
        onAnotherThread([&] {
            const auto nodes = SafariReader::bookmarks(Source::safari(), context());
            ASSERT_FALSE(nodes.has_value());
            EXPECT_EQ(nodes.error(), ReadErrors{ReadError::unreadable(safariFile(u"Bookmarks.plist"_s),
                                                                      u"it is nested too deeply"_s)});
        });
    }
}

TEST_F(BadInput, aHundredThousandOfSafarisFoldersAreRead)
{
    constexpr int count = 100'000;
    BinaryPropertyList list;
    const int type = list.ascii("WebBookmarkType");
    const int listType = list.ascii("WebBookmarkTypeList");
    const int children = list.ascii("Children");
    const int leaf = list.dictionary(
        {{type, list.ascii("WebBookmarkTypeLeaf")}, {list.ascii("URLString"), list.ascii("u")}});
    const int none = list.array({});
    QList<int> entries{leaf};
    for (int i = 0; i < count; ++i)
        entries.append(list.dictionary({{type, listType}, {children, none}}));
    list.dictionary(
        {{children, list.array({list.dictionary({{type, listType}, {children, list.array(entries)}})})}});

    const QByteArray folder = "<dict><key>WebBookmarkType</key><string>WebBookmarkTypeList</"
                              "string><key>Children</key><array/></dict>";
    const QByteArray xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict><key>Children</key><array>"
        "<dict><key>WebBookmarkType</key><string>WebBookmarkTypeList</string><key>Children</key><array>"
        "<dict><key>WebBookmarkType</key><string>WebBookmarkTypeLeaf</string><key>URLString</key>"
        "<string>u</string></dict>" +
        folder.repeated(count) + "</array></dict></array></dict></plist>";
    for (const QByteArray &bytes : {list.finish(), xml}) {
        change([&] { sample::writeFile(safariFile(u"Bookmarks.plist"_s), bytes); });
        const QList<BookmarkNode> nodes = safariBookmarks();
        ASSERT_EQ(nodes.size(), 1);
        EXPECT_EQ(nodes[0].folderCount(), count + 1);
    }
}

TEST_F(BadInput, bookmarksThatContainThemselvesOrUnfoldWithoutEndAreAnError)
{
    const QString path = safariFile(u"Bookmarks.plist"_s);
    BinaryPropertyList cyclic;
    const int key = cyclic.ascii("Children");
    cyclic.dictionary({{key, 2}});
    cyclic.array({1});

    BinaryPropertyList unfolding;
    const int children = unfolding.ascii("Children");
    int entry = unfolding.dictionary({});
    for (int i = 0; i < 60; ++i)
        entry = unfolding.dictionary({{children, unfolding.array({entry, entry})}});
    for (const QByteArray &bytes : {cyclic.finish(1), unfolding.finish()}) {
        change([&] { sample::writeFile(path, bytes); });
        const auto nodes = SafariReader::bookmarks(Source::safari(), context());
        ASSERT_FALSE(nodes.has_value());
        EXPECT_EQ(nodes.error().first().path(), path);
        EXPECT_FALSE(nodes.error().first().reason().isEmpty());
    }
}

TEST_F(BadInput, memoryThatDoesNotSufficeIsAProblemOfTheSource)
{
    writeHome();
    home.files.failure = [](const QString & /*path*/) -> std::error_code { throw std::bad_alloc(); };
    for (const Source &source : {Source::safari(), chrome(), firefox()}) {
        SCOPED_TRACE(source.id().toStdString());
        const auto history = BrowserReader::history(source, HistoryQuery::recent(), context());
        ASSERT_FALSE(history);
        EXPECT_EQ(history.error().reason(), u"Cannot allocate memory"_s);
        EXPECT_EQ(history.error().path(), BrowserReader::historyFile(source, context()));
        EXPECT_FALSE(BrowserReader::bookmarks(source, context()));
        const BrowserReader::Content content = BrowserReader::content(source, context());
        EXPECT_FALSE(content.history || content.bookmarks || content.favicons);
        const auto text = BrowserReader::historyText(source, context(), 1 << 20);
        EXPECT_TRUE(text && *text == nullptr);
    }
}

} // namespace roamlet::testing
