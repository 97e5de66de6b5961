// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

/// The other applications of this desktop. Nothing here waits for them, and what fails simply does not
/// happen. On the main thread.
class Workspace
{
public:
    Workspace() = default;
    Workspace(const Workspace &) = delete;
    Workspace &operator=(const Workspace &) = delete;
    virtual ~Workspace() = default;

    /// The browsers that are installed, in whatever way, in the order in which browsers are listed.
    virtual QList<Source::Kind> installedBrowsers() const = 0;
    /// The browser's icon, a square of `side` points in a device's pixel ratio; nothing when there is none.
    virtual std::optional<QImage> icon(Source::Kind browser, int side, qreal devicePixelRatio) const = 0;
    /// Opens the URLs with the browser, as it does by itself. False where nothing will be opened.
    virtual bool open(const QStringList &urls, Source::Kind browser) = 0;
    /// Opens a URL with whatever the system has for it.
    virtual void openSystemURL(const QString &url) = 0;
    /// The same in the installation and the profile that the source stands for.
    virtual bool openInProfile(const QStringList &urls, const Source &source) = 0;
    /// Whether the browser can exist on this system, so that it has pages of its own to show.
    virtual bool canShowPages(Source::Kind browser) const = 0;
    /// Shows one of the browser's own pages in the source's installation and profile, or in the profile that
    /// the browser chooses where the source names none.
    virtual void showPage(const QString &page, const Source &source) = 0;
};

} // namespace roamlet
