// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Menu/MenuTitle.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

QString letters(qsizetype count)
{
    return QString(count, u'x');
}

TEST(MenuTitle, sixtyCharactersAreShownWholeAndOneMoreIsCut)
{
    EXPECT_EQ(MenuTitle::shortened({}), QString());
    EXPECT_EQ(MenuTitle::shortened(letters(59)), letters(59));
    EXPECT_EQ(MenuTitle::shortened(letters(60)), letters(60));
    EXPECT_EQ(MenuTitle::shortened(letters(61)), QString(letters(58) % u'…'));
    EXPECT_EQ(MenuTitle::shortened(letters(1'000'000)), QString(letters(58) % u'…'));
}

TEST(MenuTitle, blanksAtTheEndsOfTheCutGo)
{
    const QString rest = letters(40);
    EXPECT_EQ(MenuTitle::shortened(letters(57) % u' ' % rest), QString(letters(57) % u'…'));
    EXPECT_EQ(MenuTitle::shortened(u" \t" % letters(54) % u"\t \u00a0" % rest), QString(letters(54) % u'…'));
    EXPECT_EQ(MenuTitle::shortened(QString(61, u' ')), u"…"_s);
    EXPECT_EQ(MenuTitle::shortened(letters(57) % u'\n' % rest), QString(letters(57) % u"\n…"))
        << "a line end is no blank";
    EXPECT_EQ(MenuTitle::shortened(QString(u' ' % letters(20) % u' ')), QString(u' ' % letters(20) % u' '))
        << "nothing is cut, nothing is trimmed";
}

TEST(MenuTitle, charactersAreWhatPeopleTakeForOne)
{
    for (const QString &character :
         {u"é"_s, u"e\u0301"_s, u"😀"_s, u"👨‍👩‍👧"_s, u"🇩🇪"_s, u"각"_s, u"\r\n"_s}) {
        EXPECT_EQ(MenuTitle::shortened(character.repeated(60)), character.repeated(60));
        EXPECT_EQ(MenuTitle::shortened(character.repeated(61)), QString(character.repeated(58) % u'…'));
    }
}

TEST(MenuTitle, aCharacterOfAnyLengthIsStillOne)
{
    const QString tower = u'o' % QString(2'000, QChar(0x0301));
    EXPECT_EQ(MenuTitle::shortened(tower.repeated(60)), tower.repeated(60));
    EXPECT_EQ(MenuTitle::shortened(tower.repeated(61)), QString(tower.repeated(58) % u'…'));
    EXPECT_EQ(MenuTitle::shortened(letters(59) % tower), QString(letters(59) % tower));
    const QString endless = u'o' % QString(1'000'000, QChar(0x0301));
    EXPECT_EQ(MenuTitle::shortened(endless), endless);
}

TEST(MenuTitle, inAMenuItIsOneLineWithoutALetterToPress)
{
    EXPECT_EQ(MenuTitle::inMenu(u"Q&A && more"_s), u"Q&&A &&&& more"_s);
    EXPECT_EQ(MenuTitle::inMenu(u"a\tb\nc"_s), u"a b c"_s) << "a tab would set a shortcut apart";
    EXPECT_EQ(MenuTitle::inMenu(QString(61, u'&')), QString(QString(116, u'&') % u'…'));
}

} // namespace
} // namespace roamlet::testing
