// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A temporary folder in which earlier runs left things behind. It is not the one that every test must leave
/// empty.
class SnapshotLeftovers : public ReaderTest
{
protected:
    SnapshotLeftovers() { sample::makeFolder(m_temporary); }

    /// Makes a folder with something in it and tells whether it outlives the sweep.
    bool isKept(const QString &name)
    {
        const QString folder = m_temporary % u'/' % name;
        sample::writeFile(folder % u"/History", "a copy");
        sample::writeFile(folder % u"/deeper/file", "another");
        SQLiteSnapshot::removeLeftovers(home.files, m_temporary);
        return QFile::exists(folder % u"/History");
    }

    static QString withProcess(qint64 process) { return u"Roamlet-%1-0A1B"_s.arg(process); }

    /// The id of a process that was there and is not any more.
    static pid_t deadProcess()
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(0);
        waitpid(child, nullptr, 0);
        return child;
    }

    const QString m_temporary = home.temporary() % u"/swept";
};

void setMode(const QString &path, mode_t mode)
{
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
}

/// A temporary folder to which everybody may add, as "/tmp" is.
class SharedLeftovers : public SnapshotLeftovers
{
protected:
    SharedLeftovers() { setMode(m_temporary, 01777); }

    QString path(const QString &name) const { return m_temporary % u'/' % name; }
    /// The folder of a run that died, with these empty files in it.
    QString leftBehind(const QStringList &files, mode_t mode = 0700) const
    {
        const QString folder = path(withProcess(deadProcess()));
        sample::makeFolder(folder);
        setMode(folder, mode);
        for (const QString &file : files)
            sample::writeFile(folder % u'/' % file, {});
        return folder;
    }
    /// Whether the sweep takes this away; it does so whole or not at all.
    bool isSwept(const QString &folder)
    {
        const auto entries = [&folder] {
            return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                          QDir::NoDotAndDotDot);
        };
        const QStringList before = entries();
        SQLiteSnapshot::removeLeftovers(home.files, m_temporary);
        const bool isThere = QFile::exists(folder);
        if (isThere) {
            EXPECT_EQ(entries(), before);
        }
        return !isThere;
    }
};

} // namespace

TEST_F(SnapshotLeftovers, copiesOfLivingRunsStay)
{
    EXPECT_TRUE(isKept(withProcess(getpid())));
    EXPECT_TRUE(isKept(u"Roamlet-%1"_s.arg(getpid())));
    // Empty pieces do not count.
    EXPECT_TRUE(isKept(u"Roamlet--%1-0A1B"_s.arg(getpid())));
    EXPECT_TRUE(isKept(withProcess(1)));
}

TEST_F(SnapshotLeftovers, copiesOfAnotherUsersLivingRunsStay)
{
    ::chmod(QFile::encodeName(QFileInfo(home.path()).path()).constData(), 0755);
    const QString folder = m_temporary % u'/' % withProcess(1);
    sample::writeFile(folder % u"/History", "a copy");
    for (const QString &path : {home.temporary(), m_temporary, folder})
        ::chmod(QFile::encodeName(path).constData(), 0777);
    // There, process 1 answers that it belongs to somebody else.
    EXPECT_EQ(asAnotherUser([&] {
                  SQLiteSnapshot::removeLeftovers(home.files, m_temporary);
                  return QFile::exists(folder % u"/History") ? 0 : 1;
              }),
              0);
}

TEST_F(SnapshotLeftovers, copiesOfDeadRunsGo)
{
    EXPECT_FALSE(isKept(withProcess(deadProcess())));
}

TEST_F(SnapshotLeftovers, namesWithoutAProcessGo)
{
    EXPECT_FALSE(isKept(u"Roamlet-"_s));
    EXPECT_FALSE(isKept(u"Roamlet---"_s));
    EXPECT_FALSE(isKept(u"Roamlet-abc-0A1B"_s));
    EXPECT_FALSE(isKept(u"Roamlet-%1abc"_s.arg(getpid())));
    EXPECT_FALSE(isKept(u"Roamlet-0x%1"_s.arg(getpid(), 0, 16)));
    // Beyond 32 bits.
    EXPECT_FALSE(isKept(withProcess(4294967296 + getpid())));
    EXPECT_FALSE(isKept(u"Roamlet- %1-0A1B"_s.arg(getpid())));
}

TEST_F(SnapshotLeftovers, namesWithoutThePrefixStay)
{
    for (const QString &name :
         {u"Roamlet"_s, u"roamlet-1"_s, u"ROAMLET-abc"_s, u"XRoamlet-abc"_s, u"other"_s})
        EXPECT_TRUE(isKept(name)) << name.toStdString();
}

TEST_F(SnapshotLeftovers, whatALinkLeadsToStays)
{
    const QString target = home.path(u"precious"_s);
    sample::writeFile(target % u"/file", "mine");
    context();
    QFile::link(target, m_temporary % u"/Roamlet-abc");
    sample::makeFolder(m_temporary % u"/Roamlet-def");
    QFile::link(target, m_temporary % u"/Roamlet-def/inside");
    SQLiteSnapshot::removeLeftovers(home.files, m_temporary);
    EXPECT_EQ(QDir(m_temporary).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
              QStringList());
}

TEST_F(SnapshotLeftovers, aFolderThatCannotBeListedCountsAsEmpty)
{
    SQLiteSnapshot::removeLeftovers(home.files, home.path(u"missing"_s));
    const QString file = m_temporary % u"/Roamlet-file";
    sample::writeFile(file, "no folder");
    SQLiteSnapshot::removeLeftovers(home.files, file);
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(SharedLeftovers, copiesOfDeadRunsGo)
{
    for (const QStringList &files : {QStringList{},
                                     {u"History"_s},
                                     {u"History"_s, u"History-wal"_s, u"History-shm"_s},
                                     {u"History.db-journal"_s}})
        EXPECT_TRUE(isSwept(leftBehind(files))) << files.join(u' ').toStdString();
}

TEST_F(SharedLeftovers, copiesOfLivingRunsStay)
{
    for (const qint64 process : {qint64(getpid()), qint64(1)}) {
        const QString folder = path(withProcess(process));
        sample::writeFile(folder % u"/History", "a copy");
        setMode(folder, 0700);
        EXPECT_FALSE(isSwept(folder));
    }
}

TEST_F(SharedLeftovers, whatOnlyBeginsLikeACopyStays)
{
    const QString file = path(u"Roamlet-bookmarks.html"_s);
    sample::writeFile(file, "my bookmarks");
    const QString numbered = path(withProcess(deadProcess()));
    sample::writeFile(numbered, "my numbers");
    // Unpacked by somebody whose files nobody else may see.
    const QString unpacked = path(u"Roamlet-main"_s);
    sample::writeFile(unpacked % u"/README.md", "a project");
    setMode(unpacked, 0700);
    SQLiteSnapshot::removeLeftovers(home.files, m_temporary);
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_TRUE(QFile::exists(numbered));
    EXPECT_TRUE(QFile::exists(unpacked % u"/README.md"));
}

TEST_F(SharedLeftovers, aFolderThatOthersMayEnterIsNoCopy)
{
    for (const mode_t mode : {0755U, 0750U, 0711U, 0701U, 0500U})
        EXPECT_FALSE(isSwept(leftBehind({u"History"_s}, mode))) << std::oct << mode;
}

TEST_F(SharedLeftovers, aFolderThatHoldsAnythingElseIsNoCopy)
{
    EXPECT_FALSE(isSwept(leftBehind({u"History"_s, u"Favicons"_s}))) << "two databases";
    EXPECT_FALSE(isSwept(leftBehind({u"History"_s, u"History-wal.bak"_s})));
    EXPECT_FALSE(isSwept(leftBehind({u"History-wal"_s, u".hidden"_s})));
    EXPECT_FALSE(isSwept(leftBehind({u"History/deeper"_s}))) << "a folder";

    const QString precious = home.path(u"precious"_s);
    sample::writeFile(precious, "mine");
    const QString withLink = leftBehind({});
    ASSERT_TRUE(QFile::link(precious, withLink % u"/History"));
    EXPECT_FALSE(isSwept(withLink));
    const QString withPipe = leftBehind({});
    ASSERT_EQ(::mkfifo(QFile::encodeName(QString(withPipe % u"/History")).constData(), 0600), 0);
    EXPECT_FALSE(isSwept(withPipe));
}

TEST_F(SharedLeftovers, aLinkIsNoCopy)
{
    const QString target = home.path(u"precious"_s);
    sample::writeFile(target % u"/History", "mine");
    setMode(target, 0700);
    const QString link = path(withProcess(deadProcess()));
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_FALSE(isSwept(link));
    EXPECT_TRUE(QFile::exists(target % u"/History"));
}

TEST_F(SharedLeftovers, aFolderOfAnotherUsersStays)
{
    const QString folder = leftBehind({u"History"_s});
    if (::chown(QFile::encodeName(folder).constData(), 65534, 65534) != 0)
        GTEST_SKIP() << "only root can give a folder away";
    EXPECT_FALSE(isSwept(folder));
}

TEST_F(SharedLeftovers, aTemporaryFolderOfAnotherUsersIsShared)
{
    setMode(m_temporary, 0700);
    if (::chown(QFile::encodeName(m_temporary).constData(), 65534, 65534) != 0)
        GTEST_SKIP() << "only root can give a folder away";
    sample::writeFile(path(u"Roamlet-bookmarks.html"_s), "my bookmarks");
    EXPECT_FALSE(isSwept(path(u"Roamlet-bookmarks.html"_s)));
    EXPECT_TRUE(isSwept(leftBehind({u"History"_s})));
}

TEST_F(SharedLeftovers, aTemporaryFolderThatEverybodyMayWriteToIsShared)
{
    setMode(m_temporary, 0777);
    sample::writeFile(path(u"Roamlet-bookmarks.html"_s), "my bookmarks");
    EXPECT_FALSE(isSwept(path(u"Roamlet-bookmarks.html"_s)));
    EXPECT_TRUE(isSwept(leftBehind({u"History"_s})));
}

TEST_F(SharedLeftovers, aStickyFolderIsSharedWhoeverElseMayWriteToIt)
{
    setMode(m_temporary, 01755);
    sample::writeFile(path(u"Roamlet-bookmarks.html"_s), "my bookmarks");
    EXPECT_FALSE(isSwept(path(u"Roamlet-bookmarks.html"_s)));
}

} // namespace roamlet::testing
