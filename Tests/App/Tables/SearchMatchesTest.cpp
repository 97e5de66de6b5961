// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/SearchMatches.h"

#include <QFont>
#include <QFontMetrics>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// "Which [garden] is this": the matches in brackets.
QString marked(const QString &text, const QStringList &words)
{
    QString result;
    qsizetype done = 0;
    for (const TextRange &range : searchMatches(text, words)) {
        result +=
            text.sliced(done, range.begin - done) + u'[' + text.sliced(range.begin, range.length) + u']';
        done = range.begin + range.length;
    }
    return result + text.sliced(done);
}

int width(const QString &text)
{
    return QFontMetrics(QFont()).horizontalAdvance(text);
}

QString fitted(const QString &text, const QStringList &words, const QString &asWideAs)
{
    return fittedAroundMatch(text, words, QFontMetrics(QFont()), width(asWideAs));
}

} // namespace

TEST(SearchMatchesTest, everyPlaceOfEveryWordIsFoundWhateverItsCase)
{
    EXPECT_EQ(marked(u"Garden, garden and yard"_s, {u"garden"_s, u"yar"_s}),
              u"[Garden], [garden] and [yar]d");
    EXPECT_EQ(marked(u"GÄRTEN"_s, {u"gär"_s}), u"[GÄR]TEN");
    EXPECT_EQ(marked(u"nothing"_s, {u"else"_s}), u"nothing");
    EXPECT_EQ(marked(u"a%b_c"_s, {u"%"_s, u"_"_s}), u"a[%]b[_]c") << "they stand for themselves";
    EXPECT_EQ(marked(u"text"_s, {u""_s}), u"text");
    EXPECT_EQ(marked(u""_s, {u"a"_s}), u"");
}

TEST(SearchMatchesTest, bothFormsOfASigmaAreOneLetter)
{
    EXPECT_EQ(marked(u"ΟΔΟΣ, οδος"_s, {u"οδος"_s}), u"[ΟΔΟΣ], [οδος]");
    EXPECT_EQ(marked(u"οδοστρωτήρας"_s, {u"οδος"_s}), u"[οδοσ]τρωτήρας");
}

TEST(SearchMatchesTest, wordsThatOverlapOrTouchAreOneMatch)
{
    EXPECT_EQ(marked(u"community"_s, {u"commu"_s, u"unity"_s}), u"[community]");
    EXPECT_EQ(marked(u"ab"_s, {u"a"_s, u"b"_s}), u"[ab]");
    EXPECT_EQ(marked(u"garden"_s, {u"garden"_s, u"ard"_s}), u"[garden]");
}

TEST(SearchMatchesTest, aTextThatFitsStaysWhole)
{
    const QString text = u"A garden in the city"_s;
    EXPECT_EQ(fitted(text, {u"city"_s}, text), text);
}

TEST(SearchMatchesTest, withoutAMatchTheBeginningIsInSight)
{
    const QString shown = fitted(u"A garden in the city"_s, {u"forest"_s}, u"A garden in…"_s);
    EXPECT_TRUE(shown.startsWith(u"A gard"_s)) << qPrintable(shown);
    EXPECT_TRUE(shown.endsWith(u'…'));
}

TEST(SearchMatchesTest, aMatchNearTheBeginningLeavesItThere)
{
    const QString shown = fitted(u"A garden in the city of trees"_s, {u"garden"_s}, u"A garden in the…"_s);
    EXPECT_TRUE(shown.startsWith(u"A garden"_s)) << qPrintable(shown);
}

TEST(SearchMatchesTest, aMatchFurtherOnIsInSight)
{
    const QString text = u"Books to swap, a repair table and cake in the community garden of the town"_s;
    const QString shown = fitted(text, {u"garden"_s}, u"the community garden of"_s);
    EXPECT_TRUE(shown.startsWith(u'…')) << qPrintable(shown);
    EXPECT_TRUE(shown.contains(u"garden"_s)) << qPrintable(shown);
    EXPECT_LE(width(shown), width(u"the community garden of"_s));
    EXPECT_TRUE(fitted(text, {u"town"_s}, u"garden of the town"_s).endsWith(u"town"_s));
}

TEST(SearchMatchesTest, noWidthIsTooSmallAndNoCharacterIsCutInHalf)
{
    QString text = u"Faces "_s;
    for (int i = 0; i < 30; ++i)
        text += u"\U0001F600"_s;
    text += u" garden"_s;
    for (int pixels = 0; pixels < width(text); ++pixels) {
        const QString shown = fittedAroundMatch(text, {u"garden"_s}, QFontMetrics(QFont()), pixels);
        for (qsizetype i = 0; i < shown.size(); ++i) {
            const bool isWhole = !shown[i].isLowSurrogate() || (i > 0 && shown[i - 1].isHighSurrogate());
            ASSERT_TRUE(isWhole) << pixels;
        }
    }
}

} // namespace roamlet::testing
