// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryItem.h"
#include "Readers/Files/FoldedNeedle.h"

#include <QStringList>

#include <optional>
#include <string_view>
#include <vector>

namespace roamlet
{

/// How well a page answers what somebody looks for.
struct PageRank {
    /// Where the words stand, the sum over all of them: 0 for one that begins the title, 1 for the beginning
    /// of another word of it, 2 for the site, 3 for any other place.
    int places = 0;
    /// How often it was visited and how lately: twice as often makes up for a month.
    double use = 0;
    PointInTime lastVisit;

    /// Whether a list that has room for few begins with this one. Of equal ones the newest is first.
    bool isBefore(const PageRank &other) const
    {
        if (places != other.places)
            return places < other.places;
        return use != other.use ? use > other.use : lastVisit > other.lastVisit;
    }
};

struct RankedPage {
    HistoryItem item;
    PageRank rank;
};

/// Ranks pages that hold all the words. Letters are the same where a search takes them for the same. Any
/// thread.
class PageRanking
{
public:
    /// Of a query's words; nothing where one of them cannot be looked for.
    static std::optional<PageRanking> of(const QStringList &words);

    /// An address and a title in UTF-8; the title is empty where the page has none.
    PageRank rank(std::string_view url, std::string_view title, PointInTime lastVisit,
                  qint64 visitCount) const;
    PageRank rank(const HistoryItem &item) const;

private:
    std::vector<FoldedNeedle> m_words;
};

} // namespace roamlet
