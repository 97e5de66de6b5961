// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/XmlText.h"

#include <QString>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

TEST(XmlTextTest, theTagWithTheMostAttributesCounts)
{
    EXPECT_EQ(mostAttributesOfATag(u""), 0);
    EXPECT_EQ(mostAttributesOfATag(u"<a/>"), 0);
    EXPECT_EQ(mostAttributesOfATag(u"<a b='1'><c d=\"2\" e = '3'/><f g='4'/></a>"), 2);
    EXPECT_EQ(mostAttributesOfATag(u"<?xml version='1.0' encoding='utf-8'?>"), 2);
}

TEST(XmlTextTest, whatIsNoAttributeIsNotCounted)
{
    EXPECT_EQ(mostAttributesOfATag(u"a=b=c <a b='c=d>=\"'>e=f=g</a> h=i=j"), 1);
    EXPECT_EQ(mostAttributesOfATag(u"<!-- <a b=c d=e f=g> --><a b='1'/>"), 1);
    EXPECT_EQ(mostAttributesOfATag(u"<a b='1'/><![CDATA[<a b=c d=e f=g>]]>"), 1);
    EXPECT_EQ(mostAttributesOfATag(u"<!-- <a b=c d=e"), 0);
}

TEST(XmlTextTest, whatFollowsACommentIsCounted)
{
    EXPECT_EQ(mostAttributesOfATag(u"<!----><a b='1' c='2'/>"), 2);
    EXPECT_EQ(mostAttributesOfATag(u"<!--><a b='1'/>--><a b='1' c='2'/>"), 2);
    EXPECT_EQ(mostAttributesOfATag(u"<![CDATA[]]><a b='1' c='2'"), 2);
}

} // namespace
} // namespace roamlet::testing
