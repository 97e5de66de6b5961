// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/PlainFiles.h"

#include <QRegularExpression>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::bookmarkNode;
using sample::folderNode;

namespace
{

constexpr qint64 addedTime = 13'300'000'000'000'000;
constexpr double addedSince1970 = 1'655'526'400;

class ChromiumBookmarks : public ReaderTest
{
protected:
    void writeText(const QByteArray &text)
    {
        change([&] { sample::writeFile(chromeFile(u"Bookmarks"_s), text); });
    }

    /// Writes these nodes into the bookmarks bar.
    void writeBar(const QJsonArray &nodes)
    {
        change([&] {
            sample::writeBookmarks(chromeFile(u"Bookmarks"_s),
                                   {{u"bookmark_bar"_s, folderNode(u"1"_s, u"Bookmarks bar"_s, nodes)}});
        });
    }

    QList<BookmarkNode> read(const Source &source = chrome())
    {
        const auto trees = ChromiumReader::bookmarks(source, context());
        if (!trees)
            ADD_FAILURE() << trees.error().first();
        return trees.value_or(BookmarkTrees()).roots;
    }

    /// What stands in the bookmarks bar.
    QList<BookmarkNode> bar() { return read().value(0).children.value_or(QList<BookmarkNode>()); }

    /// The first date in the bar when a bookmark has this "date_added".
    std::optional<double> dateOf(const QJsonValue &added)
    {
        QJsonObject node = bookmarkNode(u"2"_s, u"x"_s, u"https://a.example/"_s, 0);
        node[u"date_added"_s] = added;
        writeBar({node});
        const auto date = bar().value(0).dateAdded;
        return date ? std::optional(secondsSince1970(*date)) : std::nullopt;
    }

    static QJsonObject leaf(const QString &id)
    {
        return bookmarkNode(id, u"n"_s + id, u"https://%1.example/"_s.arg(id), addedTime);
    }
};

} // namespace

TEST_F(ChromiumBookmarks, aMissingFileMeansNone)
{
    EXPECT_TRUE(read().isEmpty());
}

TEST_F(ChromiumBookmarks, nodesAreRead)
{
    writeBar({bookmarkNode(u"7"_s, u"A page"_s, u"https://a.example/"_s, addedTime),
              folderNode(u"8"_s, u"Inner"_s, {leaf(u"9"_s)}), folderNode(u"10"_s, u""_s, {})});
    const QList<BookmarkNode> roots = read();
    EXPECT_EQ(outlineOf(roots),
              (QStringList{u"chrome/Default/1 | Bookmarks bar / *"_s,
                           u"  chrome/Default/7 | A page | https://a.example/ | 1655526400.000"_s,
                           u"  chrome/Default/8 | Inner /"_s,
                           u"    chrome/Default/9 | n9 | https://9.example/ | 1655526400.000"_s,
                           u"  chrome/Default/10 |  /"_s}));
    EXPECT_EQ(roots.value(0).source, chrome());
    EXPECT_EQ(bar().value(1).children.value_or(QList<BookmarkNode>()).value(0).source, chrome());
}

TEST_F(ChromiumBookmarks, rootsWithoutBookmarksAreLeftOut)
{
    change([this] {
        sample::writeBookmarks(
            chromeFile(u"Bookmarks"_s),
            {{u"bookmark_bar"_s, folderNode(u"1"_s, u"Bar"_s, {leaf(u"2"_s), leaf(u"3"_s)})},
             {u"other"_s, folderNode(u"4"_s, u"Other"_s, {folderNode(u"5"_s, u"nothing inside"_s, {})})},
             {u"synced"_s, folderNode(u"6"_s, u"Mobile"_s, {})}});
    });
    const QList<BookmarkNode> roots = read();
    ASSERT_EQ(titlesOf(roots), QStringList{u"Bar"_s});
    EXPECT_TRUE(roots[0].isBar);
}

TEST_F(ChromiumBookmarks, theBarComesFirstThenOtherThenSynced)
{
    writeText(R"({"roots": {
        "workspaces": {"type": "folder", "name": "ignored", "children": [{"type": "url", "url": "https://d.example/"}]},
        "synced": {"type": "folder", "name": "Mobile", "children": [{"type": "url", "url": "https://a.example/"}]},
        "other": {"type": "folder", "name": "Other", "children": [{"type": "url", "url": "https://b.example/"}]},
        "bookmark_bar": {"type": "folder", "name": "Bar", "children": [{"type": "url", "url": "https://c.example/"}]}}})");
    const QList<BookmarkNode> roots = read();
    ASSERT_EQ(titlesOf(roots), (QStringList{u"Bar"_s, u"Other"_s, u"Mobile"_s}));
    EXPECT_TRUE(roots[0].isBar);
    EXPECT_FALSE(roots[1].isBar);
    EXPECT_FALSE(roots[2].isBar);
}

TEST_F(ChromiumBookmarks, aBarWithoutBookmarksIsLeftOutToo)
{
    change([this] {
        sample::writeBookmarks(chromeFile(u"Bookmarks"_s),
                               {{u"bookmark_bar"_s, folderNode(u"1"_s, u"Bar"_s, {})},
                                {u"other"_s, folderNode(u"4"_s, u"Other"_s, {leaf(u"5"_s)})}});
    });
    const QList<BookmarkNode> roots = read();
    ASSERT_EQ(titlesOf(roots), QStringList{u"Other"_s});
    EXPECT_FALSE(roots[0].isBar);
}

TEST_F(ChromiumBookmarks, aRootMayItselfBeABookmark)
{
    writeText(
        R"({"roots": {"bookmark_bar": {"type": "url", "id": "1", "name": "lone", "url": "https://a.example/"},
                            "other": {"type": "separator"}, "synced": "text"}})");
    const QList<BookmarkNode> roots = read();
    ASSERT_EQ(titlesOf(roots), QStringList{u"lone"_s});
    EXPECT_FALSE(roots[0].isFolder());
    EXPECT_TRUE(roots[0].isBar);
}

TEST_F(ChromiumBookmarks, aBookmarkWithoutNameIsNamedByItsAddressAFolderKeepsNone)
{
    writeText(R"({"roots": {"bookmark_bar": {"type": "folder", "children": [
        {"type": "url", "name": "", "url": "https://a.example/"}, {"type": "url", "url": "https://b.example/"},
        {"type": "url", "name": 5, "url": "https://c.example/"}, {"type": "url", "name": "no address"},
        {"type": "url"}, {"type": "url", "name": "wrong address", "url": ["https://d.example/"]},
        {"type": "folder", "name": ""}, {"type": "folder", "name": null, "url": "https://ignored.example/"}]}}})");
    const QList<BookmarkNode> nodes = bar();
    EXPECT_EQ(titlesOf(nodes),
              (QStringList{u"https://a.example/"_s, u"https://b.example/"_s, u"https://c.example/"_s,
                           u"no address"_s, u""_s, u"wrong address"_s, u""_s, u""_s}));
    ASSERT_EQ(nodes.size(), 8);
    EXPECT_EQ(nodes[3].url, u""_s);
    EXPECT_EQ(nodes[5].url, u""_s);
    EXPECT_EQ(nodes[7].url, std::nullopt);
    EXPECT_TRUE(nodes[7].isFolder());
}

TEST_F(ChromiumBookmarks, datesAreMicrosecondsInAText)
{
    EXPECT_EQ(dateOf(u"13300000000000000"_s), addedSince1970);
    EXPECT_EQ(dateOf(u"0013300000000000000"_s), addedSince1970);
    EXPECT_EQ(dateOf(u"+13300000000000000"_s), addedSince1970);
    EXPECT_EQ(dateOf(u"1"_s), 0.000001 - 11'644'473'600);
    EXPECT_EQ(dateOf(u"9223372036854775807"_s), 9'223'372'036'854.775807 - 11'644'473'600);
    for (const char *text : {"0", "", "abc", "-1", "-13300000000000000", "1.5", "1e16", " 13300000000000000",
                             "13300000000000000 ", "9223372036854775808", "99999999999999999999999", "+", "-",
                             "+-5", "++5", "0x10", "13_300"}) {
        EXPECT_EQ(dateOf(QString::fromLatin1(text)), std::nullopt) << text;
    }
    for (const QJsonValue &value : {QJsonValue(13.3e15), QJsonValue(true), QJsonValue(QJsonValue::Null),
                                    QJsonValue(QJsonArray{u"1"_s})}) {
        EXPECT_EQ(dateOf(value), std::nullopt);
    }
}

TEST_F(ChromiumBookmarks, nodesOfUnknownKindAreLeftOutWithEverythingInThem)
{
    writeText(R"({"roots": {"bookmark_bar": {"type": "folder", "children": [
        {"type": "separator", "children": [{"type": "url", "name": "in a separator", "url": "u"}]},
        {"type": "Folder", "children": [{"type": "url", "name": "in a Folder", "url": "u"}]},
        {"name": "without type", "url": "u"}, {"type": 1, "name": "number"}, {"type": null}, {},
        {"type": "url", "name": "kept", "url": "u", "children": [{"type": "url", "name": "in a page", "url": "u"}]}]}}})");
    EXPECT_EQ(titlesOf(bar()), QStringList{u"kept"_s});
    EXPECT_FALSE(bar().value(0).isFolder());
}

TEST_F(ChromiumBookmarks, childrenThatAreNotAllObjectsCountAsNone)
{
    for (const char *children :
         {R"([{"type": "url", "url": "u"}, 5])", R"([{"type": "url", "url": "u"}, null])",
          R"([[{"type": "url", "url": "u"}]])", R"({"0": {"type": "url", "url": "u"}})", "5", "null"}) {
        writeText(QByteArray(R"({"roots": {"bookmark_bar": {"type": "folder", "children": [
            {"type": "folder", "name": "odd", "children": )") +
                  children + R"(}, {"type": "url", "name": "beside", "url": "u"}]}}})");
        const QList<BookmarkNode> nodes = bar();
        ASSERT_EQ(titlesOf(nodes), (QStringList{u"odd"_s, u"beside"_s})) << children;
        EXPECT_TRUE(nodes[0].isFolder() && nodes[0].children->isEmpty()) << children;
    }
}

TEST_F(ChromiumBookmarks, idsAreStableWhereTheFileHasThem)
{
    writeText(R"({"roots": {"bookmark_bar": {"type": "folder", "id": "1", "children": [
        {"type": "url", "id": "5", "url": "u"}, {"type": "url", "id": 5, "url": "u"}, {"type": "url", "url": "u"},
        {"type": "url", "id": "", "url": "u"}]}}})");
    const QList<BookmarkNode> first = bar();
    const QList<BookmarkNode> second = bar();
    ASSERT_EQ(first.size(), 4);
    ASSERT_EQ(second.size(), 4);
    EXPECT_EQ(first[0].id, u"chrome/Default/5"_s);
    EXPECT_EQ(first[0].id, second[0].id);
    EXPECT_EQ(first[3].id, u"chrome/Default/"_s);
    const QRegularExpression random(u"^chrome/Default/[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s);
    for (const qsizetype i : {1, 2}) {
        EXPECT_TRUE(random.match(first[i].id).hasMatch()) << first[i].id.toStdString();
        EXPECT_NE(first[i].id, second[i].id);
    }
    EXPECT_NE(first[1].id, first[2].id);
}

TEST_F(ChromiumBookmarks, eachSourceHasItsOwnFileAndIds)
{
    const QJsonObject roots{{u"bookmark_bar"_s, folderNode(u"1"_s, u"Bar"_s, {leaf(u"2"_s)})}};
    sample::writeBookmarks(chromeFile(u"Bookmarks"_s, u"Profile 1"_s), roots);
    sample::writeBookmarks(edgeFile(u"Bookmarks"_s), roots);
    EXPECT_TRUE(read().isEmpty());
    EXPECT_EQ(read(chrome(u"Profile 1"_s)).value(0).id, u"chrome/Profile 1/1"_s);
    EXPECT_EQ(read(edge()).value(0).id, u"edge/Default/1"_s);
    EXPECT_EQ(read(edge()).value(0).source, edge());
}

TEST_F(ChromiumBookmarks, unexpectedStructureIsEmptyAndNoError)
{
    for (const char *text :
         {"{}", "[]", "null", "5", "\"text\"", R"({"roots": []})", R"({"roots": null})", R"({"roots": {}})",
          R"({"roots": {"bookmark_bar": []}})", R"({"roots": {"bookmark_bar": {}}})"}) {
        writeText(text);
        EXPECT_TRUE(read().isEmpty()) << text;
    }
}

TEST_F(ChromiumBookmarks, awkwardNamesAreReadWhole)
{
    const QString megabyte = u"ü"_s.repeated(1'000'000);
    writeBar({bookmarkNode(u"2"_s, QString(u"before\0after"_s), u"u"_s, 0),
              bookmarkNode(u"3"_s, megabyte, u"u"_s, 0), bookmarkNode(u"4"_s, u"\u202Eright"_s, u"u"_s, 0),
              bookmarkNode(u"5"_s, u"\uFEFFmarked"_s, u"\uFEFFhttps://a.example/"_s, 0)});
    EXPECT_EQ(titlesOf(bar()),
              (QStringList{u"before\0after"_s, megabyte, u"\u202Eright"_s, u"\uFEFFmarked"_s}));
    EXPECT_EQ(bar().value(3).url, u"\uFEFFhttps://a.example/"_s);
}

TEST_F(ChromiumBookmarks, aHundredThousandFoldersAreRead)
{
    QByteArray folders;
    for (int i = 0; i < 100'000; ++i)
        folders +=
            R"({"type":"folder","id":")" + QByteArray::number(i + 10) + R"(","name":"f","children":[]},)";
    writeText(R"({"roots": {"bookmark_bar": {"type": "folder", "name": "Bar", "children": [)" + folders +
              R"({"type": "url", "name": "last", "url": "https://a.example/"}]}}})");
    const QList<BookmarkNode> roots = read();
    ASSERT_EQ(roots.size(), 1);
    EXPECT_EQ(roots[0].folderCount(), 100'001);
    EXPECT_EQ(roots[0].bookmarkCount(), 1);
}

TEST_F(ChromiumBookmarks, foldersMayBeNestedFarDeeperThanABrowserNestsThem)
{
    for (const int depth : {5'000, 14'000}) {
        change([&] { sample::writeDeepBookmarks(chromeFile(u"Bookmarks"_s), depth); });
        onAnotherThread([&] {
            const QList<BookmarkNode> roots = read();
            ASSERT_EQ(roots.size(), 1);
            EXPECT_EQ(roots[0].folderCount(), depth);
            EXPECT_EQ(roots[0].bookmarkCount(), 1);
            QList<BookmarkNode> copy = roots;
            copy.detach();
            EXPECT_EQ(copy[0].bookmarkCount(), 1);
        });
    }
}

TEST_F(ChromiumBookmarks, whatIsNestedWithoutEndIsAnError)
{
    change([&] { sample::writeDeepBookmarks(chromeFile(u"Bookmarks"_s), 200'000); });
    const auto trees = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_FALSE(trees.has_value());
    EXPECT_EQ(trees.error(),
              ReadErrors{ReadError::unreadable(chromeFile(u"Bookmarks"_s), u"it is nested too deeply"_s)});
}

} // namespace roamlet::testing
