// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "DebianPackage.h"
#include "FeedText.h"
#include "Platform/Linux/Updates/FeedUpdateDriver.h"
#include "Platform/Linux/Updates/Session/FeedUpdateSession.h"
#include "Support/FakeUpdateUserInterface.h"
#include "Support/MemoryUserDefaults.h"
#include "UpdatesTest.h"

namespace roamlet::testing
{

/// Writes down what the driver asks and tells, into the same list as the windows.
class UpdateDelegate final : public UpdateDriverDelegate
{
public:
    explicit UpdateDelegate(QStringList &list) : events(list) {}

    bool supportsGentleScheduledUpdateReminders() const override { return isGentle; }
    bool shouldHandleShowingScheduledUpdate(const Update &update, bool isInImmediateFocus) override
    {
        events.append(QStringLiteral("should handle ") % update.version %
                      (isInImmediateFocus ? u" in focus" : u" behind"));
        return isInImmediateFocus;
    }
    void willHandleShowingUpdate(bool handlesShowingUpdate, const Update &update,
                                 const UpdateState &state) override
    {
        EXPECT_EQ(state.stage, UpdateState::Stage::NotDownloaded);
        events.append((handlesShowingUpdate ? QStringLiteral("will handle ") : QStringLiteral("leaves ")) %
                      update.version % (state.isUserInitiated ? u" for the user" : u" by schedule"));
    }
    void didReceiveUserAttention(const Update &update) override
    {
        events.append(QStringLiteral("attention ") % update.version);
    }
    void willFinishUpdateSession() override { events.append(QStringLiteral("finish")); }

    bool isGentle = true;
    QStringList &events;
};

/// The driver with a server that offers an update, fake windows and a desktop of its own.
class FeedUpdateDriverTest : public UpdatesTest
{
protected:
    void SetUp() override
    {
        server.add(QStringLiteral("/Roamlet.deb"), {.body = package});
        offer("2.0");
    }

    void offer(const QByteArray &version, const QByteArray &extra = {})
    {
        server.add(QStringLiteral("/feed.xml"), {.body = feedText(itemText(version, enclosures() + extra))});
    }
    QByteArray enclosures() const
    {
        return "<enclosure url=\"Roamlet.deb\" length=\"" + QByteArray::number(package.size()) +
               "\" sparkle:edSignature=\"" + signer.signature(package) + "\"/>";
    }

    void open(UpdateDriver::Scheduler scheduler = UpdateDriver::Scheduler::Started)
    {
        driver = std::make_unique<FeedUpdateDriver>(
            FeedUpdateDriver::Configuration{.feed = feed,
                                            .publicKey = publicKey,
                                            .host = {.version = QStringLiteral("1.0"),
                                                     .systemVersion = QStringLiteral("6.1"),
                                                     .architecture = QStringLiteral("x86_64")},
                                            .http = options},
            FeedUpdateDriver::Services{.clock = clock,
                                       .defaults = defaults,
                                       .userInterface = windows,
                                       .isInFront = [this] { return isInFront; },
                                       .makeSession = makeSession},
            UpdateInstaller::Environment{.program = program,
                                         .packageFolder = folder.filePath(QStringLiteral("packages")),
                                         .openPackage =
                                             [this](const QString &path) {
                                                 events.append(QStringLiteral("open ") %
                                                               QFileInfo(path).fileName());
                                                 opened = contentOf(path);
                                                 return hasInstaller;
                                             },
                                         .systemBus = [this] { return systemBus; },
                                         .patience = servicePatience});
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
    void waitForTheFirstCheck(const QString &event) { pass(std::chrono::minutes(1), event); }
    void passADay(const QString &event) { pass(std::chrono::hours(24), event); }
    UpdateError error(const QString &lastEvent = QStringLiteral("error"))
    {
        check(lastEvent);
        return windows.error;
    }
    int feedRequests() const { return server.requests(QStringLiteral("/feed.xml")); }

    PackageSigner signer;
    QByteArray package =
        debianPackage("Package: roamlet\nVersion: 2.0-1\n", QByteArray("content ").repeated(50'000));
    QString feed = server.address(QStringLiteral("/feed.xml")).toString();
    QString publicKey = QString::fromLatin1(signer.publicKey());
    QString program = folder.filePath(QStringLiteral("roamlet"));
    bool isInFront = true;
    bool hasInstaller = true;
    /// Not connected to any.
    QDBusConnection systemBus{QStringLiteral("no bus")};
    std::chrono::milliseconds servicePatience = patience;
    QByteArray opened;
    MemoryUserDefaults defaults;
    FakeUpdateUserInterface windows;
    QStringList &events = windows.events;
    UpdateDelegate delegate{windows.events};
    UpdateSession::Factory makeSession = [](const auto &setup, auto origin, const auto &handlers) {
        return std::make_unique<FeedUpdateSession>(setup, origin, handlers);
    };
    std::unique_ptr<FeedUpdateDriver> driver;
};

} // namespace roamlet::testing
