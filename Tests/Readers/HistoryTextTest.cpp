// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryTextTest.h"

#include "Model/Browser.h"
#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/Firefox/FirefoxReader.h"
#include "Readers/HistoryRows.h"
#include "Readers/ReaderTest.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/SafariFiles.h"
#include "SampleHome/SampleText.h"

#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <expected>
#include <fstream>
#include <limits>
#include <new>
#include <numeric>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using sample::Random;
using sample::Text;
using Order = HistoryQuery::Order;

/// A visited page of whichever family; Safari writes down each visit, with the title of that time.
struct Visited {
    Text url = {};
    QList<Text> titles = {};
    qint64 visitCount = 1;
    /// Microseconds of the family's own clock, or Safari's seconds.
    qint64 time = 1;
    bool hidden = false;
};

/// Pages and queries made of few pieces, so that queries often match, nearly or wholly.
class Generator
{
public:
    explicit Generator(quint64 seed) : m_random(seed) {}

    qint64 below(qint64 bound) { return m_random.below(bound); }
    bool oneIn(qint64 count) { return below(count) == 0; }

    enum class Times { Shared, Own };

    QList<Visited> pages(qsizetype count, Browser::Family family, Times times = Times::Shared)
    {
        const bool isSafari = family == Browser::Family::Safari;
        QList<Visited> result;
        for (qsizetype i = 0; i < count; ++i) {
            Visited page{.url = url(), .visitCount = below(4), .time = below(12) - 1, .hidden = oneIn(15)};
            for (qint64 visits = isSafari ? 1 + below(4) : 1; visits > 0; --visits)
                page.titles.append(oneIn(8) ? Text() : Text::raw(bytes(10)));
            if (isSafari) {
                // Addresses are different there, and never NULL.
                page.url = Text::raw(page.url.bytes().value_or(QByteArray()) + '#' + QByteArray::number(i));
                page.time = below(3) * 100;
            }
            if (times == Times::Own && page.time > 0)
                page.time = page.time * 1000 + (i * 37) % 101;
            result.append(page);
            m_texts.append(page.url.bytes().value_or(QByteArray()));
            m_texts.append(page.titles.first().bytes().value_or(QByteArray()));
        }
        return result;
    }

    HistoryQuery query()
    {
        constexpr std::array<qint64, 7> limits{1000, 1000, 1000, 1, 3, 0, -1};
        HistoryQuery query;
        for (qint64 words = oneIn(8) ? below(7) : below(3); words > 0; --words)
            query.words.append(oneIn(10) ? word() : lowered(word()));
        if (oneIn(5))
            query.site = oneIn(3) ? word() : QString::fromUtf8(sites().at(below(sites().size())));
        query.order = oneIn(2) ? Order::Latest : Order::MostVisited;
        query.limit = limits[static_cast<size_t>(below(limits.size()))];
        return query;
    }

    /// A query that finds nothing that this one does not find.
    HistoryQuery narrowed(HistoryQuery query)
    {
        for (QString &longer : query.words) {
            if (oneIn(2))
                longer = (oneIn(3) ? word() : QString()) % longer % word();
        }
        if (oneIn(3))
            query.words.append(word());
        if (oneIn(4) && !query.site)
            query.site = QString::fromUtf8(sites().at(below(sites().size())));
        return query;
    }

    QByteArray bytes(qint64 longest)
    {
        static const QList<QByteArray> plain{"a", "A", "b", "B", "z", "ab", "/", ".", " ", "@", "`"};
        static const QList<QByteArray> special{"%", "_", "\\", "'", "\"", "\n", "?"};
        static const QList<QByteArray> foreign{"é",      "É",      "σ",  "ς",  "Σ", "İ",
                                               "\u212A", "\uFFFD", "東", "😀", "©"};
        // A NUL, lone continuations, starts without one, overlong forms (also of a final sigma), a surrogate,
        // numbers that stand for nothing or are too large.
        static const QList<QByteArray> broken{
            QByteArray(1, '\0'), "\xA9",         "\x80",         "\xC3",
            "\xE6\x9D",          "\xF0",         "\xC1\x81",     "\xE0\x83\xA9",
            "\xE0\x8F\x82",      "\xED\xA0\x80", "\xEF\xBF\xBE", "\xEF\xBF\xBF",
            "\xF5\x80\x80\x80",  "\xFF"};
        const qint64 kind = below(12);
        QList<QByteArray> pieces = plain;
        if (kind < 7)
            pieces += special;
        if (kind < 5)
            pieces += foreign;
        if (kind < 2)
            pieces += broken;
        QByteArray text;
        for (qint64 count = below(oneIn(40) ? 40 * longest : longest + 1); count > 0; --count)
            text += pieces.at(below(pieces.size()));
        return text;
    }

private:
    static const QList<QByteArray> &sites()
    {
        static const QList<QByteArray> sites{"a.test",       "b.test",     "ab.test",
                                             "münchen.test", "www.a.test", "A.test"};
        return sites;
    }

    Text url()
    {
        if (oneIn(25))
            return {};
        if (oneIn(5))
            return Text::raw(bytes(12));
        const QByteArray site = sites().at(below(sites().size()));
        static const QList<QByteArray> ends{
            "", "/", ":80/", "?", "/?u=https://a.test/", "/?u=http://www.b.test:8/"};
        return Text::raw((oneIn(2) ? "https://" : "http://www.") + site + ends.at(below(ends.size())) +
                         bytes(6));
    }

    /// A piece of what is there, or something else. Never empty.
    QString word()
    {
        QString text = oneIn(4) ? QString::fromUtf8(bytes(4)) : pieceOf(m_texts.at(below(m_texts.size())));
        if (!oneIn(200))
            text.remove(QChar(QChar::Null));
        return text.isEmpty() ? u"a"_s : text;
    }

    QString pieceOf(const QByteArray &bytes)
    {
        const QString text = QString::fromUtf8(bytes);
        const qsizetype length = 1 + (oneIn(6) ? below(30) : below(4));
        return text.mid(below(text.size() + 1), length);
    }

    QString lowered(const QString &text)
    {
        const QStringList words = HistoryQuery::matching(text, {}, Order::Latest).words;
        return words.isEmpty() ? text : words.first();
    }

    Random m_random;
    QList<QByteArray> m_texts;
};

class HistoryTextOf : public ReaderTest, public ::testing::WithParamInterface<Browser::Family>
{
protected:
    Source source() const
    {
        switch (GetParam()) {
        case Browser::Family::Safari:
            return Source::safari();
        case Browser::Family::Firefox:
            return firefox();
        case Browser::Family::Chromium:
            break;
        }
        return chrome();
    }

    void write(const QList<Visited> &pages)
    {
        change([&] {
            switch (GetParam()) {
            case Browser::Family::Safari:
                writeSafari(pages);
                break;
            case Browser::Family::Firefox:
                sample::writeFirefoxPlaces(
                    firefoxFile(u"places.sqlite"_s),
                    sample::Rows<sample::FirefoxPage>::generated(pages.size(), [&](qsizetype i) {
                        const Visited &page = pages[i];
                        return sample::FirefoxPage{.url = page.url,
                                                   .title = page.titles.first(),
                                                   .visitCount = page.visitCount,
                                                   .lastVisitDate = page.time < 0 ? std::nullopt
                                                                                  : std::optional(page.time),
                                                   .hidden = page.hidden};
                    }));
                break;
            case Browser::Family::Chromium:
                sample::writeHistory(
                    chromeFile(u"History"_s),
                    sample::Rows<sample::HistoryRow>::generated(pages.size(), [&](qsizetype i) {
                        const Visited &page = pages[i];
                        return sample::HistoryRow{.url = page.url,
                                                  .title = page.titles.first(),
                                                  .visitCount = page.visitCount,
                                                  .lastVisitTime = page.time,
                                                  .hidden = page.hidden};
                    }));
                break;
            }
        });
    }

    QString file() { return BrowserReader::historyFile(source(), context()); }

    std::shared_ptr<const HistoryText> text(size_t mostBytes = plenty)
    {
        const auto text = BrowserReader::historyText(source(), context(), mostBytes);
        if (!text)
            ADD_FAILURE() << text.error();
        return text.value_or(nullptr);
    }

    /// What the database answers, asked in this copy of it.
    HistoryResults answer(const SQLiteSnapshot &copy, const HistoryQuery &query) const
    {
        const auto historyIn = GetParam() == Browser::Family::Safari    ? SafariReader::historyIn
                               : GetParam() == Browser::Family::Firefox ? FirefoxReader::historyIn
                                                                        : ChromiumReader::historyIn;
        const auto rows = historyIn(copy, source(), query);
        if (!rows)
            ADD_FAILURE() << rows.error();
        return {.items = rows.value_or(QList<HistoryItem>()),
                .isCapped = rows && query.isSearch() && rows->size() >= query.limit};
    }

private:
    void writeSafari(const QList<Visited> &pages) const
    {
        QList<sample::SafariItem> items;
        QList<sample::SafariVisit> visits;
        for (const Visited &page : pages) {
            items.append({.id = items.size() + 1, .url = page.url, .visitCount = page.visitCount});
            // Which title counts would be undefined if two visits of a page were at the same time.
            const qsizetype count = page.titles.size();
            for (qsizetype i = 0; i < count; ++i)
                visits.append({.itemID = items.size(),
                               .time = double(page.time) + double((i * 7 + items.size()) % 10) / 16,
                               .title = page.titles[i]});
        }
        sample::writeSafariHistory(safariFile(u"History.db"_s), items, visits);
    }
};

INSTANTIATE_TEST_SUITE_P(Every, HistoryTextOf,
                         ::testing::Values(Browser::Family::Safari, Browser::Family::Chromium,
                                           Browser::Family::Firefox),
                         [](const auto &family) {
                             return family.param == Browser::Family::Safari    ? "Safari"
                                    : family.param == Browser::Family::Firefox ? "Firefox"
                                                                               : "Chromium";
                         });

/// A query as it can be read in a failed expectation.
std::string described(const HistoryQuery &query)
{
    return (query.words.join(u" | "_s) % u" site " % query.site.value_or(u"-"_s) % u" limit " %
            QString::number(query.limit) % (query.order == Order::Latest ? u" latest"_s : u" most visited"_s))
        .toUtf8()
        .toPercentEncoding(" |abcdefghijklmnopqrstuvwxyz/:.")
        .toStdString();
}

/// Whether it holds what only the database answers.
bool holdsNul(const HistoryQuery &query)
{
    return query.words.join(u""_s).contains(QChar(QChar::Null)) ||
           query.site.value_or(QString()).contains(QChar(QChar::Null));
}

} // namespace

TEST_P(HistoryTextOf, answersEveryQueryAsTheDatabaseDoes)
{
    constexpr int databases = 10;
    constexpr int queries = 2000;
    qsizetype matches = 0;
    for (int database = 0; database < databases; ++database) {
        Generator generator(static_cast<quint64>(database) + 1);
        // Which of two pages of the same time and count comes first depends on the limit in Firefox's
        // database.
        const bool areTimesShared = GetParam() != Browser::Family::Firefox || database % 2 == 0;
        const bool isOrderFree = GetParam() != Browser::Family::Firefox || !areTimesShared;
        write(generator.pages(60, GetParam(),
                              areTimesShared ? Generator::Times::Shared : Generator::Times::Own));
        const auto text = this->text();
        ASSERT_NE(text, nullptr);
        const auto copy = SQLiteSnapshot::copying(file(), context());
        ASSERT_TRUE(copy) << copy.error();
        for (int i = 0; i < queries; ++i) {
            HistoryQuery query = generator.query();
            if (!isOrderFree)
                query.order = Order::Latest;
            SCOPED_TRACE(described(query));
            const auto ours = text->search(query);
            ASSERT_EQ(ours.has_value(), !holdsNul(query));
            if (!ours)
                continue;
            const HistoryResults expected = answer(*copy, query);
            ASSERT_EQ(titlesOf(ours->results.items), titlesOf(expected.items));
            ASSERT_EQ(ours->results, expected);
            matches += query.isSearch() ? expected.items.size() : 0;
            if (i < 10) {
                const auto read = BrowserReader::history(source(), query, context());
                ASSERT_TRUE(read) << read.error();
                ASSERT_EQ(ours->results.items, *read);
            }
        }
    }
    EXPECT_GT(matches, databases * queries);
}

TEST_P(HistoryTextOf, narrowingFindsWhatSearchingAnewFinds)
{
    for (int database = 0; database < 5; ++database) {
        Generator generator(static_cast<quint64>(database) + 100);
        write(generator.pages(80, GetParam()));
        const auto text = this->text();
        ASSERT_NE(text, nullptr);
        for (int i = 0; i < 1000; ++i) {
            const HistoryQuery wide = generator.query();
            const HistoryQuery narrow = generator.narrowed(wide);
            SCOPED_TRACE(described(wide) + " -> " + described(narrow));
            ASSERT_TRUE(narrow.isWithin(wide));
            const auto first = text->search(wide);
            const auto anew = text->search(narrow);
            if (!first || !anew)
                continue;
            const auto narrowed = text->search(narrow, &first->rows);
            ASSERT_TRUE(narrowed);
            ASSERT_EQ(narrowed->rows, anew->rows);
            ASSERT_EQ(narrowed->results, anew->results);
        }
    }
}

TEST_P(HistoryTextOf, aMissingHistoryIsAnEmptyText)
{
    if (GetParam() == Browser::Family::Safari) {
        // Its default profile always has one.
        EXPECT_FALSE(BrowserReader::historyText(source(), context(), plenty));
        return;
    }
    const auto text = this->text();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->rowCount(), 0U);
    EXPECT_EQ(found(*text, wordsQuery({u"a"_s})), QStringList());
    EXPECT_EQ(found(*text, HistoryQuery::recent()), QStringList());
}

TEST_P(HistoryTextOf, moreThanTheLimitIsCutAndSaid)
{
    QList<Visited> pages;
    for (int i = 0; i < 1200; ++i)
        pages.append(
            {.url = Text(u"https://a.test/%1"_s.arg(i)), .titles = {Text(u"t%1"_s.arg(i))}, .time = 10 + i});
    write(pages);
    const auto text = this->text();
    ASSERT_NE(text, nullptr);
    const auto answer = text->search(wordsQuery({u"a.test"_s}));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->results.items.size(), 1000);
    EXPECT_TRUE(answer->results.isCapped);
    EXPECT_EQ(answer->rows.size(), 1200U);
    EXPECT_EQ(answer->results.items.first().title, u"t1199"_s);
    EXPECT_FALSE(text->search(HistoryQuery::recent())->results.isCapped);
    EXPECT_FALSE(text->search(wordsQuery({u"t119"_s}))->results.isCapped);
}

TEST_P(HistoryTextOf, whatDoesNotFitIsNotKept)
{
    Generator generator(7);
    write(generator.pages(200, GetParam()));
    const auto text = this->text();
    ASSERT_NE(text, nullptr);
    const size_t size = text->byteCount();
    EXPECT_EQ(this->text(size / 2), nullptr);
    EXPECT_EQ(this->text(0), nullptr);
    const auto fitting = this->text(size + text->rowCount());
    ASSERT_NE(fitting, nullptr);
    EXPECT_LE(fitting->byteCount(), size + text->rowCount());
}

TEST_P(HistoryTextOf, aStoppedReadEndsWithAnError)
{
    write(Generator(8).pages(20, GetParam()));
    std::stop_source stop;
    ReadContext stopped = context();
    stopped.stop = stop.get_token();
    home.files.afterCopy = [&](const QString &) { stop.request_stop(); };
    const auto text = BrowserReader::historyText(source(), stopped, plenty);
    home.files.afterCopy = {};
    EXPECT_FALSE(text);
}

TEST_P(HistoryTextOf, valuesThatOnlyTheDatabaseCanOrderAreLeftToIt)
{
    struct Table {
        const char *pages;
        const char *url;
        const char *visits;
        const char *time;
    };
    const Table table =
        GetParam() == Browser::Family::Safari ? Table{"history_items", "url", "history_visits", "visit_time"}
        : GetParam() == Browser::Family::Firefox ? Table{"moz_places", "url", "moz_places", "last_visit_date"}
                                                 : Table{"urls", "url", "urls", "last_visit_time"};
    const QList<QString> changes{
        u"UPDATE %1 SET visit_count = 'many' WHERE id = 2"_s.arg(QLatin1StringView(table.pages)),
        u"UPDATE %1 SET url = x'61' WHERE id = 2"_s.arg(QLatin1StringView(table.pages)),
        u"UPDATE %1 SET %2 = 'late' WHERE id = 2"_s.arg(QLatin1StringView(table.visits),
                                                        QLatin1StringView(table.time))};
    const QList<Visited> pages{{.url = Text(u"https://a.test/"_s), .titles = {Text(u"a"_s)}, .time = 1},
                               {.url = Text(u"https://b.test/"_s), .titles = {Text(u"b"_s)}, .time = 2}};
    write(pages);
    EXPECT_NE(text(), nullptr);
    for (const QString &sql : changes) {
        write(pages);
        change([&] { sample::Database(file()).execute(sql.toUtf8().constData()); });
        EXPECT_EQ(text(), nullptr) << sql.toStdString();
    }
}

TEST_F(ReaderTest, aTextWhoseReadIsStoppedOnTheWayIsNone)
{
    constexpr int rowCount = 50'000;
    change([this] {
        sample::writeHistory(
            chromeFile(u"History"_s), sample::Rows<sample::HistoryRow>::generated(rowCount, [](qsizetype i) {
                return sample::HistoryRow{
                    .url = u"https://a.test/%1"_s.arg(i), .title = u"a"_s, .lastVisitTime = i + 1};
            }));
    });
    static std::stop_source stop;
    static int rowsRead;
    stop = std::stop_source();
    rowsRead = 0;
    ReadContext stopped = context();
    stopped.stop = stop.get_token();
    const auto copy = SQLiteSnapshot::copying(chromeFile(u"History"_s), stopped);
    ASSERT_TRUE(copy) << copy.error();
    const HistoryRules rules{.lastVisit = [](const SQLiteSnapshot::Row &, int) {
        if (++rowsRead == 100)
            stop.request_stop();
        return std::optional(pointInTime(1));
    }};
    const auto text = historyText(
        *copy, {.rows = u"SELECT id, url, title, last_visit_time, visit_count FROM urls"_s, .order = {}},
        chrome(), rules, plenty, stopped.stop);
    EXPECT_FALSE(text);
    EXPECT_LT(rowsRead, rowCount);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST_F(ReaderTest, aTextForWhichThereIsNoMemoryIsNone)
{
    change([this] {
        sample::writeHistory(chromeFile(u"History"_s),
                             sample::Rows<sample::HistoryRow>::generated(100, [](qsizetype i) {
                                 return sample::HistoryRow{.url = u"https://a.test/%1"_s.arg(i),
                                                           .title = u"a"_s.repeated(1'000'000),
                                                           .lastVisitTime = i + 1};
                             }));
    });
    const ReadContext given = context();
    const int status = inAnotherProcess([&] {
        rlimit memory{};
        getrlimit(RLIMIT_AS, &memory);
        std::ifstream statm("/proc/self/statm");
        rlim_t pages = 0;
        statm >> pages;
        memory.rlim_cur = pages * static_cast<rlim_t>(getpagesize()) + 60'000'000;
        setrlimit(RLIMIT_AS, &memory);
        const auto text = BrowserReader::historyText(chrome(), given, plenty);
        return text && *text == nullptr ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
}
#endif

} // namespace roamlet::testing
