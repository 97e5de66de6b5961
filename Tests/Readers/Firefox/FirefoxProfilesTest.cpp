// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Firefox/FirefoxProfiles.h"

#include "Readers/BrowserReader.h"
#include "Readers/Firefox/FirefoxReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/AwkwardFirefox.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::FirefoxGroupProfile;
using sample::FirefoxInstall;
using sample::FirefoxProfile;
using sample::IniStyle;
using sample::Journal;

namespace
{

const QString newFolder = u".config/mozilla/firefox/"_s;
const QString oldFolder = u".mozilla/firefox/"_s;

class FirefoxProfilesTest : public ReaderTest
{
protected:
    /// Lets a profile have a history, which only has to be there.
    void makeProfile(const QString &path, const QString &root = oldFolder)
    {
        const QString folder = QDir::cleanPath(path.startsWith(u'/') ? path : home.path(root % path));
        change([&] { sample::writeFile(folder % u"/places.sqlite", "history"); });
    }

    /// Lists the profiles, and makes those that are relative.
    void write(const QList<FirefoxProfile> &profiles, const QList<FirefoxInstall> &installs = {},
               const QString &root = oldFolder, const IniStyle &style = {})
    {
        change([&] {
            sample::writeFirefoxProfiles(home.path(root % u"profiles.ini"), profiles, installs, style);
        });
        for (const FirefoxProfile &profile : profiles)
            makeProfile(profile.path, root);
    }

    void writeText(const QByteArray &text, const QString &root = oldFolder)
    {
        change([&] { sample::writeFile(home.path(root % u"profiles.ini"), text); });
    }

    void writeGroup(const QList<FirefoxGroupProfile> &profiles, const QString &name = u"1234abcd"_s,
                    Journal journal = Journal::Clean, const QString &root = oldFolder)
    {
        change([&] {
            sample::writeFirefoxGroup(home.path(root % u"Profile Groups/" % name % u".sqlite"), profiles,
                                      journal);
        });
    }

    /// The profiles, each of which has to be found again by its key.
    QList<Source> profiles(const QString &kind = u"firefox"_s)
    {
        const ReadContext context = this->context();
        const QList<Source> sources = BrowserReader::profiles(*Source::kindFromRawValue(kind), context);
        for (const Source &source : sources)
            EXPECT_TRUE(context.files->exists(FirefoxReader::historyFile(source, context)))
                << source.id().toStdString();
        return sources;
    }

    QStringList keys()
    {
        QStringList result;
        for (const Source &source : profiles())
            result.append(*source.profile);
        return result;
    }

    QStringList names()
    {
        QStringList result;
        for (const Source &source : profiles())
            result.append(source.name);
        return result;
    }

    QStringList labels()
    {
        QStringList result;
        for (const Source &source : profiles())
            result.append(source.label());
        return result;
    }

    QString historyFile(const Source &source) { return FirefoxReader::historyFile(source, context()); }
};

} // namespace

TEST_F(FirefoxProfilesTest, aProfileIsAWholeSource)
{
    write({{.name = u"Work"_s, .path = u"abcd.Work"_s}});
    EXPECT_EQ(profiles(), (QList<Source>{{.kind = *Source::kindFromRawValue(u"firefox"),
                                          .profile = u"abcd.Work"_s,
                                          .name = u"Work"_s,
                                          .safariBookmarks = Source::AllExcept{},
                                          .installation = {},
                                          .namesInstallation = false}}));
    EXPECT_EQ(profiles().value(0).id(), u"firefox/abcd.Work"_s);
    EXPECT_EQ(profiles().value(0).label(), u"Firefox - Work"_s);
    EXPECT_EQ(historyFile(profiles().value(0)), home.path(oldFolder % u"abcd.Work/places.sqlite"));
}

TEST_F(FirefoxProfilesTest, withoutAListThereAreNone)
{
    EXPECT_EQ(profiles(), QList<Source>());
    makeProfile(u"abcd.Work"_s);
    writeGroup({{.path = u"abcd.Work"_s, .name = u"Work"_s}});
    EXPECT_EQ(profiles(), QList<Source>());
}

TEST_F(FirefoxProfilesTest, aFolderWithoutAHistoryIsNoProfile)
{
    write({{.name = u"default-release"_s, .path = u"a.default-release"_s}});
    change([&] {
        sample::writeFirefoxProfiles(home.path(oldFolder % u"profiles.ini"),
                                     {{.name = u"default"_s, .path = u"b.default"_s, .isDefault = true},
                                      {.name = u"default-release"_s, .path = u"a.default-release"_s},
                                      {.name = u"gone"_s, .path = u"c.gone"_s}});
        sample::makeFolder(home.path(oldFolder % u"b.default"));
    });
    EXPECT_EQ(keys(), QStringList{u"a.default-release"_s});
}

TEST_F(FirefoxProfilesTest, theDefaultOfTheOnlyInstallComesFirstAndTheOthersByNameThenByKey)
{
    write({{.name = u"Profile 10"_s, .path = u"a"_s},
           {.name = u"émile"_s, .path = u"c"_s, .isDefault = true},
           {.name = u"Profile 2"_s, .path = u"d"_s},
           {.name = u"Zebra"_s, .path = u"e"_s},
           {.name = u"Emma"_s, .path = u"g"_s},
           {.name = u"Emma"_s, .path = u"f"_s}},
          {{.hash = u"4F96D1932A9F858E"_s, .defaultPath = u"e"_s}});
    EXPECT_EQ(keys(), (QStringList{u"e"_s, u"c"_s, u"f"_s, u"g"_s, u"d"_s, u"a"_s}));
}

TEST_F(FirefoxProfilesTest, withNoneOrSeveralInstallsTheMarkedProfileComesFirst)
{
    const QList<FirefoxProfile> profiles{{.name = u"A"_s, .path = u"a"_s},
                                         {.name = u"B"_s, .path = u"b"_s, .isDefault = true},
                                         {.name = u"C"_s, .path = u"c"_s}};
    write(profiles);
    EXPECT_EQ(keys(), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    write(profiles, {{.hash = u"1"_s, .defaultPath = u"c"_s}, {.hash = u"2"_s, .defaultPath = u"a"_s}});
    EXPECT_EQ(keys(), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    write(profiles, {{.hash = u"1"_s, .defaultPath = u"c"_s}});
    EXPECT_EQ(keys(), (QStringList{u"c"_s, u"a"_s, u"b"_s}));
}

TEST_F(FirefoxProfilesTest, ofSeveralMarkedProfilesTheOneWithTheHighestNumberIsMeant)
{
    writeText("[Profile10]\nName=Z\nIsRelative=1\nPath=a\nDefault=1\n"
              "[Profile9]\nName=B\nIsRelative=1\nPath=b\nDefault=1\n"
              "[Profile11]\nName=C\nIsRelative=1\nPath=c\nDefault=0\n"
              "[Profile12]\nName=D\nIsRelative=1\nPath=d\n");
    for (const QString &path : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        makeProfile(path);
    EXPECT_EQ(keys(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    write({{.name = u"Z"_s, .path = u"z"_s, .isDefault = true},
           {.name = u"B"_s, .path = u"b"_s, .isDefault = true},
           {.name = u"A"_s, .path = u"a"_s}});
    EXPECT_EQ(keys(), (QStringList{u"b"_s, u"a"_s, u"z"_s}));
}

TEST_F(FirefoxProfilesTest, aDefaultThatIsNoProfileLetsNoneComeFirst)
{
    const QList<FirefoxProfile> profiles{{.name = u"B"_s, .path = u"b"_s, .isDefault = true},
                                         {.name = u"A"_s, .path = u"a"_s}};
    write(profiles, {{.hash = u"1"_s, .defaultPath = u"gone"_s}});
    EXPECT_EQ(keys(), (QStringList{u"a"_s, u"b"_s}));
    writeText("[Profile0]\nName=B\nIsRelative=1\nPath=b\nDefault=1\n"
              "[Profile1]\nName=A\nIsRelative=1\nPath=a\n[Install1]\nLocked=1\n");
    EXPECT_EQ(keys(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(FirefoxProfilesTest, theDefaultMayBeWrittenInAnotherWayThanTheProfile)
{
    write({{.name = u"A"_s, .path = u"a"_s}, {.name = u"B"_s, .path = u"b"_s}},
          {{.hash = u"1"_s, .defaultPath = home.path(oldFolder % u"./b/")}});
    EXPECT_EQ(keys(), (QStringList{u"b"_s, u"a"_s}));
}

TEST_F(FirefoxProfilesTest, aGroupAddsItsMembersNamesThemAndLetsNoneComeFirst)
{
    for (const Journal journal : {Journal::Clean, Journal::UnmergedWal, Journal::WalAlone}) {
        write({{.name = u"default-release"_s, .path = u"m"_s, .isDefault = true, .storeID = u"1234abcd"_s},
               {.name = u"Alone"_s, .path = u"x"_s}},
              {{.hash = u"1"_s, .defaultPath = u"m"_s}});
        makeProfile(u"n"_s);
        writeGroup({{.path = u"m"_s, .name = u"Original"_s},
                    {.path = u"n"_s, .name = u"Made in the menu"_s},
                    {.path = u"gone"_s, .name = u"Gone"_s}},
                   u"1234abcd"_s, journal);
        EXPECT_EQ(names(), (QStringList{u"Alone"_s, u"Made in the menu"_s, u"Original"_s}));
        EXPECT_EQ(keys(), (QStringList{u"x"_s, u"n"_s, u"m"_s}));
    }
}

TEST_F(FirefoxProfilesTest, everyGroupIsReadAndNothingElseBesideIt)
{
    write({{.name = u"A"_s, .path = u"a"_s}});
    makeProfile(u"b"_s);
    makeProfile(u"c"_s);
    writeGroup({{.path = u"b"_s, .name = u"In two groups"_s}}, u"2"_s);
    writeGroup({{.path = u"b"_s, .name = u"B"_s}}, u"1"_s);
    writeGroup({{.path = u"c"_s, .name = u"No group"_s}}, u"backup"_s);
    change([&] {
        QDir(home.path(oldFolder % u"Profile Groups")).rename(u"backup.sqlite"_s, u"backup.sqlite.bak"_s);
    });
    EXPECT_EQ(names(), (QStringList{u"A"_s, u"B"_s}));
}

TEST_F(FirefoxProfilesTest, aGroupThatCannotBeReadHarmsNoneButLetsNoneComeFirst)
{
    write({{.name = u"B"_s, .path = u"b"_s, .isDefault = true}, {.name = u"A"_s, .path = u"a"_s}});
    const QString file = home.path(oldFolder % u"Profile Groups/1234abcd.sqlite");
    EXPECT_EQ(names(), (QStringList{u"B"_s, u"A"_s}));
    const auto put = [&](const std::function<void(const char *)> &make) {
        change([&] {
            QFile::remove(file);
            sample::makeFolderOf(file);
            make(QFile::encodeName(file).constData());
        });
        EXPECT_EQ(names(), (QStringList{u"A"_s, u"B"_s}));
    };
    put([](const char *path) { ASSERT_EQ(::mkfifo(path, 0600), 0); });
    put([](const char *path) { ASSERT_EQ(::symlink("/dev/zero", path), 0); });
    put([](const char *path) { ASSERT_EQ(::symlink(path, path), 0); });
    put([&](const char *) { sample::writeFile(file, "no database"); });
    put([&](const char *) { sample::writeFile(file, {}); });
    put([&](const char *) {
        sample::Database(file).execute("CREATE TABLE Profiles(path); INSERT INTO Profiles VALUES('c')");
    });
    put([&](const char *) {
        sample::Database(file).execute(
            "CREATE TABLE Profiles(path, name);"
            "INSERT INTO Profiles VALUES(NULL, 'x'), ('', 'x'), ('missing', NULL), (x'00', 'x')");
    });
}

TEST_F(FirefoxProfilesTest, aGroupThatCannotBeReadKeepsTheMembersThatAreKnown)
{
    write({{.name = u"A"_s, .path = u"a"_s, .storeID = u"1234abcd"_s}});
    const QString absolute = home.path(u"elsewhere"_s);
    makeProfile(u"b"_s);
    makeProfile(u"c"_s);
    makeProfile(u"not listed"_s);
    makeProfile(absolute);
    writeGroup({{.path = u"b"_s, .name = u"Made in the menu"_s},
                {.path = u"c"_s, .name = u"Soon gone"_s},
                {.path = absolute, .name = u"Elsewhere"_s}});
    const QList<Source> known = profiles();
    ASSERT_EQ(known.size(), 4);
    change([&] {
        QFile::remove(home.path(oldFolder % u"c/places.sqlite"));
        sample::writeFile(home.path(oldFolder % u"Profile Groups/1234abcd.sqlite"), "torn");
    });
    const Source::Kind firefox = *Source::kindFromRawValue(u"firefox");
    QList<Source> kept;
    for (const Source &source : known) {
        if (source.profile != u"c")
            kept.append(source);
    }
    EXPECT_EQ(BrowserReader::profiles(firefox, context(), known), kept);
    EXPECT_EQ(names(), QStringList{u"A"_s}) << "who knows nothing has what is listed";
    // Those of another browser or installation say nothing of this one.
    QList<Source> strange = known;
    for (Source &source : strange)
        source.installation = u"snap"_s;
    EXPECT_EQ(BrowserReader::profiles(firefox, context(), strange).size(), 1);
}

TEST_F(FirefoxProfilesTest, aGroupIsReadWhereTheListCannotBe)
{
    write({{.name = u"A"_s, .path = u"a"_s}});
    makeProfile(u"b"_s);
    writeGroup({{.path = u"b"_s, .name = u"B"_s}});
    refuse(home.path(oldFolder % u"profiles.ini"), std::errc::permission_denied);
    EXPECT_EQ(names(), QStringList{u"B"_s});
}

TEST_F(FirefoxProfilesTest, eachFolderIsOneProfileHoweverItIsWritten)
{
    write({{.name = u"first"_s, .path = u"a"_s},
           {.name = u"again"_s, .path = u"a"_s},
           {.name = u"with a dot"_s, .path = u"./a"_s},
           {.name = u"with a stroke"_s, .path = u"a/"_s},
           {.name = u"there and back"_s, .path = u"b/..//a"_s},
           {.name = u"absolute"_s, .path = home.path(oldFolder % u"a"), .isRelative = false},
           {.name = u"second"_s, .path = u"b"_s}});
    EXPECT_EQ(names(), (QStringList{u"first"_s, u"second"_s}));
    EXPECT_EQ(keys(), (QStringList{u"a"_s, u"b"_s}));
    writeGroup({{.path = home.path(oldFolder % u"b/"), .name = u"third"_s}});
    EXPECT_EQ(names(), (QStringList{u"first"_s, u"third"_s}));
    EXPECT_EQ(keys(), (QStringList{u"a"_s, home.path(oldFolder % u"b/")}));
}

TEST_F(FirefoxProfilesTest, aProfileMayLieAnywhere)
{
    const QString far = home.path(u"far/away"_s);
    write({{.name = u"A"_s, .path = far, .isRelative = false},
           {.name = u"B"_s, .path = u"../../elsewhere/b"_s},
           {.name = u"C"_s, .path = u"Profiles/c"_s},
           {.name = u"D"_s, .path = u"Zoë = 漢字.d"_s}});
    EXPECT_EQ(keys(), (QStringList{far, u"../../elsewhere/b"_s, u"Profiles/c"_s, u"Zoë = 漢字.d"_s}));
    const QList<Source> sources = profiles();
    EXPECT_EQ(historyFile(sources.value(0)), far % u"/places.sqlite");
    EXPECT_EQ(historyFile(sources.value(1)), home.path(u"elsewhere/b/places.sqlite"_s));
    EXPECT_EQ(sources.value(0).id(), u"firefox/" % far);
}

TEST_F(FirefoxProfilesTest, aFolderThatMayNotBeLookedIntoMayHoldAProfile)
{
    const QString closed = home.path(u"closed"_s);
    const QString missing = home.path(u"missing"_s);
    writeText("[Profile0]\nName=A\nIsRelative=0\nPath=" + (closed % u"/a").toUtf8() +
              "\n[Profile1]\nName=B\nIsRelative=0\nPath=" + missing.toUtf8() + '\n');
    makeProfile(closed % u"/a");
    change([&] {
        ASSERT_EQ(::chmod(QFile::encodeName(QFileInfo(home.path()).path()).constData(), 0755), 0);
        ASSERT_EQ(::chmod(QFile::encodeName(home.temporary()).constData(), 0777), 0);
        ASSERT_EQ(::chmod(QFile::encodeName(closed).constData(), 0), 0);
    });
    const ReadContext context = this->context();
    const int result = asAnotherUser([&] {
        const QList<Source> sources = BrowserReader::profiles(*Source::kindFromRawValue(u"firefox"), context);
        if (sources.size() != 1 || sources.front().name != u"A")
            return 1;
        const auto history = FirefoxReader::history(sources.front(), HistoryQuery::recent(), context);
        return !history && history.error() == ReadError::noAccess(closed % u"/a/places.sqlite") ? 0 : 2;
    });
    change([&] { ASSERT_EQ(::chmod(QFile::encodeName(closed).constData(), 0755), 0); });
    EXPECT_EQ(result, 0);
}

TEST_F(FirefoxProfilesTest, aListThatCannotBeReadIsReportedAndWhatIsKnownStays)
{
    makeProfile(u"a"_s);
    writeText("[Profile0]\nName=A\nIsRelative=1\nPath=a\n");
    const QList<Source> known = profiles();
    ASSERT_EQ(known.size(), 1);
    const QString file = home.path(oldFolder % u"profiles.ini");
    home.files.failure = [&file](const QString &path) {
        return path == file ? std::make_error_code(std::errc::io_error) : std::error_code();
    };
    QList<ReadError> errors;
    ReadContext context = this->context();
    context.onUnreadableList = [&errors](const ReadError &error) { errors.append(error); };
    const Source::Kind firefox = *Source::kindFromRawValue(u"firefox");
    EXPECT_EQ(BrowserReader::profiles(firefox, context, known), known);
    EXPECT_EQ(BrowserReader::profiles(firefox, context), QList<Source>());
    const ReadError expected = ReadError::unreadable(file, u"Input/output error"_s);
    EXPECT_EQ(errors, (QList<ReadError>{expected, expected}));
    home.files.failure = {};
}

TEST_F(FirefoxProfilesTest, aGroupThatCannotBeReadIsReported)
{
    makeProfile(u"a"_s);
    writeText("[Profile0]\nName=A\nIsRelative=1\nPath=a\n");
    change([&] { sample::writeFile(home.path(oldFolder % u"Profile Groups/g.sqlite"), "no database"); });
    QList<ReadError> errors;
    ReadContext context = this->context();
    context.onUnreadableList = [&errors](const ReadError &error) { errors.append(error); };
    EXPECT_EQ(BrowserReader::profiles(*Source::kindFromRawValue(u"firefox"), context).size(), 1);
    ASSERT_EQ(errors.size(), 1);
    EXPECT_EQ(errors.front().path(), home.path(oldFolder % u"Profile Groups/g.sqlite"));
}

TEST_F(FirefoxProfilesTest, aPathThatFirefoxCannotFollowIsNoProfile)
{
    makeProfile(u"a"_s);
    makeProfile(u"b"_s);
    writeText("[Profile0]\nName=Without a path\nIsRelative=1\n"
              "[Profile1]\nName=Empty path\nIsRelative=1\nPath=\n"
              "[Profile2]\nName=Not absolute\nIsRelative=0\nPath=a\n"
              "[Profile3]\nName=Not relative\nIsRelative=1\nPath=" +
              home.path(oldFolder % u"a").toUtf8() + "\n[Profile4]\nName=Either way\nPath=b\n");
    change([&] { sample::writeFile(home.path(oldFolder % u"places.sqlite"), "of nobody"); });
    EXPECT_EQ(names(), QStringList{u"Either way"_s});
}

TEST_F(FirefoxProfilesTest, onlyNumberedSectionsAreProfiles)
{
    makeProfile(u"a"_s);
    for (const char *section : {"Profile", "Profiles0", "profile0", "Profile 0", "Profile0x", "Profile-1",
                                "General", "BackgroundTasksProfiles", "XProfile0"}) {
        writeText("[" + QByteArray(section) + "]\nName=A\nIsRelative=1\nPath=a\n");
        EXPECT_EQ(keys(), QStringList()) << section;
    }
    for (const char *section : {"Profile0", "Profile7", "Profile123456789012345678901234567890"}) {
        writeText("[" + QByteArray(section) + "]\nName=A\nIsRelative=1\nPath=a\n");
        EXPECT_EQ(keys(), QStringList{u"a"_s}) << section;
    }
}

TEST_F(FirefoxProfilesTest, theListMayBeWrittenInManyWays)
{
    const QList<FirefoxProfile> profiles{{.name = u"A"_s, .path = u"a"_s},
                                         {.name = u"B"_s, .path = u"b"_s},
                                         {.name = u"C"_s, .path = u"c"_s, .isDefault = true}};
    for (const IniStyle &style :
         {IniStyle{.hasByteOrderMark = true}, IniStyle{.hasWindowsLineEnds = true},
          IniStyle{.hasComments = true}, IniStyle{.repeatsKeys = true}, IniStyle{.splitsSections = true},
          IniStyle{.step = 3}, IniStyle{true, true, true, true, true, 7}}) {
        write(profiles, {{.hash = u"1"_s, .defaultPath = u"b"_s}}, oldFolder, style);
        EXPECT_EQ(keys(), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    }
}

TEST_F(FirefoxProfilesTest, namesAreReadAsTheyStand)
{
    QList<FirefoxProfile> profiles;
    for (const QString &name : sample::awkwardFirefoxProfileNames())
        profiles.append({.name = name, .path = u"%1.folder"_s.arg(profiles.size())});
    write(profiles);
    const QList<Source> sources = this->profiles();
    ASSERT_EQ(sources.size(), profiles.size());
    for (const Source &source : sources) {
        const qsizetype number = source.profile->section(u'.', 0, 0).toInt();
        const QString name = profiles.at(number).name;
        EXPECT_EQ(source.name, name.isEmpty() ? *source.profile : name);
    }
}

TEST_F(FirefoxProfilesTest, withoutANameTheFolderGivesOne)
{
    makeProfile(u"Profiles/abcd.A"_s);
    writeText("[Profile0]\nIsRelative=1\nPath=Profiles/abcd.A/\n");
    EXPECT_EQ(names(), QStringList{u"abcd.A"_s});
    writeGroup({{.path = u"Profiles/abcd.A"_s, .name = u""_s}});
    EXPECT_EQ(names(), QStringList{u"abcd.A"_s});
    writeText("[Profile0]\nName=In the list\nIsRelative=1\nPath=Profiles/abcd.A/\n");
    EXPECT_EQ(names(), QStringList{u"In the list"_s});
}

TEST_F(FirefoxProfilesTest, anUnusableListMeansNoProfiles)
{
    makeProfile(u"a"_s);
    const QByteArray good = "[Profile0]\nName=A\nIsRelative=1\nPath=a";
    for (const QByteArray &text : QByteArrayList{QByteArray(), QByteArray("\0", 1) + good,
                                                 QByteArray("Path=a"), QByteArray("[Profile0]x\nPath=a"),
                                                 QByteArray(1000, '\xFF'), QByteArray("\xFF\xFE") + good}) {
        writeText(text);
        EXPECT_EQ(keys(), QStringList()) << text.left(20).constData();
    }
    writeText(good);
    EXPECT_EQ(keys(), QStringList{u"a"_s});
    writeText(good + '\0');
    EXPECT_EQ(keys(), QStringList{u"a"_s});
}

TEST_F(FirefoxProfilesTest, aListOfManyMegabytesIsRead)
{
    makeProfile(u"a"_s);
    makeProfile(u"b"_s);
    constexpr qsizetype size = 20'000'000;
    QByteArray text = "[Profile0]\nName=A\nIsRelative=1\nPath=a\n";
    for (int number = 1; number < 100'000; ++number)
        text += "[Profile" + QByteArray::number(number) + "]\nName=x\nPath=missing" +
                QByteArray::number(number) + '\n';
    text += QByteArray("Path=again\n").repeated((size - text.size()) / 2 / 11);
    text += "[Profile7]\nName=" + QByteArray(size - text.size(), 'n') + "\n[Profile100000]\nPath=b";
    writeText(text);
    EXPECT_EQ(keys(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(FirefoxProfilesTest, theFoldersOfOneInstallationComeOneAfterTheOther)
{
    write({{.name = u"Z"_s, .path = u"z"_s}, {.name = u"M"_s, .path = u"m"_s, .isDefault = true}}, {},
          newFolder);
    write({{.name = u"C"_s, .path = u"c"_s, .isDefault = true},
           {.name = u"A"_s, .path = u"a"_s},
           {.name = u"In the other"_s, .path = u"m"_s},
           {.name = u"The same folder"_s, .path = home.path(newFolder % u"z"), .isRelative = false}},
          {}, oldFolder);
    EXPECT_EQ(keys(), (QStringList{u"m"_s, u"z"_s, u"c"_s, u"a"_s}));
    EXPECT_EQ(historyFile(profiles().value(0)), home.path(newFolder % u"m/places.sqlite"));
    EXPECT_EQ(labels().value(0), u"Firefox - M"_s);
}

TEST_F(FirefoxProfilesTest, aGroupSortsItsOwnFolderOnly)
{
    write({{.name = u"Z"_s, .path = u"z"_s, .isDefault = true}, {.name = u"M"_s, .path = u"m"_s}}, {},
          newFolder);
    writeGroup({{.path = u"z"_s, .name = u"Z"_s}}, u"1"_s, Journal::Clean, newFolder);
    write({{.name = u"C"_s, .path = u"c"_s, .isDefault = true}, {.name = u"A"_s, .path = u"a"_s}});
    EXPECT_EQ(keys(), (QStringList{u"m"_s, u"z"_s, u"c"_s, u"a"_s}));
}

TEST_F(FirefoxProfilesTest, aKeyThatTheFirstFolderOnlyListsBelongsToTheSecond)
{
    write({{.name = u"A"_s, .path = u"a"_s}}, {}, newFolder);
    write({{.name = u"B"_s, .path = u"b"_s}}, {}, oldFolder);
    change([&] {
        sample::writeFirefoxProfiles(
            home.path(newFolder % u"profiles.ini"),
            {{.name = u"A"_s, .path = u"a"_s}, {.name = u"Left over"_s, .path = u"b"_s}});
        sample::makeFolder(home.path(newFolder % u"b"));
    });
    EXPECT_EQ(keys(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(names(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(historyFile(profiles().value(1)), home.path(oldFolder % u"b/places.sqlite"));
}

TEST_F(FirefoxProfilesTest, aFolderThatIsNotListedDoesNotHideOneOfTheSameName)
{
    write({{.name = u"A"_s, .path = u"a"_s}}, {}, newFolder);
    makeProfile(u"b"_s, newFolder);
    write({{.name = u"B"_s, .path = u"b"_s}}, {}, oldFolder);
    EXPECT_EQ(names(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(keys(), (QStringList{u"a"_s, home.path(oldFolder % u"b")}));
    EXPECT_EQ(historyFile(profiles().value(1)), home.path(oldFolder % u"b/places.sqlite"));
}

TEST_F(FirefoxProfilesTest, installationsAreToldApart)
{
    write({{.name = u"default"_s, .path = u"a"_s}});
    write({{.name = u"default"_s, .path = u"a"_s}}, {}, u"snap/firefox/common/.mozilla/firefox/"_s);
    write({{.name = u"default"_s, .path = u"a"_s}}, {},
          u".var/app/org.mozilla.firefox/config/mozilla/firefox/"_s);
    write({{.name = u"Firefox"_s, .path = u"b"_s}}, {}, u".var/app/org.mozilla.firefox/.mozilla/firefox/"_s);
    EXPECT_EQ(labels(), (QStringList{u"Firefox - default"_s, u"Firefox (Snap) - default"_s,
                                     u"Firefox (Flatpak)"_s, u"Firefox (Flatpak) - default"_s}));
    QStringList ids;
    for (const Source &source : profiles())
        ids.append(source.id());
    EXPECT_EQ(ids, (QStringList{u"firefox/a"_s, u"firefox@snap/a"_s, u"firefox@flatpak/b"_s,
                                u"firefox@flatpak/a"_s}));
    EXPECT_EQ(historyFile(profiles().value(3)),
              home.path(u".var/app/org.mozilla.firefox/config/mozilla/firefox/a/places.sqlite"_s));
}

TEST_F(FirefoxProfilesTest, eachBrowserOfTheFamilyHasItsOwn)
{
    write({{.name = u"A"_s, .path = u"a"_s}});
    write({{.name = u"L"_s, .path = u"l"_s}}, {}, u".librewolf/"_s);
    write({{.name = u"W"_s, .path = u"w"_s}}, {}, u".waterfox/"_s);
    write({{.name = u"F"_s, .path = u"f"_s}}, {}, u".floorp/"_s);
    EXPECT_EQ(labels(), QStringList{u"Firefox - A"_s});
    EXPECT_EQ(profiles(u"librewolf"_s).value(0).label(), u"LibreWolf - L"_s);
    EXPECT_EQ(profiles(u"waterfox"_s).value(0).label(), u"Waterfox - W"_s);
    EXPECT_EQ(profiles(u"floorp"_s).value(0).id(), u"floorp/f"_s);
    EXPECT_EQ(profiles(u"chrome"_s), QList<Source>());
    EXPECT_EQ(profiles(u"safari"_s), QList<Source>());
}

} // namespace roamlet::testing
