// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Versions.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

void expectAscending(const QStringList &versions)
{
    for (qsizetype i = 0; i < versions.size(); ++i) {
        for (qsizetype j = 0; j < versions.size(); ++j) {
            EXPECT_EQ(Versions::compare(versions[i], versions[j]), std::weak_ordering(i <=> j))
                << qPrintable(versions[i]) << " and " << qPrintable(versions[j]);
        }
    }
}

void expectEqual(const QString &left, const QString &right)
{
    EXPECT_EQ(Versions::compare(left, right), std::weak_ordering::equivalent) << qPrintable(left);
    EXPECT_EQ(Versions::compare(right, left), std::weak_ordering::equivalent) << qPrintable(left);
}

TEST(VersionsTest, numbersAreComparedOneByOne)
{
    expectAscending({u"0.0.1"_s, u"0.1"_s, u"0.1.2"_s, u"1.0"_s, u"1.1"_s, u"1.9"_s, u"1.10"_s, u"2"_s});
    expectAscending({u"201210251627"_s, u"201211051041"_s});
    expectAscending({u"1.1.1.1818"_s, u"2.0.0.2429"_s, u"2.0.0.2430"_s});
}

TEST(VersionsTest, missingNumbersAreZero)
{
    expectEqual(u"1.0"_s, u"1.0.0"_s);
    expectEqual(u"1"_s, u"1.0.0.0"_s);
    expectEqual(u"1.0b1"_s, u"1.0.0b1"_s);
    expectEqual(u"3.3 (5847)"_s, u"3.3.0 (5847)"_s);
    expectEqual(u"01.002"_s, u"1.2"_s);
}

TEST(VersionsTest, wordsMakeAVersionOlder)
{
    expectAscending({u"0.9"_s, u"1.0a1"_s, u"1.0b"_s, u"1.0b1"_s, u"1.0b9"_s, u"1.0b10"_s, u"1.0rc"_s,
                     u"1.0"_s, u"1.0.1b1"_s, u"1.0.1"_s});
    expectAscending({u"1.1.1b2"_s, u"1.1.2a1"_s, u"1.1.2b1"_s});
    expectAscending({u"latest"_s, u"0.1"_s});
}

TEST(VersionsTest, buildNumbersInBracketsCount)
{
    expectAscending(
        {u"1.0b1 (1234)"_s, u"1.0 (1234)"_s, u"1.0 (1235)"_s, u"1.0.1b5 (1234)"_s, u"1.0.1b6 (1234)"_s});
    expectAscending({u"3.3 (5847)"_s, u"3.3.1b1 (5902)"_s});
    expectAscending({u"1.0"_s, u"1.0 (1)"_s});
}

TEST(VersionsTest, whatFollowsAHyphenDoesNotCount)
{
    expectEqual(u"1.5.5-335d3e2"_s, u"1.5.5-a655360"_s);
    expectEqual(u"1.5-335d3e2"_s, u"1.5.0"_s);
    expectAscending({u"1.5.5-335d3e2"_s, u"1.5.6-b252311"_s});
}

TEST(VersionsTest, numbersOfAnyLengthAreCompared)
{
    const QString long1 = QString(1000, u'9');
    const QString long2 = u"1"_s % QString(1000, u'0');
    expectAscending(
        {u"9223372036854775807"_s, u"9223372036854775808"_s, u"18446744073709551616"_s, long1, long2});
}

TEST(VersionsTest, whateverIsComparedHasTwoSides)
{
    const QStringList texts{QString(),
                            u"..."_s,
                            u"-"_s,
                            u"--1"_s,
                            u"a-b"_s,
                            u" "_s,
                            u"1."_s,
                            u".1"_s,
                            u"\u0661"_s,
                            QString(QChar(0xD800)),
                            QString(5000, u'.'),
                            u"1..0"_s};
    for (const QString &left : texts) {
        for (const QString &right : texts)
            EXPECT_EQ(Versions::compare(left, right) < 0, Versions::compare(right, left) > 0)
                << qPrintable(left) << " and " << qPrintable(right);
    }
    expectAscending({QString(), u"1"_s});
    expectEqual(u"1."_s, u"1.0"_s);
}

TEST(VersionsTest, aVersionBeginsWithANumber)
{
    for (const QString &version : {u"1"_s, u"0.1.0"_s, u"1.0b1 (5)"_s, u"20260101"_s})
        EXPECT_TRUE(Versions::isVersion(version)) << qPrintable(version);
    for (const QString &text :
         {QString(), u" "_s, u"latest"_s, u"v1.0"_s, u".1"_s, u"-1"_s, u"\u0661"_s, QString(101, u'1')})
        EXPECT_FALSE(Versions::isVersion(text)) << qPrintable(text);
}

} // namespace
} // namespace roamlet::testing
