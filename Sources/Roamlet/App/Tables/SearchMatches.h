// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

class QFontMetrics;

namespace roamlet
{

/// A part of a text.
struct TextRange {
    qsizetype begin = 0;
    qsizetype length = 0;

    bool operator==(const TextRange &) const = default;
};

/// Where the words that were searched for stand in a text, whatever their case: from its beginning to its
/// end, none touching the next.
QList<TextRange> searchMatches(QStringView text, const QStringList &words);

/// As much of `text` as fits into so many pixels, with an ellipsis for what does not. Where one of the words
/// stands in it, the first is in sight.
QString fittedAroundMatch(const QString &text, const QStringList &words, const QFontMetrics &metrics,
                          int width);

} // namespace roamlet
