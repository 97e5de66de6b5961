// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/Refine.h"

#include "Lists/ListRows.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

const QList<Bookmark> someBookmarks{bookmark(u"Foo"_s, {}, {u"Bar"_s}), bookmark(u"foo only"_s),
                                    bookmark(u"bar, then foo"_s), bookmark(u"neither"_s)};

const QList<SortComparator> byTitle{{SortColumn::Title, SortOrder::Forward}};

std::string found(const QString &search, const QList<Bookmark> &rows = someBookmarks)
{
    return titles(*refine(allRows(rows), search, {}, &Bookmark::searchKey, Collation(u"en_US"_s)));
}

} // namespace

TEST(RefineText, dropsSpacesAndTabsAroundItButNotLineEnds)
{
    EXPECT_EQ(refineText(u"  \t Foo  Bar\t "), u"foo  bar");
    EXPECT_EQ(refineText(u"\u00a0\u3000x\u2003"), u"x");
    EXPECT_EQ(refineText(u"\nx\r\n"), u"\nx\r\n");
    EXPECT_EQ(refineText(u" \t "), u"");
    EXPECT_EQ(refineText({}), u"");
}

TEST(RefineText, isLowerCaseInEveryScript)
{
    EXPECT_EQ(refineText(u"ÄÖ ΣΑ Привет"), u"äö σα привет");
    EXPECT_EQ(refineText(u"ΣΊΣΥΦΟΣ ΟΔΟΣ"), u"σίσυφος οδος");
    EXPECT_EQ(refineText(u"I"), u"i") << "also for Turkish users: rows were lower-cased without their locale";
}

TEST(RefineWords, areSeparatedBySpacesOnly)
{
    EXPECT_THAT(refineWords(u"a  b   c"_s), ElementsAre(u"a"_s, u"b"_s, u"c"_s));
    EXPECT_THAT(refineWords(u"a\tb\nc d"_s), ElementsAre(u"a\tb\nc"_s, u"d"_s));
    EXPECT_THAT(refineWords(u""_s), IsEmpty());
}

TEST(Refine, keepsRowsThatHoldEveryWordInAnyOrder)
{
    EXPECT_EQ(found(u"  Foo   Bar "_s), "Foo bar, then foo");
    EXPECT_EQ(found(u"bar foo"_s), "Foo bar, then foo");
    EXPECT_EQ(found(u"foo"_s), "Foo foo only bar, then foo");
    EXPECT_EQ(found(u"foo foo"_s), "Foo foo only bar, then foo") << "one place may serve both";
    EXPECT_EQ(found(u"foo nowhere"_s), "");
}

TEST(Refine, keepsRowsThatHoldTheWordsAnywhere)
{
    EXPECT_EQ(found(u"eith"_s), "neither");
    EXPECT_EQ(found(u"example.org/page"_s), "Foo foo only bar, then foo neither");
    EXPECT_EQ(found(u"o\nhttps"_s), "Foo bar, then foo") << "the text is one piece";
}

TEST(Refine, comparesCodeByCode)
{
    const QList<Bookmark> rows{bookmark(u"caf\u00e9"_s), bookmark(u"cafe\u0301"_s), bookmark(u"cafe"_s),
                               bookmark(u"a%b"_s), bookmark(u"a_b"_s)};
    EXPECT_EQ(found(u"caf\u00e9"_s, rows), "caf\u00e9");
    EXPECT_EQ(found(u"cafe"_s, rows), "cafe\u0301 cafe") << "a letter matches although an accent follows";
    EXPECT_EQ(found(u"a%b"_s, rows), "a%b");
    EXPECT_EQ(found(u"a_b"_s, rows), "a_b");
    EXPECT_EQ(found(u"a.b"_s, rows), "");
}

TEST(Refine, keepsRowsThatHoldASigmaWhereverItStandsInAWord)
{
    const QList<Bookmark> rows{bookmark(u"σίσυφος"_s), bookmark(u"ΣΊΣΥΦΟΣ"_s), bookmark(u"ΟΔΟΣΤΡΩΤΉΡΑΣ"_s)};
    EXPECT_EQ(found(u"ΣΊΣΥΦΟΣ"_s, rows), "σίσυφος ΣΊΣΥΦΟΣ");
    EXPECT_EQ(found(u"ΣΊΣ"_s, rows), "σίσυφος ΣΊΣΥΦΟΣ")
        << "a final sigma in the word, another one in the title";
    EXPECT_EQ(found(u"ΟΔΟΣ"_s, rows), "ΟΔΟΣΤΡΩΤΉΡΑΣ");
    EXPECT_EQ(found(u"ος"_s, rows), "σίσυφος ΣΊΣΥΦΟΣ ΟΔΟΣΤΡΩΤΉΡΑΣ");
}

TEST(Refine, matchesRowsByTheKeyThatIsGiven)
{
    const QList<Bookmark> rows{bookmark(u"a"_s, {}, {u"inside"_s}), bookmark(u"inside"_s)};
    EXPECT_EQ(titles(*refine(allRows(rows), u"inside", {}, &Bookmark::title, Collation(u"en_US"_s))),
              "inside");
    EXPECT_EQ(titles(*refine(
                  allRows(rows), u"inside", {}, [](const Bookmark &row) { return row.folder; },
                  Collation(u"en_US"_s))),
              "a");
}

TEST(Refine, sortsRows)
{
    EXPECT_EQ(
        titles(*refine(allRows(someBookmarks), u"foo", byTitle, &Bookmark::searchKey, Collation(u"en_US"_s))),
        "bar, then foo Foo foo only");
    EXPECT_EQ(titles(*refine(allRows(someBookmarks), u"", {{SortColumn::Title, SortOrder::Reverse}},
                             &Bookmark::searchKey, Collation(u"en_US"_s))),
              "neither foo only Foo bar, then foo");
}

TEST(Refine, givesNothingOnceAStopIsRequested)
{
    const auto source = std::make_unique<std::stop_source>();
    int asked = 0;
    const auto key = [&](const Bookmark &row) {
        if (++asked == 2)
            source->request_stop();
        return row.searchKey;
    };
    EXPECT_FALSE(
        refine(allRows(someBookmarks), u"foo", byTitle, key, Collation(u"en_US"_s), source->get_token()));
    EXPECT_EQ(asked, 2) << "the rest is not looked at";
}

TEST(Refine, keepsEveryRowWithoutWords)
{
    for (const QString &search : {u""_s, u"   "_s, u" \t "_s})
        EXPECT_EQ(found(search), titles(someBookmarks));
}

TEST(IsSearchText, whereAnythingIsLeftWithoutSpacesAndTabs)
{
    for (const QStringView typed : {u"", u" ", u" \t ", u"\u00a0\u3000"})
        EXPECT_FALSE(isSearchText(typed));
    for (const QStringView typed : {u"a", u" a ", u"\n", u"%"})
        EXPECT_TRUE(isSearchText(typed));
    for (const QStringView typed : {u"", u" \t ", u" a\n", u"\r", u"\u2003b"})
        EXPECT_EQ(isSearchText(typed), !refineText(typed).isEmpty());
}

} // namespace roamlet::testing
