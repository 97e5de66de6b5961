// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/Session/HttpTransfer.h"

#include <expected>
#include <memory>

namespace roamlet
{

/// A short text that is being fetched into memory: a feed or release notes. Destroying it cancels it. On the
/// main thread.
class DocumentDownload
{
public:
    struct Document {
        HttpTransfer::Head head;
        QByteArray content;
    };
    /// May destroy the download.
    using Finish = std::function<void(std::expected<Document, UpdateError>)>;

    /// A document with more than `longest` bytes ends in an error as soon as that shows.
    DocumentDownload(QNetworkAccessManager &network, const Clock &clock, const HttpOptions &options,
                     const QUrl &address, qint64 longest, Finish finish);

private:
    Document m_document;
    HttpTransfer m_transfer;
};

} // namespace roamlet
