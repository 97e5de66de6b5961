// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Collation.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The names after they were mixed up and sorted again. `names` lists them in the order that is expected.
void expectOrder(const QString &locale, const QStringList &names)
{
    const Collation collation(locale);
    for (unsigned seed = 0; seed < 5; ++seed) {
        QStringList sorted = names;
        std::shuffle(sorted.begin(), sorted.end(), std::mt19937(seed));
        std::ranges::sort(sorted, [&collation](const QString &left, const QString &right) {
            return collation.compare(left, right) < 0;
        });
        EXPECT_EQ(sorted.join(u' ').toStdString(), names.join(u' ').toStdString()) << qPrintable(locale);
    }
}

const QStringList locales{u"en_US"_s,   u"de_DE"_s,       u"fr_FR"_s, u"ja_JP"_s,     u"C"_s, u"POSIX"_s,
                          u"C.UTF-8"_s, u"en_US_POSIX"_s, u"xx_YY"_s, u"no locale"_s, u""_s};

} // namespace

TEST(Collation, comparesRunsOfDigitsByValue)
{
    for (const QString &locale : locales) {
        expectOrder(locale,
                    {u"Profile 1"_s, u"Profile 2"_s, u"Profile 10"_s, u"Profile 11"_s, u"Profile 100"_s});
        expectOrder(locale, {u"a9"_s, u"a10"_s, u"a10b2"_s, u"a10b10"_s, u"b1"_s});
        expectOrder(locale,
                    {u"1"_s, u"2"_s, u"10"_s, u"12345678901234567890"_s, u"12345678901234567891"_s, u"a"_s});
    }
}

TEST(Collation, ignoresCaseAndAccentsFirst)
{
    for (const QString &locale : locales) {
        expectOrder(locale, {u"apple"_s, u"Banana"_s, u"cherry"_s, u"Zebra"_s});
        expectOrder(locale, {u"eve"_s, u"évf"_s, u"evg"_s, u"Évh"_s});
    }
}

TEST(Collation, thenComparesAccentsAndLastLowerCaseBeforeUpperCase)
{
    for (const QString &locale : locales) {
        expectOrder(locale, {u"resume"_s, u"Resume"_s, u"résumé"_s, u"Résumé"_s});
        expectOrder(locale, {u"a"_s, u"A"_s, u"á"_s, u"Á"_s, u"b"_s, u"B"_s});
        expectOrder(locale, {u"ab"_s, u"aB"_s, u"Ab"_s, u"AB"_s, u"ac"_s});
    }
}

TEST(Collation, lowerCaseComesFirstAlsoWhereDictionariesHaveItTheOtherWayRound)
{
    expectOrder(u"da_DK"_s, {u"a"_s, u"A"_s, u"b"_s, u"B"_s, u"z"_s, u"å"_s});
    expectOrder(u"mt_MT"_s, {u"a"_s, u"A"_s, u"b"_s, u"B"_s, u"z"_s});
}

TEST(Collation, followsTheLanguage)
{
    expectOrder(u"de_DE"_s, {u"a"_s, u"ä"_s, u"o"_s, u"z"_s});
    expectOrder(u"sv_SE"_s, {u"a"_s, u"o"_s, u"z"_s, u"å"_s, u"ä"_s, u"ö"_s});
    expectOrder(u"es_ES"_s, {u"n"_s, u"nz"_s, u"ñ"_s, u"o"_s});
}

TEST(Collation, aPrefixComesFirstAndTheEmptyTextBeforeEverything)
{
    const Collation collation(u"en_US"_s);
    EXPECT_LT(collation.compare(u"", u"a"), 0);
    EXPECT_GT(collation.compare(u"a", {}), 0);
    EXPECT_EQ(collation.compare({}, {}), 0);
    EXPECT_EQ(collation.compare(u"", {}), 0);
    EXPECT_LT(collation.compare(u"work", u"Work 2"), 0);
}

TEST(Collation, equalNamesAreEqualHoweverTheyAreWritten)
{
    const Collation collation(u"en_US"_s);
    EXPECT_EQ(collation.compare(u"é", u"e\u0301"), 0) << "composed and decomposed";
    EXPECT_EQ(collation.compare(u"Profile 1", u"Profile 1"), 0);
    EXPECT_GT(collation.compare(u"b", u"a"), 0);
}

TEST(Collation, readsOnlyTheViewsThatItIsGiven)
{
    const Collation collation(u"en_US"_s);
    const QString text = u"abcabd"_s;
    EXPECT_EQ(collation.compare(QStringView(text).first(2), QStringView(text).sliced(3, 2)), 0);
}

TEST(Collation, sortKeysHaveTheOrderOfTheTexts)
{
    const QStringList texts{
        u""_s,       u"a"_s,    u"A"_s,       u"á"_s, u"a9"_s,         u"a10"_s, u"résumé"_s,
        u"Resume"_s, u"日本"_s, u"e\u0301"_s, u"é"_s, u"\U0001F600"_s, u"- -"_s, QString(5000, u'漢')};
    for (const QString &locale : locales) {
        const Collation collation(locale);
        const auto key = [&collation](const QString &text) {
            std::vector<char> bytes;
            collation.appendSortKey(text, bytes);
            EXPECT_EQ(std::ranges::find(bytes, '\0'), bytes.end() - 1) << qPrintable(text);
            return QByteArray(bytes.data());
        };
        for (const QString &left : texts) {
            for (const QString &right : texts) {
                EXPECT_EQ(key(left).compare(key(right)) <=> 0, collation.compare(left, right) <=> 0)
                    << qPrintable(locale) << ": " << qPrintable(left) << ", " << qPrintable(right);
            }
        }
    }
}

TEST(Collation, sortKeysAreAppended)
{
    const Collation collation(u"en_US"_s);
    std::vector<char> one;
    collation.appendSortKey(u"one", one);
    std::vector<char> two;
    collation.appendSortKey(u"two", two);
    std::vector<char> both;
    collation.appendSortKey(u"one", both);
    collation.appendSortKey(u"two", both);
    one.insert(one.end(), two.begin(), two.end());
    EXPECT_EQ(both, one);
}

TEST(Collation, canBeMoved)
{
    Collation first(u"sv_SE"_s);
    Collation second(std::move(first));
    EXPECT_GT(second.compare(u"ö", u"z"), 0);
    Collation third(u"de_DE"_s);
    third = std::move(second);
    EXPECT_GT(third.compare(u"ö", u"z"), 0);
}

} // namespace roamlet::testing
