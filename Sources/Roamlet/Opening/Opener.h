// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QImage>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace roamlet
{

class Workspace;

/// Hands links back to the browser, and to the very profile, that they came from. It waits for nobody: what
/// cannot be opened is not opened. On the main thread.
class Opener final
{
public:
    /// The URL of a record, and where the record came from.
    struct Link {
        QString url;
        Source source;
    };

    explicit Opener(Workspace &workspace) : m_workspace(workspace) {}

    /// Whether the link is one that its browser can be given at all.
    static bool canOpen(const Link &link);

    /// Opens each link in the browser and the profile that it came from. False where nothing is opened of
    /// one of them.
    bool openLinks(const QList<Link> &links);
    /// Opens URLs with a browser, in whichever profile it chooses. False where none of them is opened.
    bool open(const QStringList &urls, Source::Kind kind);
    /// The same in a profile of a browser of Chromium's family,
    bool openInChromium(const QStringList &urls, const Source &source);
    /// and in one of a browser of Firefox's family. It would search the web for a text that is no address of
    /// its own, so that such a text opens nothing.
    bool openInFirefox(const QStringList &urls, const Source &source);
    /// Shows the browser's own page of the source's history.
    void showHistory(const Source &source);
    /// Opens the browser's bookmark manager for the source, at a folder where that is possible.
    void editBookmarks(const Source &source, const std::optional<QString> &folderID);

    /// Whether the browser's own pages can be shown on this system. Where they cannot, its links are opened
    /// by the desktop's own browser.
    bool canShowPages(Source::Kind kind) const;
    /// The browsers that are installed, in the order in which browsers are listed.
    QList<Source::Kind> installedBrowsers() const;
    /// The browser's icon at 16 x 16 points, or nothing when there is none. An icon that was found is kept.
    std::optional<QImage> icon(Source::Kind kind, qreal devicePixelRatio);

private:
    void showPage(const QString &page, const Source &source);

    Workspace &m_workspace;
    QMap<std::pair<Source::Kind, qreal>, QImage> m_icons;
};

} // namespace roamlet
