// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/BackgroundTasks.h"
#include "Platform/Linux/Updates/Session/Feed.h"
#include "Platform/Linux/Updates/Session/HttpTransfer.h"
#include "Platform/Linux/Updates/Session/PackageCheck.h"

#include <QFile>
#include <QObject>

#include <memory>

namespace roamlet
{

/// A package that is being fetched into a file and checked. The file gets its name only when it is the
/// package that was announced; before, and after any failure, there is no such file. Destroying the download
/// cancels it. On the main thread.
class PackageDownload final : public QObject
{
public:
    struct Handlers {
        /// How far it is. The total is absent when nobody said how much there is.
        std::function<void(qint64 received, std::optional<qint64> total)> progress;
        /// Everything is there and is being checked.
        std::function<void()> verifying;
        /// Called at the end, with nothing when the file stands. It may destroy the download.
        std::function<void(const std::optional<UpdateError> &)> finish;
    };

    /// `check` is complete but for the signature, which the feed has; `target` the path of the file, in a
    /// folder that exists. The package is checked among `checks`, so that who cancels a download does not
    /// wait for its check: that goes on to its end, and nobody hears of it.
    PackageDownload(QNetworkAccessManager &network, BackgroundTasks &checks, const HttpOptions &options,
                    FeedItem::Package package, PackageCheck check, const QString &target, Handlers handlers);
    ~PackageDownload() override;

private:
    std::optional<UpdateError> prepare();
    std::optional<UpdateError> begin(const HttpTransfer::Head &head);
    std::optional<UpdateError> receive(const QByteArray &piece);
    void verify();
    void finish(const std::optional<UpdateError> &error);
    UpdateError writeError() const;

    BackgroundTasks &m_checks;
    FeedItem::Package m_package;
    PackageCheck m_check;
    QString m_target;
    Handlers m_handlers;
    QFile m_file;
    std::optional<qint64> m_total;
    qint64 m_received = 0;
    std::unique_ptr<HttpTransfer> m_transfer;
};

} // namespace roamlet
