// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/FeedUpdateDriver.h"

#include "Platform/Linux/Updates/Versions.h"
#include "Platform/UpdateUserInterface.h"
#include "Platform/UserDefaults.h"

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString skippedKey = u"SUSkippedVersion"_s;

} // namespace

FeedUpdateDriver::FeedUpdateDriver(Configuration configuration, Services services,
                                   UpdateInstaller::Environment installer)
    : m_configuration(std::move(configuration)),
      m_services(std::move(services)),
      m_installer(std::move(installer)),
      m_schedule(m_services.clock, m_services.defaults, [this] { begin(UpdateSession::Origin::Schedule); })
{
}

FeedUpdateDriver::~FeedUpdateDriver() = default;

void FeedUpdateDriver::open(UpdateDriverDelegate &delegate, Scheduler scheduler)
{
    m_delegate = &delegate;
    m_installer.removeLeftovers(m_services.clock.now());
    if (scheduler == Scheduler::Started)
        m_schedule.start();
}

void FeedUpdateDriver::checkForUpdates()
{
    if (m_session)
        m_session->bringToFront();
    else
        begin(UpdateSession::Origin::User);
}

void FeedUpdateDriver::begin(UpdateSession::Origin origin)
{
    m_schedule.beginCheck();
    auto session = m_services.makeSession(
        UpdateSession::Setup{
            .checks = m_checks,
            .userInterface = m_services.userInterface,
            .delegate = *m_delegate,
            .installer = m_installer,
            .http = m_configuration.http,
            .host = m_configuration.host,
            .feed = QUrl(m_configuration.feed, QUrl::StrictMode),
            .publicKey = m_configuration.publicKey.toLatin1(),
            .isInFront = m_services.isInFront,
        },
        origin,
        UpdateSession::Handlers{
            .feedRead = [this] { m_schedule.noteSuccess(); },
            .feedFailed =
                [this, origin] {
                    if (origin == UpdateSession::Origin::Schedule)
                        m_schedule.noteFailure();
                },
            .isSkipped = [this](const QString &version) { return isSkipped(version); },
            .skip = [this](const QString &version) { m_services.defaults.setString(skippedKey, version); },
            .finish = [this] { end(); },
        });
    if (!session) {
        failToBegin(origin, session.error());
        return;
    }
    m_session = std::move(*session);
    m_session->start();
}

void FeedUpdateDriver::failToBegin(UpdateSession::Origin origin, const UpdateError &error)
{
    if (origin == UpdateSession::Origin::Schedule)
        m_schedule.noteFailure();
    else
        m_services.userInterface.showError(error, [this] { m_services.userInterface.close(); });
    m_delegate->willFinishUpdateSession();
    m_schedule.endCheck();
}

void FeedUpdateDriver::end()
{
    // It is still on its way back from its last words.
    m_session.release()->deleteLater();
    m_schedule.endCheck();
}

bool FeedUpdateDriver::isSkipped(const QString &version) const
{
    const auto skipped = m_services.defaults.string(skippedKey);
    return skipped && Versions::compare(version, *skipped) <= 0;
}

} // namespace roamlet
