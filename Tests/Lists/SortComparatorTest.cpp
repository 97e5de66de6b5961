// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/SortComparator.h"

#include "Lists/ListRows.h"

#include <gtest/gtest.h>

#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(OptionalDateComparator, anAbsentDateIsLaterThanEveryDate)
{
    const OptionalDateComparator forward{SortOrder::Forward};
    const PointInTime early = pointInTime(1);
    const PointInTime late = pointInTime(2);
    EXPECT_EQ(forward.compare({}, {}), std::weak_ordering::equivalent);
    EXPECT_EQ(forward.compare({}, early), std::weak_ordering::greater);
    EXPECT_EQ(forward.compare(early, {}), std::weak_ordering::less);
    EXPECT_EQ(forward.compare(early, early), std::weak_ordering::equivalent);
    EXPECT_EQ(forward.compare(early, late), std::weak_ordering::less);
    EXPECT_EQ(forward.compare(late, early), std::weak_ordering::greater);
}

TEST(OptionalDateComparator, reverseIsTheOppositeInEveryCase)
{
    OptionalDateComparator comparator{SortOrder::Forward};
    comparator.order = SortOrder::Reverse;
    const PointInTime early = pointInTime(1);
    const PointInTime late = pointInTime(2);
    EXPECT_EQ(comparator.compare({}, {}), std::weak_ordering::equivalent);
    EXPECT_EQ(comparator.compare({}, early), std::weak_ordering::less);
    EXPECT_EQ(comparator.compare(early, {}), std::weak_ordering::greater);
    EXPECT_EQ(comparator.compare(early, early), std::weak_ordering::equivalent);
    EXPECT_EQ(comparator.compare(early, late), std::weak_ordering::greater);
    EXPECT_EQ(comparator.compare(late, early), std::weak_ordering::less);
}

TEST(OptionalDateComparator, comparesEveryDateThereIs)
{
    const OptionalDateComparator forward;
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<double> ascending{
        -infinity, -1e12,   -1.5, -1.25, 0, 1e-6, 1.25, 1'741'824'000.000001, 1'741'824'000.000002,
        1e12,      infinity};
    for (std::size_t i = 1; i < ascending.size(); ++i) {
        EXPECT_EQ(forward.compare(pointInTime(ascending[i - 1]), pointInTime(ascending[i])),
                  std::weak_ordering::less)
            << i;
    }
    EXPECT_EQ(forward.compare(pointInTime(infinity), {}), std::weak_ordering::less);
    EXPECT_EQ(forward.compare(pointInTime(0.0), pointInTime(-0.0)), std::weak_ordering::equivalent);
}

TEST(OptionalDateComparator, isAValue)
{
    OptionalDateComparator turned;
    EXPECT_EQ(turned, OptionalDateComparator{SortOrder::Forward}) << "as it is made";
    turned.order = SortOrder::Reverse;
    EXPECT_EQ(turned, OptionalDateComparator{SortOrder::Reverse});
    EXPECT_NE(turned, OptionalDateComparator{SortOrder::Forward});
}

TEST(SortRank, hasTheOrderOfTheNumbers)
{
    const std::vector<qint64> ascending{std::numeric_limits<qint64>::min(), -2, -1, 0, 1, 2,
                                        std::numeric_limits<qint64>::max()};
    for (std::size_t i = 1; i < ascending.size(); ++i)
        EXPECT_LT(sortRank(ascending[i - 1]), sortRank(ascending[i])) << i;
}

TEST(SortComparator, theColumnClickedLastDecidesFirst)
{
    using Order = QList<SortComparator>;
    const Order byTitle = orderAfterClick({}, SortColumn::Title);
    EXPECT_EQ(byTitle, (Order{{SortColumn::Title, SortOrder::Forward}}));
    const Order byVisits = orderAfterClick(byTitle, SortColumn::Visits);
    EXPECT_EQ(byVisits,
              (Order{{SortColumn::Visits, SortOrder::Reverse}, {SortColumn::Title, SortOrder::Forward}}))
        << "the most first";
    const Order reversed = orderAfterClick(byVisits, SortColumn::Visits);
    EXPECT_EQ(reversed,
              (Order{{SortColumn::Visits, SortOrder::Forward}, {SortColumn::Title, SortOrder::Forward}}));
    EXPECT_EQ(orderAfterClick(reversed, SortColumn::Title),
              (Order{{SortColumn::Title, SortOrder::Forward}, {SortColumn::Visits, SortOrder::Forward}}));
    EXPECT_EQ(orderAfterClick({}, SortColumn::Date), (Order{{SortColumn::Date, SortOrder::Reverse}}))
        << "the newest first";
    for (const SortColumn column : {SortColumn::Folder, SortColumn::Source})
        EXPECT_EQ(orderAfterClick({}, column), (Order{{column, SortOrder::Forward}}));
}

TEST(SortComparator, isEqualForTheSameColumnAndDirection)
{
    const SortComparator comparator{SortColumn::Title, SortOrder::Forward};
    EXPECT_EQ(comparator, (SortComparator{SortColumn::Title, SortOrder::Forward}));
    EXPECT_NE(comparator, (SortComparator{SortColumn::Title, SortOrder::Reverse}));
    EXPECT_NE(comparator, (SortComparator{SortColumn::Source, SortOrder::Forward}));
    EXPECT_EQ(qHash(comparator), qHash(SortComparator{SortColumn::Title, SortOrder::Forward}));
    EXPECT_NE(qHash(comparator), qHash(SortComparator{SortColumn::Title, SortOrder::Reverse}));
}

TEST(NewestFirst, isFalseOnlyWithTheOldestVisitsOnTop)
{
    EXPECT_FALSE(newestFirst({{SortColumn::Date, SortOrder::Forward}}));
    EXPECT_FALSE(
        newestFirst({{SortColumn::Date, SortOrder::Forward}, {SortColumn::Title, SortOrder::Reverse}}));
    EXPECT_TRUE(newestFirst({{SortColumn::Date, SortOrder::Reverse}}));
    EXPECT_TRUE(newestFirst({}));
    for (const SortColumn column : {SortColumn::Title, SortColumn::Visits, SortColumn::Source}) {
        EXPECT_TRUE(newestFirst({{column, SortOrder::Forward}}));
        EXPECT_TRUE(newestFirst({{column, SortOrder::Forward}, {SortColumn::Date, SortOrder::Forward}}))
            << "the first comparator decides";
    }
}

} // namespace roamlet::testing
