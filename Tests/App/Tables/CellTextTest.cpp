// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/CellText.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(CellTextTest, lineEndsAndControlCharactersBecomeBlanks)
{
    EXPECT_EQ(CellText::oneLine(u"a\nb\tc\rd\u2028e\u2029f\x01g\u0085h"), u"a b c d e f g h");
    EXPECT_EQ(CellText::oneLine(u"a  b"), u"a  b");
    EXPECT_EQ(CellText::oneLine(u""), u"");
}

TEST(CellTextTest, aMillionCharactersAreCut)
{
    const QString shown = CellText::oneLine(QString(1'000'000, u'x'));
    EXPECT_EQ(shown, QString(CellText::longestText, u'x') + u'…');
    EXPECT_EQ(CellText::oneLine(QString(CellText::longestText, u'x')).size(), CellText::longestText);
}

TEST(CellTextTest, noCharacterIsCutInHalf)
{
    EXPECT_EQ(CellText::oneLine(u"ab\U0001F600c", 3), u"ab…");
    EXPECT_EQ(CellText::oneLine(u"ab\U0001F600c", 4), u"ab\U0001F600…");
}

TEST(CellTextTest, aMenuShowsEveryAmpersand)
{
    EXPECT_EQ(CellText::inMenu(u"a&b && c"), u"a&&b &&&& c");
    EXPECT_EQ(CellText::inMenu(QString(1'000'000, u'&')).size(), 2 * CellText::longestMenuText + 1);
}

TEST(CellTextTest, aToolTipShowsMarkUpAsItIs)
{
    EXPECT_EQ(CellText::toolTip({u"<b>x</b>"_s, u"y & z"_s}),
              u"<p style='white-space:pre'>&lt;b&gt;x&lt;/b&gt;<br>y &amp; z</p>");
}

TEST(CellTextTest, aToolTipBreaksLongAddresses)
{
    const QString tip = CellText::toolTip({QString(250, u'x')});
    EXPECT_EQ(tip.count(u"<br>"_s), 2);
    EXPECT_LT(CellText::toolTip({QString(1'000'000, u'x')}).size(), 1200);
}

} // namespace roamlet::testing
