// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/UpdateDriver.h"

#include <QObject>

#include <memory>

namespace roamlet
{

struct BundleInformation;

/// The one place through which the program updates itself. It keeps the system's driver, and knows whether an
/// update waits for the user. On the main thread.
class Updater final : public QObject, private UpdateDriverDelegate
{
    Q_OBJECT

public:
    /// Only a release that names a feed is ever updated, and only then does the driver check by itself.
    Updater(const BundleInformation &information, std::unique_ptr<UpdateDriver> driver);
    ~Updater() override;

    /// Whether this build can be updated. Where it cannot, the commands for updates are not shown.
    bool isAvailable() const { return m_isAvailable; }
    /// Whether a scheduled check has found an update that nobody has shown to the user yet.
    bool updateIsWaiting() const { return m_updateIsWaiting; }

    /// Checks for updates, or shows the one that waits. Whoever asks brings the program to the front first.
    void checkForUpdates();
    /// Whether the driver checks by itself every day.
    bool automaticallyChecksForUpdates() const;
    void setAutomaticallyChecksForUpdates(bool isAutomatic);

Q_SIGNALS:
    void updateIsWaitingChanged(bool isWaiting);

private:
    bool supportsGentleScheduledUpdateReminders() const override { return true; }
    bool shouldHandleShowingScheduledUpdate(const Update &update, bool isInImmediateFocus) override;
    void willHandleShowingUpdate(bool handlesShowingUpdate, const Update &update,
                                 const UpdateState &state) override;
    void didReceiveUserAttention(const Update &update) override;
    void willFinishUpdateSession() override;
    void setUpdateIsWaiting(bool isWaiting);

    bool m_isAvailable = false;
    bool m_updateIsWaiting = false;
    std::unique_ptr<UpdateDriver> m_driver;
};

} // namespace roamlet
