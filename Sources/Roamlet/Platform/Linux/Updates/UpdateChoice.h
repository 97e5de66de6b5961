// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/Feed.h"

#include <QList>
#include <QString>

#include <optional>

namespace roamlet
{

/// The forms in which the program comes.
enum class PackageKind {
    Debian,   ///< a .deb for the desktop's installer
    AppImage, ///< one file that is the program
};

/// The program that is to be updated, and the machine that it runs on.
struct UpdateHost {
    QString version;
    PackageKind kind = PackageKind::Debian;
    /// The kernel's version: the only number that means the same on every distribution.
    QString systemVersion;
    /// The processor, as "x86_64" or "arm64".
    QString architecture;

    /// This machine; an AppImage when the program was started from one.
    static UpdateHost ofThisProcess(const QString &version);
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

} // namespace roamlet
