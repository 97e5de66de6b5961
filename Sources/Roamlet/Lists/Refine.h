// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/SortedRows.h"
#include "Model/LowerCase.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <optional>
#include <stop_token>
#include <utility>

namespace roamlet
{

/// What a typed text asks for: without the spaces and tabs around it, in lower case.
QString refineText(QStringView typed);
/// Whether a typed text asks for anything: not where only spaces and tabs stand.
bool isSearchText(QStringView typed);
/// The words of such a text.
QStringList refineWords(const QString &text);

/// The rows whose `key` holds each word of the typed text somewhere, both kinds of sigma being one letter, in
/// the order of `order`. Nothing when `stop` is requested on the way. Any thread.
template<typename Row, typename Key>
std::optional<RowPointers<Row>> refine(const RowPointers<Row> &rows, QStringView typed,
                                       const QList<SortComparator> &order, const Key &key,
                                       const Collation &collation, const std::stop_token &stop = {})
{
    const QStringList words = refineWords(refineText(typed));
    if (words.isEmpty())
        return sortedRows(rows, order, collation, stop);
    const bool hasSigmas = std::ranges::any_of(words, hasSigma);
    QStringList wanted;
    for (const QString &word : words)
        wanted.append(withPlainSigmas(word));
    const auto holdsAll = [&wanted](const QString &text) {
        return std::ranges::all_of(wanted, [&text](const QString &word) { return text.contains(word); });
    };
    RowPointers<Row> found;
    for (const Row *row : rows) {
        if (stop.stop_requested())
            return {};
        const auto &text = std::invoke(key, *row);
        if (hasSigmas ? holdsAll(withPlainSigmas(text)) : holdsAll(text))
            found.push_back(row);
    }
    return sortedRows(std::move(found), order, collation, stop);
}

} // namespace roamlet
