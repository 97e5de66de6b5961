// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

/// The other applications of this desktop. They go by the bundle identifiers that they have on a Mac, such as
/// "com.google.Chrome". Nothing here waits for them, and what fails simply does not happen. On the main
/// thread.
class Workspace
{
public:
    Workspace() = default;
    Workspace(const Workspace &) = delete;
    Workspace &operator=(const Workspace &) = delete;
    virtual ~Workspace() = default;

    /// Whether the application is installed.
    virtual bool hasApplication(const QString &bundleID) const = 0;
    /// The application's icon, a square of `side` points in a device's pixel ratio; nothing when there is
    /// none.
    virtual std::optional<QImage> icon(const QString &bundleID, int side, qreal devicePixelRatio) const = 0;
    /// Opens the URLs with the application, as it does by itself.
    virtual void open(const QStringList &urls, const QString &bundleID) = 0;
    /// Opens a URL with whatever the system has for it.
    virtual void openSystemURL(const QString &url) = 0;
    /// Starts a program. The arguments reach it as they are; no shell sees them.
    virtual void start(const QString &program, const QStringList &arguments) = 0;

    /// Opens the URLs in one profile of the browser whose data is read. False where the system has no way of
    /// its own to do so and the caller has to start a command.
    virtual bool openInProfile(const QStringList &urls, const QString &bundleID, const QString &profile) = 0;
    /// Shows one of the browser's own pages, in a profile or in whichever the browser chooses. False as
    /// above.
    virtual bool showPage(const QString &page, const QString &bundleID,
                          const std::optional<QString> &profile) = 0;
};

} // namespace roamlet
