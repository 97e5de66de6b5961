// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

struct Update;

/// How an update was come by, and how far it is.
struct UpdateState {
    enum class Stage { NotDownloaded, Downloaded, Installing };

    Stage stage = Stage::NotDownloaded;
    /// Whether the user asked for the check, as opposed to the schedule.
    bool isUserInitiated = false;

    bool operator==(const UpdateState &) const = default;
};

/// What a driver asks and tells the app about the updates that it shows. On the main thread.
class UpdateDriverDelegate
{
public:
    UpdateDriverDelegate() = default;
    UpdateDriverDelegate(const UpdateDriverDelegate &) = delete;
    UpdateDriverDelegate &operator=(const UpdateDriverDelegate &) = delete;
    virtual ~UpdateDriverDelegate() = default;

    /// Whether the app can remind the user of an update in a way of its own.
    virtual bool supportsGentleScheduledUpdateReminders() const = 0;
    /// Whether the driver shall show an update that a scheduled check found. `isInImmediateFocus` says that
    /// it would show at once and before the user's eyes.
    virtual bool shouldHandleShowingScheduledUpdate(const Update &update, bool isInImmediateFocus) = 0;
    /// Before an update is shown by the driver, or left to the app when `handlesShowingUpdate` is false.
    virtual void willHandleShowingUpdate(bool handlesShowingUpdate, const Update &update,
                                         const UpdateState &state) = 0;
    /// When the user first sees the update, or decides about it; once for each update.
    virtual void didReceiveUserAttention(const Update &update) = 0;
    /// Before a check is over, whatever it ended in.
    virtual void willFinishUpdateSession() = 0;
};

/// Whatever finds, shows and installs updates on this system. On the main thread.
class UpdateDriver
{
public:
    enum class Scheduler { Started, NotStarted };

    UpdateDriver() = default;
    UpdateDriver(const UpdateDriver &) = delete;
    UpdateDriver &operator=(const UpdateDriver &) = delete;
    virtual ~UpdateDriver() = default;

    /// Called once, before anything else. Only with a started scheduler are there automatic checks. The
    /// delegate outlives the driver.
    virtual void open(UpdateDriverDelegate &delegate, Scheduler scheduler) = 0;
    /// Checks because the user asked, and tells the user what came of it. An update that waits is shown, and
    /// a check that is under way comes to the front.
    virtual void checkForUpdates() = 0;
    /// Whether it checks by itself every day. The driver stores this.
    virtual bool automaticallyChecksForUpdates() const = 0;
    virtual void setAutomaticallyChecksForUpdates(bool isAutomatic) = 0;
};

} // namespace roamlet
