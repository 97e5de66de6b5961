// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/SearchMatches.h"

#include "App/Look/ForeignText.h"
#include "Model/LowerCase.h"

#include <QFontMetrics>

#include <algorithm>

namespace roamlet
{

QList<TextRange> searchMatches(QStringView text, const QStringList &words)
{
    QList<TextRange> found;
    // Both forms of the letter are one where rows are searched.
    const QString searched = withPlainSigmas(text.toString());
    for (const QString &word : words) {
        if (word.isEmpty())
            continue;
        const QString wanted = withPlainSigmas(word);
        for (qsizetype at = searched.indexOf(wanted, 0, Qt::CaseInsensitive); at >= 0;
             at = searched.indexOf(wanted, at + wanted.size(), Qt::CaseInsensitive))
            found.append({at, wanted.size()});
    }
    std::ranges::sort(found, {}, &TextRange::begin);
    QList<TextRange> result;
    for (const TextRange &range : found) {
        if (result.isEmpty() || range.begin > result.last().begin + result.last().length)
            result.append(range);
        else
            result.last().length =
                std::max(result.last().length, range.begin + range.length - result.last().begin);
    }
    return result;
}

QString fittedAroundMatch(const QString &text, const QStringList &words, const QFontMetrics &metrics,
                          int width)
{
    QString fromTheBeginning = ForeignText::fitted(text, metrics, width);
    const QList<TextRange> matches =
        fromTheBeginning == text ? QList<TextRange>() : searchMatches(text, words);
    if (matches.isEmpty())
        return fromTheBeginning;
    const qsizetype end = matches.first().begin + matches.first().length;
    const QChar ellipsis = u'…';
    const bool goesOn = end < text.size();
    const auto isInSight = [&](qsizetype begin) {
        const QString shown = (begin > 0 ? QString(ellipsis) : QString()) + text.sliced(begin, end - begin) +
                              (goesOn ? QString(ellipsis) : QString());
        return metrics.horizontalAdvance(shown) <= width;
    };
    if (isInSight(0))
        return fromTheBeginning;
    // As much as there is room for in front of it.
    qsizetype hidden = 0;
    qsizetype begin = matches.first().begin;
    while (hidden + 1 < begin) {
        const qsizetype middle = (hidden + begin) / 2;
        (isInSight(middle) ? begin : hidden) = middle;
    }
    if (begin > 0 && text[begin].isLowSurrogate())
        ++begin;
    return metrics.elidedText(ellipsis + text.sliced(begin), Qt::ElideRight, width);
}

} // namespace roamlet
