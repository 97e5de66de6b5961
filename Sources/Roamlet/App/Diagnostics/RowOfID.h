// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"
#include "Readers/ReadContext.h"

#include <QList>
#include <QSet>
#include <QString>

#include <expected>
#include <functional>

namespace roamlet
{

/// Opens an address in the browser and the profile of its source, or says why that cannot be done.
using OpenPage = std::function<std::expected<void, QString>(const QString &url, const Source &source)>;

/// What is opened of a row that was listed.
struct FoundRow {
    QString url;
    Source source;

    /// The row with the id that JsonLines gave it, among the pages and bookmarks of all `profiles` but those
    /// that are switched off; or why there is none. Reads what it takes, and no more.
    static std::expected<FoundRow, QString> ofID(const QString &rowID, const QList<Source> &profiles,
                                                 const QSet<QString> &disabled, const ReadContext &context);
};

} // namespace roamlet
