// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/SampleHome.h"

#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

/// The bytes of every file below a folder, by its path from there.
QMap<QString, QByteArray> filesBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        files.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

QStringList namesBelow(const QTemporaryDir &home, const QString &folder)
{
    return QDir(home.filePath(folder))
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
}

Options smallHome(Layout layout)
{
    return {.layout = layout, .rowsPerProfile = 50, .bookmarksPerProfile = 30, .iconsPerProfile = 5};
}

} // namespace

TEST(SampleHome, theSameOptionsGiveTheSameBytes)
{
    Options options = smallHome(Layout::Mac);
    options.isAwkward = true;
    options.furtherBrowsers = {{u"opera"_s, 2}, {u"firefox"_s, 2}};
    const QTemporaryDir first;
    const QTemporaryDir second;
    build(first.path(), options);
    build(second.path(), options);
    EXPECT_TRUE(filesBelow(first.path()) == filesBelow(second.path()));
    options.seed = 2;
    build(second.path(), options);
    EXPECT_FALSE(filesBelow(first.path()) == filesBelow(second.path()));
}

TEST(SampleHome, aMacHomeHasAllThreeBrowsers)
{
    const QTemporaryDir home;
    const Contents contents = build(home.path(), smallHome(Layout::Mac));
    EXPECT_EQ(contents.profiles, 5);
    EXPECT_EQ(contents.historyRows, 250);
    EXPECT_EQ(namesBelow(home, u"."_s), QStringList{u"Library"_s});
    EXPECT_EQ(namesBelow(home, u"Library/Application Support/Google/Chrome"_s),
              (QStringList{u"Default"_s, u"Local State"_s, u"Profile 1"_s}));
    EXPECT_EQ(namesBelow(home, u"Library/Application Support/Google/Chrome/Default"_s),
              (QStringList{u"Bookmarks"_s, u"Favicons"_s, u"Favicons-journal"_s, u"History"_s,
                           u"History-journal"_s}));
    EXPECT_EQ(namesBelow(home, u"Library/Application Support/Microsoft Edge"_s),
              (QStringList{u"Default"_s, u"Local State"_s}));
    EXPECT_EQ(namesBelow(home, u"Library/Safari"_s),
              (QStringList{u"Bookmarks.plist"_s, u"Favicon Cache"_s, u"History.db"_s}));
    EXPECT_EQ(namesBelow(home, u"Library/Safari/Favicon Cache/favicons"_s).size(), 5);
    EXPECT_EQ(namesBelow(home, u"Library/Containers/com.apple.Safari/Data/Library/Safari"_s),
              (QStringList{u"Profiles"_s, u"SafariTabs.db"_s}));
}

TEST(SampleHome, aLinuxHomeHasNoSafari)
{
    const QTemporaryDir home;
    EXPECT_EQ(build(home.path(), smallHome(Layout::Linux)).profiles, 3);
    EXPECT_EQ(namesBelow(home, u"."_s), QStringList{u".config"_s});
    EXPECT_EQ(namesBelow(home, u".config"_s), (QStringList{u"google-chrome"_s, u"microsoft-edge"_s}));
}

TEST(SampleHome, anyBrowserLiesInTheFoldersOfBothLayouts)
{
    const QTemporaryDir home;
    Options options = smallHome(Layout::Linux);
    options.chromeProfiles = options.edgeProfiles = 0;
    options.furtherBrowsers = {{u"chrome@beta"_s},
                               {u"chromium@snap"_s},
                               {u"brave"_s},
                               {u"vivaldi@flatpak"_s},
                               {u"firefox"_s, 2},
                               {u"firefox@old"_s},
                               {u"librewolf@flatpak"_s},
                               {u"waterfox"_s},
                               {u"floorp"_s},
                               {u"zen"_s},
                               {u"opera@flatpak"_s}};
    const Contents contents = build(home.path(), options);
    EXPECT_EQ(contents.profiles, 12);
    EXPECT_EQ(contents.historyRows, 600);
    for (const QString &file :
         {u".config/google-chrome-beta/Local State"_s, u"snap/chromium/common/chromium/Local State"_s,
          u".config/BraveSoftware/Brave-Browser/Local State"_s,
          u".var/app/com.vivaldi.Vivaldi/config/vivaldi/Local State"_s,
          u".config/mozilla/firefox/profiles.ini"_s, u".mozilla/firefox/profiles.ini"_s,
          u".var/app/io.gitlab.librewolf-community/config/librewolf/librewolf/profiles.ini"_s,
          u".waterfox/profiles.ini"_s, u".floorp/profiles.ini"_s, u".config/zen/profiles.ini"_s,
          u".var/app/com.opera.Opera/config/opera/Local State"_s})
        EXPECT_TRUE(QFile::exists(home.filePath(file))) << qPrintable(file);

    const QTemporaryDir mac;
    options.layout = Layout::Mac;
    options.safariProfiles = -1;
    options.furtherBrowsers = {{u"brave"_s}, {u"firefox"_s}};
    EXPECT_EQ(build(mac.path(), options).profiles, 2);
    EXPECT_EQ(namesBelow(mac, u"Library/Application Support"_s),
              (QStringList{u"BraveSoftware"_s, u"Firefox"_s}));
}

TEST(SampleHome, aBrowserThatIsAskedForTwiceIsThereOnce)
{
    const QTemporaryDir home;
    Options options = smallHome(Layout::Linux);
    options.furtherBrowsers = {{u"chrome"_s, 3}, {u"edge"_s, 0}};
    EXPECT_EQ(build(home.path(), options).profiles, 3);
    EXPECT_EQ(namesBelow(home, u".config"_s), QStringList{u"google-chrome"_s});
}

TEST(SampleHome, aBrowserWithoutAFolderIsAFailure)
{
    const QTemporaryDir home;
    Options options = smallHome(Layout::Mac);
    for (const QString &name : {u"firefox@snap"_s, u"netscape"_s, u"chrome@stable"_s, u""_s}) {
        options.furtherBrowsers = {{name}};
        EXPECT_THROW(build(home.path(), options), Failure) << qPrintable(name);
    }
}

TEST(SampleHome, aFirefoxHomeHasAProfileThatWasNeverUsed)
{
    const QTemporaryDir home;
    Options options = smallHome(Layout::Linux);
    options.furtherBrowsers = {{u"firefox"_s, 2}};
    build(home.path(), options);
    const QString folder = u".config/mozilla/firefox"_s;
    QMap<QString, QStringList> files;
    for (const QString &name : namesBelow(home, folder))
        files.insert(name.section(u'.', 1), namesBelow(home, folder % u'/' % name));
    const QStringList used{u"favicons.sqlite"_s, u"places.sqlite"_s};
    EXPECT_EQ(files,
              (QMap<QString, QStringList>{
                  {u"ini"_s, {}}, {u"default"_s, {}}, {u"default-release"_s, used}, {u"Work"_s, used}}));
}

TEST(SampleHome, operaKeepsItsFurtherProfilesAside)
{
    const QTemporaryDir home;
    Options options = smallHome(Layout::Linux);
    options.furtherBrowsers = {{u"opera"_s, 2}};
    build(home.path(), options);
    EXPECT_EQ(namesBelow(home, u".config/opera"_s),
              (QStringList{u"Default"_s, u"Local State"_s, u"_side_profiles"_s}));
    EXPECT_TRUE(QFile::exists(home.filePath(u".config/opera/_side_profiles/Personal/Default/History"_s)));

    const QTemporaryDir old;
    options.furtherBrowsers = {{u"opera@old"_s, 2}};
    build(old.path(), options);
    EXPECT_TRUE(QFile::exists(old.filePath(u".config/opera/History"_s)));
    EXPECT_FALSE(QFile::exists(old.filePath(u".config/opera/Default"_s)));
    EXPECT_TRUE(QFile::exists(old.filePath(u".config/opera/_side_profiles/Personal/History"_s)));
}

TEST(SampleHome, logsAreLeftWhereTheyAreAskedFor)
{
    Options options = smallHome(Layout::Mac);
    options.leavesLogs = true;
    const QTemporaryDir home;
    build(home.path(), options);
    const auto size = [&](const QString &name) { return QFile(home.filePath(u"Library/" % name)).size(); };
    EXPECT_GT(size(u"Application Support/Google/Chrome/Default/History-journal"_s), 0);
    EXPECT_GT(size(u"Application Support/Google/Chrome/Profile 1/History-wal"_s), 0);
    EXPECT_GT(size(u"Safari/History.db-wal"_s), 0);
}

TEST(SampleHome, aHomeThatCannotBeWrittenIsAFailure)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THROW(build(file.fileName(), {}), Failure);
}

} // namespace roamlet::sample
