// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/LowerCase.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(LowerCase, ofAsciiTouchesLettersOnly)
{
    QString ascii;
    QString expected;
    for (char16_t code = 0; code < 0x80; ++code) {
        ascii += QChar(code);
        expected += QChar(code).toLower();
    }
    EXPECT_EQ(lowerCased(ascii), expected);
    EXPECT_EQ(lowerCased(u"@AZ[`az{"_s), u"@az[`az{"_s);
    EXPECT_EQ(lowerCased({}), QString());
}

TEST(LowerCase, ofASigmaDependsOnItsPlaceInTheWord)
{
    EXPECT_EQ(lowerCased(u"ΣΊΣΥΦΟΣ"_s), u"σίσυφος"_s);
    EXPECT_EQ(lowerCased(u"ΟΔΟΣ ΟΔΟΣ, ΟΔΟΣ\nΣ"_s), u"οδος οδος, οδος\nσ"_s);
    EXPECT_EQ(lowerCased(u"ΑΣ’Α"_s), u"ας’α"_s.replace(u'ς', u'σ')) << "an apostrophe ends no word";
    EXPECT_EQ(lowerCased(u"ας σ"_s), u"ας σ"_s) << "what is small stays as it is";
}

TEST(LowerCase, mayBeLongerThanTheText)
{
    EXPECT_EQ(lowerCased(u"İ"_s), u"i\u0307"_s);
    EXPECT_EQ(lowerCased(u"İ"_s.repeated(10'000)), u"i\u0307"_s.repeated(10'000));
}

TEST(LowerCase, knowsEveryPlaneAndNoLanguage)
{
    EXPECT_EQ(lowerCased(u"𐐀ẞǅÄ"_s), u"𐐨ßǆä"_s);
    EXPECT_EQ(lowerCased(u"Iı é"_s), u"iı é"_s);
}

TEST(LowerCase, keepsWhatIsNoText)
{
    const auto halvesOf = [](QChar first, QChar second) {
        return QString(first % QChar(0xD83D) % QChar(0) % second % QChar(0xDE00));
    };
    EXPECT_EQ(lowerCased(halvesOf(u'A', u'B')), halvesOf(u'a', u'b'));
}

TEST(LowerCase, leavesOtherHoldersOfTheTextAlone)
{
    const QString text = u"ABC"_s;
    EXPECT_EQ(lowerCased(text), u"abc"_s);
    EXPECT_EQ(text, u"ABC"_s);
}

TEST(PlainSigmas, standForFinalOnes)
{
    EXPECT_EQ(withPlainSigmas(u"σίσυφος ας"_s), u"σίσυφοσ ασ"_s);
    EXPECT_TRUE(hasSigma(u"ς"_s));
    EXPECT_TRUE(hasSigma(u"σ"_s));
    EXPECT_FALSE(hasSigma(u"s"_s));
}

} // namespace roamlet::testing
