// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "FeedUpdateDriverTest.h"

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;
using Choice = UpdateUserInterface::Choice;

TEST_F(FeedUpdateDriverTest, whoeverAsksSeesTheUpdate)
{
    open();
    check(u"attention 2.0"_s);
    EXPECT_EQ(events, (QStringList{u"checking"_s, u"will handle 2.0 for the user"_s, u"update"_s,
                                   u"attention 2.0"_s}));
    EXPECT_EQ(windows.update.displayVersion, u"2.0"_s);
    EXPECT_EQ(windows.update.size, package.size());
    windows.choose(Choice::Later);
    EXPECT_EQ(events.mid(4), (QStringList{u"close"_s, u"finish"_s}));
}

TEST_F(FeedUpdateDriverTest, withoutThePartThatFetchesUpdatesWhoeverAsksHearsOfIt)
{
    makeSession = [](const auto & /*setup*/, auto /*origin*/, const auto & /*handlers*/) {
        return std::unexpected(UpdateError{UpdateError::Code::NotConfigured, u"no such file"_s});
    };
    open();
    driver->checkForUpdates();
    EXPECT_EQ(windows.error, (UpdateError{UpdateError::Code::NotConfigured, u"no such file"_s}));
    EXPECT_EQ(events, (QStringList{u"error"_s, u"finish"_s}));
    windows.acknowledge();
    EXPECT_EQ(events.last(), u"close");

    // Nobody has asked for these.
    clock.advance(1min);
    EXPECT_EQ(events.last(), u"finish");
    EXPECT_EQ(events.count(u"error"_s), 1);
    const qsizetype known = events.size();
    clock.advance(24h);
    EXPECT_GT(events.size(), known) << "it is tried again";
}

TEST_F(FeedUpdateDriverTest, whoeverAsksHearsThatThereIsNothing)
{
    for (const QByteArray version : {"1.0", "0.9", "latest"}) {
        offer(version);
        open();
        events.clear();
        check(u"up to date"_s);
        windows.acknowledge();
        EXPECT_EQ(events, (QStringList{u"checking"_s, u"up to date"_s, u"close"_s, u"finish"_s}));
    }
}

TEST_F(FeedUpdateDriverTest, aCheckCanBeCancelled)
{
    server.add(u"/feed.xml"_s, {.claimedLength = 100, .end = HttpServer::End::Hang});
    open();
    driver->checkForUpdates();
    ASSERT_TRUE(settle([this] { return feedRequests() == 1; }));
    const auto cancel = windows.cancel;
    cancel();
    EXPECT_EQ(events, (QStringList{u"checking"_s, u"close"_s, u"finish"_s}));
    cancel();
    EXPECT_EQ(events.size(), 3) << "a second click does no harm";
    offer("2.0");
    check(u"attention 2.0"_s);
}

TEST_F(FeedUpdateDriverTest, aPackageIsDownloadedCheckedAndHandedToTheDesktop)
{
    open();
    check(u"attention 2.0"_s);
    events.clear();
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"handed over"_s));
    EXPECT_EQ(events, (QStringList{u"download"_s, u"verifying"_s, u"installing"_s, u"open Roamlet.deb"_s,
                                   u"handed over"_s}));
    EXPECT_EQ(opened, package);
    windows.acknowledge();
    EXPECT_EQ(events.mid(5), (QStringList{u"close"_s, u"finish"_s}));
    EXPECT_TRUE(QFile::exists(folder.filePath(u"packages/Roamlet.deb"_s)))
        << "it is read when they get to it";
    ASSERT_FALSE(windows.progress.isEmpty());
    EXPECT_EQ(windows.progress.last().first, package.size());
    EXPECT_EQ(windows.progress.last().second, package.size());
}

TEST_F(FeedUpdateDriverTest, aDownloadCanBeCancelled)
{
    server.add(u"/Roamlet.deb"_s,
               {.body = package.first(1000), .claimedLength = package.size(), .end = HttpServer::End::Hang});
    open();
    check(u"attention 2.0"_s);
    events.clear();
    windows.choose(Choice::Install);
    ASSERT_TRUE(settle([this] { return !windows.progress.isEmpty(); }));
    windows.cancel();
    EXPECT_EQ(events, (QStringList{u"download"_s, u"close"_s, u"finish"_s}));
    EXPECT_TRUE(QDir(folder.filePath(u"packages"_s)).isEmpty());
}

TEST_F(FeedUpdateDriverTest, aWrongSignatureIsAClearErrorAndNothingIsOfferedToBeInstalled)
{
    server.add(u"/Roamlet.deb"_s, {.body = QByteArray(package.size(), 'x')});
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::WrongSignature, {}}));
    EXPECT_TRUE(QDir(folder.filePath(u"packages"_s)).isEmpty());
    windows.acknowledge();
    EXPECT_EQ(events.last(), u"finish"_s);
    EXPECT_TRUE(events.filter(u"start"_s).isEmpty());
}

TEST_F(FeedUpdateDriverTest, anOldSignedPackageThatIsOfferedAsNewInstallsNothing)
{
    package = debianPackage("Package: roamlet\nVersion: 0.9-1\n");
    server.add(u"/Roamlet.deb"_s, {.body = package});
    offer("2.0");
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::WrongPackage, u"roamlet 0.9-1"_s}));
    EXPECT_EQ(opened, QByteArray());
    EXPECT_TRUE(QDir(folder.filePath(u"packages"_s)).isEmpty());
}

TEST_F(FeedUpdateDriverTest, aWrongLengthIsAClearError)
{
    server.add(u"/Roamlet.deb"_s, {.body = package + "x"});
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::WrongLength, {}}));
    EXPECT_TRUE(QDir(folder.filePath(u"packages"_s)).isEmpty());
}

TEST_F(FeedUpdateDriverTest, aPackageWithoutEncryptionIsRefused)
{
    server.add(u"/feed.xml"_s,
               {.body = feedText(itemText("2.0", "<enclosure url=\"http://example.org/Roamlet.deb\" sparkle:"
                                                 "edSignature=\"" +
                                                     signer.signature(package) + "\"/>"))});
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error.code, Code::InsecureAddress);
}

TEST_F(FeedUpdateDriverTest, aDesktopWithoutAnInstallerIsAClearError)
{
    hasInstaller = false;
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::NoInstaller, folder.filePath(u"packages/Roamlet.deb"_s)}));
}

TEST_F(FeedUpdateDriverTest, whatWasInstalledWhileTheProgramRunsIsNotOfferedAgain)
{
    const auto installNext = [this] {
        const QString next = folder.filePath(u"next"_s);
        write(next, "program");
        ASSERT_EQ(std::rename(QFile::encodeName(next).constData(), QFile::encodeName(program).constData()),
                  0);
    };
    installNext();
    open();
    isInFront = false;
    waitForTheFirstCheck(u"leaves 2.0 by schedule"_s);
    installNext();
    check(u"error"_s);
    EXPECT_EQ(windows.error, (UpdateError{Code::RestartNeeded, {}})) << "the one that waits";
    windows.acknowledge();
    EXPECT_EQ(events.last(), u"finish"_s);

    EXPECT_EQ(error(), (UpdateError{Code::RestartNeeded, {}})) << "the one that the user asks for";
    windows.acknowledge();
    events.clear();
    passADay(u"finish"_s);
    EXPECT_EQ(events, QStringList{u"finish"_s}) << "nobody is bothered";
    offer("1.0");
    check(u"up to date"_s);
}

TEST_F(FeedUpdateDriverTest, aFolderWithoutPermissionIsAClearError)
{
    write(folder.filePath(u"packages"_s), "a file in the way");
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error.code, Code::CannotWrite);
    EXPECT_EQ(server.requests(u"/Roamlet.deb"_s), 0);
}

TEST_F(FeedUpdateDriverTest, aFeedThatIsNoneIsAClearError)
{
    open();
    server.add(u"/feed.xml"_s, {});
    EXPECT_EQ(error().code, Code::FeedMalformed);
    windows.acknowledge();
    server.add(u"/feed.xml"_s, {.body = feedText({}).chopped(10)});
    EXPECT_EQ(error().code, Code::FeedMalformed);
    windows.acknowledge();
    server.add(u"/feed.xml"_s, {.body = "gone", .status = "410 Gone"});
    EXPECT_EQ(error(), (UpdateError{Code::ServerRefused, u"410"_s}));
    windows.acknowledge();
    server.add(u"/feed.xml"_s, {.body = QByteArray(1'000'000, ' '), .claimedLength = -1, .repetitions = 100});
    EXPECT_EQ(error(), (UpdateError{Code::FeedTooLarge, {}}));
    windows.acknowledge();
    EXPECT_EQ(events.last(), u"finish"_s);
    EXPECT_FALSE(defaults.contains(u"SULastCheckTime"_s)) << "nothing was learned";
}

TEST_F(FeedUpdateDriverTest, aFeedThatIsTooSlowIsAClearError)
{
    server.add(u"/feed.xml"_s, {.body = "<rss", .claimedLength = 100, .end = HttpServer::End::Hang});
    options.patience = 50ms;
    open(UpdateDriver::Scheduler::NotStarted);
    EXPECT_EQ(error(), (UpdateError{Code::TimedOut, {}}));
}

TEST_F(FeedUpdateDriverTest, aFeedWithoutEncryptionIsNotAsked)
{
    options.loopback = HttpOptions::Loopback::Refused;
    open();
    EXPECT_EQ(error().code, Code::InsecureAddress);
    EXPECT_EQ(feedRequests(), 0);
}

TEST_F(FeedUpdateDriverTest, aBuildWithoutAFeedOrAKeyChecksNothing)
{
    for (const QString &key : {QString(), u"no key"_s, u"AAAA"_s}) {
        publicKey = key;
        open();
        EXPECT_EQ(error().code, Code::NotConfigured);
    }
    publicKey = QString::fromLatin1(signer.publicKey());
    feed.clear();
    open(UpdateDriver::Scheduler::NotStarted);
    EXPECT_EQ(error().code, Code::NotConfigured);
    feed = u"https://["_s;
    open();
    EXPECT_EQ(error().code, Code::InsecureAddress);
    EXPECT_EQ(feedRequests(), 0);
}

TEST_F(FeedUpdateDriverTest, notesFromTheFeedAreThereAtOnce)
{
    offer("2.0",
          "<description>New</description><sparkle:releaseNotesLink>notes.html</sparkle:releaseNotesLink>");
    open();
    check(u"attention 2.0"_s);
    EXPECT_EQ(windows.update.notes, (ReleaseNotes{ReleaseNotes::Format::Html, u"New"_s}));
    EXPECT_EQ(server.requests(u"/notes.html"_s), 0);
}

TEST_F(FeedUpdateDriverTest, notesThatAreElsewhereAreFetched)
{
    server.add(u"/notes"_s, {.body = "Ne\xc3\xbc", .headers = "Content-Type: text/plain; charset=utf-8\r\n"});
    offer("2.0", "<sparkle:releaseNotesLink>notes</sparkle:releaseNotesLink>");
    open();
    check(u"notes"_s);
    EXPECT_EQ(windows.notes, (ReleaseNotes{ReleaseNotes::Format::Plain, u"Neü"_s}));
    windows.choose(Choice::Later);
    EXPECT_EQ(events.last(), u"finish"_s);
}

TEST_F(FeedUpdateDriverTest, anUpdateIsAsGoodWithoutItsNotes)
{
    offer("2.0", "<sparkle:releaseNotesLink>http://example.org/notes.html</sparkle:releaseNotesLink>");
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"handed over"_s));
    EXPECT_EQ(opened, package);
}

TEST_F(FeedUpdateDriverTest, answersThatComeTooLateDoNoHarm)
{
    open();
    check(u"attention 2.0"_s);
    const auto choose = windows.choose;
    choose(Choice::Later);
    const QStringList before = events;
    choose(Choice::Install);
    choose(Choice::Skip);
    EXPECT_EQ(events, before);
    EXPECT_FALSE(defaults.contains(u"SUSkippedVersion"_s));
    driver.reset();
    choose(Choice::Install);
    EXPECT_EQ(events, before);
}

TEST_F(FeedUpdateDriverTest, aProgramThatEndsInTheMiddleLeavesNothing)
{
    server.add(u"/Roamlet.deb"_s,
               {.body = package.first(1000), .claimedLength = package.size(), .end = HttpServer::End::Hang});
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(settle([this] { return !windows.progress.isEmpty(); }));
    driver.reset();
    EXPECT_TRUE(QDir(folder.filePath(u"packages"_s)).isEmpty());
}

TEST_F(FeedUpdateDriverTest, whatAProgramThatWasKilledHasLeftIsClearedAway)
{
    open();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"packages"_s))) << "nothing was there, so nothing is made";
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"packages"_s)));
    write(folder.filePath(u"packages/Roamlet.deb"_s), "the desktop may be at it");
    write(folder.filePath(u"packages/Roamlet.deb.part"_s), "half");
    driver.reset();
    open();
    EXPECT_EQ(QDir(folder.filePath(u"packages"_s)).entryList(QDir::Files), QStringList{u"Roamlet.deb"_s});
}

} // namespace
} // namespace roamlet::testing
