// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/ReaderTest.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/AwkwardFirefox.h"
#include "SampleHome/AwkwardValues.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SampleHome.h"
#include "Support/Sources.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr double secondsUntil2001 = 978'307'200;
constexpr double secondsBefore1970 = 11'644'473'600;

/// The text that a database holds, as far as it goes: SQLite's own texts end at a NUL.
QString textOf(const sample::Text &text)
{
    const QByteArray bytes = text.bytes().value_or(QByteArray());
    QStringDecoder decoder(QStringConverter::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes.first(bytes.indexOf('\0') < 0 ? bytes.size() : bytes.indexOf('\0')));
}

/// What a row is shown as: the address in the place of an empty title.
QString row(const QString &url, const QString &title, qint64 visits, double secondsSince1970)
{
    return QStringList{url, title.isEmpty() ? url : title, QString::number(visits),
                       QString::number(secondsSince1970, 'g', 17)}
        .join(u" | "_s);
}

QStringList rowsOf(const QList<HistoryItem> &items)
{
    QStringList rows;
    for (const HistoryItem &item : items)
        rows.append(row(item.url, item.title, item.visitCount, secondsSince1970(item.lastVisit)));
    return rows;
}

/// Compares the rows one by one, whatever their order, so that a failure shows the one that differs.
void expectSameRows(QStringList read, QStringList written)
{
    ASSERT_EQ(read.size(), written.size());
    read.sort();
    written.sort();
    for (qsizetype i = 0; i < read.size(); ++i)
        EXPECT_TRUE(read[i] == written[i]) << read[i].left(200).toStdString() << "\n instead of\n"
                                           << written[i].left(200).toStdString();
}

/// A bookmark or a folder, with what is in it.
QStringList node(const QString &title, const std::optional<QString> &url, std::optional<double> date,
                 const QStringList &inside)
{
    QStringList lines{title % u" | " % url.value_or(u"folder"_s) % u" | " %
                      (date ? QString::number(*date, 'g', 17) : u"no date"_s)};
    for (const QString &line : inside)
        lines.append(u"  " % line);
    return lines;
}

QStringList nodesOf(const QList<BookmarkNode> &nodes)
{
    QStringList lines;
    for (const BookmarkNode &each : nodes)
        lines.append(node(each.title, each.isFolder() ? std::nullopt : each.url,
                          each.dateAdded ? std::optional(secondsSince1970(*each.dateAdded)) : std::nullopt,
                          nodesOf(each.children.value_or(QList<BookmarkNode>()))));
    return lines;
}

std::optional<double> chromiumDate(const QJsonValue &value)
{
    static const QRegularExpression digits(u"^\\+?[0-9]+$"_s);
    const qint64 microseconds = digits.match(value.toString()).hasMatch() ? value.toString().toLongLong() : 0;
    return microseconds > 0 ? std::optional(double(microseconds) / 1e6 - secondsBefore1970) : std::nullopt;
}

/// What is to be shown of the awkward pages in Chromium's database.
QStringList chromiumRows(qint64 newest)
{
    QStringList rows;
    for (const sample::HistoryRow &each : sample::awkwardHistory(newest)) {
        if (!each.hidden && each.lastVisitTime > 0)
            rows.append(row(textOf(each.url), textOf(each.title), each.visitCount,
                            double(each.lastVisitTime) / 1e6 - secondsBefore1970));
    }
    return rows;
}

/// What is to be shown of nodes in Chromium's file.
QStringList nodesOf(const QJsonArray &nodes)
{
    if (!std::ranges::all_of(nodes, [](const QJsonValue &each) { return each.isObject(); }))
        return {};
    QStringList lines;
    for (const QJsonValue &value : nodes) {
        const QJsonObject each = value.toObject();
        const QString title = each[u"name"_s].toString();
        const QString url = each[u"url"_s].toString();
        if (each[u"type"_s] == u"folder"_s)
            lines.append(node(title, {}, {}, nodesOf(each[u"children"_s].toArray())));
        else if (each[u"type"_s] == u"url"_s)
            lines.append(node(title.isEmpty() ? url : title, url, chromiumDate(each[u"date_added"_s]), {}));
    }
    return lines;
}

std::optional<QString> stringIn(const QVariantMap &map, const QString &key)
{
    const QVariant value = map.value(key);
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

/// What is to be shown of entries in Safari's file.
QStringList nodesOf(const QVariant &entries)
{
    const QVariantList list = entries.typeId() == QMetaType::QVariantList ? entries.toList() : QVariantList();
    if (!std::ranges::all_of(list,
                             [](const QVariant &each) { return each.typeId() == QMetaType::QVariantMap; }))
        return {};
    QStringList lines;
    for (const QVariant &value : list) {
        const QVariantMap each = value.toMap();
        const std::optional<QString> type = stringIn(each, u"WebBookmarkType"_s);
        const std::optional<QString> url = stringIn(each, u"URLString"_s);
        if (type == u"WebBookmarkTypeList"_s) {
            lines.append(node(stringIn(each, u"Title"_s).value_or(QString()), {}, {},
                              nodesOf(each.value(u"Children"_s))));
        } else if (type == u"WebBookmarkTypeLeaf"_s && url) {
            const auto title = stringIn(each.value(u"URIDictionary"_s).toMap(), u"title"_s);
            const QVariant date = each.value(u"dateAdded"_s);
            lines.append(node(title.value_or(*url), url,
                              date.typeId() == QMetaType::QDateTime
                                  ? std::optional(double(date.toDateTime().toMSecsSinceEpoch()) / 1000)
                                  : std::nullopt,
                              {}));
        }
    }
    return lines;
}

/// What is to be shown of what lies in a folder of Firefox's.
QStringList nodesOf(const QList<sample::FirefoxBookmarkRow> &rows, qint64 folder)
{
    using Row = sample::FirefoxBookmarkRow;
    QList<Row> inside;
    std::ranges::copy_if(rows, std::back_inserter(inside), [folder](const Row &each) {
        return each.parent == folder && each.id.value() >= sample::firefox_folder::firstFree;
    });
    // A missing place comes before the lowest; rows of one place stay as they are numbered.
    std::ranges::stable_sort(inside, {}, &Row::position);
    QStringList lines;
    for (const Row &each : inside) {
        const QString title = textOf(each.title);
        const QString url = textOf(each.url);
        if (each.type == Row::folder)
            lines.append(node(title, {}, {}, nodesOf(rows, *each.id)));
        else if (each.type == Row::bookmark && each.url.bytes() &&
                 !url.startsWith(u"place:", Qt::CaseInsensitive))
            lines.append(node(title.isEmpty() ? url : title, url,
                              each.dateAdded.value_or(0) > 0 ? std::optional(double(*each.dateAdded) / 1e6)
                                                             : std::nullopt,
                              {}));
    }
    return lines;
}

/// Every value of a home that is hard to read comes out of the readers as it was written.
class AwkwardHome : public ReaderTest
{
protected:
    AwkwardHome()
    {
        sample::build(home.path(), {.chromeProfiles = 1,
                                    .edgeProfiles = 1,
                                    .safariProfiles = 1,
                                    .rowsPerProfile = 0,
                                    .bookmarksPerProfile = 0,
                                    .iconsPerProfile = 0,
                                    .isAwkward = true});
    }

    /// What the folder "Awkward" holds, the only one with bookmarks in it.
    QStringList awkwardNodes(const std::expected<BookmarkTrees, ReadErrors> &trees)
    {
        const QList<BookmarkNode> roots = trees.value_or(BookmarkTrees()).roots;
        if (roots.size() != 1 || titlesOf(*roots.first().children) != QStringList{u"Awkward"_s})
            return {u"no such folder"_s};
        return nodesOf(*roots.first().children->first().children);
    }

    const qint64 newest = sample::Options().newestVisit.toSecsSinceEpoch();
};

/// The same of the browsers that keep their files as the first ones do, or in other ways.
class AwkwardRelatives : public ReaderTest
{
protected:
    explicit AwkwardRelatives(const QList<sample::BrowserSample> &browsers = {
                                  {u"brave"_s}, {u"vivaldi"_s}, {u"opera"_s}, {u"firefox"_s}})
    {
        sample::build(home.path(), {.chromeProfiles = 0,
                                    .edgeProfiles = 0,
                                    .safariProfiles = -1,
                                    .furtherBrowsers = browsers,
                                    .rowsPerProfile = 0,
                                    .bookmarksPerProfile = 0,
                                    .iconsPerProfile = 0,
                                    .isAwkward = true});
    }

    QList<Source> profiles(QStringView browser)
    {
        return BrowserReader::profiles(browserKind(browser), context());
    }
    std::map<QString, QString> names(QStringView browser)
    {
        std::map<QString, QString> result;
        for (const Source &source : profiles(browser))
            result[*source.profile] = source.name;
        return result;
    }
    Source profile(QStringView browser, const QString &name)
    {
        const QList<Source> sources = profiles(browser);
        const auto found = std::ranges::find(sources, name, &Source::name);
        EXPECT_NE(found, sources.end()) << name.toStdString();
        return found == sources.end() ? Source() : *found;
    }
    BookmarkTrees trees(const Source &source)
    {
        const auto read = BrowserReader::bookmarks(source, context());
        if (!read)
            ADD_FAILURE() << read.error().first();
        return read.value_or(BookmarkTrees());
    }

    /// The profiles of Chromium's relatives that their list names, but for the first.
    static std::map<QString, QString> listedProfiles()
    {
        std::map<QString, QString> result{{u"Profile 88"_s, u"Encrypted"_s}};
        const QJsonObject profiles = sample::awkwardProfiles();
        for (const QString &folder : profiles.keys()) {
            const QJsonValue name = profiles[folder].toObject()[u"name"_s];
            if (folder != u"Profile 404")
                result[folder] = name.isString() ? name.toString() : folder;
        }
        return result;
    }
    /// The bookmarks of the first profile: of the local file the one folder that is not empty, and those of
    /// the account.
    QStringList chromiumBookmarks(const QString &localRoot) const
    {
        const QStringList synced =
            node(u"Synced with the account"_s, u"https://account.example/"_s, double(newest), {});
        return node(localRoot, {}, {}, node(u"Awkward"_s, {}, {}, nodesOf(sample::awkwardNodes()))) +
               node(u"Bookmarks bar"_s, {}, {}, synced);
    }

    const qint64 newest = sample::Options().newestVisit.toSecsSinceEpoch();
};

class AwkwardOldOpera : public AwkwardRelatives
{
protected:
    AwkwardOldOpera() : AwkwardRelatives({{u"opera@old"_s}}) {}
};

} // namespace

TEST_F(AwkwardHome, chromiumsHistoryIsReadAsItWasWritten)
{
    for (const Source &source : {chrome(), edge()}) {
        const auto items = ChromiumReader::history(source, HistoryQuery::recent(), context());
        ASSERT_TRUE(items.has_value()) << items.error();
        expectSameRows(rowsOf(*items), chromiumRows(newest));
    }
}

TEST_F(AwkwardHome, safarisHistoryIsReadAsItWasWritten)
{
    std::map<qint64, sample::SafariVisit> latest;
    for (const sample::SafariVisit &visit : sample::awkwardSafariVisits(1, newest)) {
        const auto known = latest.find(visit.itemID);
        if (known == latest.end() || known->second.time < visit.time)
            latest[visit.itemID] = visit;
    }
    QStringList written;
    for (const sample::SafariItem &item : sample::awkwardSafariItems(1)) {
        const sample::SafariVisit &visit = latest.at(*item.id);
        written.append(
            row(textOf(item.url), textOf(visit.title), item.visitCount, visit.time + secondsUntil2001));
    }
    const QList<Source> profiles = SafariReader::profiles(context());
    for (const Source &source : profiles.first(2)) {
        const auto items = SafariReader::history(source, HistoryQuery::recent(), context());
        ASSERT_TRUE(items.has_value()) << items.error();
        expectSameRows(rowsOf(*items), written);
    }
}

TEST_F(AwkwardHome, chromiumsBookmarksAreReadAsTheyWereWritten)
{
    for (const Source &source : {chrome(), edge()})
        EXPECT_EQ(awkwardNodes(ChromiumReader::bookmarks(source, context())),
                  nodesOf(sample::awkwardNodes()));
}

TEST_F(AwkwardHome, safarisBookmarksAreReadAsTheyWereWrittenInBothFormats)
{
    const QVariantList entries = sample::awkwardSafariEntries();
    EXPECT_EQ(awkwardNodes(SafariReader::bookmarks(Source::safari(), context())), nodesOf(QVariant(entries)));
    change([&] {
        const QVariantMap awkward = sample::safariFolder(u"a"_s, u"Awkward"_s, entries);
        const QVariantMap menu = sample::safariFolder(u"m"_s, u"BookmarksMenu"_s, {awkward});
        sample::writePropertyList(safariFile(u"Bookmarks.plist"_s), sample::safariFolder(u"r"_s, {}, {menu}),
                                  sample::PropertyListFormat::Xml);
    });
    EXPECT_EQ(awkwardNodes(SafariReader::bookmarks(Source::safari(), context())), nodesOf(QVariant(entries)));
}

TEST_F(AwkwardHome, chromiumsProfilesAreReadAsTheyWereWritten)
{
    for (const Source::Kind kind : {Source::Kind::Chrome, Source::Kind::Edge}) {
        const bool isEdge = kind == Source::Kind::Edge;
        std::map<QString, QString> written{{u"Default"_s, isEdge ? u"Personal"_s : u"Work"_s}};
        const QJsonObject profiles = sample::awkwardProfiles();
        for (const QString &folder : profiles.keys()) {
            const QJsonValue name = profiles[folder].toObject()[u"name"_s];
            if (folder != u"Profile 404")
                written[folder] = name.isString() ? name.toString() : folder;
        }
        if (isEdge)
            written[u"Profile 20"_s] = u"Personal"_s;
        std::map<QString, QString> read;
        for (const Source &source : BrowserReader::profiles(kind, context()))
            read[*source.profile] = source.name;
        EXPECT_EQ(read, written);
    }
}

TEST_F(AwkwardHome, safarisProfilesAreReadAsTheyWereWritten)
{
    QStringList written{u"Personal | "_s, u"Work | "_s};
    for (const sample::SafariProfileRow &each : sample::awkwardSafariProfiles()) {
        if (each.subtype == 2 && !each.deleted && each.serverID.bytes() && !textOf(each.title).isEmpty())
            written.append(textOf(each.title) % u" | " % textOf(each.serverID));
    }
    const QList<Source> profiles = SafariReader::profiles(context());
    QStringList read;
    for (const Source &source : profiles)
        read.append(source.name % u" | " %
                    (source.name == u"Work" ? QString() : source.profile.value_or(QString())));
    EXPECT_EQ(read, written);
    for (const Source &source : profiles.sliced(2)) {
        const bool hasFolder = source.name == u"Folder that is gone";
        EXPECT_EQ(source.safariBookmarks, hasFolder ? Source::SafariBookmarks(Source::Folder{u"GONE"_s})
                                                    : Source::SafariBookmarks(Source::None{}))
            << source.name.toStdString();
    }
}

TEST_F(AwkwardRelatives, ofChromiumHaveTheirHistoryReadAsItWasWritten)
{
    for (const QStringView browser : {u"brave", u"vivaldi", u"opera"}) {
        const auto items =
            BrowserReader::history(profile(browser, u"Work"_s), HistoryQuery::recent(), context());
        ASSERT_TRUE(items.has_value()) << items.error();
        expectSameRows(rowsOf(*items), chromiumRows(newest));
    }
}

TEST_F(AwkwardRelatives, ofChromiumHaveTheirProfilesReadAsTheyWereWritten)
{
    // The profile of a guest and the one for a single window are left out.
    std::map<QString, QString> written = listedProfiles();
    written[u"Default"_s] = u"Work"_s;
    for (const QStringView browser : {u"brave", u"vivaldi", u"opera"})
        EXPECT_EQ(names(browser), written) << browser.toString().toStdString();
}

TEST_F(AwkwardRelatives, ofChromiumHaveTheirBookmarksReadAsTheyWereWritten)
{
    for (const auto &[browser, localRoot] :
         {std::pair(u"brave"_s, u"Other bookmarks"_s), std::pair(u"vivaldi"_s, u"Other bookmarks"_s),
          std::pair(u"opera"_s, u"Unsorted Bookmarks"_s)}) {
        const Source source = profile(browser, u"Work"_s);
        const BookmarkTrees read = trees(source);
        EXPECT_EQ(nodesOf(read.roots), chromiumBookmarks(localRoot)) << browser.toStdString();
        EXPECT_EQ(read.roots.value(1).id, QString(source.id() % u"/account/1"));
        EXPECT_TRUE(read.roots.value(1).isBar);
        EXPECT_FALSE(read.areEncrypted) << "the encrypted file stands beside one that can be read";
        EXPECT_TRUE(read.problems.isEmpty());
    }
}

TEST_F(AwkwardRelatives, ofChromiumKeepTheSecretOfTheirEncryptedBookmarks)
{
    for (const QStringView browser : {u"brave", u"vivaldi", u"opera"}) {
        const BookmarkTrees read = trees(profile(browser, u"Encrypted"_s));
        EXPECT_TRUE(read.areEncrypted) << browser.toString().toStdString();
        EXPECT_TRUE(read.roots.isEmpty());
        EXPECT_TRUE(read.problems.isEmpty());
    }
}

TEST_F(AwkwardOldOpera, isReadAsItWasWritten)
{
    std::map<QString, QString> written = listedProfiles();
    written[u""_s] = u"Opera"_s;
    EXPECT_EQ(names(u"opera"), written);
    const Source first = profile(u"opera", u"Opera"_s);
    EXPECT_EQ(nodesOf(trees(first).roots), chromiumBookmarks(u"Unsorted Bookmarks"_s));
    const auto items = BrowserReader::history(first, HistoryQuery::recent(), context());
    ASSERT_TRUE(items.has_value()) << items.error();
    expectSameRows(rowsOf(*items), chromiumRows(newest));
}

TEST_F(AwkwardRelatives, firefoxsHistoryIsReadAsItWasWritten)
{
    QStringList written;
    for (const sample::FirefoxPage &each : sample::awkwardFirefoxPages(newest)) {
        if (!each.hidden && each.lastVisitDate.value_or(0) > 0)
            written.append(row(textOf(each.url), textOf(each.title), each.visitCount,
                               double(*each.lastVisitDate) / 1e6));
    }
    const auto items = BrowserReader::history(profile(u"firefox", u"Renamed in the group"_s),
                                              HistoryQuery::recent(), context());
    ASSERT_TRUE(items.has_value()) << items.error();
    expectSameRows(rowsOf(*items), written);
}

TEST_F(AwkwardRelatives, firefoxsBookmarksAreReadAsTheyWereWritten)
{
    namespace folder = sample::firefox_folder;
    QList<sample::FirefoxBookmarkRow> rows = sample::awkwardFirefoxBookmarks(folder::firstFree);
    const auto next = [&rows] { return *rows.last().id + 1; };
    rows += sample::circlingFirefoxFolders(next());
    rows += sample::orphanedFirefoxBookmarks(next());
    rows += sample::firefoxRootBelowItself(folder::mobile, u"mobile______"_s, next());
    QStringList written;
    for (const auto &[title, root] :
         {std::pair(u"Bookmarks Toolbar"_s, folder::toolbar), std::pair(u"Bookmarks Menu"_s, folder::menu),
          std::pair(u"Mobile Bookmarks"_s, folder::mobile)})
        written += node(title, {}, {}, nodesOf(rows, root));
    EXPECT_EQ(nodesOf(trees(profile(u"firefox", u"Renamed in the group"_s)).roots), written);
}

TEST_F(AwkwardRelatives, firefoxsProfilesAreReadAsTheyWereWritten)
{
    QStringList written{u"Renamed in the group"_s, u"In the group only"_s};
    for (int number = 2; const QString &name : sample::awkwardFirefoxProfileNames()) {
        // The folder stands for a name that is empty.
        const QString folder = u"awkward.%1"_s.arg(number++);
        written.append(name.isEmpty() ? folder : name);
    }
    QStringList read;
    for (const Source &source : profiles(u"firefox"))
        read.append(source.name);
    read.sort();
    written.sort();
    EXPECT_EQ(read, written);
}

} // namespace roamlet::testing
