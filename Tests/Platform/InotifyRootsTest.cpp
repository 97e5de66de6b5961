// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/InotifyFileEventsTest.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// Watched folders that come, go, take each other's place or have several names.
class InotifyRootsTest : public InotifyFileEventsTest
{
};

TEST_F(InotifyRootsTest, aRootInsideAnotherReachesAsFarAsItself)
{
    write(u"root/Profiles/A/History.db"_s);
    watch({u"root"_s, u"root/Profiles"_s});
    write(u"root/History.db"_s);
    write(u"root/Profiles/file"_s);
    write(u"root/Profiles/A/History.db"_s, "y");
    write(u"root/Profiles/B/History.db"_s);
    write(u"root/Other/deeper/file"_s);
    EXPECT_EQ(changes(), (Paths{"root/History.db", "root/Profiles/A/History.db", "root/Profiles/B/History.db",
                                "root/Profiles/file"}));
}

TEST_F(InotifyRootsTest, aRootInsideAnotherMayAppearLater)
{
    make(u"root"_s);
    watch({u"root"_s, u"root/Profiles"_s});
    write(u"root/Profiles/A/History.db"_s);
    EXPECT_EQ(changes(), Paths{"root/Profiles/A/History.db"});
    write(u"root/Profiles/A/History.db"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profiles/A/History.db"});
}

TEST_F(InotifyRootsTest, aRootThatAppearsLaterStepByStepIsPickedUp)
{
    watch({u"a/b/c/root"_s});
    for (const QString &folder : {u"a"_s, u"a/b"_s, u"a/b/c"_s, u"a/b/c/root"_s, u"a/b/c/root/Default"_s}) {
        make(folder);
        EXPECT_EQ(changes(), Paths()) << qPrintable(folder);
    }
    write(u"a/b/c/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"a/b/c/root/Default/History"});
    write(u"a/b/c/root/Local State"_s);
    EXPECT_EQ(changes(), Paths{"a/b/c/root/Local State"});
}

TEST_F(InotifyRootsTest, aRootThatAppearsAtOnceIsPickedUpWithItsFiles)
{
    watch({u"a/b/c/root"_s});
    write(u"a/b/c/root/Default/History"_s);
    write(u"a/b/c/root/Local State"_s);
    write(u"a/b/c/root/Default/Cache/data_0"_s);
    EXPECT_EQ(changes(), (Paths{"a/b/c/root/Default/History", "a/b/c/root/Local State"}));
    write(u"a/b/c/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"a/b/c/root/Default/History"});
}

TEST_F(InotifyRootsTest, aRootThatIsMovedIntoPlaceIsPickedUpWithItsFiles)
{
    write(u"backup/b/root/Default/History"_s);
    watch({u"a/b/root"_s});
    rename(u"backup"_s, u"a"_s);
    EXPECT_EQ(changes(), Paths{"a/b/root/Default/History"});
    write(u"a/b/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"a/b/root/Default/History"});
}

TEST_F(InotifyRootsTest, foldersOnTheWayMayComeAndGo)
{
    watch({u"a/b/root"_s});
    make(u"a/b"_s);
    EXPECT_EQ(changes(), Paths());
    removeFolder(u"a"_s);
    EXPECT_EQ(changes(), Paths());
    make(u"a"_s);
    EXPECT_EQ(changes(), Paths());
    rename(u"a"_s, u"away"_s);
    EXPECT_EQ(changes(), Paths());
    write(u"away/b/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths()) << "the root does not lie there";
    write(u"a/b/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"a/b/root/Default/History"});
}

TEST_F(InotifyRootsTest, aRootInTheSameMissingPlaceAsAnotherIsPickedUpToo)
{
    watch({u"config/google-chrome"_s, u"config/microsoft-edge"_s, u"config/google-chrome/deeper/root"_s});
    write(u"config/microsoft-edge/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"config/microsoft-edge/Default/History"});
    write(u"config/google-chrome/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"config/google-chrome/Default/History"});
    write(u"config/google-chrome/deeper/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"config/google-chrome/deeper/root/Default/History"});
}

TEST_F(InotifyRootsTest, aProfileThatAppearsLaterIsPickedUpWithItsFiles)
{
    make(u"root"_s);
    watch({u"root"_s});
    make(u"root/Profile 1"_s);
    write(u"root/Profile 1/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
}

TEST_F(InotifyRootsTest, aProfileThatIsMovedInIsPickedUpWithItsFiles)
{
    write(u"backup/History"_s);
    write(u"backup/.hidden"_s);
    make(u"root"_s);
    watch({u"root"_s});
    rename(u"backup"_s, u"root/Profile 1"_s);
    EXPECT_EQ(changes(), (Paths{"root/Profile 1/.hidden", "root/Profile 1/History"}));
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
}

TEST_F(InotifyRootsTest, aRenamedProfileIsReportedUnderItsNewName)
{
    write(u"root/Old/History"_s);
    watch({u"root"_s});
    rename(u"root/Old"_s, u"root/New"_s);
    EXPECT_THAT(changes(), ::testing::Contains("root/New/History"));
    write(u"root/New/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/New/History"});
    write(u"root/Old/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Old/History"}) << "a new one may take the old name";
    write(u"root/New/History"_s, "z");
    EXPECT_EQ(changes(), Paths{"root/New/History"});
}

TEST_F(InotifyRootsTest, twoProfilesMaySwapTheirNames)
{
    write(u"root/A/only in A"_s);
    write(u"root/B/only in B"_s);
    watch({u"root"_s});
    rename(u"root/A"_s, u"root/C"_s);
    rename(u"root/B"_s, u"root/A"_s);
    rename(u"root/C"_s, u"root/B"_s);
    changes();
    write(u"root/A/only in B"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/A/only in B"});
    write(u"root/B/only in A"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/B/only in A"});
}

TEST_F(InotifyRootsTest, aProfileThatWasMovedAwayIsNoLongerReported)
{
    write(u"root/Profile 1/History"_s);
    watch({u"root"_s});
    rename(u"root/Profile 1"_s, u"away"_s);
    changes();
    write(u"away/History"_s, "y");
    EXPECT_EQ(changes(), Paths());
}

TEST_F(InotifyRootsTest, aProfileThatWasRemovedMayComeBack)
{
    write(u"root/Profile 1/History"_s);
    watch({u"root"_s});
    removeFolder(u"root/Profile 1"_s);
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
    write(u"root/Profile 1/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});

    removeFolder(u"root/Profile 1"_s);
    write(u"root/Profile 1/Bookmarks"_s);
    EXPECT_EQ(changes(), (Paths{"root/Profile 1/Bookmarks", "root/Profile 1/History"}))
        << "also before anybody noticed";
    write(u"root/Profile 1/Bookmarks"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/Bookmarks"});
}

TEST_F(InotifyRootsTest, aRootThatWasRemovedMayComeBack)
{
    write(u"a/root/Default/History"_s);
    watch({u"a/root"_s});
    removeFolder(u"a"_s);
    EXPECT_EQ(changes(), Paths{"a/root/Default/History"});
    write(u"a/root/Default/Bookmarks"_s);
    EXPECT_EQ(changes(), Paths{"a/root/Default/Bookmarks"});
    write(u"a/root/Default/Bookmarks"_s, "y");
    write(u"a/root/Profile 1/History"_s);
    EXPECT_EQ(changes(), (Paths{"a/root/Default/Bookmarks", "a/root/Profile 1/History"}));
}

TEST_F(InotifyRootsTest, aRootThatComesBackBeforeAnybodyNoticedIsPickedUpWithItsFiles)
{
    write(u"root/Default/History"_s);
    watch({u"root"_s});
    removeFolder(u"root"_s);
    write(u"root/Default/Bookmarks"_s);
    write(u"root/Profile 1/History"_s);
    write(u"root/Local State"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/Bookmarks", "root/Default/History", "root/Local State",
                                "root/Profile 1/History"}));
    write(u"root/Default/Bookmarks"_s, "y");
    write(u"root/Profile 1/History"_s, "y");
    write(u"root/Profile 2/History"_s);
    EXPECT_EQ(changes(),
              (Paths{"root/Default/Bookmarks", "root/Profile 1/History", "root/Profile 2/History"}));
}

TEST_F(InotifyRootsTest, aRootThatIsReplacedByRenamingIsPickedUpWithItsFiles)
{
    write(u"root/Default/History"_s);
    write(u"backup/Default/Bookmarks"_s);
    write(u"backup/Profile 1/History"_s);
    watch({u"root"_s});
    rename(u"root"_s, u"away"_s);
    rename(u"backup"_s, u"root"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/Bookmarks", "root/Profile 1/History"}));
    write(u"root/Default/Bookmarks"_s, "y");
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), (Paths{"root/Default/Bookmarks", "root/Profile 1/History"}));
}

TEST_F(InotifyRootsTest, aRootThatWasMovedAwayMayComeBack)
{
    write(u"root/Default/History"_s);
    watch({u"root"_s});
    rename(u"root"_s, u"away"_s);
    changes();
    rename(u"away"_s, u"root"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
    write(u"root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyRootsTest, aRootThatWasMovedAwayIsNoLongerReportedWithAllThatIsInIt)
{
    write(u"root/Default/History"_s);
    watch({u"root"_s});
    rename(u"root"_s, u"away"_s);
    write(u"away/Local State"_s);
    write(u"away/Default/History"_s, "y");
    write(u"away/Profile 1/History"_s);
    EXPECT_EQ(changes(), Paths()) << "also before anybody noticed";
    write(u"away/Default/History"_s, "z");
    EXPECT_EQ(changes(), Paths());
}

TEST_F(InotifyRootsTest, aRootFollowsNoFolderOnItsWayThatIsRenamed)
{
    write(u"home/config/chrome/Default/History"_s);
    write(u"home/config/edge/Default/History"_s);
    watch({u"home/config/chrome"_s, u"home/config/edge"_s, u"home/config/missing"_s});
    rename(u"home/config"_s, u"home/config-old"_s);
    write(u"home/config-old/chrome/Local State"_s);
    write(u"home/config-old/edge/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths()) << "the roots do not lie there any more";

    make(u"home/config/chrome/Default"_s);
    EXPECT_EQ(changes(), Paths());
    write(u"home/config/chrome/Default/History"_s);
    write(u"home/config/edge/Default/History"_s);
    write(u"home/config/missing/Default/History"_s);
    write(u"home/config-old/chrome/Default/History"_s, "z");
    EXPECT_EQ(changes(), (Paths{"home/config/chrome/Default/History", "home/config/edge/Default/History",
                                "home/config/missing/Default/History"}));
}

TEST_F(InotifyRootsTest, aFolderOnTheWayThatIsReplacedByRenamingIsPickedUpWithItsFiles)
{
    for (const QString &top : {u"home"_s, u"home/config"_s, u"home/config/browsers"_s}) {
        SCOPED_TRACE(top.toStdString());
        const QString rest = u"home/config/browsers/root/Default/History"_s.sliced(top.size());
        write(top % rest);
        write(u"backup" % rest, "other");
        watch({u"home/config/browsers/root"_s});
        rename(top, u"away"_s);
        rename(u"backup"_s, top);
        EXPECT_EQ(changes(), Paths{"home/config/browsers/root/Default/History"});
        write(u"away" % rest, "y");
        EXPECT_EQ(changes(), Paths());
        write(top % rest, "y");
        EXPECT_EQ(changes(), Paths{"home/config/browsers/root/Default/History"});
        removeFolder(u"away"_s);
        removeFolder(u"home"_s);
    }
}

TEST_F(InotifyRootsTest, aFolderOnTheWayMayComeBack)
{
    write(u"home/config/root/Default/History"_s);
    watch({u"home/config/root"_s});
    for (int round = 0; round < 3; ++round) {
        rename(u"home/config"_s, u"away"_s);
        EXPECT_EQ(changes(), Paths());
        rename(u"away"_s, u"home/config"_s);
        EXPECT_EQ(changes(), Paths{"home/config/root/Default/History"});
        write(u"home/config/root/Default/History"_s, QByteArray::number(round));
        EXPECT_EQ(changes(), Paths{"home/config/root/Default/History"});
    }
}

TEST_F(InotifyRootsTest, aFolderWithTwoNamesIsReportedUnderBoth)
{
    write(u"one/Default/History"_s);
    link(u"one"_s, u"two"_s);
    watch({u"one"_s, u"two"_s});
    write(u"one/Default/History"_s, "y");
    EXPECT_EQ(changes(), (Paths{"one/Default/History", "two/Default/History"}));
}

TEST_F(InotifyRootsTest, aFolderOnOneWayMayBeARootUnderAnotherName)
{
    // "way" leads to the same folder as "root", of which every file counts.
    make(u"root/Default"_s);
    link(u"root"_s, u"way"_s);
    watch({u"root"_s, u"way/Default/deeper/missing"_s, u"way/gone/missing"_s});
    write(u"root/Local State"_s);
    write(u"root/Default/History"_s);
    removeFile(u"root/Local State"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/History", "root/Local State"}));
    removeFile(u"root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyRootsTest, aFileInThePlaceOfARootIsNoRoot)
{
    write(u"root"_s);
    watch({u"root"_s});
    write(u"root"_s, "y");
    EXPECT_EQ(changes(), Paths());
    removeFile(u"root"_s);
    write(u"root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

} // namespace roamlet::testing
