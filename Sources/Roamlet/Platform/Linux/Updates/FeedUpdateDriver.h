// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/BackgroundTasks.h"
#include "Platform/Linux/Updates/UpdateInstaller.h"
#include "Platform/Linux/Updates/UpdateSchedule.h"
#include "Platform/Linux/Updates/UpdateSession.h"
#include "Platform/UpdateDriver.h"

#include <memory>

namespace roamlet
{

class UpdateUserInterface;
class UserDefaults;

/// Updates from a feed of the widespread kind, signed with Ed25519: looked for once a day, fetched over HTTPS
/// and installed as a Debian package.
class FeedUpdateDriver final : public UpdateDriver
{
public:
    /// What the release was configured with.
    struct Configuration {
        /// The feed's address; empty when there is none.
        QString feed;
        /// The Ed25519 public key in Base64.
        QString publicKey;
        UpdateHost host;
        HttpOptions http;
    };
    /// They outlive the driver.
    struct Services {
        const Clock &clock;
        UserDefaults &defaults;
        UpdateUserInterface &userInterface;
        /// Whether one of the program's windows is the one that the user works in.
        std::function<bool()> isInFront;
        UpdateSession::Factory makeSession;
    };

    FeedUpdateDriver(Configuration configuration, Services services, UpdateInstaller::Environment installer);
    ~FeedUpdateDriver() override;

    void open(UpdateDriverDelegate &delegate, Scheduler scheduler) override;
    void checkForUpdates() override;
    bool automaticallyChecksForUpdates() const override { return m_schedule.isAutomatic(); }
    void setAutomaticallyChecksForUpdates(bool isAutomatic) override { m_schedule.setAutomatic(isAutomatic); }

private:
    void begin(UpdateSession::Origin origin);
    void end();
    void failToBegin(UpdateSession::Origin origin, const UpdateError &error);
    bool isSkipped(const QString &version) const;

    Configuration m_configuration;
    Services m_services;
    UpdateInstaller m_installer;
    UpdateSchedule m_schedule;
    UpdateDriverDelegate *m_delegate = nullptr;
    BackgroundTasks m_checks;
    std::unique_ptr<UpdateSession> m_session;
};

} // namespace roamlet
