// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/Session/Feed.h"
#include "Platform/Linux/Updates/Session/HttpTransfer.h"
#include "Platform/Linux/Updates/Session/PackageDownload.h"
#include "Platform/Linux/Updates/Session/PackageKitInstallation.h"
#include "Platform/Linux/Updates/UpdateSession.h"
#include "Platform/UpdateUserInterface.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

namespace roamlet
{

/// A check with a feed of the widespread kind, over HTTPS.
class FeedUpdateSession final : public UpdateSession
{
public:
    FeedUpdateSession(const Setup &setup, Origin origin, Handlers handlers);

    void start() override;
    void bringToFront() override;

private:
    void readFeed(const std::expected<HttpTransfer::Document, UpdateError> &feed);
    void failToRead(const UpdateError &error);
    void offer(const UpdateChoice &choice);
    void showUpdate();
    void fetchNotes();
    void choose(UpdateUserInterface::Choice choice);
    void download();
    void install(const QString &package);
    void endInstallation(PackageKitInstallation::End end, const QString &text);
    void fail(const UpdateError &error);
    void finish();
    void giveAttention();
    void endWork();
    /// Ends the step before: what it was handed to others for answering has no effect any more.
    void beginStep() { m_step = std::make_unique<QObject>(); }
    template<typename Action>
    auto inThisStep(Action action) const;

    Setup m_setup;
    /// Decoded; empty when it is no key.
    QByteArray m_publicKey;
    Handlers m_handlers;
    Origin m_origin;
    /// Whether the user has a window of it.
    bool m_isSeen = false;
    bool m_hasAttention = false;
    /// Present from when an update was found.
    std::optional<UpdateChoice> m_choice;
    QNetworkAccessManager m_network;
    std::unique_ptr<HttpTransfer> m_document;
    std::unique_ptr<PackageDownload> m_package;
    std::unique_ptr<PackageKitInstallation> m_installation;
    std::unique_ptr<QObject> m_step;
};

} // namespace roamlet
