// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/PageID.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(PageIDTest, holdsTheProfileAndTheAddress)
{
    for (const QString &source :
         {u"chrome/Profile 1"_s, u"firefox@snap/50%.default"_s, u"safari"_s, u"chrome/Ünicode \u4E2D"_s}) {
        const PageID id{.sourceID = source, .url = u"https://a.example/a b?q=1%20&x=\u00E9"_s};
        EXPECT_EQ(PageID::of(id.text()), id) << source.toStdString();
    }
}

TEST(PageIDTest, isTheSameInEveryRun)
{
    EXPECT_EQ((PageID{.sourceID = u"chrome/Profile 1"_s, .url = u"https://a.example/"_s}.text()),
              u"chrome%2FProfile%201 https://a.example/");
}

TEST(PageIDTest, otherTextsAreNoIDs)
{
    for (const QString &text : {u""_s, u" "_s, u"chrome"_s, u"chrome "_s, u" https://a.example/"_s})
        EXPECT_FALSE(PageID::of(text)) << text.toStdString();
}

} // namespace roamlet::testing
