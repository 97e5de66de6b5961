// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/HistoryItem.h"

#include "Model/ChromeProfile.h"

#include <gtest/gtest.h>

#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr PointInTime visited = pointInTime(1'700'000'000.123456);

HistoryItem item(const QString &title, const QString &url)
{
    return HistoryItem::ofRow(1, title, url, visited, 3, chrome());
}

} // namespace

TEST(HistoryItem, isIdentifiedBySourceAndRow)
{
    EXPECT_EQ(HistoryItem::ofRow(4711, u"t"_s, u"u"_s, visited, 1, chrome()).id, u"chrome/Default/4711"_s);
    EXPECT_EQ(HistoryItem::ofRow(982, u"t"_s, u"u"_s, visited, 1, Source::safari()).id, u"safari/982"_s);
    EXPECT_EQ(HistoryItem::ofRow(-7, u"t"_s, u"u"_s, visited, 1, Source::safari()).id, u"safari/-7"_s);
    EXPECT_EQ(HistoryItem::ofRow(std::numeric_limits<qint64>::max(), u"t"_s, u"u"_s, visited, 1, chrome()).id,
              u"chrome/Default/9223372036854775807"_s);
}

TEST(HistoryItem, keepsWhatTheRowHolds)
{
    const HistoryItem row = HistoryItem::ofRow(1, u" A Title "_s, u"https://www.Example.org/A"_s, visited,
                                               std::numeric_limits<qint64>::max(), chrome());
    EXPECT_EQ(row.title, u" A Title "_s);
    EXPECT_EQ(row.url, u"https://www.Example.org/A"_s);
    EXPECT_EQ(row.lastVisit, visited);
    EXPECT_EQ(row.visitCount, std::numeric_limits<qint64>::max());
    EXPECT_EQ(row.source, chrome());
    EXPECT_EQ(row.site, u"example.org"_s);
    EXPECT_EQ(row.searchKey(), u" a title \nhttps://www.example.org/a"_s);
}

TEST(HistoryItem, withoutATitleShowsAndSearchesByItsUrl)
{
    for (const QString &title : {QString(), u""_s}) {
        const HistoryItem row = item(title, u"https://Example.org/A"_s);
        EXPECT_EQ(row.title, u"https://Example.org/A"_s);
        EXPECT_EQ(row.searchKey(), u"https://example.org/a\nhttps://example.org/a"_s);
    }
}

TEST(HistoryItem, withABlankTitleKeepsIt)
{
    EXPECT_EQ(item(u" "_s, u"https://a/"_s).title, u" "_s);
}

TEST(HistoryItem, lowerCasesAllOfUnicode)
{
    EXPECT_EQ(item(u"ÄÖÜ ΑΒΓ ЖЯ"_s, u"HTTP://X/"_s).searchKey(), u"äöü αβγ жя\nhttp://x/"_s);
    EXPECT_EQ(item(u"STRAẞE"_s, u"u"_s).searchKey(), u"straße\nu"_s);
    EXPECT_EQ(item(u"İ"_s, u"u"_s).searchKey(), u"i\u0307\nu"_s) << "one letter becomes two";
    EXPECT_EQ(item(u"𐐀"_s, u"u"_s).searchKey(), u"𐐨\nu"_s) << "a letter beyond the first plane";
    EXPECT_EQ(item(u"ΣΊΣΥΦΟΣ"_s, u"ΟΔΟΣ"_s).searchKey(), u"σίσυφος\nοδος"_s) << "a sigma that ends a word";
    EXPECT_EQ(item(u"I"_s, u"u"_s).searchKey(), u"i\nu"_s) << "not by the rules of one language";
}

TEST(HistoryItem, withoutAHostHasTheEmptySite)
{
    EXPECT_EQ(item(u"t"_s, u"about:blank"_s).site, u""_s);
    EXPECT_EQ(item(u"t"_s, u"file:///x"_s).site, u""_s);
    EXPECT_EQ(item(u"t"_s, u"http://a b/"_s).site, u""_s);
    EXPECT_EQ(item(u"t"_s, u""_s).site, u""_s);
}

TEST(HistoryItem, withNeitherTitleNorUrlIsStillARow)
{
    const HistoryItem row = item({}, {});
    EXPECT_EQ(row.title, u""_s);
    EXPECT_EQ(row.searchKey(), u"\n"_s);
}

TEST(HistoryItem, keepsMicroseconds)
{
    EXPECT_LT(pointInTime(1'700'000'000.123456), pointInTime(1'700'000'000.123457));
    EXPECT_DOUBLE_EQ(secondsSince1970(pointInTime(-1.5)), -1.5);
}

TEST(HistoryItem, equalityAndHashCoverEveryField)
{
    const HistoryItem original = item(u"Title"_s, u"https://example.org/"_s);
    EXPECT_EQ(item(u"Title"_s, u"https://example.org/"_s), original);
    EXPECT_EQ(qHash(item(u"Title"_s, u"https://example.org/"_s)), qHash(original));

    QList<HistoryItem> others(7, original);
    others[0].id = u"other"_s;
    others[1].title = u"other"_s;
    others[2].url = u"other"_s;
    others[3].lastVisit = pointInTime(1'700'000'000.123457);
    others[4].visitCount = 4;
    others[5].source = Source::safari();
    others[6].site = u"other"_s;
    for (qsizetype i = 0; i < others.size(); ++i) {
        EXPECT_NE(others[i], original) << i;
        EXPECT_NE(qHash(others[i]), qHash(original)) << i;
    }
}

} // namespace roamlet::testing
