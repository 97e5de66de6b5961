// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Diagnostics/ProfileFacts.h"
#include "Model/Bookmark.h"
#include "Model/HistoryItem.h"

#include <QJsonObject>
#include <QString>

#include <optional>

/// Rows for other programs, an object on a line of its own each. The manual page tells of every field: their
/// names stay. Pure functions.
namespace roamlet::JsonLines
{

/// The fields of a page,
QJsonObject object(const HistoryItem &page);
/// of a bookmark,
QJsonObject object(const Bookmark &bookmark);
/// and of a profile.
QJsonObject object(const ProfileFacts &profile);
/// A point in time, in UTC and to the millisecond; undefined, so that the field is absent, where it is not in
/// the years from 1 to 9999.
QJsonValue time(PointInTime time);
/// The object as a line with its end. It holds no character that could break the line, or that a terminal
/// would obey, and is valid whatever stands in the object's texts.
QString line(const QJsonObject &object);

/// The id by which a row is opened. Pages and bookmarks of one profile may have the same numbers.
QString rowID(const HistoryItem &page);
QString rowID(const Bookmark &bookmark);
/// The bookmark's own id in such an id, or nothing where it is a page's.
std::optional<QString> bookmarkID(const QString &rowID);

} // namespace roamlet::JsonLines
