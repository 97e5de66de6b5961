// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/LinuxWorkspaceTest.h"
#include "Platform/Variable.h"

#include <QDir>
#include <QFile>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <gmock/gmock.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST_F(LinuxWorkspaceTest, startedProgramsGetTheSignalsThatThisOneBlocksOrIgnores)
{
    sigset_t mask;
    sigset_t previous;
    sigemptyset(&mask);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&mask, number);
    ASSERT_EQ(pthread_sigmask(SIG_BLOCK, &mask, &previous), 0);
    const auto previousPipeHandler = signal(SIGPIPE, SIG_IGN);
    const auto previousSizeHandler = signal(SIGXFSZ, SIG_IGN);
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s));
    workspace.open({u"http://a/"_s}, Source::Kind::Chrome);
    workspace.finishStarts();
    signal(SIGPIPE, previousPipeHandler);
    signal(SIGXFSZ, previousSizeHandler);
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);

    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    for (const FakeDesktop::Start &start : started) {
        EXPECT_EQ(start.blockedSignals.toULongLong(nullptr, 16), 0U);
        for (const int number : {SIGPIPE, SIGXFSZ})
            EXPECT_EQ(start.ignoredSignals.toULongLong(nullptr, 16) & (1ULL << (number - 1)), 0U) << number;
    }
}

TEST_F(LinuxWorkspaceTest, noStartedProgramBecomesAZombie)
{
    // As a user's session has it: whom nobody waits for falls to another process.
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 0), 0);
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s));
    workspace.open({u"http://a/"_s}, Source::Kind::Chrome);
    workspace.finishStarts();
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD) << "a child is left that somebody would have to wait for";
}

TEST_F(LinuxWorkspaceTest, whoeverAsksIsNotHeldUpByTheStart)
{
    // Copying a process for a start takes its time.
    static thread_local int copiesByThisThread = 0;
    ASSERT_EQ(pthread_atfork([] { ++copiesByThisThread; }, nullptr, nullptr), 0);
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s));
    workspace.open({u"http://b/"_s}, Source::Kind::Chrome);
    workspace.open({u"http://c/"_s}, Source::Kind::Safari);
    workspace.openSystemURL(u"settings:privacy"_s);
    workspace.showPage(u"chrome://history/"_s, profileOf(Source::Kind::Chrome, u"Default"_s));
    EXPECT_EQ(starts().size(), 5);
    EXPECT_EQ(copiesByThisThread, 0);
}

} // namespace
} // namespace roamlet::testing
