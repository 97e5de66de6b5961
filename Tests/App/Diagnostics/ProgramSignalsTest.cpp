// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowserHome.h"
#include "Program.h"
#include "Support/FolderFingerprint.h"

#include <QFileInfo>

#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// Far less than what the interrupted jobs take to their end.
constexpr std::chrono::seconds promptly{5};

/// Interrupts jobs on a history of 300,000 pages.
class ProgramSignalsTest : public ::testing::TestWithParam<int>
{
protected:
    static void SetUpTestSuite()
    {
        sharedHome = std::make_unique<BrowserHome>();
        sharedHome->addPages();
        const QString title = QString(80, u't');
        sample::writeHistory(sharedHome->chrome(u"Default/History"_s),
                             sample::Rows<sample::HistoryRow>::generated(300'000, [title](qsizetype i) {
                                 return BrowserHome::page(u"https://example.org/%1"_s.arg(i), title, 1,
                                                          BrowserHome::newest - i);
                             }));
    }
    static void TearDownTestSuite() { sharedHome.reset(); }

    /// A search that would go on for minutes: it looks for hundreds of words in every row.
    static QStringList endlessSearch()
    {
        QStringList words(900, u"example"_s);
        words.prepend(u"--search"_s);
        return words;
    }
    /// The size of the private copy of the large history, as far as it has been written; -1 without one.
    static qint64 copiedBytes()
    {
        qint64 largest = -1;
        for (const QString &copy : sharedHome->leftovers()) {
            const QFileInfo file(QString(sharedHome->temporary() % u'/' % copy % u"/History"));
            largest = std::max(largest, file.exists() ? file.size() : 0);
        }
        return largest;
    }
    /// Copies of smaller histories may be gone again at any moment.
    static void expectOnlyTheUserReadsCopies()
    {
        for (const QString &copy : sharedHome->leftovers()) {
            const QString folder = sharedHome->temporary() % u'/' % copy;
            for (const QString &path : {folder, QString(folder % u"/History")}) {
                struct stat status = {};
                if (::stat(path.toUtf8().constData(), &status) == 0) {
                    EXPECT_EQ(status.st_mode & 0077U, 0U) << path.toStdString();
                }
            }
        }
    }
    /// Starts a job, sends the signal as soon as the condition holds, and expects an end by it that leaves
    /// nothing.
    void interrupt(const QStringList &arguments, const std::function<bool()> &condition)
    {
        const FolderFingerprint before(sharedHome->path());
        const Program program(*sharedHome);
        QProcess process;
        program.start(process, arguments);
        ASSERT_TRUE(waitWhileRunning(process, condition))
            << "the job was over before it could be interrupted";
        ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), GetParam()), 0);
        const Ended ended = Program::end(process, promptly);
        EXPECT_EQ(ended.signal, GetParam());
        EXPECT_EQ(ended.output, "");
        EXPECT_EQ(ended.errors, "");
        EXPECT_EQ(sharedHome->leftovers(), QStringList());
        EXPECT_EQ(before.differencesTo(FolderFingerprint(sharedHome->path())), "");
    }

    static std::unique_ptr<BrowserHome> sharedHome;
};

std::unique_ptr<BrowserHome> ProgramSignalsTest::sharedHome;

/// Interrupts jobs that wait for somebody to read.
class ProgramBlockedTest : public ::testing::TestWithParam<int>
{
};

std::string nameOf(const ::testing::TestParamInfo<int> &signal)
{
    return signal.param == SIGINT ? "interrupt" : signal.param == SIGTERM ? "terminate" : "hangup";
}

} // namespace

TEST_P(ProgramSignalsTest, endsAJobThatHasBegunToCopy)
{
    interrupt(endlessSearch(), [] { return !sharedHome->leftovers().isEmpty(); });
}

TEST_P(ProgramSignalsTest, endsAJobThatSearches)
{
    const qint64 size = QFileInfo(sharedHome->chrome(u"Default/History"_s)).size();
    ASSERT_GT(size, 30'000'000);
    interrupt(endlessSearch(), [size] { return copiedBytes() == size; });
}

TEST_P(ProgramBlockedTest, endsAlthoughNobodyReadsItsOutput)
{
    BrowserHome home;
    home.addProfiles();
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         sample::Rows<sample::HistoryRow>::generated(1000, [](qsizetype i) {
                             return BrowserHome::page(u"https://example.org/%1"_s.arg(i), QString(1000, u't'),
                                                      1, BrowserHome::newest - i);
                         }));
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    Program program(home);
    program.prepare = [ends] {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
    };
    QProcess process;
    program.start(process, {u"--search"_s});
    // The pipe holds less than the megabyte that the program has to say.
    int before = -1;
    ASSERT_TRUE(waitWhileRunning(process, [&] {
        int waiting = 0;
        ioctl(ends[0], FIONREAD, &waiting);
        return waiting > 0 && waiting == std::exchange(before, waiting);
    }));
    ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), GetParam()), 0);
    const Ended ended = Program::end(process, promptly);
    EXPECT_EQ(ended.signal, GetParam());
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(home.leftovers(), QStringList());
    close(ends[0]);
    close(ends[1]);
}

INSTANTIATE_TEST_SUITE_P(StopSignals, ProgramSignalsTest, ::testing::Values(SIGINT, SIGTERM, SIGHUP), nameOf);
INSTANTIATE_TEST_SUITE_P(StopSignals, ProgramBlockedTest, ::testing::Values(SIGINT, SIGTERM, SIGHUP), nameOf);

} // namespace roamlet::testing
