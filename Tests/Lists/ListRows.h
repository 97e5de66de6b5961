// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowGroup.h"
#include "Model/Bookmark.h"
#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace roamlet::testing
{

/// "2025-03-13T12:00:00+01:00": the offset is written out, so that no time zone's rules play a part.
inline PointInTime at(const QString &isoTime)
{
    const QDateTime time = QDateTime::fromString(isoTime, Qt::ISODateWithMs);
    Q_ASSERT(time.isValid());
    return pointInTime(static_cast<double>(time.toMSecsSinceEpoch()) / 1000);
}

inline std::string utcText(PointInTime time)
{
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(secondsSince1970(time) * 1000), Qt::UTC)
        .toString(Qt::ISODate)
        .toStdString();
}

inline Source chrome(const QString &name = QStringLiteral("Work"))
{
    return {.kind = Source::Kind::Chrome, .profile = name, .name = name, .safariBookmarks = Source::None{}};
}

/// A page that was visited, named `title`.
inline HistoryItem visited(const QString &title, PointInTime lastVisit, qint64 visits = 1,
                           const Source &source = chrome())
{
    return HistoryItem::ofRow(1, title, QStringLiteral("https://example.org/page"), lastVisit, visits,
                              source);
}

inline HistoryItem onSite(const QString &title, const QString &url)
{
    return HistoryItem::ofRow(1, title, url, pointInTime(0), 1, chrome());
}

inline Bookmark bookmark(const QString &title, std::optional<PointInTime> dateAdded = {},
                         const QStringList &path = {},
                         const QString &url = QStringLiteral("https://example.org/page"))
{
    BookmarkNode node;
    node.title = title;
    node.url = url;
    node.dateAdded = dateAdded;
    node.source = chrome();
    return node.flattened(path).first();
}

template<typename Row>
QList<Row> copies(const RowPointers<Row> &rows)
{
    QList<Row> result;
    for (const Row *row : rows)
        result.append(*row);
    return result;
}

template<typename Row>
std::string titles(const QList<Row> &rows)
{
    QStringList result;
    for (const Row &row : rows)
        result.append(row.title);
    return result.join(u' ').toStdString();
}
template<typename Row>
std::string titles(const RowPointers<Row> &rows)
{
    return titles(copies(rows));
}

/// "Today: a b; Yesterday: c".
template<typename Row>
std::string sections(const QList<RowGroup<Row>> &groups)
{
    QStringList result;
    for (const RowGroup<Row> &group : groups)
        result.append(group.title + QStringLiteral(": ") + QString::fromStdString(titles(group.rows)));
    return result.join(QStringLiteral("; ")).toStdString();
}

} // namespace roamlet::testing
