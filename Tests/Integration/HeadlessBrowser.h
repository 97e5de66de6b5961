// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "BrowserProcess.h"
#include "DevToolsPipe.h"
#include "DrivenBrowser.h"

#include <QJsonValue>
#include <QSet>
#include <QString>

#include <expected>

namespace roamlet::testing
{

/// A real Chromium without windows, driven by a test. It finds every host on the loopback address, so that
/// it talks to nobody else. Ended with all its processes when this object goes.
class HeadlessBrowser final : public DrivenBrowser
{
public:
    struct Options {
        /// Stands in for the user's home folder.
        QString home;
        /// For what the browser puts into the temporary folder.
        QString temporary;
        /// The folder with all the profiles.
        QString userData;
        /// The folder name of the profile to open.
        QString profile;
        /// When not empty, the browser imports this bookmarks file, as a new installation does. It only does
        /// so into a profile that does not exist yet, and only where canImport() holds.
        QString bookmarksToImport;
    };

    /// The browser's program, or an empty text when it is not installed.
    static QString program();
    /// Whether this machine lets the browser be told to import a file.
    static bool canImport() { return BrowserProcess::canCoverFolders(); }

    HeadlessBrowser();

    /// Starts the browser and waits until it can be driven; an empty text, or what went wrong.
    QString start(const Options &options);
    /// In a tab of its own.
    std::expected<QString, QString> open(const QString &url) override;
    /// The value of a JavaScript expression (or of the promise that it is) in the tab that opened last.
    std::expected<QJsonValue, QString> evaluate(const QString &expression);
    /// Stops the whole browser where it stands, so that its files cannot change.
    bool freeze() { return m_process.freeze(); }
    void thaw() { m_process.thaw(); }
    /// Closes the browser as a user does and waits until it has written everything and is gone.
    bool close();

private:
    QString m_page;
    /// The documents that have loaded, by the browser's own ids.
    QSet<QString> m_loaded;
    // The process goes first: it still talks while it ends.
    DevToolsPipe m_pipe;
    BrowserProcess m_process;
};

} // namespace roamlet::testing
