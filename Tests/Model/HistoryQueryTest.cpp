// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/HistoryQuery.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr auto latest = HistoryQuery::Order::Latest;
constexpr auto mostVisited = HistoryQuery::Order::MostVisited;

const QString chromiumText = u"(url || ' ' || title)"_s;
const QString chromiumUrl = u"url"_s;

QStringList words(const QString &typed)
{
    return HistoryQuery::matching(typed, {}, latest).words;
}

/// Pages in a real database, searched as a reader would.
class Pages
{
public:
    Pages()
    {
        sqlite3 *database = nullptr;
        sqlite3_open(":memory:", &database);
        m_database.reset(database);
        sqlite3_exec(database, "CREATE TABLE urls (url TEXT, title TEXT)", nullptr, nullptr, nullptr);
    }

    void add(const QString &url, const QString &title)
    {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(m_database.get(), "INSERT INTO urls VALUES (?, ?)", -1, &statement, nullptr);
        bind(statement, {url, title});
        EXPECT_EQ(sqlite3_step(statement), SQLITE_DONE);
        sqlite3_finalize(statement);
    }

    /// The URLs of the pages that a query finds, in the order in which they were added.
    QStringList find(const HistoryQuery &query) const
    {
        const QString sql = u"SELECT url FROM urls WHERE 1"_s % query.conditions(chromiumText, chromiumUrl) %
                            u" ORDER BY rowid";
        sqlite3_stmt *statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(m_database.get(), sql.toUtf8().constData(), -1, &statement, nullptr),
                  SQLITE_OK)
            << sqlite3_errmsg(m_database.get());
        EXPECT_EQ(sqlite3_bind_parameter_count(statement), query.patterns().size());
        bind(statement, query.patterns());
        QStringList found;
        int result = SQLITE_ROW;
        while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
            found.append(QString::fromUtf8(static_cast<const char *>(sqlite3_column_blob(statement, 0)),
                                           sqlite3_column_bytes(statement, 0)));
        }
        EXPECT_EQ(result, SQLITE_DONE) << sqlite3_errmsg(m_database.get());
        sqlite3_finalize(statement);
        return found;
    }

private:
    static void bind(sqlite3_stmt *statement, const QStringList &values)
    {
        int index = 0;
        for (const QString &value : values)
            sqlite3_bind_text(statement, ++index, value.toUtf8().constData(), -1, SQLITE_TRANSIENT);
    }

    struct Close {
        void operator()(sqlite3 *database) const { sqlite3_close(database); }
    };
    std::unique_ptr<sqlite3, Close> m_database;
};

} // namespace

TEST(HistoryQuery, recentIsThePlainListing)
{
    const HistoryQuery recent = HistoryQuery::recent();
    EXPECT_TRUE(recent.words.isEmpty());
    EXPECT_FALSE(recent.site.has_value());
    EXPECT_EQ(recent.order, latest);
    EXPECT_EQ(recent.limit, 1000);
    EXPECT_EQ(recent.conditions(chromiumText, chromiumUrl), u""_s);
    EXPECT_TRUE(recent.patterns().isEmpty());
    EXPECT_FALSE(recent.isSearch());
}

TEST(HistoryQuery, latestComesBeforeMostVisited)
{
    EXPECT_LT(latest, mostVisited);
}

TEST(HistoryQuery, wordsAreSeparatedByBlanksOnly)
{
    EXPECT_EQ(words(u"two words"_s), (QStringList{u"two"_s, u"words"_s}));
    EXPECT_EQ(words(u"  a   b  "_s), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(words(u"b a b"_s), (QStringList{u"b"_s, u"a"_s, u"b"_s})) << "repeated words stay";
    EXPECT_EQ(words(u"a\tb"_s), QStringList{u"a\tb"_s});
    EXPECT_EQ(words(u"a\nb"_s), QStringList{u"a\nb"_s});
    EXPECT_EQ(words(u"a\u00a0b"_s), QStringList{u"a\u00a0b"_s}) << "a no-break space separates nothing";
    EXPECT_EQ(words(u"a\u3000b"_s), QStringList{u"a\u3000b"_s});
    EXPECT_EQ(words(u"\t"_s), QStringList{u"\t"_s});
    EXPECT_EQ(words(u"a \u0301b"_s), (QStringList{u"a"_s, u"\u0301b"_s}))
        << "a blank is one also where an accent follows it";
}

TEST(HistoryQuery, wordsAreLowerCasedByAllOfUnicode)
{
    EXPECT_EQ(words(u"ÄPFEL Ελλάς İ 𐐀 STRAẞE ΣΊΣΥΦΟΣ"_s),
              (QStringList{u"äpfel"_s, u"ελλάς"_s, u"i\u0307"_s, u"𐐨"_s, u"straße"_s, u"σίσυφος"_s}));
}

TEST(HistoryQuery, textOfBlanksIsThePlainListing)
{
    for (const QString &text : {QString(), u""_s, u" "_s, u"     "_s})
        EXPECT_EQ(HistoryQuery::matching(text, {}, latest), HistoryQuery::recent());
}

TEST(HistoryQuery, matchingTakesSiteAndOrderAsGiven)
{
    const HistoryQuery query = HistoryQuery::matching(u"A"_s, u"Example.ORG"_s, mostVisited);
    EXPECT_EQ(query.words, QStringList{u"a"_s});
    EXPECT_EQ(query.site, std::optional(u"Example.ORG"_s));
    EXPECT_EQ(query.order, mostVisited);
    EXPECT_EQ(query.limit, 1000);
    EXPECT_TRUE(query.isSearch());
    EXPECT_TRUE(HistoryQuery::matching({}, u"a"_s, latest).isSearch());
    EXPECT_TRUE(HistoryQuery::matching(u"a"_s, {}, latest).isSearch());
}

TEST(HistoryQuery, conditionsNameEveryWordAndThenTheSite)
{
    const QString word = u" AND (url || ' ' || title) LIKE ? ESCAPE '\\'"_s;
    const QString site = u" AND (url LIKE ? ESCAPE '\\' OR url LIKE ? ESCAPE '\\' OR url LIKE ? ESCAPE '\\' "
                         "OR url LIKE ? ESCAPE '\\')"_s;
    const auto conditions = [](const QString &text, const std::optional<QString> &only) {
        return HistoryQuery::matching(text, only, latest).conditions(chromiumText, chromiumUrl).toStdString();
    };
    EXPECT_EQ(conditions(u"a"_s, {}), word.toStdString());
    EXPECT_EQ(conditions(u"a b"_s, {}), QString(word % word).toStdString());
    EXPECT_EQ(conditions({}, u"x.org"_s), site.toStdString());
    EXPECT_EQ(conditions(u"a b"_s, u"x.org"_s), QString(word % word % site).toStdString());
    EXPECT_EQ(conditions({}, u""_s), site.toStdString()) << "the empty site is a site";
}

TEST(HistoryQuery, conditionsUseTheReadersExpressions)
{
    const HistoryQuery query = HistoryQuery::matching(u"a"_s, u"x"_s, latest);
    EXPECT_EQ(query.conditions(u"(i.url || ' ' || ifnull(v.title, ''))"_s, u"i.url"_s).toStdString(),
              " AND (i.url || ' ' || ifnull(v.title, '')) LIKE ? ESCAPE '\\'"
              " AND (i.url LIKE ? ESCAPE '\\' OR i.url LIKE ? ESCAPE '\\' OR i.url LIKE ? ESCAPE '\\' "
              "OR i.url LIKE ? ESCAPE '\\')");
    EXPECT_EQ(query.conditions(u"%1"_s, u"%2"_s).toStdString(),
              " AND %1 LIKE ? ESCAPE '\\'"
              " AND (%2 LIKE ? ESCAPE '\\' OR %2 LIKE ? ESCAPE '\\' OR %2 LIKE ? ESCAPE '\\' "
              "OR %2 LIKE ? ESCAPE '\\')")
        << "nothing in an expression is replaced";
}

TEST(HistoryQuery, patternsStandInTheOrderOfThePlaceholders)
{
    EXPECT_EQ(HistoryQuery::matching(u"b A b"_s, u"example.org"_s, latest).patterns(),
              (QStringList{u"%b%"_s, u"%a%"_s, u"%b%"_s, u"%://example.org/%"_s, u"%://example.org:%"_s,
                           u"%://www.example.org/%"_s, u"%://www.example.org:%"_s}));
}

TEST(HistoryQuery, everyPlaceholderHasAPattern)
{
    for (const QString &text : {u""_s, u"a"_s, u"a b c"_s, u"% _ \\ ?"_s, u"ΟΔΟΣ a"_s}) {
        for (const std::optional<QString> &site :
             {std::optional<QString>(), std::optional(u""_s), std::optional(u"a_b%c\\"_s)}) {
            const HistoryQuery query = HistoryQuery::matching(text, site, latest);
            EXPECT_EQ(query.conditions(chromiumText, chromiumUrl).count(u'?'), query.patterns().size());
            EXPECT_EQ(query.patterns().size(), query.words.size() + (site ? 4 : 0));
        }
    }
}

TEST(HistoryQuery, wordsAreEscaped)
{
    const auto pattern = [](const QString &word) {
        return HistoryQuery::matching(word, {}, latest).patterns().join(u'\n').toStdString();
    };
    EXPECT_EQ(pattern(u"100%"_s), "%100\\%%");
    EXPECT_EQ(pattern(u"a_b"_s), "%a\\_b%");
    EXPECT_EQ(pattern(u"c:\\x"_s), "%c:\\\\x%");
    EXPECT_EQ(pattern(u"5%_\\"_s), "%5\\%\\_\\\\%") << "the backslash goes first";
    EXPECT_EQ(pattern(u"\\%"_s), "%\\\\\\%%");
    EXPECT_EQ(pattern(u"%%__"_s), "%\\%\\%\\_\\_%");
    EXPECT_EQ(pattern(u"'?*[x]"_s), "%'?*[x]%");
}

TEST(HistoryQuery, theSiteIsEscapedInAllFourPatterns)
{
    EXPECT_EQ(HistoryQuery::matching({}, u"a_b%c\\"_s, latest).patterns(),
              (QStringList{u"%://a\\_b\\%c\\\\/%"_s, u"%://a\\_b\\%c\\\\:%"_s, u"%://www.a\\_b\\%c\\\\/%"_s,
                           u"%://www.a\\_b\\%c\\\\:%"_s}));
}

TEST(HistoryQuery, aSiteWithWwwNeverStandsForTheBareHost)
{
    EXPECT_EQ(HistoryQuery::matching({}, u"www.x.org"_s, latest).patterns(),
              (QStringList{u"%://www.x.org/%"_s, u"%://www.x.org:%"_s, u"%://www.www.x.org/%"_s,
                           u"%://www.www.x.org:%"_s}));
}

TEST(HistoryQuery, findsTheTypedTextLiterally)
{
    // Each of these must be found by itself and by none of the others.
    const QStringList tricky{u"x100%y"_s,  u"x100y"_s, u"xa_by"_s,    u"xaqby"_s, u"x\\y"_s, u"x\\\\y"_s,
                             u"x\\%y"_s,   u"x\\_y"_s, u"x'y"_s,      u"x\"y"_s,  u"x?1y"_s, u"x*y"_s,
                             u"x[a-z]y"_s, u"x;--y"_s, u"x\\"_s,      u"x%"_s,    u"x\ty"_s, u"xäy"_s,
                             u"x日本y"_s,  u"x😀y"_s,  u"xi\u0307y"_s};
    Pages pages;
    for (const QString &text : tricky)
        pages.add(u"https://example.org/"_s % QString::number(tricky.indexOf(text)),
                  u"before " % text % u" after");
    for (const QString &text : tricky) {
        QStringList expected;
        for (qsizetype i = 0; i < tricky.size(); ++i) {
            if (tricky.at(i).contains(text))
                expected.append(u"https://example.org/" % QString::number(i));
        }
        EXPECT_EQ(pages.find(HistoryQuery::matching(text, {}, latest)), expected) << qPrintable(text);
    }
}

TEST(HistoryQuery, everyWordMustOccurInUrlOrTitle)
{
    Pages pages;
    pages.add(u"https://one.example/"_s, u"Red Apple"_s);
    pages.add(u"https://two.example/apple"_s, u"Green"_s);
    pages.add(u"https://three.example/"_s, u"red green blue"_s);
    const auto find = [&pages](const QString &text) {
        return pages.find(HistoryQuery::matching(text, {}, latest)).join(u' ').toStdString();
    };
    EXPECT_EQ(find(u"APPLE"_s), "https://one.example/ https://two.example/apple");
    EXPECT_EQ(find(u"green apple"_s), "https://two.example/apple") << "one in the title, one in the URL";
    EXPECT_EQ(find(u"red green blue apple"_s), "");
    EXPECT_EQ(find(u"xample/"_s), "https://one.example/ https://two.example/apple https://three.example/");
    EXPECT_EQ(find(u"r r r"_s), "https://one.example/ https://two.example/apple https://three.example/");
}

TEST(HistoryQuery, onlyLettersOfAsciiAreFolded)
{
    Pages pages;
    pages.add(u"https://a.example/"_s, u"ÄPFEL und BIRNEN"_s);
    EXPECT_EQ(pages.find(HistoryQuery::matching(u"birnen"_s, {}, latest)).size(), 1);
    EXPECT_EQ(pages.find(HistoryQuery::matching(u"pfel"_s, {}, latest)).size(), 1);
    EXPECT_EQ(pages.find(HistoryQuery::matching(u"ÄPFEL"_s, {}, latest)).size(), 0)
        << "the word is lower-cased, the stored text is not";
}

TEST(HistoryQuery, aSigmaIsFoundWhereverItStandsInAWord)
{
    Pages pages;
    pages.add(u"https://a.example/"_s, u"ο σίσυφος"_s);
    pages.add(u"https://b.example/"_s, u"ο οδοστρωτήρας"_s);
    const auto find = [&pages](const QString &text) {
        return pages.find(HistoryQuery::matching(text, {}, latest)).join(u' ').toStdString();
    };
    EXPECT_EQ(find(u"ΣΊΣΥΦΟΣ"_s), "https://a.example/");
    EXPECT_EQ(find(u"ΣΊΣ"_s), "https://a.example/") << "a final sigma in the word, another one in the title";
    EXPECT_EQ(find(u"ΟΔΟΣ"_s), "https://b.example/");
    EXPECT_EQ(find(u"Σ"_s), "https://a.example/ https://b.example/");
    EXPECT_EQ(find(u"σίς 100%"_s), "");
}

TEST(HistoryQuery, aSiteIsFoundWithAndWithoutWwwAndPort)
{
    Pages pages;
    for (const QString &url :
         {u"https://x.org/"_s, u"http://x.org:80/p"_s, u"https://www.x.org/a?b"_s, u"HTTPS://WWW.X.ORG:1/"_s,
          u"https://x.org"_s, u"https://x.org?q"_s, u"https://sub.x.org/"_s, u"https://notx.org/"_s,
          u"https://x.orga/"_s, u"https://xyorg/"_s, u"https://www.www.x.org/"_s, u"//x.org/"_s,
          u"https://y.org/?u=https://x.org/"_s})
        pages.add(url, u""_s);
    EXPECT_EQ(pages.find(HistoryQuery::matching({}, u"x.org"_s, latest)).join(u' ').toStdString(),
              "https://x.org/ http://x.org:80/p https://www.x.org/a?b HTTPS://WWW.X.ORG:1/ "
              "https://y.org/?u=https://x.org/")
        << "URLs that hold the site further on are left to the exact comparison afterwards";
}

TEST(HistoryQuery, aSiteWithWildcardsMatchesOnlyItself)
{
    Pages pages;
    pages.add(u"https://my_host/"_s, u""_s);
    pages.add(u"https://my-host/"_s, u""_s);
    pages.add(u"https://a%41b/"_s, u""_s);
    pages.add(u"https://axx41b/"_s, u""_s);
    EXPECT_EQ(pages.find(HistoryQuery::matching({}, u"my_host"_s, latest)),
              QStringList{u"https://my_host/"_s});
    EXPECT_EQ(pages.find(HistoryQuery::matching({}, u"a%41b"_s, latest)), QStringList{u"https://a%41b/"_s});
}

TEST(HistoryQuery, wordsAndSiteMustBothMatch)
{
    Pages pages;
    pages.add(u"https://x.org/1"_s, u"apple"_s);
    pages.add(u"https://x.org/2"_s, u"pear"_s);
    pages.add(u"https://y.org/3"_s, u"apple"_s);
    EXPECT_EQ(pages.find(HistoryQuery::matching(u"apple"_s, u"x.org"_s, latest)),
              QStringList{u"https://x.org/1"_s})
        << "the alternatives of the site stay together";
}

TEST(HistoryQuery, longerWordsAndMoreOfThemFindNothingNew)
{
    const auto isWithin = [](const QString &narrow, const QString &wide) {
        return HistoryQuery::matching(narrow, {}, latest)
            .isWithin(HistoryQuery::matching(wide, {}, mostVisited));
    };
    EXPECT_TRUE(isWithin(u"apple"_s, u"app"_s));
    EXPECT_TRUE(isWithin(u"apple"_s, u"PP"_s));
    EXPECT_TRUE(isWithin(u"apple pear"_s, u"ear app"_s));
    EXPECT_TRUE(isWithin(u"apple"_s, u"ap le"_s));
    EXPECT_TRUE(isWithin(u"a"_s, u""_s));
    EXPECT_TRUE(isWithin(u"ΟΔΟΣΤΡΩΤΉΡΑΣ"_s, u"ΟΔΟΣ"_s)) << "a final sigma has become another one";
    EXPECT_FALSE(isWithin(u"app"_s, u"apple"_s));
    EXPECT_FALSE(isWithin(u"apple"_s, u"app pear"_s));
    EXPECT_FALSE(isWithin(u""_s, u"a"_s));
    EXPECT_FALSE(isWithin(u"é"_s, u"e"_s));
    // Half a letter is no part of it.
    const HistoryQuery half{.words = {u"😀"_s.first(1)}, .site = {}};
    EXPECT_FALSE((HistoryQuery{.words = {u"😀"_s}, .site = {}}.isWithin(half)));
}

TEST(HistoryQuery, aSearchOfOneSiteIsWithinTheSameAndThatOfAll)
{
    const HistoryQuery everywhere = HistoryQuery::matching(u"a"_s, {}, latest);
    const HistoryQuery site = HistoryQuery::matching(u"a"_s, u"x.org"_s, latest);
    const HistoryQuery other = HistoryQuery::matching(u"a"_s, u"y.x.org"_s, latest);
    EXPECT_TRUE(site.isWithin(everywhere));
    EXPECT_TRUE(site.isWithin(site));
    EXPECT_FALSE(everywhere.isWithin(site));
    EXPECT_FALSE(other.isWithin(site));
}

TEST(HistoryQuery, aSearchIsNotWithinOneOfATimeOrOfARow)
{
    const HistoryQuery all = HistoryQuery::matching(u"a"_s, {}, latest);
    HistoryQuery timed = all;
    timed.visited.begin = pointInTime(1);
    HistoryQuery ofRow = all;
    ofRow.rowID = 1;
    EXPECT_FALSE(all.isWithin(timed));
    EXPECT_FALSE(all.isWithin(ofRow));
    EXPECT_TRUE(timed.isWithin(all));
    EXPECT_TRUE(ofRow.isWithin(all));
}

TEST(HistoryQuery, theWordsStandWhereTheSearchFindsThem)
{
    const auto places = [](const QString &typed, const QString &text) {
        QStringList pieces;
        for (const TextPlace &place : HistoryQuery::matching(typed, {}, latest).placesIn(text))
            pieces.append(QString::number(place.start) % u' ' % text.sliced(place.start, place.length));
        return pieces.join(u"; "_s).toStdString();
    };
    EXPECT_EQ(places(u"cat"_s, u"Concat a CAT, cats"_s), "3 cat; 9 CAT; 14 cat");
    EXPECT_EQ(places(u"cat dog"_s, u"dog cat"_s), "0 dog; 4 cat");
    EXPECT_EQ(places(u"abc bcd e"_s, u"xabcdex"_s), "1 abcde") << "what overlaps or touches is one";
    EXPECT_EQ(places(u"abcd b"_s, u"abcd"_s), "0 abcd");
    EXPECT_EQ(places(u"aa"_s, u"aaaa"_s), "0 aaaa");
    EXPECT_EQ(places(u"é"_s, u"É é"_s), "2 é") << "the case of other letters counts";
    EXPECT_EQ(places(u"ΟΔΟΣ"_s, u"οδοσ οδος"_s), "0 οδοσ; 5 οδος");
    EXPECT_EQ(places(u"x"_s, u"😀x"_s), "2 x");
    EXPECT_EQ(places(u"%"_s, u"100%"_s), "3 %");
    EXPECT_EQ(places(u"a"_s, u""_s), "");
    EXPECT_EQ(places(u""_s, u"a"_s), "");
}

TEST(HistoryQuery, equalityAndHashCoverEveryField)
{
    const HistoryQuery original{.words = {u"a"_s, u"b"_s}, .site = u"x"_s, .order = latest, .limit = 10};
    const HistoryQuery same{.words = {u"a"_s, u"b"_s}, .site = u"x"_s, .order = latest, .limit = 10};
    EXPECT_EQ(same, original);
    EXPECT_EQ(qHash(same), qHash(original));
    QList<HistoryQuery> others(10, original);
    others[0].words = QStringList{u"b"_s, u"a"_s};
    others[1].words = QStringList{u"a"_s};
    others[2].words = QStringList{u"a b"_s};
    others[3].site = u"y"_s;
    others[4].site.reset();
    others[5].order = mostVisited;
    others[6].limit = 11;
    others[7].visited.begin = pointInTime(0);
    others[8].visited.end = pointInTime(0);
    others[9].rowID = 0;
    for (qsizetype i = 0; i < others.size(); ++i) {
        EXPECT_NE(others[i], original) << i;
        EXPECT_NE(qHash(others[i]), qHash(original)) << i;
    }
    HistoryQuery emptySite = original;
    emptySite.site = u""_s;
    EXPECT_NE(emptySite, others[4]) << "the empty site is not no site";
    EXPECT_NE(qHash(emptySite), qHash(others[4]));
}

TEST(HistoryResults, equalityCoversEveryField)
{
    const HistoryItem item = HistoryItem::ofRow(1, u"t"_s, u"u"_s, pointInTime(1), 1, Source::safari());
    EXPECT_EQ((HistoryResults{.items = {item}, .isCapped = false}),
              (HistoryResults{.items = {item}, .isCapped = false}));
    EXPECT_NE((HistoryResults{.items = {item}, .isCapped = false}),
              (HistoryResults{.items = {item}, .isCapped = true}));
    EXPECT_NE((HistoryResults{.items = {item}, .isCapped = false}), HistoryResults{});
    EXPECT_FALSE(HistoryResults{}.isCapped);
}

} // namespace roamlet::testing
