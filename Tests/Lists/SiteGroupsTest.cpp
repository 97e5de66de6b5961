// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/SiteGroups.h"

#include "Lists/ListRows.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

std::string groupedBySite(const QStringList &sites, const QString &locale = u"en_US"_s)
{
    QList<HistoryItem> rows;
    for (const QString &site : sites) {
        HistoryItem row = onSite(u"x"_s, {});
        row.site = site;
        rows.append(row);
    }
    return sections(siteGroups(allRows(rows), &HistoryItem::site, Collation(locale)));
}

} // namespace

TEST(SiteGroups, gatherTheRowsOfASiteInTheirOrder)
{
    const QList<HistoryItem> rows{
        onSite(u"1"_s, u"https://www.example.org/b"_s), onSite(u"2"_s, u"https://example.com/"_s),
        onSite(u"3"_s, u"http://example.org:8080/a"_s), onSite(u"4"_s, u"https://example.com/"_s),
        onSite(u"5"_s, u"https://EXAMPLE.org/"_s)};
    const auto groups = siteGroups(allRows(rows), &HistoryItem::site, Collation(u"en_US"_s));
    EXPECT_EQ(sections(groups), "example.com: 2 4; example.org: 1 3 5");
    EXPECT_EQ(groups[0].site, u"example.com"_s);
    EXPECT_EQ(groups[1].id(), u"example.org");
}

TEST(SiteGroups, rowsWithoutASiteComeLastAsOther)
{
    const QList<HistoryItem> rows{
        onSite(u"1"_s, u"file:///tmp/a"_s), onSite(u"2"_s, u"https://zebra.example/"_s),
        onSite(u"3"_s, u"no address"_s), onSite(u"4"_s, u"https://other.example/"_s)};
    const auto groups = siteGroups(allRows(rows), &HistoryItem::site, Collation(u"en_US"_s));
    EXPECT_EQ(sections(groups), "other.example: 4; zebra.example: 2; Other: 1 3");
    EXPECT_FALSE(groups.last().site) << "no list can be narrowed to it";
}

TEST(SiteGroups, numbersInNamesCompareByValue)
{
    EXPECT_EQ(groupedBySite({u"host10"_s, u"host9"_s, u"host100"_s}), "host9: x; host10: x; host100: x");
    EXPECT_EQ(groupedBySite({u"host10"_s, u"host9"_s}, u"C"_s), "host9: x; host10: x");
}

TEST(SiteGroups, followTheUsersLanguage)
{
    EXPECT_EQ(groupedBySite({u"öl.example"_s, u"z.example"_s, u"Art.example"_s}, u"de_DE"_s),
              "Art.example: x; öl.example: x; z.example: x");
    EXPECT_EQ(groupedBySite({u"öl.example"_s, u"z.example"_s}, u"sv_SE"_s), "z.example: x; öl.example: x");
}

TEST(SiteGroups, sitesThatSortAlikeStayApart)
{
    EXPECT_EQ(groupedBySite({u"caf\u00e9"_s, u"cafe\u0301"_s, u"caf\u00e9"_s}),
              "caf\u00e9: x x; cafe\u0301: x");
}

TEST(SiteGroups, takeBookmarksToo)
{
    const QList<Bookmark> rows{bookmark(u"a"_s, {}, {}, u"https://b.example/"_s),
                               bookmark(u"b"_s, {}, {}, u"https://a.example/"_s),
                               bookmark(u"c"_s, {}, {}, u""_s)};
    EXPECT_EQ(sections(siteGroups(allRows(rows), &Bookmark::site, Collation(u"en_US"_s))),
              "a.example: b; b.example: a; Other: c");
}

TEST(SiteGroups, anEmptyListHasNoSections)
{
    EXPECT_TRUE(siteGroups(RowPointers<Bookmark>(), &Bookmark::site, Collation(u"en_US"_s)).isEmpty());
}

} // namespace roamlet::testing
