// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace roamlet::testing
{

/// A bookmark as a user sees it.
struct KeptBookmark {
    QStringList folders;
    QString title;
    QString url;
    /// In seconds since 1970.
    double added = 0;

    /// The bookmarks below these roots in the order in which they stand there. All of them have a date.
    static QList<KeptBookmark> allOf(const QList<BookmarkNode> &roots);
};

/// Expects the same bookmarks in the same order, added within `tolerance` seconds of each other.
void expectSameBookmarks(const QList<KeptBookmark> &actual, const QList<KeptBookmark> &expected,
                         double tolerance);

} // namespace roamlet::testing
