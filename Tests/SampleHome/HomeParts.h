// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "SampleHome/SampleBookmarks.h"
#include "SampleHome/SampleHome.h"

#include <QList>
#include <QString>

namespace roamlet::sample
{

struct Installation;

/// What the writers of one home share: what was asked for, and how much has been written.
struct HomeParts {
    QString folder;
    Options options;
    Contents contents = {};

    /// The path of a file or folder of the home.
    QString path(const QString &name) const { return folder % u'/' % name; }
    /// In Unix seconds.
    qint64 newest() const { return options.newestVisit.toSecsSinceEpoch(); }
    /// What the rows of a profile follow from.
    quint64 profileSeed(const QString &profileKey) const;
    /// When a row was visited last, in Unix seconds: later rows are newer and closer together, the last one
    /// is the newest.
    double visitTime(quint64 seed, qsizetype row) const;
    /// Most pages are seen once, a few every day.
    static qint64 visitCount(quint64 seed, qsizetype row);
    /// As many bookmarks as a profile shall have; they count as written.
    QList<BookmarkEntry> someBookmarks(quint64 seed);
};

// Each writes one browser.
void writeChromium(HomeParts &home, const Installation &browser, int profiles);
void writeFirefox(HomeParts &home, const Installation &browser, int profiles);
void writeSafari(HomeParts &home);

} // namespace roamlet::sample
