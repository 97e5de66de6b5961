// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Confinement.h"

#include "Platform/Linux/LinuxFiles.h"
#include "Platform/Variable.h"
#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class ConfinementTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // Only since then does the kernel refuse to cut a file off, too.
        constexpr long completeVersion = 3;
        if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) <
            completeVersion)
            GTEST_SKIP() << "this kernel cannot do it";
        sample::writeFile(theirs(u"History"_s), "browsed");
        sample::makeFolder(ours({}));
    }

    QString theirs(const QString &name) const { return m_folder.filePath(u"browser/" % name); }
    QString ours(const QString &name) const { return m_folder.filePath(u"temporary/" % name); }
    static QByteArray bytes(const QString &path) { return QFile::encodeName(path); }
    static bool canWrite(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write("x") == 1;
    }
    /// A thread of its own, since there is no way back.
    static void onAnotherThread(const std::function<void()> &work) { std::thread(work).join(); }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ConfinementTest, nothingOfABrowsersCanBeChanged)
{
    onAnotherThread([this] {
        ASSERT_TRUE(Confinement::writeOnlyBelow({ours({})}));
        const QByteArray file = bytes(theirs(u"History"_s));
        EXPECT_FALSE(canWrite(theirs(u"History"_s)));
        EXPECT_EQ(errno, EACCES);
        EXPECT_FALSE(canWrite(theirs(u"new"_s)));
        EXPECT_EQ(::open(file.constData(), O_RDWR | O_CLOEXEC), -1);
        EXPECT_EQ(::truncate(file.constData(), 0), -1);
        EXPECT_EQ(::unlink(file.constData()), -1);
        EXPECT_EQ(::rename(file.constData(), bytes(theirs(u"away"_s)).constData()), -1);
        EXPECT_EQ(::rename(file.constData(), bytes(ours(u"away"_s)).constData()), -1);
        EXPECT_EQ(::link(file.constData(), bytes(ours(u"link"_s)).constData()), -1);
        EXPECT_EQ(::mkdir(bytes(theirs(u"folder"_s)).constData(), 0700), -1);
        EXPECT_EQ(::symlink("x", bytes(theirs(u"symlink"_s)).constData()), -1);
        std::thread([this] { EXPECT_FALSE(canWrite(theirs(u"History"_s))); }).join();
    });
    QFile file(theirs(u"History"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "browsed");
    EXPECT_EQ(QDir(theirs({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"History"_s});
}

TEST_F(ConfinementTest, privateCopiesAreMadeAndRemoved)
{
    onAnotherThread([this] {
        ASSERT_TRUE(Confinement::writeOnlyBelow({ours({})}));
        const LinuxFiles files;
        ASSERT_FALSE(files.makePrivateFolder(ours(u"copy"_s)));
        EXPECT_TRUE(files.copy(theirs(u"History"_s), ours(u"copy/History"_s), {}, {}, {}));
        EXPECT_TRUE(canWrite(ours(u"copy/History-wal"_s)));
        EXPECT_TRUE(canWrite(u"/dev/null"_s));
        files.removeFolder(ours(u"copy"_s));
        EXPECT_FALSE(files.exists(ours(u"copy"_s)));
    });
}

TEST_F(ConfinementTest, otherThreadsAreAsFreeAsBefore)
{
    onAnotherThread([this] { ASSERT_TRUE(Confinement::writeOnlyBelow({ours({})})); });
    EXPECT_TRUE(canWrite(theirs(u"History"_s)));
    EXPECT_EQ(::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0), 0);
    std::thread([this] { EXPECT_TRUE(canWrite(theirs(u"new"_s))); }).join();
}

TEST_F(ConfinementTest, theMainThreadIsNeverConfinedAsAReader)
{
    EXPECT_FALSE(Confinement::ofReadingThread(ours({})));
    EXPECT_TRUE(canWrite(theirs(u"History"_s)));
}

TEST_F(ConfinementTest, aReadingThreadAlsoWritesWhereSQLiteSorts)
{
    const QTemporaryDir sorting;
    const Variable place("SQLITE_TMPDIR", bytes(sorting.path()));
    onAnotherThread([&] {
        // More often than the kernel would add to what it looks at.
        for (int i = 0; i < 40; ++i)
            ASSERT_TRUE(Confinement::ofReadingThread(ours({})));
        EXPECT_TRUE(canWrite(sorting.filePath(u"sorted"_s)));
        EXPECT_TRUE(canWrite(ours(u"copy"_s)));
        EXPECT_FALSE(canWrite(theirs(u"History"_s)));
    });
}

TEST_F(ConfinementTest, withoutTheFolderNothingChanges)
{
    onAnotherThread([this] {
        EXPECT_FALSE(Confinement::writeOnlyBelow({ours(u"missing"_s)}));
        EXPECT_TRUE(canWrite(theirs(u"History"_s)));
        EXPECT_EQ(::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0), 0);
    });
}

} // namespace roamlet::testing
