// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/ListWish.h"
#include "Lists/RowTree.h"
#include "Model/Bookmark.h"
#include "Model/Collation.h"
#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"
#include "Model/UserCalendar.h"

#include <memory>
#include <optional>
#include <stop_token>

/// From rows to a finished list, as a wish has it. Any thread; nothing when a stop was requested on the way.
namespace roamlet::ListTree
{

/// In whose order names stand, and what day it is for the user.
struct Setting {
    std::shared_ptr<const Collation> collation;
    UserCalendar calendar;
    PointInTime now;
};

/// Of rows that were found for the wish already.
std::optional<RowTree> ofHistory(const QList<HistoryItem> &found, const ListWish &wish,
                                 const Setting &setting, const std::stop_token &stop = {});
/// Of all bookmarks there are, of which the wish takes some.
std::optional<RowTree> ofBookmarks(const QList<Bookmark> &all, const ListWish &wish, const Setting &setting,
                                   const std::stop_token &stop = {});

} // namespace roamlet::ListTree
