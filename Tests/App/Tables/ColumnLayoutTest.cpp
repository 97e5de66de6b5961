// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/ColumnLayout.h"

#include "Support/MemoryUserDefaults.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const QString key = u"columns.history"_s;

const ColumnLayout arranged{.order = {u"source"_s, u"title"_s},
                            .hidden = {u"visits"_s},
                            .widths = {{u"title"_s, 300}, {u"source"_s, 80}}};

} // namespace

TEST(ColumnLayoutTest, nothingStoredIsTheDefault)
{
    EXPECT_EQ(ColumnLayout::load(MemoryUserDefaults(), key), ColumnLayout());
}

TEST(ColumnLayoutTest, whatWasSavedIsLoaded)
{
    MemoryUserDefaults defaults;
    arranged.save(defaults, key);
    EXPECT_EQ(ColumnLayout::load(defaults, key), arranged);
    EXPECT_EQ(ColumnLayout::load(defaults, u"columns.mostVisited"_s), ColumnLayout());
}

TEST(ColumnLayoutTest, itIsStoredAsJson)
{
    EXPECT_EQ(arranged.toJson(),
              R"({"hidden":["visits"],"order":["source","title"],"widths":{"source":80,"title":300}})");
}

TEST(ColumnLayoutTest, aStoredTextOfAnotherTypeIsTheDefault)
{
    MemoryUserDefaults defaults;
    defaults.setBoolean(key, true);
    EXPECT_EQ(ColumnLayout::load(defaults, key), ColumnLayout());
}

class UnreadableColumnLayout : public ::testing::TestWithParam<const char *>
{
};

TEST_P(UnreadableColumnLayout, isTheDefault)
{
    MemoryUserDefaults defaults;
    defaults.setBytes(key, GetParam());
    EXPECT_EQ(ColumnLayout::load(defaults, key), ColumnLayout());
    EXPECT_FALSE(ColumnLayout::fromJson(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Layouts, UnreadableColumnLayout,
                         ::testing::Values("", "x", "[]", "null", "{}", R"({"order":[],"hidden":[]})",
                                           R"({"order":"title","hidden":[],"widths":{}})",
                                           R"({"order":[1],"hidden":[],"widths":{}})",
                                           R"({"order":[],"hidden":{},"widths":{}})",
                                           R"({"order":[],"hidden":[],"widths":[]})",
                                           R"({"order":[],"hidden":[],"widths":{"title":"wide"}})",
                                           R"({"order":[],"hidden":[],"widths":{"title":-5}})",
                                           R"({"order":[],"hidden":[],"widths":{"title":1.5}})",
                                           R"({"order":["title"],"hidden":[],"widths":{})"));

TEST(ColumnLayoutTest, aWidthOfZeroIsNoWidth)
{
    const auto layout = ColumnLayout::fromJson(R"({"order":[],"hidden":["a"],"widths":{"a":0,"b":70}})");
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->hidden, QSet{u"a"_s});
    EXPECT_EQ(layout->widths, (QHash<QString, int>{{u"b"_s, 70}}));
}

TEST(ColumnLayoutTest, noColumnIsWiderThanAnyScreen)
{
    const auto layout =
        ColumnLayout::fromJson(R"({"order":["a","a"],"hidden":[],"widths":{"a":2000000000}})");
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->widths.value(u"a"_s), 10'000);
    EXPECT_EQ(layout->order, QStringList{u"a"_s});
}

} // namespace roamlet::testing
