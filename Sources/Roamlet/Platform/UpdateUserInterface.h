// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace roamlet
{

struct ReleaseNotes;
struct Update;
struct UpdateError;

/// The windows of a driver that has none of its own. On the main thread.
///
/// At any time at most one of them is open: each of the functions that begin with "show" takes the place of
/// the one before. None of them waits for the user; each returns at once and answers later through what it
/// was handed, once at most. An answer that comes too late (after close(), or after the next window) does no
/// harm. Closing a window by its title bar is what its doc comment says.
class UpdateUserInterface
{
public:
    enum class Choice {
        Install, ///< download it, check it and install it
        Skip,    ///< never mention this version again
        Later,   ///< remind me with the next scheduled check
    };

    UpdateUserInterface() = default;
    UpdateUserInterface(const UpdateUserInterface &) = delete;
    UpdateUserInterface &operator=(const UpdateUserInterface &) = delete;
    virtual ~UpdateUserInterface() = default;

    /// "Checking for updates…", with a button to cancel. Closed: cancelled.
    virtual void showChecking(std::function<void()> cancel) = 0;
    /// There is nothing newer. Closed: acknowledged.
    virtual void showUpToDate(std::function<void()> acknowledge) = 0;
    /// There is a newer version: its notes and the three choices. Closed: later.
    virtual void showUpdate(const Update &update, std::function<void(Choice)> choose) = 0;
    /// The notes of the update that is shown, where they had to be fetched. May never come.
    virtual void showReleaseNotes(const ReleaseNotes &notes) = 0;
    /// The download of the update, with a button to cancel. Closed: cancelled.
    virtual void showDownload(const Update &update, std::function<void()> cancel) = 0;
    /// How far the download is, in bytes. `total` is absent when nobody said how much there is.
    virtual void setDownloadProgress(std::int64_t received, std::optional<std::int64_t> total) = 0;
    /// The download is complete and is being checked; the button to cancel still holds.
    virtual void showVerifying() = 0;
    /// The update is being installed, with a button to cancel. The system may ask for a password. Closed:
    /// cancelled.
    virtual void showInstalling(std::function<void()> cancel) = 0;
    /// How far that is, of a hundred; absent when nobody knows.
    virtual void setInstallProgress(std::optional<int> percent) = 0;
    /// The update is installed, and the next start runs it. Closed: acknowledged.
    virtual void showInstalled(const Update &update, std::function<void()> acknowledge) = 0;
    /// The desktop's program for packages has opened the update: the rest is the user's. Closed:
    /// acknowledged.
    virtual void showHandedOver(const Update &update, std::function<void()> acknowledge) = 0;
    /// Something failed. Closed: acknowledged.
    virtual void showError(const UpdateError &error, std::function<void()> acknowledge) = 0;
    /// Brings the window that is open before the user's eyes.
    virtual void focus() = 0;
    /// Closes the window that is open, if any: the check is over.
    virtual void close() = 0;
};

} // namespace roamlet
