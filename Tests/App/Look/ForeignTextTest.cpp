// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ForeignText.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

QString letters(qsizetype count)
{
    return QString(count, u'x');
}

} // namespace

TEST(ForeignTextTest, lineEndsAndControlCharactersBecomeBlanks)
{
    EXPECT_EQ(ForeignText::oneLine(u"a\nb\tc\rd\u2028e\u2029f\x01g\u0085h"), u"a b c d e f g h");
    EXPECT_EQ(ForeignText::oneLine(u"a  b"), u"a  b");
    EXPECT_EQ(ForeignText::oneLine(u""), u"");
}

TEST(ForeignTextTest, aMillionCharactersAreCut)
{
    const QString shown = ForeignText::oneLine(QString(1'000'000, u'x'));
    EXPECT_EQ(shown, QString(ForeignText::longestText, u'x') + u'…');
    EXPECT_EQ(ForeignText::oneLine(QString(ForeignText::longestText, u'x')).size(), ForeignText::longestText);
}

TEST(ForeignTextTest, noCharacterIsCutInHalf)
{
    EXPECT_EQ(ForeignText::oneLine(u"ab\U0001F600c", 3), u"ab…");
    EXPECT_EQ(ForeignText::oneLine(u"ab\U0001F600c", 4), u"ab\U0001F600…");
    const QString before(ForeignText::longestText - 1, u'x');
    const QString text = before % u"\U0001F600c";
    EXPECT_EQ(ForeignText::shownBeginning(text), before + u'…');
    EXPECT_EQ(ForeignText::inLabel(text), before + u'…');
    EXPECT_EQ(ForeignText::wrappedToolTip(text), QString(u"<qt>" % before % u"…</qt>"));
    EXPECT_EQ(ForeignText::wrappedToolTipOfLines(text), QString(u"<qt>" % before % u"…</qt>"));
}

TEST(ForeignTextTest, nothingTurnsTheWordsThatFollow)
{
    const QString text = u"\u202Aa\u202B\u202Cb\u202D\u202E\u2066c\u2067\u2068\u2069"_s;
    EXPECT_EQ(ForeignText::oneLine(text), u"abc");
    EXPECT_EQ(ForeignText::inLabel(text), u"abc");
    EXPECT_EQ(ForeignText::inMenu(text), u"abc");
    EXPECT_EQ(ForeignText::titleInMenu(text), u"abc");
    EXPECT_EQ(ForeignText::toolTip({text}), u"<p style='white-space:pre'>abc</p>");
    EXPECT_EQ(ForeignText::wrappedToolTip(text), u"<qt>abc</qt>");
    EXPECT_EQ(ForeignText::wrappedToolTipOfLines(text), u"<qt>abc</qt>");
    const QString harmless = u"a\u200E\u200Fb\u200C\u200Dc"_s;
    EXPECT_EQ(ForeignText::oneLine(harmless), harmless) << "marks and joiners belong to the words";
    EXPECT_EQ(ForeignText::inLabel(harmless), harmless);
}

TEST(ForeignTextTest, aMenuShowsEveryAmpersand)
{
    EXPECT_EQ(ForeignText::inMenu(u"a&b && c"), u"a&&b &&&& c");
    EXPECT_EQ(ForeignText::inMenu(QString(1'000'000, u'&')).size(), 2 * ForeignText::longestMenuText + 1);
}

TEST(ForeignTextTest, aToolTipShowsMarkUpAsItIs)
{
    EXPECT_EQ(ForeignText::toolTip({u"<b>x</b>"_s, u"y & z"_s}),
              u"<p style='white-space:pre'>&lt;b&gt;x&lt;/b&gt;<br>y &amp; z</p>");
}

TEST(ForeignTextTest, aToolTipBreaksLongAddresses)
{
    const QString tip = ForeignText::toolTip({QString(250, u'x')});
    EXPECT_EQ(tip.count(u"<br>"_s), 2);
    EXPECT_LT(ForeignText::toolTip({QString(1'000'000, u'x')}).size(), 1200);
}

TEST(ForeignTextTest, aLabelHasNoBlanksThatNobodySees)
{
    EXPECT_EQ(ForeignText::inLabel(u" a \n b\t\u2028c "_s), u"a b c");
    EXPECT_EQ(ForeignText::inLabel(QString(1'000'000, u'x')), QString(ForeignText::longestText, u'x') + u'…');
}

TEST(ForeignTextTest, aToolTipThatWrapsIsNoMarkUpEither)
{
    EXPECT_EQ(ForeignText::wrappedToolTip(u"<b>a</b> &\nb"_s), u"<qt>&lt;b&gt;a&lt;/b&gt; &amp;\nb</qt>");
    EXPECT_EQ(ForeignText::wrappedToolTipOfLines(u"<b>a</b> &\nb"_s),
              u"<qt>&lt;b&gt;a&lt;/b&gt; &amp;<br>b</qt>");
    const QString cut = u"<qt>" % QString(ForeignText::longestText, u'x') % u"…</qt>";
    EXPECT_EQ(ForeignText::wrappedToolTip(QString(1'000'000, u'x')), cut);
    EXPECT_EQ(ForeignText::wrappedToolTipOfLines(QString(1'000'000, u'x')), cut);
}

TEST(ForeignTitleTest, sixtyCharactersAreShownWholeAndOneMoreIsCut)
{
    EXPECT_EQ(ForeignText::shortenedTitle({}), QString());
    EXPECT_EQ(ForeignText::shortenedTitle(letters(59)), letters(59));
    EXPECT_EQ(ForeignText::shortenedTitle(letters(60)), letters(60));
    EXPECT_EQ(ForeignText::shortenedTitle(letters(61)), QString(letters(58) % u'…'));
    EXPECT_EQ(ForeignText::shortenedTitle(letters(1'000'000)), QString(letters(58) % u'…'));
}

TEST(ForeignTitleTest, blanksAtTheEndsOfTheCutGo)
{
    const QString rest = letters(40);
    EXPECT_EQ(ForeignText::shortenedTitle(letters(57) % u' ' % rest), QString(letters(57) % u'…'));
    EXPECT_EQ(ForeignText::shortenedTitle(u" \t" % letters(54) % u"\t \u00a0" % rest),
              QString(letters(54) % u'…'));
    EXPECT_EQ(ForeignText::shortenedTitle(QString(61, u' ')), u"…"_s);
    EXPECT_EQ(ForeignText::shortenedTitle(letters(57) % u'\n' % rest), QString(letters(57) % u"\n…"))
        << "a line end is no blank";
    EXPECT_EQ(ForeignText::shortenedTitle(QString(u' ' % letters(20) % u' ')),
              QString(u' ' % letters(20) % u' '))
        << "nothing is cut, nothing is trimmed";
}

TEST(ForeignTitleTest, charactersAreWhatPeopleTakeForOne)
{
    for (const QString &character :
         {u"é"_s, u"e\u0301"_s, u"😀"_s, u"👨‍👩‍👧"_s, u"🇩🇪"_s, u"각"_s, u"\r\n"_s}) {
        EXPECT_EQ(ForeignText::shortenedTitle(character.repeated(60)), character.repeated(60));
        EXPECT_EQ(ForeignText::shortenedTitle(character.repeated(61)),
                  QString(character.repeated(58) % u'…'));
    }
}

TEST(ForeignTitleTest, aCharacterOfAnyLengthIsStillOne)
{
    const QString tower = u'o' % QString(2'000, QChar(0x0301));
    EXPECT_EQ(ForeignText::shortenedTitle(tower.repeated(60)), tower.repeated(60));
    EXPECT_EQ(ForeignText::shortenedTitle(tower.repeated(61)), QString(tower.repeated(58) % u'…'));
    EXPECT_EQ(ForeignText::shortenedTitle(letters(59) % tower), QString(letters(59) % tower));
    const QString endless = u'o' % QString(1'000'000, QChar(0x0301));
    EXPECT_EQ(ForeignText::shortenedTitle(endless), endless);
}

TEST(ForeignTitleTest, inAMenuItIsOneLineWithoutALetterToPress)
{
    EXPECT_EQ(ForeignText::titleInMenu(u"Q&A && more"_s), u"Q&&A &&&& more"_s);
    EXPECT_EQ(ForeignText::titleInMenu(u"a\tb\nc"_s), u"a b c"_s) << "a tab would set a shortcut apart";
    EXPECT_EQ(ForeignText::titleInMenu(QString(61, u'&')), QString(QString(116, u'&') % u'…'));
}

} // namespace roamlet::testing
