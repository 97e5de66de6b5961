// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/Updater.h"

#include "App/Updates/BundleInformation.h"

#include <utility>

namespace roamlet
{

Updater::Updater(const BundleInformation &information, std::unique_ptr<UpdateDriver> driver)
    : m_isAvailable(!information.feedURL.isEmpty()), m_driver(std::move(driver))
{
    m_driver->open(*this,
                   m_isAvailable ? UpdateDriver::Scheduler::Started : UpdateDriver::Scheduler::NotStarted);
}

Updater::~Updater() = default;

void Updater::checkForUpdates()
{
    m_driver->checkForUpdates();
}

bool Updater::automaticallyChecksForUpdates() const
{
    return m_driver->automaticallyChecksForUpdates();
}

void Updater::setAutomaticallyChecksForUpdates(bool isAutomatic)
{
    m_driver->setAutomaticallyChecksForUpdates(isAutomatic);
}

bool Updater::shouldHandleShowingScheduledUpdate(const Update & /*update*/, bool isInImmediateFocus)
{
    // A window that opens behind others helps nobody; the menu tells of the update instead.
    return isInImmediateFocus;
}

void Updater::willHandleShowingUpdate(bool handlesShowingUpdate, const Update & /*update*/,
                                      const UpdateState & /*state*/)
{
    if (!handlesShowingUpdate)
        setUpdateIsWaiting(true);
}

void Updater::didReceiveUserAttention(const Update & /*update*/)
{
    setUpdateIsWaiting(false);
}

void Updater::willFinishUpdateSession()
{
    setUpdateIsWaiting(false);
}

void Updater::setUpdateIsWaiting(bool isWaiting)
{
    if (isWaiting == m_updateIsWaiting)
        return;
    m_updateIsWaiting = isWaiting;
    Q_EMIT updateIsWaitingChanged(isWaiting);
}

} // namespace roamlet
