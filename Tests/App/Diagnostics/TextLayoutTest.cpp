// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/TextLayout.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(TextLayoutTest, plainTextIsAsWideAsLong)
{
    EXPECT_EQ(TextLayout::width(u""), 0);
    EXPECT_EQ(TextLayout::width(u"Roamlet ~!"), 10);
    EXPECT_EQ(TextLayout::width(u"Größe §"), 7);
    EXPECT_EQ(TextLayout::width(u"Привет"), 6);
    EXPECT_EQ(TextLayout::width(u"مرحبا"), 5);
}

TEST(TextLayoutTest, eastAsianAndFullWidthCharactersTakeTwoColumns)
{
    EXPECT_EQ(TextLayout::width(u"東京"), 4);
    EXPECT_EQ(TextLayout::width(u"한국어"), 6);
    EXPECT_EQ(TextLayout::width(u"Ａ１"), 4);
    EXPECT_EQ(TextLayout::width(u"ｱ"), 1) << "half-width katakana";
    EXPECT_EQ(TextLayout::width(u"𠀋"), 2) << "beyond the basic plane";
    EXPECT_EQ(TextLayout::width(u"\u1112\u1161\u11AB"), 2) << "a syllable written as three letters";
}

TEST(TextLayoutTest, combiningMarksTakeNone)
{
    EXPECT_EQ(TextLayout::width(u"e\u0301"), 1);
    EXPECT_EQ(TextLayout::width(u"Z\u0351\u036B\u0343alg\u0321o"), 5);
    EXPECT_EQ(TextLayout::width(u"a\u200Bb"), 2) << "zero-width blank";
    EXPECT_EQ(TextLayout::width(u"か\u3099"), 2);
}

TEST(TextLayoutTest, anEmojiTakesTwoColumnsHoweverManyPartsItHas)
{
    EXPECT_EQ(TextLayout::width(u"😀"), 2);
    EXPECT_EQ(TextLayout::width(u"👨\u200D👩\u200D👧"), 2) << "a family joined of three";
    EXPECT_EQ(TextLayout::width(u"👍🏽"), 2) << "with a skin tone";
    EXPECT_EQ(TextLayout::width(u"❤\uFE0F"), 2) << "a heart that asks for its emoji form";
    EXPECT_EQ(TextLayout::width(u"🇩🇪"), 2) << "a flag of two letters";
}

TEST(TextLayoutTest, paddingCountsColumns)
{
    EXPECT_EQ(TextLayout::padded(u"ab"_s, 4), u"ab  "_s);
    EXPECT_EQ(TextLayout::padded(u"東"_s, 4), u"東  "_s);
    EXPECT_EQ(TextLayout::padded(u"e\u0301"_s, 3), u"e\u0301  "_s);
    EXPECT_EQ(TextLayout::padded(u"abcd"_s, 4), u"abcd"_s);
    EXPECT_EQ(TextLayout::padded(u"abcde"_s, 4), u"abcde"_s) << "never cut";
}

TEST(TextLayoutTest, elidingKeepsWhatFits)
{
    EXPECT_EQ(TextLayout::elided(u""_s, 5), u""_s);
    EXPECT_EQ(TextLayout::elided(u"abcde"_s, 5), u"abcde"_s);
    EXPECT_EQ(TextLayout::elided(u"abcdef"_s, 5), u"abcd…"_s);
    EXPECT_EQ(TextLayout::elided(u"東京"_s, 4), u"東京"_s);
}

TEST(TextLayoutTest, elidingNeverSplitsACharacterNorExceedsTheColumns)
{
    EXPECT_EQ(TextLayout::elided(u"ab東京"_s, 5), u"ab東…"_s);
    EXPECT_EQ(TextLayout::elided(u"abc東京"_s, 5), u"abc…"_s) << "half of a wide character is not shown";
    EXPECT_EQ(TextLayout::elided(u"abce\u0301fgh"_s, 5), u"abce\u0301…"_s);
    EXPECT_EQ(TextLayout::elided(u"abc👨\u200D👩\u200D👧xyz"_s, 6), u"abc👨\u200D👩\u200D👧…"_s);
    EXPECT_EQ(TextLayout::elided(u"abcde\u0301"_s, 5), u"abcde\u0301"_s) << "a mark at the end needs no room";
    const QString text = u"a東b京c大d阪e\u0301😀fgh"_s;
    for (int columns = 2; columns <= TextLayout::width(text) + 1; ++columns) {
        SCOPED_TRACE(columns);
        EXPECT_LE(TextLayout::width(TextLayout::elided(text, columns)), columns);
    }
}

TEST(TextLayoutTest, aTitleOfAMillionCharactersIsElidedLikeAnyOther)
{
    EXPECT_EQ(TextLayout::elided(QString(1'000'000, u'x'), 10), u"xxxxxxxxx…"_s);
}

TEST(TextLayoutTest, ordinaryTextIsShownAsItIs)
{
    const QString text = u"Ä \u00A0 東京 😀 e\u0301 ~ مرحبا \u200D \u2400"_s;
    EXPECT_EQ(TextLayout::shown(text), text);
}

TEST(TextLayoutTest, controlCharactersAreShownAsPictures)
{
    for (char16_t code = 0; code < u' '; ++code) {
        const char16_t picture = u'\u2400' + code;
        EXPECT_EQ(TextLayout::shown(QString(QChar(code))), QString(QChar(picture)));
    }
    EXPECT_EQ(TextLayout::shown(u"\u001B[31mred\u001B[0m"_s), u"␛[31mred␛[0m"_s);
    EXPECT_EQ(TextLayout::shown(u"a\tb\r\nc\u007F"_s), u"a␉b␍␊c␡"_s);
}

TEST(TextLayoutTest, eightBitControlCharactersAreNamed)
{
    for (char16_t code = 0x80; code < 0xA0; ++code) {
        const QString expected = u"<U+00"_s % QString::number(code, 16).toUpper() % u'>';
        EXPECT_EQ(TextLayout::shown(QString(QChar(code))), expected);
    }
    EXPECT_EQ(TextLayout::shown(u"\u009B2J"_s), u"<U+009B>2J"_s);
}

TEST(TextLayoutTest, marksThatTurnOrBreakALineAreNamed)
{
    for (const QChar mark : u"\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069\u200E\u200F\u061C"
                            "\u2028\u2029"_s) {
        const QString name = QString::number(mark.unicode(), 16).toUpper().rightJustified(4, u'0');
        EXPECT_EQ(TextLayout::shown(u'a' % QString(mark) % u'b'), QString(u"a<U+" % name % u">b"));
    }
}

TEST(TextLayoutTest, columnsStandBelowEachOther)
{
    EXPECT_EQ(TextLayout::aligned({}, 10), QStringList());
    EXPECT_EQ(TextLayout::aligned({{u"only"_s}}, 10), QStringList({u"only"_s}));
    EXPECT_EQ(TextLayout::aligned({{u"a"_s, u"bb"_s, u"c"_s}, {u"東京"_s, u"b"_s, u"cc"_s}}, 10),
              QStringList({u"a     bb  c"_s, u"東京  b   cc"_s}));
}

TEST(TextLayoutTest, theLastColumnIsNotPadded)
{
    EXPECT_EQ(TextLayout::aligned({{u"a"_s, u"b"_s}, {u"a"_s, u"bbb"_s}}, 10),
              QStringList({u"a  b"_s, u"a  bbb"_s}));
}

TEST(TextLayoutTest, aCellWiderThanTheWidestPushesItsOwnRowOnly)
{
    EXPECT_EQ(TextLayout::aligned({{u"a"_s, u"x"_s}, {u"abcdefgh"_s, u"y"_s}, {u"abc"_s, u"z"_s}}, 4),
              QStringList({u"a     x"_s, u"abcdefgh  y"_s, u"abc   z"_s}));
}

TEST(TextLayoutTest, rowsOfDifferentLengthsArePossible)
{
    EXPECT_EQ(TextLayout::aligned({{}, {u"a"_s}, {u"bb"_s, u"c"_s}, {u"d"_s, u"e"_s, u"f"_s}}, 10),
              QStringList({u""_s, u"a"_s, u"bb  c"_s, u"d   e  f"_s}));
}

} // namespace roamlet::testing
