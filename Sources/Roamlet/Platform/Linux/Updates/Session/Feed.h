// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/UpdateSession.h"
#include "Platform/Update.h"

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <expected>
#include <optional>

namespace roamlet
{

/// One release in an update feed, as the feed tells it.
struct FeedItem {
    /// Something to download, for some system.
    struct Package {
        /// Invalid when the feed's text is no address.
        QUrl address;
        /// In bytes; absent when the feed does not say, or says no number.
        std::optional<qint64> length;
        /// The Ed25519 signature in Base64; empty when there is none.
        QByteArray signature;
        /// The system that it is made for, such as "linux" or "linux-arm64"; empty when the feed does not
        /// say.
        QString system;

        bool operator==(const Package &) const = default;
    };

    QString version;
    QString displayVersion;
    QList<Package> packages;
    /// Empty for everybody; otherwise only for those who asked for it.
    QString channel;
    QString minimumSystemVersion;
    QString maximumSystemVersion;
    std::optional<ReleaseNotes> notes;
    /// Where the notes are to be fetched; invalid when there is nothing to fetch.
    QUrl notesAddress;
    /// Present when the release is critical: for all who have a version before this one; for everybody when
    /// empty.
    std::optional<QString> criticalBefore;
};

/// A release, and the one of its packages that fits.
struct UpdateChoice {
    FeedItem item;
    FeedItem::Package package;
    bool isCritical = false;

    /// The newest release for `host`, when there is one that is newer than what it has. Releases on channels
    /// are left out.
    static std::optional<UpdateChoice> best(const QList<FeedItem> &items, const UpdateHost &host);
    /// What is told about it.
    Update update() const;
};

namespace Feed
{

/// The most bytes that a feed may have: room for the notes of hundreds of releases.
constexpr qint64 longest = qint64{1} << 20U;

/// The releases in the order of the feed, those that carry no version left out. Addresses may be relative to
/// the feed's own. Document types are refused, so that nothing in a feed can expand, and so is what is nested
/// too deep.
std::expected<QList<FeedItem>, UpdateError> parse(const QByteArray &bytes, const QUrl &address);

} // namespace Feed

} // namespace roamlet
