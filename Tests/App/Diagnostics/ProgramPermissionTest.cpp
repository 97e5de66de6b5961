// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "EmptyDocuments.h"
#include "ProgramTest.h"
#include "SampleHome/PlainFiles.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <grp.h>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Whether a user who owns nothing can come as far as this file.
bool isWithinReach(const QString &file)
{
    for (QFileInfo folder(QFileInfo(file).path());; folder = QFileInfo(folder.path())) {
        if (!folder.permission(QFile::ExeOther))
            return false;
        if (folder.isRoot())
            return true;
    }
}

/// A user who owns nothing here, where the tests run as somebody whom no permission stops.
constexpr unsigned int nobody = 65'534;

class ProgramPermissionTest : public ProgramTest
{
protected:
    void SetUp() override
    {
        home.addPages();
        home.addBookmarks();
        if (geteuid() != 0)
            return;
        // The other user must be able to come as far as here and to write copies.
        const QString folder = QFileInfo(home.path()).path();
        ASSERT_EQ(chmod(folder.toUtf8().constData(), 0755), 0);
        ASSERT_EQ(chmod(home.temporary().toUtf8().constData(), 0777), 0);
        program.prepare = [] {
            // After these calls nobody is left who could report a failure; the program would then read it
            // all.
            if (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0)
                _exit(99);
        };
        if (!isWithinReach(QFileInfo(QStringLiteral(ROAMLET_PROGRAM)).canonicalFilePath()))
            GTEST_SKIP() << "another user cannot start the program here";
    }
    void forbid(const QString &path, unsigned int mode = 0)
    {
        ASSERT_EQ(chmod(path.toUtf8().constData(), mode), 0);
        m_forbidden.append(path);
    }
    void TearDown() override
    {
        for (const QString &path : std::as_const(m_forbidden))
            chmod(path.toUtf8().constData(), 0700);
    }

private:
    QStringList m_forbidden;
};

} // namespace

TEST_F(ProgramPermissionTest, aRefusedFileIsNamedAndTheOthersAreRead)
{
    forbid(home.chrome(u"Default/History"_s));
    const auto lines = linesOf({u"--summary"_s});
    EXPECT_THAT(
        lines,
        ElementsAre(
            AllOf(StartsWith("Chrome - Personal  3 bookmarks"), HasSubstr("  0 history URLs")),
            HasSubstr("macOS blocked access to " + home.chrome(u"Default/History"_s).toStdString() + "."),
            AllOf(StartsWith("Chrome - Work"), HasSubstr("  2 history URLs")),
            AllOf(StartsWith("Edge - Office"), HasSubstr("  1 history URLs")), StartsWith("Read in ")));
    const Ended search = program.run({u"--search"_s});
    EXPECT_EQ(search.status, 0);
    EXPECT_EQ(search.lines().size(), 4);
    EXPECT_EQ(search.errors.toStdString(), "roamlet: Chrome - Personal: macOS blocked access to " +
                                               home.chrome(u"Default/History"_s).toStdString() + ".\n");
}

TEST_F(ProgramPermissionTest, aRefusedFolderIsNamedAndTheOthersAreRead)
{
    forbid(home.chrome(u"Default"_s));
    const auto lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_THAT(lines[1], HasSubstr("macOS blocked access to " +
                                    home.chrome(u"Default/Bookmarks"_s).toStdString() + "."));
    EXPECT_THAT(lines[2], HasSubstr("macOS blocked access to " +
                                    home.chrome(u"Default/History"_s).toStdString() + "."));
    const Ended exported = program.run({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s});
    EXPECT_EQ(exported.status, 0);
    EXPECT_EQ(exported.output, emptyHtml);
    EXPECT_THAT(exported.errors.toStdString(), HasSubstr("macOS blocked access to "));
}

TEST_F(ProgramPermissionTest, aRefusedSafariIsReportedAsBlocked)
{
    const QString file = home.path(u"Library/Safari/History.db"_s);
    sample::writeFile(file, "secret");
    forbid(file);
    const auto lines = linesOf({u"--summary"_s});
    EXPECT_THAT(lines.front(), StartsWith("Safari "));
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines[lines.size() - 2], "Safari is blocked: grant Full Disk Access.");
}

TEST_F(ProgramPermissionTest, aTemporaryFolderThatRefusesIsNotBlamedOnTheBrowser)
{
    const QString safari = home.path(u"Library/Safari/History.db"_s);
    sample::writeFile(safari, "any");
    forbid(home.temporary(), 0500);
    const auto lines = linesOf({u"--summary"_s});
    const auto problem = [this](const QString &file) {
        return "  ! Couldn't read " + file.toStdString() + ": cannot make a copy in " +
               home.temporary().toStdString() + ": Permission denied";
    };
    EXPECT_THAT(lines, ::testing::Contains(problem(safari)));
    EXPECT_THAT(lines, ::testing::Contains(problem(home.chrome(u"Default/History"_s))));
    for (const std::string &line : lines) {
        EXPECT_THAT(line, Not(HasSubstr("macOS blocked")));
        EXPECT_THAT(line, Not(HasSubstr("Safari is blocked")));
    }
}

} // namespace roamlet::testing
