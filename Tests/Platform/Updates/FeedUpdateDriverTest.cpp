// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/FeedUpdateDriver.h"

#include "FeedText.h"
#include "Platform/Linux/Updates/Session/FeedUpdateSession.h"
#include "Support/FakeUpdateUserInterface.h"
#include "Support/MemoryUserDefaults.h"
#include "UpdatesTest.h"

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;
using Choice = UpdateUserInterface::Choice;

/// Writes down what the driver asks and tells, into the same list as the windows.
class Delegate final : public UpdateDriverDelegate
{
public:
    explicit Delegate(QStringList &list) : events(list) {}

    bool supportsGentleScheduledUpdateReminders() const override { return isGentle; }
    bool shouldHandleShowingScheduledUpdate(const Update &update, bool isInImmediateFocus) override
    {
        events.append(u"should handle "_s % update.version %
                      (isInImmediateFocus ? u" in focus" : u" behind"));
        return isInImmediateFocus;
    }
    void willHandleShowingUpdate(bool handlesShowingUpdate, const Update &update,
                                 const UpdateState &state) override
    {
        EXPECT_EQ(state.stage, UpdateState::Stage::NotDownloaded);
        events.append((handlesShowingUpdate ? u"will handle "_s : u"leaves "_s) % update.version %
                      (state.isUserInitiated ? u" for the user" : u" by schedule"));
    }
    void didReceiveUserAttention(const Update &update) override
    {
        events.append(u"attention "_s % update.version);
    }
    void willFinishUpdateSession() override { events.append(u"finish"_s); }

    bool isGentle = true;
    QStringList &events;
};

class FeedUpdateDriverTest : public UpdatesTest
{
protected:
    void SetUp() override
    {
        server.add(u"/Roamlet.deb"_s, {.body = package});
        server.add(u"/Roamlet.AppImage"_s, {.body = package});
        offer("2.0");
    }

    void offer(const QByteArray &version, const QByteArray &extra = {})
    {
        server.add(u"/feed.xml"_s, {.body = feedText(itemText(version, enclosures() + extra))});
    }
    QByteArray enclosures() const
    {
        const QByteArray rest = "\" length=\"" + QByteArray::number(package.size()) +
                                "\" sparkle:edSignature=\"" + signer.signature(package) + "\"/>";
        return "<enclosure url=\"Roamlet.deb" + rest + "<enclosure url=\"Roamlet.AppImage" + rest;
    }

    void open(UpdateDriver::Scheduler scheduler = UpdateDriver::Scheduler::Started)
    {
        driver = std::make_unique<FeedUpdateDriver>(
            FeedUpdateDriver::Configuration{
                .feed = feed,
                .publicKey = publicKey,
                .host = {.version = u"1.0"_s,
                         .kind = appImage.isEmpty() ? PackageKind::Debian : PackageKind::AppImage,
                         .systemVersion = u"6.1"_s,
                         .architecture = u"x86_64"_s},
                .http = options},
            FeedUpdateDriver::Services{.clock = clock,
                                       .defaults = defaults,
                                       .userInterface = windows,
                                       .isInFront = [this] { return isInFront; },
                                       .makeSession = makeSession},
            UpdateInstaller::Environment{.appImage = appImage,
                                         .program = program,
                                         .packageFolder = folder.filePath(u"packages"_s),
                                         .openPackage =
                                             [this](const QString &path) {
                                                 events.append(u"open "_s % QFileInfo(path).fileName());
                                                 opened = contentOf(path);
                                                 return hasInstaller;
                                             },
                                         .restart =
                                             [this](const QString &path) {
                                                 events.append(u"restart "_s % QFileInfo(path).fileName());
                                             }});
        driver->open(delegate, scheduler);
    }

    /// Runs until this is the last thing that happened, behind the first `known` things.
    bool comesTo(const QString &event, qsizetype known = 0)
    {
        return settle([&] { return events.size() > known && events.last() == event; });
    }
    void check(const QString &event)
    {
        const qsizetype known = events.size();
        driver->checkForUpdates();
        ASSERT_TRUE(comesTo(event, known)) << qPrintable(events.join(u", "));
    }
    /// Time passes, at whose end there is a scheduled check.
    void pass(Clock::Duration duration, const QString &event)
    {
        const qsizetype known = events.size();
        clock.advance(duration);
        ASSERT_TRUE(comesTo(event, known)) << qPrintable(events.join(u", "));
    }
    void waitForTheFirstCheck(const QString &event) { pass(1min, event); }
    void passADay(const QString &event) { pass(24h, event); }
    UpdateError error(const QString &lastEvent = u"error"_s)
    {
        check(lastEvent);
        return windows.error;
    }
    int feedRequests() const { return server.requests(u"/feed.xml"_s); }

    PackageSigner signer;
    QByteArray package = QByteArray("a package ").repeated(50'000);
    QString feed = server.address(u"/feed.xml"_s).toString();
    QString publicKey = QString::fromLatin1(signer.publicKey());
    QString appImage;
    QString program = folder.filePath(u"roamlet"_s);
    bool isInFront = true;
    bool hasInstaller = true;
    QByteArray opened;
    MemoryUserDefaults defaults;
    FakeUpdateUserInterface windows;
    QStringList &events = windows.events;
    Delegate delegate{windows.events};
    UpdateSession::Factory makeSession = [](const auto &setup, auto origin, const auto &handlers) {
        return std::make_unique<FeedUpdateSession>(setup, origin, handlers);
    };
    std::unique_ptr<FeedUpdateDriver> driver;
};

TEST_F(FeedUpdateDriverTest, WhoeverAsksSeesTheUpdate)
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

TEST_F(FeedUpdateDriverTest, WithoutThePartThatFetchesUpdatesWhoeverAsksHearsOfIt)
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

TEST_F(FeedUpdateDriverTest, WhoeverAsksHearsThatThereIsNothing)
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

TEST_F(FeedUpdateDriverTest, ACheckCanBeCancelled)
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

TEST_F(FeedUpdateDriverTest, APackageIsDownloadedCheckedAndHandedToTheDesktop)
{
    open();
    check(u"attention 2.0"_s);
    events.clear();
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"finish"_s));
    EXPECT_EQ(events,
              (QStringList{u"download"_s, u"verifying"_s, u"open Roamlet.deb"_s, u"close"_s, u"finish"_s}));
    EXPECT_EQ(opened, package);
    ASSERT_FALSE(windows.progress.isEmpty());
    EXPECT_EQ(windows.progress.last().first, package.size());
    EXPECT_EQ(windows.progress.last().second, package.size());
}

TEST_F(FeedUpdateDriverTest, AnAppImageIsReplacedAndRestarted)
{
    appImage = folder.filePath(u"Roamlet.AppImage"_s);
    write(appImage, "old program");
    open();
    check(u"attention 2.0"_s);
    events.clear();
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"finish"_s));
    EXPECT_EQ(events, (QStringList{u"download"_s, u"verifying"_s, u"restart Roamlet.AppImage"_s, u"close"_s,
                                   u"finish"_s}));
    EXPECT_EQ(contentOf(appImage), package);
}

TEST_F(FeedUpdateDriverTest, ADownloadCanBeCancelled)
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

TEST_F(FeedUpdateDriverTest, AWrongSignatureIsAClearErrorAndNothingIsOfferedToBeInstalled)
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

TEST_F(FeedUpdateDriverTest, AWrongLengthIsAClearError)
{
    server.add(u"/Roamlet.deb"_s, {.body = package + "x"});
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::WrongLength, {}}));
    EXPECT_TRUE(QDir(folder.filePath(u"packages"_s)).isEmpty());
}

TEST_F(FeedUpdateDriverTest, APackageWithoutEncryptionIsRefused)
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

TEST_F(FeedUpdateDriverTest, ADesktopWithoutAnInstallerIsAClearError)
{
    hasInstaller = false;
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::NoInstaller, folder.filePath(u"packages/Roamlet.deb"_s)}));
}

TEST_F(FeedUpdateDriverTest, WhatWasInstalledWhileTheProgramRunsIsNotOfferedAgain)
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

TEST_F(FeedUpdateDriverTest, AFolderWithoutPermissionIsAClearError)
{
    write(folder.filePath(u"packages"_s), "a file in the way");
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error.code, Code::CannotWrite);
    EXPECT_EQ(server.requests(u"/Roamlet.deb"_s), 0);
}

TEST_F(FeedUpdateDriverTest, AFeedThatIsNoneIsAClearError)
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

TEST_F(FeedUpdateDriverTest, AFeedThatIsTooSlowIsAClearError)
{
    server.add(u"/feed.xml"_s, {.body = "<rss", .claimedLength = 100, .end = HttpServer::End::Hang});
    open(UpdateDriver::Scheduler::NotStarted);
    driver->checkForUpdates();
    ASSERT_TRUE(settle([this] { return feedRequests() == 1; }));
    clock.advance(10min);
    EXPECT_EQ(windows.error, (UpdateError{Code::TimedOut, {}}));
}

TEST_F(FeedUpdateDriverTest, AFeedWithoutEncryptionIsNotAsked)
{
    options.loopback = HttpOptions::Loopback::Refused;
    open();
    EXPECT_EQ(error().code, Code::InsecureAddress);
    EXPECT_EQ(feedRequests(), 0);
}

TEST_F(FeedUpdateDriverTest, ABuildWithoutAFeedOrAKeyChecksNothing)
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

TEST_F(FeedUpdateDriverTest, AScheduledUpdateBeforeTheUsersEyesIsShownAtOnce)
{
    open();
    waitForTheFirstCheck(u"attention 2.0"_s);
    EXPECT_EQ(events, (QStringList{u"should handle 2.0 in focus"_s, u"will handle 2.0 by schedule"_s,
                                   u"update"_s, u"attention 2.0"_s}));
    windows.choose(Choice::Later);
    EXPECT_EQ(events.mid(4), (QStringList{u"close"_s, u"finish"_s}));
    events.clear();
    passADay(u"attention 2.0"_s);
}

TEST_F(FeedUpdateDriverTest, AScheduledUpdateBehindOtherWindowsWaitsForTheUser)
{
    isInFront = false;
    open();
    waitForTheFirstCheck(u"leaves 2.0 by schedule"_s);
    EXPECT_EQ(events, (QStringList{u"should handle 2.0 behind"_s, u"leaves 2.0 by schedule"_s}));
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 1) << "it waits as long as it takes";

    driver->checkForUpdates();
    EXPECT_EQ(events.mid(2), (QStringList{u"update"_s, u"attention 2.0"_s}));
    EXPECT_EQ(feedRequests(), 1);
    driver->checkForUpdates();
    EXPECT_EQ(events.mid(4), QStringList{u"focus"_s});
    windows.choose(Choice::Later);
    EXPECT_EQ(events.mid(5), (QStringList{u"close"_s, u"finish"_s}));
    events.clear();
    waitForTheFirstCheck(u"leaves 2.0 by schedule"_s);
}

TEST_F(FeedUpdateDriverTest, AnAppWithoutRemindersGetsItsUpdatesShown)
{
    isInFront = false;
    delegate.isGentle = false;
    open();
    waitForTheFirstCheck(u"update"_s);
    EXPECT_EQ(events, (QStringList{u"will handle 2.0 by schedule"_s, u"update"_s}));
    windows.choose(Choice::Later);
    EXPECT_EQ(events.mid(2), (QStringList{u"attention 2.0"_s, u"close"_s, u"finish"_s}));
}

TEST_F(FeedUpdateDriverTest, AScheduledCheckThatFindsNothingIsSilent)
{
    offer("1.0");
    open();
    waitForTheFirstCheck(u"finish"_s);
    EXPECT_EQ(events, QStringList{u"finish"_s});
}

TEST_F(FeedUpdateDriverTest, AScheduledCheckThatFailsIsSilentAndTriedAgain)
{
    server.add(u"/feed.xml"_s, {.body = "later", .status = "503 Later"});
    open();
    clock.advance(1min);
    ASSERT_TRUE(comesTo(u"finish"_s));
    EXPECT_EQ(events, QStringList{u"finish"_s});
    EXPECT_EQ(feedRequests(), 1);
    clock.advance(59min);
    EXPECT_EQ(events.size(), 1);
    clock.advance(1min);
    ASSERT_TRUE(settle([this] { return events.size() == 2; }));
    EXPECT_EQ(feedRequests(), 2);
}

TEST_F(FeedUpdateDriverTest, WhoeverAsksDuringAScheduledCheckSeesItsEnd)
{
    server.add(u"/feed.xml"_s, {.claimedLength = 10, .end = HttpServer::End::Hang});
    isInFront = false;
    open();
    clock.advance(1min);
    ASSERT_TRUE(settle([this] { return feedRequests() == 1; }));
    driver->checkForUpdates();
    EXPECT_EQ(events, QStringList{u"checking"_s});
    clock.advance(30s);
    EXPECT_EQ(windows.error, (UpdateError{Code::TimedOut, {}}));
    windows.acknowledge();
    EXPECT_EQ(events, (QStringList{u"checking"_s, u"error"_s, u"close"_s, u"finish"_s}));
}

TEST_F(FeedUpdateDriverTest, ASkippedVersionIsNotMentionedAgainUntilTheUserAsks)
{
    open();
    waitForTheFirstCheck(u"attention 2.0"_s);
    windows.choose(Choice::Skip);
    EXPECT_EQ(defaults.string(u"SUSkippedVersion"_s), u"2.0"_s);
    for (const QByteArray version : {"2.0", "1.9", "2.0.0"}) {
        offer(version);
        open();
        events.clear();
        passADay(u"finish"_s);
        EXPECT_EQ(events, QStringList{u"finish"_s}) << version.constData();
    }
    check(u"attention 2.0.0"_s);
    windows.choose(Choice::Later);
    offer("2.1");
    passADay(u"attention 2.1"_s);
}

TEST_F(FeedUpdateDriverTest, ACriticalUpdateIsMentionedThoughItWasSkipped)
{
    defaults.setString(u"SUSkippedVersion"_s, u"2.0"_s);
    offer("2.0", "<sparkle:criticalUpdate/>");
    open();
    waitForTheFirstCheck(u"attention 2.0"_s);
    EXPECT_TRUE(windows.update.isCritical);
}

TEST_F(FeedUpdateDriverTest, NotesFromTheFeedAreThereAtOnce)
{
    offer("2.0",
          "<description>New</description><sparkle:releaseNotesLink>notes.html</sparkle:releaseNotesLink>");
    open();
    check(u"attention 2.0"_s);
    EXPECT_EQ(windows.update.notes, (ReleaseNotes{ReleaseNotes::Format::Html, u"New"_s}));
    EXPECT_EQ(server.requests(u"/notes.html"_s), 0);
}

TEST_F(FeedUpdateDriverTest, NotesThatAreElsewhereAreFetched)
{
    server.add(u"/notes"_s, {.body = "Ne\xc3\xbc", .headers = "Content-Type: text/plain; charset=utf-8\r\n"});
    offer("2.0", "<sparkle:releaseNotesLink>notes</sparkle:releaseNotesLink>");
    open();
    check(u"notes"_s);
    EXPECT_EQ(windows.notes, (ReleaseNotes{ReleaseNotes::Format::Plain, u"Neü"_s}));
    windows.choose(Choice::Later);
    EXPECT_EQ(events.last(), u"finish"_s);
}

TEST_F(FeedUpdateDriverTest, AnUpdateIsAsGoodWithoutItsNotes)
{
    offer("2.0", "<sparkle:releaseNotesLink>http://example.org/notes.html</sparkle:releaseNotesLink>");
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"finish"_s));
    EXPECT_EQ(opened, package);
}

TEST_F(FeedUpdateDriverTest, AnswersThatComeTooLateDoNoHarm)
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

TEST_F(FeedUpdateDriverTest, TheUsersSwitchIsTheDriversOwn)
{
    open();
    EXPECT_TRUE(driver->automaticallyChecksForUpdates());
    driver->setAutomaticallyChecksForUpdates(false);
    EXPECT_FALSE(driver->automaticallyChecksForUpdates());
    EXPECT_EQ(defaults.boolean(u"SUEnableAutomaticChecks"_s), false);
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 0);
    check(u"attention 2.0"_s);
}

TEST_F(FeedUpdateDriverTest, WithoutASchedulerNothingIsCheckedByItself)
{
    open(UpdateDriver::Scheduler::NotStarted);
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 0);
    check(u"attention 2.0"_s);
    windows.choose(Choice::Later);
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 1);
}

TEST_F(FeedUpdateDriverTest, AProgramThatEndsInTheMiddleLeavesNothing)
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

TEST_F(FeedUpdateDriverTest, WhatAProgramThatWasKilledHasLeftIsClearedAway)
{
    open();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"packages"_s))) << "nothing was there, so nothing is made";
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"packages"_s)));
    write(folder.filePath(u"packages/Roamlet.deb"_s), "the desktop may be at it");
    write(folder.filePath(u"packages/Roamlet.deb.part"_s), "half");
    driver.reset();
    open();
    EXPECT_EQ(QDir(folder.filePath(u"packages"_s)).entryList(QDir::Files), QStringList{u"Roamlet.deb"_s});
    appImage = folder.filePath(u"Roamlet.AppImage"_s);
    write(appImage, "program");
    write(folder.filePath(u".Roamlet.AppImage.update.part"_s), "half");
    driver.reset();
    open();
    EXPECT_FALSE(QFile::exists(folder.filePath(u".Roamlet.AppImage.update.part"_s)));
    EXPECT_TRUE(QFile::exists(appImage));
}

} // namespace
} // namespace roamlet::testing
