// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/ReaderTest.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QFile>

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

} // namespace roamlet::testing
