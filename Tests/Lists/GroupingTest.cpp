// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/Grouping.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

TEST(Grouping, hasRawValuesThatAreStored)
{
    EXPECT_EQ(rawValue(Grouping::None), u"none");
    EXPECT_EQ(rawValue(Grouping::Day), u"day");
    EXPECT_EQ(rawValue(Grouping::Site), u"site");
    for (const Grouping grouping : allGroupings)
        EXPECT_EQ(groupingFromRawValue(rawValue(grouping)), grouping);
}

TEST(Grouping, anyOtherRawValueIsNone)
{
    for (const QString &value : {u""_s, u"Day"_s, u"sites"_s, u" none"_s, u"day\n"_s, u"0"_s})
        EXPECT_FALSE(groupingFromRawValue(value)) << qPrintable(value);
    EXPECT_FALSE(groupingFromRawValue({}));
}

TEST(Grouping, isListedInItsOrder)
{
    EXPECT_THAT(allGroupings, ElementsAre(Grouping::None, Grouping::Day, Grouping::Site));
}

TEST(Grouping, onlyHistoryOffersDays)
{
    EXPECT_THAT(groupingChoices(GroupedList::History),
                ElementsAre(Grouping::None, Grouping::Day, Grouping::Site));
    EXPECT_THAT(groupingChoices(GroupedList::MostVisited), ElementsAre(Grouping::None, Grouping::Site));
    EXPECT_THAT(groupingChoices(GroupedList::Bookmarks), ElementsAre(Grouping::None, Grouping::Site));
}

TEST(Grouping, isStoredForEachListOnItsOwn)
{
    EXPECT_EQ(groupingSettingsKey(GroupedList::History), u"grouping.history");
    EXPECT_EQ(groupingSettingsKey(GroupedList::MostVisited), u"grouping.mostVisited");
    EXPECT_EQ(groupingSettingsKey(GroupedList::Bookmarks), u"grouping.bookmarks");
}

} // namespace roamlet::testing
