// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/ReaderTest.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"

#include <QRegularExpression>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::PropertyListFormat;
using sample::safariBookmark;
using sample::safariFolder;

namespace
{

class SafariBookmarks : public ReaderTest
{
protected:
    void write(const QVariant &root, PropertyListFormat format = PropertyListFormat::Binary)
    {
        change([&] { sample::writePropertyList(safariFile(u"Bookmarks.plist"_s), root, format); });
    }

    /// Writes these entries at the top.
    void writeEntries(const QVariantList &entries, PropertyListFormat format = PropertyListFormat::Binary)
    {
        write(safariFolder(u"root"_s, {}, entries), format);
    }

    /// Writes these entries into a folder named "F".
    void writeFolder(const QVariantList &entries) { writeEntries({safariFolder(u"f"_s, u"F"_s, entries)}); }

    static Source showing(const Source::SafariBookmarks &selection) { return namedSafari(u"P"_s, selection); }

    QList<BookmarkNode> read(const Source &source = Source::safari())
    {
        const auto trees = SafariReader::bookmarks(source, context());
        if (!trees)
            ADD_FAILURE() << trees.error().first();
        return trees.value_or(BookmarkTrees()).roots;
    }

    QStringList outline(const Source &source = Source::safari()) { return outlineOf(read(source)); }

    QList<BookmarkNode> folder() { return read().value(0).children.value_or(QList<BookmarkNode>()); }

    static QVariantMap leaf(const QString &name)
    {
        return safariBookmark(name, name, u"https://%1.example/"_s.arg(name),
                              QDateTime(QDate(2026, 5, 9), QTime(6, 13, 20), Qt::UTC));
    }

    static QString lineOf(const QString &name)
    {
        return u"safari/%1 | %1 | https://%1.example/ | 1778307200.000"_s.arg(name);
    }

    static QVariantMap without(QVariantMap map, const QString &key)
    {
        map.remove(key);
        return map;
    }

    static QVariantMap with(QVariantMap map, const QString &key, const QVariant &value)
    {
        map.insert(key, value);
        return map;
    }
};

} // namespace

TEST_F(SafariBookmarks, theTreeIsReadInBothFormats)
{
    for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml}) {
        writeEntries(
            {safariFolder(u"bar"_s, u"BookmarksBar"_s, {leaf(u"a"_s), safariFolder(u"e"_s, u"empty"_s, {})}),
             safariFolder(u"menu"_s, u"BookmarksMenu"_s, {leaf(u"b"_s)}),
             safariFolder(u"mine"_s, u"My folder"_s,
                          {safariFolder(u"bar2"_s, u"BookmarksBar"_s, {leaf(u"c"_s)})}),
             leaf(u"d"_s)},
            format);
        EXPECT_EQ(outline(), (QStringList{u"safari/bar | Favorites / *"_s, u"  "_s + lineOf(u"a"_s),
                                          u"  safari/e | empty /"_s, u"safari/menu | Bookmarks Menu /"_s,
                                          u"  "_s + lineOf(u"b"_s), u"safari/mine | My folder /"_s,
                                          // The standard names mean something at the top only.
                                          u"  safari/bar2 | BookmarksBar /"_s, u"    "_s + lineOf(u"c"_s),
                                          lineOf(u"d"_s)}));
        EXPECT_EQ(read().value(0).source, Source::safari());
    }
}

TEST_F(SafariBookmarks, theReadingListIsNeverShown)
{
    writeEntries({safariFolder(u"r"_s, u"com.apple.ReadingList"_s, {leaf(u"a"_s)}),
                  with(leaf(u"b"_s), u"Title"_s, u"com.apple.ReadingList"_s),
                  safariFolder(u"f"_s, u"F"_s,
                               {safariFolder(u"inner"_s, u"com.apple.ReadingList"_s, {leaf(u"c"_s)})})});
    EXPECT_EQ(outline(), (QStringList{u"safari/f | F /"_s, u"  safari/inner | com.apple.ReadingList /"_s,
                                      u"    "_s + lineOf(u"c"_s)}));
}

TEST_F(SafariBookmarks, foldersAtTheTopWithoutAnyBookmarkAreLeftOut)
{
    writeEntries({safariFolder(u"bar"_s, u"BookmarksBar"_s, {safariFolder(u"e"_s, u"empty"_s, {})}),
                  safariFolder(u"f"_s, u"F"_s, {safariFolder(u"e"_s, u"empty"_s, {}), leaf(u"a"_s)})});
    EXPECT_EQ(outline(),
              (QStringList{u"safari/f | F /"_s, u"  safari/e | empty /"_s, u"  "_s + lineOf(u"a"_s)}));
}

TEST_F(SafariBookmarks, aBookmarkWithoutTitleIsNamedByItsAddressAndOneWithoutAddressDropped)
{
    writeFolder({without(leaf(u"a"_s), u"URIDictionary"_s), with(leaf(u"b"_s), u"URIDictionary"_s, u"text"_s),
                 with(leaf(u"c"_s), u"URIDictionary"_s, QVariantMap{}),
                 with(leaf(u"d"_s), u"URIDictionary"_s, QVariantMap{{u"title"_s, 5}}),
                 with(leaf(u"e"_s), u"URIDictionary"_s, QVariantMap{{u"title"_s, u""_s}}),
                 with(leaf(u"f"_s), u"Title"_s, u"not this"_s), without(leaf(u"g"_s), u"URLString"_s),
                 with(leaf(u"h"_s), u"URLString"_s, 5), with(leaf(u"i"_s), u"URLString"_s, u""_s)});
    EXPECT_EQ(titlesOf(folder()),
              (QStringList{u"https://a.example/"_s, u"https://b.example/"_s, u"https://c.example/"_s,
                           u"https://d.example/"_s, u""_s, u"f"_s, u"i"_s}));
}

TEST_F(SafariBookmarks, datesAreOptional)
{
    writeFolder(
        {without(leaf(u"a"_s), u"dateAdded"_s), with(leaf(u"b"_s), u"dateAdded"_s, u"2026-05-09T06:13:20Z"_s),
         with(leaf(u"c"_s), u"dateAdded"_s, QDateTime(QDate(1969, 12, 31), QTime(23, 59, 58, 500), Qt::UTC)),
         with(safariFolder(u"d"_s, u"D"_s, {}), u"dateAdded"_s,
              QDateTime(QDate(2026, 5, 9), QTime(), Qt::UTC))});
    const QList<BookmarkNode> nodes = folder();
    ASSERT_EQ(nodes.size(), 4);
    EXPECT_FALSE(nodes[0].dateAdded.has_value());
    EXPECT_FALSE(nodes[1].dateAdded.has_value());
    EXPECT_EQ(nodes[2].dateAdded, pointInTime(-1.5));
    EXPECT_FALSE(nodes[3].dateAdded.has_value());
}

TEST_F(SafariBookmarks, entriesOfAnotherTypeAreDropped)
{
    writeFolder({with(leaf(u"a"_s), u"WebBookmarkType"_s, u"WebBookmarkTypeProxy"_s),
                 without(leaf(u"b"_s), u"WebBookmarkType"_s), with(leaf(u"c"_s), u"WebBookmarkType"_s, 5),
                 with(leaf(u"d"_s), u"WebBookmarkType"_s, u"webbookmarktypeleaf"_s),
                 with(safariFolder(u"e"_s, u"E"_s, {leaf(u"f"_s)}), u"WebBookmarkType"_s, u"Other"_s),
                 QVariantMap{}, leaf(u"g"_s), with(leaf(u"h"_s), u"Children"_s, QVariantList{leaf(u"i"_s)})});
    EXPECT_EQ(titlesOf(folder()), (QStringList{u"g"_s, u"h"_s}));
    EXPECT_FALSE(folder().value(1).isFolder());
}

TEST_F(SafariBookmarks, childrenThatAreNotAllDictionariesCountAsNone)
{
    for (const QVariant &children :
         {QVariant(QVariantList{leaf(u"a"_s), u"text"_s}), QVariant(u"text"_s), QVariant(leaf(u"a"_s)),
          QVariant(QVariantList{QVariantList{leaf(u"a"_s)}})}) {
        writeFolder({with(safariFolder(u"odd"_s, u"odd"_s, {}), u"Children"_s, children), leaf(u"b"_s)});
        EXPECT_EQ(outlineOf(folder()), (QStringList{u"safari/odd | odd /"_s, lineOf(u"b"_s)}));
        write(with(safariFolder(u"root"_s, {}, {}), u"Children"_s, children));
        EXPECT_EQ(outline(), QStringList());
        EXPECT_EQ(outline(showing(Source::Folder{u"x"_s})), QStringList());
    }
    write(QVariantMap{{u"Title"_s, u"no children"_s}});
    EXPECT_EQ(outline(), QStringList());
}

TEST_F(SafariBookmarks, anEntryWithoutIdentifierGetsANewOneWithEveryRead)
{
    writeFolder({without(leaf(u"a"_s), u"WebBookmarkUUID"_s), with(leaf(u"b"_s), u"WebBookmarkUUID"_s, 5),
                 leaf(u"c"_s)});
    const QList<BookmarkNode> first = folder();
    const QList<BookmarkNode> second = folder();
    ASSERT_EQ(first.size(), 3);
    const QRegularExpression random(u"^safari/[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s);
    for (const qsizetype i : {0, 1}) {
        EXPECT_TRUE(random.match(first[i].id).hasMatch()) << first[i].id.toStdString();
        EXPECT_NE(first[i].id, second[i].id);
    }
    EXPECT_EQ(first[2].id, u"safari/c"_s);
    EXPECT_EQ(second[2].id, u"safari/c"_s);
}

TEST_F(SafariBookmarks, aFolderWithoutTitleKeepsNone)
{
    writeEntries({without(safariFolder(u"f"_s, {}, {leaf(u"a"_s)}), u"Title"_s),
                  with(safariFolder(u"g"_s, {}, {leaf(u"b"_s)}), u"Title"_s, 5)});
    EXPECT_EQ(titlesOf(read()), (QStringList{u""_s, u""_s}));
}

TEST_F(SafariBookmarks, aSourceWithoutBookmarksDoesNotLookAtTheFile)
{
    int asked = 0;
    home.files.failure = [&asked](const QString &) {
        ++asked;
        return std::make_error_code(std::errc::permission_denied);
    };
    EXPECT_EQ(outline(showing(Source::None{})), QStringList());
    EXPECT_EQ(asked, 0);
}

TEST_F(SafariBookmarks, aNamedProfileShowsItsFolderAsTheBar)
{
    writeEntries(
        {safariFolder(u"bar"_s, u"BookmarksBar"_s, {leaf(u"a"_s)}),
         safariFolder(u"f"_s, u"F"_s,
                      {safariFolder(u"x1"_s, u"Work"_s,
                                    {leaf(u"b"_s), safariFolder(u"e"_s, u"BookmarksBar"_s, {})}, u"X"_s),
                       safariFolder(u"x2"_s, u"second"_s, {leaf(u"c"_s)}, u"X"_s)}),
         safariFolder(u"x3"_s, u"third"_s, {leaf(u"d"_s)}, u"X"_s)});
    // The first in tree order.
    EXPECT_EQ(
        outline(showing(Source::Folder{u"X"_s})),
        (QStringList{u"safari/x1 | Work / *"_s, u"  "_s + lineOf(u"b"_s), u"  safari/e | BookmarksBar /"_s}));
    EXPECT_EQ(read(showing(Source::Folder{u"X"_s})).value(0).source, showing(Source::Folder{u"X"_s}));
    EXPECT_EQ(outline(showing(Source::Folder{u"gone"_s})), QStringList());
}

TEST_F(SafariBookmarks, aFolderIsFoundInTreeOrder)
{
    writeEntries(
        {safariFolder(u"outer"_s, u"outer"_s, {safariFolder(u"deep"_s, u"deep"_s, {leaf(u"a"_s)}, u"X"_s)}),
         safariFolder(u"later"_s, u"later"_s, {leaf(u"b"_s)}, u"X"_s)});
    EXPECT_EQ(titlesOf(read(showing(Source::Folder{u"X"_s}))), QStringList{u"deep"_s});
    // An entry counts before what is in it.
    writeEntries({safariFolder(u"outer"_s, u"BookmarksMenu"_s,
                               {safariFolder(u"deep"_s, u"deep"_s, {leaf(u"a"_s)}, u"X"_s)}, u"X"_s)});
    EXPECT_EQ(titlesOf(read(showing(Source::Folder{u"X"_s}))), QStringList{u"Bookmarks Menu"_s});
}

TEST_F(SafariBookmarks, theFoundEntryMayBeABookmarkTheRootOrNothingUseful)
{
    const auto withServerID = [](const QVariantMap &entry) {
        return with(entry, u"Sync"_s, QVariantMap{{u"ServerID"_s, u"X"_s}});
    };
    const Source source = showing(Source::Folder{u"X"_s});
    writeEntries({withServerID(leaf(u"a"_s))});
    EXPECT_EQ(outline(source), QStringList{lineOf(u"a"_s) + u" *"_s});
    write(withServerID(safariFolder(u"root"_s, u"R"_s, {leaf(u"b"_s)})));
    EXPECT_EQ(outline(source), (QStringList{u"safari/root | R / *"_s, u"  "_s + lineOf(u"b"_s)}));
    writeEntries({withServerID(safariFolder(u"f"_s, u"F"_s, {safariFolder(u"e"_s, u"empty"_s, {})}))});
    EXPECT_EQ(outline(source), QStringList());
    writeEntries({withServerID(without(leaf(u"a"_s), u"WebBookmarkType"_s))});
    EXPECT_EQ(outline(source), QStringList());
    writeEntries({with(leaf(u"a"_s), u"Sync"_s, u"X"_s),
                  with(leaf(u"b"_s), u"Sync"_s, QVariantMap{{u"ServerID"_s, 5}})});
    EXPECT_EQ(outline(source), QStringList());
}

TEST_F(SafariBookmarks, theDefaultProfileLeavesOutWhatBelongsToOthers)
{
    writeEntries({safariFolder(u"f"_s, u"F"_s,
                               {leaf(u"a"_s), safariFolder(u"x"_s, u"X"_s, {leaf(u"b"_s)}, u"X"_s),
                                with(leaf(u"c"_s), u"Sync"_s, QVariantMap{{u"ServerID"_s, u"Y"_s}}),
                                safariFolder(u"z"_s, u"Z"_s, {leaf(u"d"_s)}, u"Z"_s)}),
                  safariFolder(u"y"_s, u"Y"_s, {leaf(u"e"_s)}, u"Y"_s)});
    Source source = Source::safari();
    source.safariBookmarks = Source::AllExcept{{u"X"_s, u"Y"_s}};
    EXPECT_EQ(outline(source), (QStringList{u"safari/f | F /"_s, u"  "_s + lineOf(u"a"_s),
                                            u"  safari/z | Z /"_s, u"    "_s + lineOf(u"d"_s)}));
    // What a named profile shows is not thinned out.
    EXPECT_EQ(outline(showing(Source::Folder{u"X"_s})),
              (QStringList{u"safari/x | X / *"_s, u"  "_s + lineOf(u"b"_s)}));
}

TEST_F(SafariBookmarks, whatIsNoDictionaryAtTheTopIsAnError)
{
    const QString path = safariFile(u"Bookmarks.plist"_s);
    for (const QVariant &root : {QVariant(QVariantList{leaf(u"a"_s)}), QVariant(u"text"_s), QVariant(5)}) {
        for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml}) {
            write(root, format);
            const auto nodes = SafariReader::bookmarks(Source::safari(), context());
            ASSERT_FALSE(nodes.has_value());
            EXPECT_EQ(nodes.error().first(), ReadError::unreadable(path, u"not a dictionary"_s));
        }
    }
}

TEST_F(SafariBookmarks, aMissingRefusedOrForeignFileIsAnError)
{
    const QString path = safariFile(u"Bookmarks.plist"_s);
    const auto error = [this] {
        const auto nodes = SafariReader::bookmarks(Source::safari(), context());
        return nodes ? ReadError::unreadable(u"no"_s, u"error"_s) : nodes.error().first();
    };
    EXPECT_EQ(error(), ReadError::unreadable(path, u"No such file or directory"_s));
    for (const QByteArray &bytes : {QByteArray(), QByteArray("{}"), QByteArray("SQLite format 3\0", 16)}) {
        change([&] { sample::writeFile(path, bytes); });
        EXPECT_EQ(error().kind(), ReadError::Kind::Unreadable);
        EXPECT_EQ(error().path(), path);
        EXPECT_FALSE(error().reason().isEmpty());
    }
    for (const std::errc refusal : {std::errc::permission_denied, std::errc::operation_not_permitted}) {
        refuse(path, refusal);
        EXPECT_EQ(error(), ReadError::noAccess(path));
        EXPECT_EQ(error().errorDescription(), u"macOS blocked access to "_s + path + u"."_s);
    }
}

} // namespace roamlet::testing
