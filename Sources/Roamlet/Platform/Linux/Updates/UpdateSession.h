// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/DocumentDownload.h"
#include "Platform/Linux/Updates/HttpTransfer.h"
#include "Platform/Linux/Updates/PackageDownload.h"
#include "Platform/Linux/Updates/UpdateChoice.h"
#include "Platform/Linux/Updates/UpdateInstaller.h"
#include "Platform/UpdateUserInterface.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

namespace roamlet
{

class UpdateDriverDelegate;
struct UpdateState;

/// One check, from the feed to the installation. On the main thread.
class UpdateSession final : public QObject
{
public:
    enum class Origin { User, Schedule };
    struct Setup {
        const Clock &clock;
        UpdateUserInterface &userInterface;
        UpdateDriverDelegate &delegate;
        UpdateInstaller &installer;
        HttpOptions http;
        UpdateHost host;
        QUrl feed;
        /// Decoded.
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

    UpdateSession(const Setup &setup, Origin origin, Handlers handlers);

    /// Begins. Called once.
    void start();
    /// The user asks for a check while this one is under way: shows what there is.
    void bringToFront();

private:
    void readFeed(const std::expected<DocumentDownload::Document, UpdateError> &feed);
    void failToRead(const UpdateError &error);
    void offer(const UpdateChoice &choice);
    void offerBySchedule();
    void showUpdate();
    void fetchNotes();
    void choose(UpdateUserInterface::Choice choice);
    void download();
    void install();
    void fail(const UpdateError &error);
    void finish();
    void giveAttention();
    UpdateState state() const;
    /// Ends the step before: what it was handed to others for answering has no effect any more.
    void beginStep() { m_step = std::make_unique<QObject>(); }
    template<typename Action>
    auto inThisStep(Action action) const;

    /// What the user sees of it.
    enum class Sight { Nothing, Window };

    Setup m_setup;
    Handlers m_handlers;
    Origin m_origin;
    Sight m_sight = Sight::Nothing;
    bool m_hasAttention = false;
    /// Present from when an update was found.
    std::optional<UpdateChoice> m_choice;
    QNetworkAccessManager m_network;
    std::unique_ptr<DocumentDownload> m_document;
    std::unique_ptr<PackageDownload> m_package;
    std::unique_ptr<QObject> m_step;
};

} // namespace roamlet
