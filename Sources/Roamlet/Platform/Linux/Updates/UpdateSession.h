// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/HttpOptions.h"
#include "Platform/Linux/Updates/UpdateInstaller.h"

#include <QObject>
#include <QString>
#include <QUrl>

#include <expected>
#include <functional>
#include <memory>

namespace roamlet
{

class BackgroundTasks;
class UpdateDriverDelegate;
class UpdateUserInterface;

/// The program that is to be updated, and the machine that it runs on.
struct UpdateHost {
    QString version;
    /// The kernel's version: the only number that means the same on every distribution.
    QString systemVersion;
    /// The processor, as "x86_64" or "arm64".
    QString architecture;
    /// What the program's Debian package is called.
    QString package = QStringLiteral("roamlet");
};

/// One check, from the feed to the installation. On the main thread.
class UpdateSession : public QObject
{
public:
    enum class Origin { User, Schedule };
    struct Setup {
        /// Where packages are checked; it outlives the session, which does not wait for a check.
        BackgroundTasks &checks;
        UpdateUserInterface &userInterface;
        UpdateDriverDelegate &delegate;
        UpdateInstaller &installer;
        HttpOptions http;
        UpdateHost host;
        QUrl feed;
        /// In Base64.
        QByteArray publicKey;
        /// Whether a window that opens now opens before the user's eyes.
        std::function<bool()> isInFront;
    };
    struct Handlers {
        /// The feed was read, or could not be.
        std::function<void()> feedRead;
        std::function<void()> feedFailed;
        /// Whether the user wants to hear nothing of this version.
        std::function<bool(const QString &version)> isSkipped;
        std::function<void(const QString &version)> skip;
        /// The session is over and does nothing after this. Not to destroy it at once.
        std::function<void()> finish;
    };
    /// Makes a session, or says why it cannot.
    using Factory = std::function<std::expected<std::unique_ptr<UpdateSession>, UpdateError>(
        const Setup &setup, Origin origin, const Handlers &handlers)>;

    /// Begins. Called once.
    virtual void start() = 0;
    /// The user asks for a check while this one is under way: shows what there is.
    virtual void bringToFront() = 0;
};

/// The one function of the module that fetches updates: makes a session, which the caller owns. What it needs
/// of the network takes long to load and much memory, and most runs of the program never check for updates.
/// Its name has the version in it: a module that came with another version is none for this program.
using SessionModuleEntry = UpdateSession *(const UpdateSession::Setup *setup, UpdateSession::Origin origin,
                                           const UpdateSession::Handlers *handlers);

} // namespace roamlet
