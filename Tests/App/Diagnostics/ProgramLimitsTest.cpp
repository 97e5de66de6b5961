// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "ProgramTest.h"

#include <QFile>
#include <QFileInfo>

#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;

constexpr rlim_t largestFile = rlim_t{1} << 20U;

/// Runs the program where no file may grow beyond a megabyte. Whoever starts it ignores no signal.
class ProgramLimitsTest : public ProgramTest
{
protected:
    ProgramLimitsTest()
    {
        program.prepare = [] {
            constexpr rlimit limit{largestFile, largestFile};
            if (::signal(SIGXFSZ, SIG_DFL) == SIG_ERR || ::setrlimit(RLIMIT_FSIZE, &limit) != 0)
                _exit(99);
        };
    }

    /// Gives Chrome's "Personal" more pages than fit into a file of that size.
    void addTooManyPages() const
    {
        const QString title = QString(80, u't');
        sample::writeHistory(home.chrome(u"Default/History"_s),
                             sample::Rows<sample::HistoryRow>::generated(10'000, [title](qsizetype i) {
                                 return BrowserHome::page(u"https://example.org/page/%1"_s.arg(i), title, 1,
                                                          BrowserHome::newest - i);
                             }));
        ASSERT_GT(QFileInfo(home.chrome(u"Default/History"_s)).size(), qint64{largestFile});
    }
};

/// Whether a running process has loaded the windows, and whether it ignores the signal.
bool showsWindows(const QProcess &process)
{
    QFile file(u"/proc/%1/maps"_s.arg(process.processId()));
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("roamlet-window.so");
}

bool ignores(const QProcess &process, int signal)
{
    QFile file(u"/proc/%1/status"_s.arg(process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("SigIgn:"))
            return (line.sliced(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1) & 1U) != 0;
    }
    return false;
}

} // namespace

TEST_F(ProgramLimitsTest, aCopyBeyondTheLimitIsAProblemOfItsSourceAlone)
{
    home.addPages();
    home.addBookmarks();
    addTooManyPages();
    EXPECT_THAT(program.run({u"--summary"_s}).lines().join(u'\n').toStdString(),
                HasSubstr("\n  ! Couldn't read " + home.chrome(u"Default/History"_s).toStdString() +
                          ": cannot make a copy in " + home.temporary().toStdString() +
                          ": File too large\nChrome - Work "));
    // Every run looks for copies that were left.
    for (const QStringList &arguments : readingJobs) {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.signal, 0) << arguments.first().toStdString();
        EXPECT_EQ(ended.status, 0) << arguments.first().toStdString();
    }
}

TEST_F(ProgramLimitsTest, anOutputBeyondTheLimitIsAFailureWithAReason)
{
    home.addPages();
    home.addBookmarks();
    program.environment.insert(u"OUTPUT"_s, home.temporary() % u"/output");
    for (const QStringList &arguments : readingJobs + QList<QStringList>{{u"--help"_s}, {u"--version"_s}}) {
        const QString words = u"'" % arguments.join(u"' '") % u'\'';
        const Ended ended = program.runInShell(
            QString(u"head -c 1M /dev/zero > \"$OUTPUT\"; \"$0\" " % words % u" >> \"$OUTPUT\""));
        EXPECT_EQ(ended.status, 1) << arguments.first().toStdString();
        EXPECT_EQ(ended.errors.toStdString(), "roamlet: cannot write: File too large\n");
    }
}

TEST_F(ProgramLimitsTest, wherePracticallyNoFilesMayBeOpenItSaysSo)
{
    home.addPages();
    program.prepare = [] {
        constexpr rlimit limit{10, 10};
        if (::setrlimit(RLIMIT_NOFILE, &limit) != 0)
            _exit(99);
    };
    for (const QStringList &arguments : readingJobs) {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 1) << arguments.first().toStdString();
        EXPECT_THAT(ended.errors.toStdString(), HasSubstr("too few files at a time"));
    }
    // What it may ask for itself is no matter of its user's.
    program.prepare = [] {
        constexpr rlimit limit{10, 1024};
        if (::setrlimit(RLIMIT_NOFILE, &limit) != 0)
            _exit(99);
    };
    EXPECT_EQ(program.run({u"--summary"_s}).status, 0);
}

TEST_F(ProgramLimitsTest, theWindowsTakeItForAnErrorToo)
{
    home.addPages();
    program.environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    program.environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    QProcess process;
    program.start(process, {});
    ASSERT_TRUE(waitWhileRunning(process, [&process] { return showsWindows(process); }))
        << process.readAllStandardError().toStdString();
    EXPECT_TRUE(ignores(process, SIGXFSZ));
    ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), SIGTERM), 0);
    EXPECT_EQ(Program::end(process).signal, SIGTERM);
    EXPECT_EQ(home.leftovers(), QStringList());
}

} // namespace roamlet::testing
