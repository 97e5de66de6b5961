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
