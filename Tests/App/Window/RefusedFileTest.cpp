// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/RefusedFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

class RefusedFileTest : public ::testing::Test
{
protected:
    RefusedFileTest()
    {
        QDir(home.path()).mkpath(u"Safari"_s);
        for (const QString &name : {u"History.db"_s, u"Bookmarks.plist"_s}) {
            QFile file(home.filePath(u"Safari/" % name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }

    /// What is found when this one cannot be read.
    std::optional<RefusedFile> whenRefused(const QString &name) const
    {
        return RefusedFile::in({home.filePath(u"Elsewhere"_s), home.filePath(u"Safari"_s)},
                               [&name](const QFileInfo &file) { return file.fileName() != name; });
    }

    QTemporaryDir home;
};

TEST_F(RefusedFileTest, isTheOneWhosePermissionsAreInTheWay)
{
    EXPECT_EQ(whenRefused(u"none"_s), std::nullopt);
    const auto history = whenRefused(u"History.db"_s);
    ASSERT_TRUE(history.has_value());
    EXPECT_EQ(history->path, home.filePath(u"Safari/History.db"_s));
    EXPECT_EQ(history->folder(), home.filePath(u"Safari"_s));
    EXPECT_EQ(history->owner, QFileInfo(home.path()).owner());
    EXPECT_FALSE(history->isFolder);
    const auto folder = whenRefused(u"Safari"_s);
    ASSERT_TRUE(folder.has_value());
    EXPECT_TRUE(folder->isFolder);
    EXPECT_EQ(folder->folder(), home.path());
}

TEST_F(RefusedFileTest, everythingCanBeReadThatThePermissionsAllow)
{
    EXPECT_EQ(RefusedFile::in({home.filePath(u"Safari"_s)}), std::nullopt);
}

TEST(RefusedFileWords, sayWhoseItIsAndWhatIsMissing)
{
    EXPECT_EQ((RefusedFile{.path = u"/x/History.db"_s, .owner = u"root"_s, .isFolder = false}.words()),
              u"The file History.db belongs to root; your permission to read it is missing.");
    EXPECT_EQ((RefusedFile{.path = u"/x/Safari"_s, .owner = u"root"_s, .isFolder = true}.words()),
              u"The folder Safari belongs to root; your permission to open it is missing.");
    EXPECT_EQ((RefusedFile{.path = u"/x/History.db"_s, .owner = {}, .isFolder = false}.words()),
              u"Your permission to read the file History.db is missing.");
}

} // namespace roamlet::testing
