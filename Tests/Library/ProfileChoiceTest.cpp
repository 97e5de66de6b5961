// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/ProfileChoice.h"

#include "Platform/Linux/SettingsUserDefaults.h"
#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QSignalSpy>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

using ProfileChoiceTest = LibraryHome;

QStringList order(const Library &library)
{
    return ids(library.ordered(library.snapshot().browserProfiles));
}

TEST_F(ProfileChoiceTest, aProfileThatIsSwitchedOffIsFoundButNotRead)
{
    addChromium();
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Profile 1"_s});
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(ids(library.snapshot().sources), (QStringList{u"chrome/Default"_s, u"edge/Default"_s}));
    EXPECT_EQ(library.snapshot().browserProfiles.size(), 3);
    EXPECT_FALSE(titles(library.snapshot().history).contains(u"b1"_s));
}

TEST_F(ProfileChoiceTest, switchingStoresTheIdsSortedAndReloads)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const QSignalSpy changes(&library, &Library::disabledProfilesChanged);
    const QList<Source> profiles = library.snapshot().browserProfiles;
    library.setEnabled(false, profiles[2]);
    library.setEnabled(false, profiles[0]);
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(home.defaults.stringList(u"disabledProfiles"_s),
              (QStringList{u"chrome/Default"_s, u"edge/Default"_s}));
    EXPECT_EQ(ids(library.snapshot().sources), QStringList{u"chrome/Profile 1"_s});
    library.setEnabled(true, profiles[0]);
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(home.defaults.stringList(u"disabledProfiles"_s), QStringList{u"edge/Default"_s});
    EXPECT_EQ(library.snapshot().sources.size(), 2);
}

TEST_F(ProfileChoiceTest, theOlderListOfChromeProfilesCountsUntilTheNextChange)
{
    addChromium();
    home.defaults.setStringList(u"disabledChromeProfiles"_s, {u"Profile 1"_s});
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(ids(library.snapshot().sources), (QStringList{u"chrome/Default"_s, u"edge/Default"_s}));
    EXPECT_FALSE(home.defaults.contains(u"disabledProfiles"_s)) << "reading changes nothing";
    library.setEnabled(false, library.snapshot().browserProfiles.last());
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(home.defaults.stringList(u"disabledProfiles"_s),
              (QStringList{u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_FALSE(home.defaults.contains(u"disabledChromeProfiles"_s));
}

TEST_F(ProfileChoiceTest, choicesSurviveInARealFile)
{
    addChromium();
    const QString file = home.temporary() % u"/settings/Roamlet.conf";
    {
        SettingsUserDefaults defaults(file);
        Library library({home.folders, home.files, defaults, home.fileEvents, home.clock});
        loadNow(library);
        library.setEnabled(false, library.snapshot().browserProfiles[1]);
        library.moveProfiles({2}, 0);
        ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    }
    SettingsUserDefaults defaults(file);
    Library library({home.folders, home.files, defaults, home.fileEvents, home.clock});
    EXPECT_EQ(library.disabledProfiles(), QSet<QString>{u"chrome/Profile 1"_s});
    loadNow(library);
    EXPECT_EQ(order(library), (QStringList{u"edge/Default"_s, u"chrome/Default"_s, u"chrome/Profile 1"_s}));
}

TEST_F(ProfileChoiceTest, anInstallationIsSwitchedOffAloneInARealFileToo)
{
    addChromium();
    addChromeBeta();
    addFirefox();
    addFirefox(snapFirefox);
    const QString file = home.temporary() % u"/settings/Roamlet.conf";
    const QString beta = u"chrome@beta/Default"_s;
    const QString snap = u"firefox@snap/abc.default"_s;
    {
        SettingsUserDefaults defaults(file);
        Library library({home.folders, home.files, defaults, home.fileEvents, home.clock});
        loadNow(library);
        for (const QString &id : {beta, snap})
            library.setEnabled(false, *library.source(id));
        library.moveProfiles({5}, 0);
        ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    }
    SettingsUserDefaults defaults(file);
    Library library({home.folders, home.files, defaults, home.fileEvents, home.clock});
    EXPECT_EQ(library.disabledProfiles(), (QSet<QString>{beta, snap}));
    loadNow(library);
    EXPECT_EQ(ids(library.snapshot().sources), (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s,
                                                            u"edge/Default"_s, u"firefox/abc.default"_s}));
    EXPECT_EQ(order(library), (QStringList{snap, u"chrome/Default"_s, u"chrome/Profile 1"_s, beta,
                                           u"edge/Default"_s, u"firefox/abc.default"_s}));
}

TEST_F(ProfileChoiceTest, theOlderListOfChromeProfilesMeansNoOtherInstallation)
{
    addChromium();
    addChromeBeta();
    home.defaults.setStringList(u"disabledChromeProfiles"_s, {u"Default"_s});
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(ids(library.snapshot().sources),
              (QStringList{u"chrome/Profile 1"_s, u"chrome@beta/Default"_s, u"edge/Default"_s}));
}

TEST_F(ProfileChoiceTest, theLastProfileThatIsSwitchedOnAgainIsOnInARealFileToo)
{
    addChromium();
    const QString file = home.temporary() % u"/settings/Roamlet.conf";
    {
        SettingsUserDefaults defaults(file);
        Library library({home.folders, home.files, defaults, home.fileEvents, home.clock});
        loadNow(library);
        library.setEnabled(false, library.snapshot().browserProfiles[1]);
        library.setEnabled(true, library.snapshot().browserProfiles[1]);
    }
    SettingsUserDefaults defaults(file);
    Library library({home.folders, home.files, defaults, home.fileEvents, home.clock});
    EXPECT_TRUE(library.disabledProfiles().isEmpty());
}

TEST_F(ProfileChoiceTest, aFileWrittenByHandCounts)
{
    addChromium();
    const QString file = home.temporary() % u"/settings/Roamlet.conf";
    sample::writeFile(file, "[General]\n"
                            "disabledProfiles=chrome/Profile 1, edge/Default\n"
                            "disabledChromeProfiles=Default\n"
                            "sourceOrder=edge/Default, chrome/Profile 1, edge/Default\n");
    SettingsUserDefaults defaults(file);
    Library library({home.folders, home.files, defaults, home.fileEvents, home.clock});
    EXPECT_EQ(library.disabledProfiles(),
              (QSet<QString>{u"chrome/Profile 1"_s, u"edge/Default"_s, u"chrome/Default"_s}));
    loadNow(library);
    EXPECT_TRUE(library.snapshot().sources.isEmpty());
    EXPECT_EQ(order(library), (QStringList{u"edge/Default"_s, u"chrome/Profile 1"_s, u"chrome/Default"_s}));
}

TEST_F(ProfileChoiceTest, switchingOnAProfileOfTheOlderListEndsThatList)
{
    addChromium();
    home.defaults.setStringList(u"disabledChromeProfiles"_s, {u"Profile 1"_s});
    home.defaults.setStringList(u"disabledProfiles"_s, {u"gone"_s});
    Library library(home.platform());
    loadNow(library);
    ASSERT_EQ(library.snapshot().sources.size(), 2);
    library.setEnabled(true, library.snapshot().browserProfiles[1]);
    EXPECT_FALSE(home.defaults.contains(u"disabledChromeProfiles"_s));
    EXPECT_EQ(home.defaults.stringList(u"disabledProfiles"_s), QStringList{u"gone"_s})
        << "a profile that is not there now may come back";
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.snapshot().sources.size(), 3);
}

TEST_F(ProfileChoiceTest, switchingDuringALoadIsSeenByItsNextPass)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const Source source = *library.source(u"chrome/Default"_s);
    Gate gate;
    recordReads(&gate);
    library.load({});
    gate.awaitReader();
    library.setEnabled(false, source);
    gate.open();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.generation(), 3);
    EXPECT_EQ(ids(library.snapshot().sources), (QStringList{u"chrome/Profile 1"_s, u"edge/Default"_s}));
}

TEST_F(ProfileChoiceTest, settingsAreReadWhenTheLibraryIsMade)
{
    addChromium();
    Library library(home.platform());
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Profile 1"_s});
    home.defaults.setStringList(u"sourceOrder"_s, {u"edge/Default"_s});
    loadNow(library);
    EXPECT_EQ(library.snapshot().sources.size(), 3);
    EXPECT_EQ(order(library).first(), u"chrome/Default"_s);
}

TEST_F(ProfileChoiceTest, aMoveForgetsProfilesThatAreGoneAndKeepsTheOnesThatAreOff)
{
    addChromium();
    home.defaults.setStringList(u"sourceOrder"_s, {u"gone"_s, u"edge/Default"_s});
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Default"_s});
    Library library(home.platform());
    loadNow(library);
    library.moveProfiles({0}, 2);
    EXPECT_EQ(home.defaults.stringList(u"sourceOrder"_s),
              (QStringList{u"chrome/Default"_s, u"edge/Default"_s, u"chrome/Profile 1"_s}));
    library.moveProfiles({0}, 3);
    EXPECT_EQ(order(library), (QStringList{u"edge/Default"_s, u"chrome/Profile 1"_s, u"chrome/Default"_s}))
        << "a second move starts from the first one's result";
    EXPECT_EQ(library.source(u"chrome/Default"_s), std::nullopt) << "it is off";
}

TEST_F(ProfileChoiceTest, profilesMoveAsRowsOfAListDo)
{
    addChromium();
    addSafari();
    struct Move {
        QSet<qsizetype> offsets;
        qsizetype destination;
        QStringList result;
    };
    const QString s = u"safari"_s;
    const QString d = u"chrome/Default"_s;
    const QString w = u"chrome/Profile 1"_s;
    const QString e = u"edge/Default"_s;
    const QList<Move> moves{{{0}, 4, {d, w, e, s}},    {{3}, 0, {e, s, d, w}}, {{0}, 2, {d, s, w, e}},
                            {{0}, 0, {s, d, w, e}},    {{0}, 1, {s, d, w, e}}, {{0, 2}, 4, {d, e, s, w}},
                            {{1, 3}, 0, {d, e, s, w}}, {{}, 2, {s, d, w, e}}};
    for (const Move &move : moves) {
        home.defaults.remove(u"sourceOrder"_s);
        Library library(home.platform());
        loadNow(library);
        const int generation = library.generation();
        const QSignalSpy changes(&library, &Library::sourceOrderChanged);
        library.moveProfiles(move.offsets, move.destination);
        EXPECT_EQ(order(library), move.result);
        EXPECT_EQ(home.defaults.stringList(u"sourceOrder"_s), move.result);
        EXPECT_EQ(changes.count(), 1);
        EXPECT_FALSE(library.isLoading());
        EXPECT_EQ(library.generation(), generation) << "an order needs no reload";
    }
}

TEST_F(ProfileChoiceTest, sourcesThatTheOrderDoesNotKnowFollowInTheirOwnOrder)
{
    addChromium();
    addSafari();
    home.defaults.setStringList(u"sourceOrder"_s, {u"edge/Default"_s, u"gone"_s, u"edge/Default"_s});
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(order(library),
              (QStringList{u"edge/Default"_s, u"safari"_s, u"chrome/Default"_s, u"chrome/Profile 1"_s}));
    EXPECT_EQ(library.source(u"chrome/Default"_s)->name, u"Personal"_s);
    EXPECT_EQ(library.source(u"gone"_s), std::nullopt);
    EXPECT_EQ(library.source({}), std::nullopt);
}

TEST_F(ProfileChoiceTest, allBookmarksAreOneFolderForEachSourceInTheUsersOrder)
{
    addChromium();
    addSafari();
    home.defaults.setStringList(u"sourceOrder"_s, {u"chrome/Default"_s});
    Library library(home.platform());
    loadNow(library);
    const QList<BookmarkNode> all = library.bookmarkTree({});
    ASSERT_EQ(all.size(), 4);
    EXPECT_EQ(all[0].id, u"source/chrome/Default"_s);
    EXPECT_EQ(all[0].title, u"Chrome - Personal"_s);
    EXPECT_EQ(all[0].children, library.snapshot().bookmarkTrees.value(u"chrome/Default"_s));
    EXPECT_EQ(all[0].source.id(), u"chrome/Default"_s);
    EXPECT_EQ(all[1].id, u"source/safari"_s);
    EXPECT_TRUE(all[3].isFolder());
    EXPECT_EQ(library.bookmarkTree(u"safari"_s), library.snapshot().bookmarkTrees.value(u"safari"_s));
    EXPECT_TRUE(library.bookmarkTree(u"gone"_s).isEmpty());
    EXPECT_EQ(ids(library.snapshot().sources).first(), u"safari"_s) << "the snapshot has its own order";
}

TEST_F(ProfileChoiceTest, allBookmarksLeaveOutProfilesThatAreOff)
{
    addChromium();
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Default"_s});
    Library library(home.platform());
    EXPECT_TRUE(library.bookmarkTree({}).isEmpty()) << "before anything was read";
    loadNow(library);
    const QList<BookmarkNode> all = library.bookmarkTree({});
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0].id, u"source/chrome/Profile 1"_s);
    EXPECT_TRUE(library.bookmarkTree(u"chrome/Default"_s).isEmpty());
}

} // namespace
} // namespace roamlet::testing
