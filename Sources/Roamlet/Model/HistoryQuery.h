// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryItem.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

/// A piece of a text, counted in its UTF-16 units.
struct TextPlace {
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype end() const { return start + length; }
    bool operator==(const TextPlace &) const = default;
};

/// From one moment to before another one; open where either is absent.
struct TimeSpan {
    // The compiler wants them from whoever names only one of the members.
    // NOLINTBEGIN(readability-redundant-member-init)
    std::optional<PointInTime> begin = {};
    std::optional<PointInTime> end = {};
    // NOLINTEND(readability-redundant-member-init)

    bool isLimited() const { return begin || end; }
    bool operator==(const TimeSpan &) const = default;
};

/// What is asked of a browser's history, independent of the browser: words, a site, an order and a limit.
struct HistoryQuery {
    enum class Order {
        Latest,      ///< newest last visit first
        MostVisited, ///< highest visit count first
    };

    static constexpr qint64 defaultLimit = 1000;

    /// Lower-cased words, each of which must occur, both kinds of sigma being one letter.
    QStringList words;
    /// Only this site, in the form of Site::name.
    std::optional<QString> site;
    Order order = Order::Latest;
    /// The largest number of rows that one source may return; all where it is negative.
    qint64 limit = defaultLimit;
    // The compiler wants them from whoever names only some of the members.
    // NOLINTBEGIN(readability-redundant-member-init)
    /// Only what was visited last in this time.
    TimeSpan visited = {};
    /// Only the row with this number in the browser's table.
    std::optional<qint64> rowID = {};
    // NOLINTEND(readability-redundant-member-init)

    bool operator==(const HistoryQuery &) const = default;

    /// The plain listing of the latest rows, which is loaded for every source.
    static HistoryQuery recent() { return {}; }
    /// The query for what the user typed. Words are separated by blanks (U+0020) only.
    static HistoryQuery matching(const QString &text, const std::optional<QString> &site, Order order);

    /// Whether words or a site are asked for, as opposed to the plain listing.
    bool isSearch() const { return !words.isEmpty() || site.has_value(); }
    /// The SQL condition of the words and the site: empty, or a text that begins with " AND ". `text` is the
    /// reader's expression for the searchable text of a row, `url` the one for its URL. What is asked of
    /// times and numbers is left to the readers, as each browser counts them in its own way.
    QString conditions(const QString &text, const QString &url) const;
    /// The values to bind to the placeholders of conditions(), in their order.
    QStringList patterns() const;
    /// The LIKE pattern, with a backslash as the escape, of what holds this text.
    static QString pattern(const QString &text);

    /// Whether every row that this query matches is one that `wider` matches, too, whatever their limits.
    bool isWithin(const HistoryQuery &wider) const;
    /// Where the words stand in a title or an address, in order; pieces that touch are one.
    QList<TextPlace> placesIn(const QString &text) const;
};

/// What a search across sources returns.
struct HistoryResults {
    QList<HistoryItem> items;
    /// Whether at least one source stopped at the limit, so that there may be more.
    bool isCapped = false;

    bool operator==(const HistoryResults &) const = default;
};

size_t qHash(const HistoryQuery &query, size_t seed = 0);

} // namespace roamlet
