// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/ReaderTest.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"

#include <QFile>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::PropertyListFormat;
using sample::SafariProfileRow;
using sample::Text;

namespace
{

class SafariProfiles : public ReaderTest
{
protected:
    void write(const QList<SafariProfileRow> &rows, sample::Journal journal = sample::Journal::Clean)
    {
        change([&] { sample::writeSafariTabs(safariContainerFile(u"SafariTabs.db"_s), rows, journal); });
    }

    QList<Source> profiles() { return SafariReader::profiles(context()); }

    QStringList names()
    {
        QStringList result;
        for (const Source &source : profiles())
            result.append(source.name);
        return result;
    }

    /// The attributes of a profile whose favourites are this folder.
    static QByteArray favourites(const QVariant &folder,
                                 PropertyListFormat format = PropertyListFormat::Binary)
    {
        return sample::propertyList(QVariantMap{{u"CustomFavoritesFolderServerID"_s, folder}}, format);
    }

    static Source personal(const QSet<QString> &claimed)
    {
        return {.kind = Source::Kind::Safari,
                .profile = {},
                .name = u"Personal"_s,
                .safariBookmarks = Source::AllExcept{claimed}};
    }

    static Source named(const QString &name, const QString &id, const Source::SafariBookmarks &selection)
    {
        return {.kind = Source::Kind::Safari, .profile = id, .name = name, .safariBookmarks = selection};
    }

    const QList<Source> onlyDefault{Source::safari()};
};

} // namespace

TEST_F(SafariProfiles, withoutNamedOnesThereIsSafariAlone)
{
    EXPECT_EQ(profiles(), onlyDefault);
    write({});
    EXPECT_EQ(profiles(), onlyDefault);
    EXPECT_EQ(profiles().value(0).label(), u"Safari"_s);
}

TEST_F(SafariProfiles, eachShowsItsOwnFavouritesAndTheDefaultOneTheRest)
{
    write({{.title = u"A"_s, .serverID = u"ID-A"_s, .extraAttributes = favourites(u"X"_s)},
           {.title = u"B"_s, .serverID = u"ID-B"_s, .extraAttributes = favourites(u"Favorites Bar"_s)}});
    EXPECT_EQ(profiles(), (QList<Source>{personal({u"X"_s}), named(u"A"_s, u"ID-A"_s, Source::Folder{u"X"_s}),
                                         named(u"B"_s, u"ID-B"_s, Source::None{})}));
}

TEST_F(SafariProfiles, attributesMayBeXmlAndMayBeUseless)
{
    write(
        {{.title = u"xml"_s,
          .serverID = u"1"_s,
          .extraAttributes = favourites(u"X"_s, PropertyListFormat::Xml)},
         {.title = u"none"_s, .serverID = u"2"_s, .extraAttributes = {}},
         {.title = u"no bytes"_s, .serverID = u"3"_s, .extraAttributes = QByteArray("")},
         {.title = u"broken"_s, .serverID = u"4"_s, .extraAttributes = QByteArray("bplist00 broken")},
         {.title = u"number"_s, .serverID = u"5"_s, .extraAttributes = favourites(5)},
         {.title = u"array"_s,
          .serverID = u"6"_s,
          .extraAttributes = sample::propertyList(QVariantList{u"CustomFavoritesFolderServerID"_s},
                                                  PropertyListFormat::Binary)},
         {.title = u"other key"_s,
          .serverID = u"7"_s,
          .extraAttributes =
              sample::propertyList(QVariantMap{{u"Other"_s, u"Y"_s}}, PropertyListFormat::Binary)},
         {.title = u"other case"_s, .serverID = u"8"_s, .extraAttributes = favourites(u"favorites bar"_s)}});
    const QList<Source> sources = profiles();
    ASSERT_EQ(sources.size(), 9);
    EXPECT_EQ(sources[0], personal({u"X"_s, u"favorites bar"_s}));
    EXPECT_EQ(sources[1].safariBookmarks, Source::SafariBookmarks(Source::Folder{u"X"_s}));
    for (qsizetype i = 2; i <= 7; ++i)
        EXPECT_EQ(sources[i].safariBookmarks, Source::SafariBookmarks(Source::None{}))
            << sources[i].name.toStdString();
    EXPECT_EQ(sources[8].safariBookmarks, Source::SafariBookmarks(Source::Folder{u"favorites bar"_s}));
}

TEST_F(SafariProfiles, onlyProfilesWithNameAndIdentifierCount)
{
    write({{.title = u""_s, .serverID = u"1"_s, .extraAttributes = favourites(u"unclaimed"_s)},
           {.title = {}, .serverID = u"2"_s},
           {.title = u"without identifier"_s, .serverID = {}},
           {.title = u"tab group"_s, .serverID = u"3"_s, .subtype = 0},
           {.title = u"deleted"_s, .serverID = u"4"_s, .deleted = true},
           {.title = u"default"_s, .serverID = u"DefaultProfile"_s}});
    EXPECT_EQ(profiles(), onlyDefault);
    write({{.title = u""_s, .serverID = u"1"_s, .extraAttributes = favourites(u"unclaimed"_s)},
           {.title = u"real"_s, .serverID = u"5"_s}});
    EXPECT_EQ(profiles(), (QList<Source>{personal({}), named(u"real"_s, u"5"_s, Source::None{})}));
}

TEST_F(SafariProfiles, theyComeInSafarisOrder)
{
    write({{.title = u"third"_s, .serverID = u"1"_s, .orderIndex = 30},
           {.title = u"first"_s, .serverID = u"2"_s, .orderIndex = -1},
           {.title = u"second"_s, .serverID = u"3"_s, .orderIndex = 9}});
    EXPECT_EQ(names(), (QStringList{u"Personal"_s, u"first"_s, u"second"_s, u"third"_s}));
}

TEST_F(SafariProfiles, changesThatAreNotMergedYetCount)
{
    const QList<SafariProfileRow> rows{{.title = u"first"_s, .serverID = u"1"_s},
                                       {.title = u"second"_s, .serverID = u"2"_s}};
    for (const sample::Journal journal : {sample::Journal::UnmergedWal, sample::Journal::HotJournal}) {
        write(rows, journal);
        EXPECT_EQ(names(), (QStringList{u"Personal"_s, u"first"_s, u"second"_s}));
    }
}

TEST_F(SafariProfiles, aFileThatCannotBeReadMeansSafariAlone)
{
    const QString path = safariContainerFile(u"SafariTabs.db"_s);
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("no database at all"), QByteArray(10'000, 'x')}) {
        change([&] { sample::writeFile(path, bytes); });
        EXPECT_EQ(profiles(), onlyDefault);
    }
    write({{.title = u"A"_s, .serverID = u"1"_s}});
    EXPECT_EQ(profiles().size(), 2);
    for (const std::errc error : {std::errc::permission_denied, std::errc::io_error}) {
        refuse(path, error);
        EXPECT_EQ(profiles(), onlyDefault);
    }
}

TEST_F(SafariProfiles, anotherSchemaMeansSafariAlone)
{
    const QString path = safariContainerFile(u"SafariTabs.db"_s);
    sample::makeFolderOf(path);
    sample::Database(path).execute("CREATE TABLE bookmarks(title, server_id)");
    EXPECT_EQ(profiles(), onlyDefault);
}

TEST_F(SafariProfiles, rowsBeforeAnErrorCount)
{
    // A table that lies on disk in the order in which it is read, and whose end is damaged.
    const QString path = safariContainerFile(u"SafariTabs.db"_s);
    sample::makeFolderOf(path);
    sample::Database(path).execute(
        "CREATE TABLE bookmarks(order_index INTEGER PRIMARY KEY, title, server_id, extra_attributes, "
        "subtype, deleted)"
        " WITHOUT ROWID;"
        "WITH RECURSIVE n(i) AS (SELECT 1000 UNION ALL SELECT i + 1 FROM n WHERE i < 1999)"
        " INSERT INTO bookmarks SELECT i, 'profile ' || i, 'id ' || i, NULL, 2, 0 FROM n");
    ASSERT_EQ(names().size(), 1001);
    change([&path] {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        constexpr qint64 pageSize = 4096;
        const qint64 lastPage = file.readAll().indexOf("profile 1999") / pageSize;
        file.seek(lastPage * pageSize);
        file.write(QByteArray(pageSize, '\xFF'));
    });
    const QStringList rest = names();
    ASSERT_GT(rest.size(), 2);
    EXPECT_LT(rest.size(), 1001);
    EXPECT_EQ(rest.mid(0, 3), (QStringList{u"Personal"_s, u"profile 1000"_s, u"profile 1001"_s}));
}

TEST_F(SafariProfiles, awkwardNamesAreReadAsFarAsTheyGo)
{
    write({{.title = Text::raw(QByteArray("before\0after", 12)), .serverID = u"1"_s},
           {.title = Text::raw("Z\xFCrich"), .serverID = u"2"_s},
           {.title = Text::raw(QByteArray("\0", 1)), .serverID = u"3"_s},
           {.title = u" "_s, .serverID = u""_s},
           {.title = u"\uFEFFmarked"_s, .serverID = u"\uFEFF5"_s}});
    EXPECT_EQ(names(),
              (QStringList{u"Personal"_s, u"before"_s, u"Z\uFFFDrich"_s, u" "_s, u"\uFEFFmarked"_s}));
    EXPECT_EQ(profiles().value(3).id(), u"safari/"_s);
    EXPECT_EQ(profiles().value(4).id(), u"safari/\uFEFF5"_s);
}

} // namespace roamlet::testing
