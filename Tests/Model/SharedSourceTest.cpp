// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/SharedSource.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

Source work()
{
    return {.kind = Source::Kind::Chrome,
            .profile = u"Profile 1"_s,
            .name = u"Work"_s,
            .safariBookmarks = Source::None{},
            .installation = u"beta"_s,
            .namesInstallation = true};
}

} // namespace

TEST(SharedSource, itSaysWhatItsSourceSays)
{
    const SharedSource shared = work();
    EXPECT_EQ(shared.id(), work().id());
    EXPECT_EQ(shared.label(), work().label());
    EXPECT_EQ(shared->name, u"Work"_s);
    EXPECT_EQ(*shared, work());
}

TEST(SharedSource, twoOfTheSameSourceAreEqualWhoeverMadeThem)
{
    const SharedSource shared = work();
    const SharedSource &copy = shared;
    EXPECT_EQ(copy, shared);
    EXPECT_EQ(shared, SharedSource(work()));
    EXPECT_EQ(shared, work());
    EXPECT_EQ(qHash(shared), qHash(SharedSource(work())));
    Source renamed = work();
    renamed.name = u"Home"_s;
    EXPECT_NE(shared, SharedSource(renamed));
    EXPECT_NE(shared, renamed);
}

TEST(SharedSource, thoseWithoutASourceAreEqual)
{
    EXPECT_EQ(SharedSource(), SharedSource());
    EXPECT_EQ(*SharedSource(), Source());
    EXPECT_NE(SharedSource(), SharedSource(work()));
}

} // namespace roamlet::testing
