// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/Favicon.h"
#include "Model/HistoryItem.h"
#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Readers/BookmarkTrees.h"

#include <QList>

#include <expected>

/// Looks at everything that a reader hands out, and requires what everybody else takes for granted.
namespace roamlet::fuzz
{

void lookAt(const QList<HistoryItem> &items, const HistoryQuery &query);
void lookAt(const BookmarkTrees &trees);
void lookAt(const Favicons &favicons);
void lookAt(const QList<Source> &profiles);
void lookAt(const ReadError &error);
void lookAt(const ReadErrors &errors);

template<typename Value, typename Error, typename... Context>
void lookAt(const std::expected<Value, Error> &result, const Context &...context)
{
    if (result)
        lookAt(*result, context...);
    else
        lookAt(result.error());
}

} // namespace roamlet::fuzz
