// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonArray>
#include <QList>
#include <QString>
#include <QVariant>

#include <variant>

namespace roamlet::sample
{

class Random;
struct FirefoxNode;

/// A bookmark or a folder, as every browser knows them; each writes them in its own way.
struct BookmarkEntry {
    struct Link {
        QString url;
        /// Unix seconds.
        qint64 added = 0;
    };
    using Folder = QList<BookmarkEntry>;

    QString title;
    std::variant<Link, Folder> content;
};

/// This many bookmarks, most of them in folders and some of the folders in others.
QList<BookmarkEntry> bookmarkEntries(quint64 seed, qsizetype count, qint64 newest);

/// The entries as they stand in Chromium's file; the ids continue from here.
QJsonArray chromiumNodes(const QList<BookmarkEntry> &entries, qint64 &nextID);

/// The entries as they stand in Safari's file.
QVariantList safariEntries(const QList<BookmarkEntry> &entries, Random &random);

/// The entries as Firefox has them, some of them with tags.
QList<FirefoxNode> firefoxNodes(const QList<BookmarkEntry> &entries);

} // namespace roamlet::sample
