// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "BrowserProcess.h"
#include "DrivenBrowser.h"
#include "MarionetteConnection.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QString>

#include <expected>

namespace roamlet::testing
{

/// A real Firefox without windows, driven by a test. It finds every host on the loopback address, so that it
/// talks to nobody else. Ended with all its processes when this object goes.
class HeadlessFirefox final : public DrivenBrowser
{
public:
    struct Options {
        /// Stands in for the user's home folder.
        QString home;
        /// For what the browser puts into the temporary folder.
        QString temporary;
        /// The folder of the profile to open; it exists.
        QString profile;
    };

    /// The browser's program, or an empty text when it is not installed.
    static QString program();
    /// Makes a profile of this name as the browser itself does; an empty text, or what went wrong.
    static QString createProfile(const QString &name, const QString &home, const QString &temporary);
    /// Settles in a profile's folder that the browser asks nobody for anything but what a test opens.
    static bool writePreferences(const QString &profile);

    /// Starts the browser and waits until it can be driven; an empty text, or what went wrong.
    QString start(const Options &options);
    std::expected<QString, QString> open(const QString &url) override;
    /// Runs the body of an asynchronous JavaScript function with the rights of the browser itself, `args`
    /// being its arguments, and returns what it returns. `PlacesUtils` is at hand.
    std::expected<QJsonValue, QString> run(const QString &body, const QJsonArray &args = {});
    /// Stops the whole browser where it stands, so that its files cannot change.
    bool freeze() { return m_process.freeze(); }
    void thaw() { m_process.thaw(); }
    /// Closes the browser as a user does and waits until it has written everything and is gone.
    bool close();

private:
    // The process goes first: it still talks while it ends.
    MarionetteConnection m_connection;
    BrowserProcess m_process;
};

} // namespace roamlet::testing
