// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/HttpOptions.h"
#include "Platform/Update.h"

#include <QObject>
#include <QPointer>
#include <QUrl>

#include <expected>
#include <functional>
#include <memory>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

namespace roamlet
{

/// Whether an answer from there can be trusted to be from there.
bool isAllowed(const QUrl &address, HttpOptions::Loopback loopback);

/// One address that is being fetched. Destroying it cancels it, and nothing is called any more. On the main
/// thread.
class HttpTransfer final : public QObject
{
public:
    struct Head {
        /// The length of what comes, when the server says.
        std::optional<qint64> length;
        /// As "text/html", without anything behind it.
        QString contentType;
        /// Where the redirects ended.
        QUrl address;
    };
    struct Document {
        Head head;
        QByteArray content;
    };
    struct Handlers {
        /// Called once, before the first piece. An error that it returns ends the transfer.
        std::function<std::optional<UpdateError>(const Head &)> begin;
        /// Called for each piece. An error that it returns ends the transfer.
        std::function<std::optional<UpdateError>(const QByteArray &)> receive;
        /// Called at the end, with nothing when everything came. It may destroy the transfer.
        std::function<void(const std::optional<UpdateError> &)> finish;
    };

    /// Starts at once; the handlers are called from the event loop.
    HttpTransfer(QNetworkAccessManager &network, const HttpOptions &options, const QUrl &address,
                 Handlers handlers);
    ~HttpTransfer() override;

    /// Fetches a short text into memory. One with more than `longest` bytes, or one that takes too long, ends
    /// in an error as soon as that shows. `finish` may destroy the transfer.
    static std::unique_ptr<HttpTransfer>
    document(QNetworkAccessManager &network, const HttpOptions &options, const QUrl &address, qint64 longest,
             std::function<void(std::expected<Document, UpdateError>)> finish);

private:
    void readPieces();
    std::optional<UpdateError> begin();
    void complete();
    UpdateError replyError() const;
    void finish(const std::optional<UpdateError> &error);
    void letGo();

    HttpOptions::Loopback m_loopback;
    Handlers m_handlers;
    QPointer<QNetworkReply> m_reply;
    /// The length of what comes, when the server says.
    std::optional<qint64> m_length;
    qint64 m_received = 0;
    bool m_hasBegun = false;
};

} // namespace roamlet
