// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshotTest.h"
#include "Readers/HistoryRows.h"
#include "SampleHome/SampleText.h"

#include <array>
#include <atomic>
#include <optional>
#include <stop_token>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

std::optional<PointInTime> visitAt(const SQLiteSnapshot::Row &row, int column)
{
    const std::int64_t time = row.integer(column);
    return time > 0 ? std::optional(pointInTime(static_cast<double>(time))) : std::nullopt;
}

} // namespace

/// Rows that are put in order here come as the database would have put them in order.
class HistoryOrderTest : public SQLiteSnapshotTest
{
protected:
    enum class Values { Whole, Odd };
    enum class Size { Small, Large };

    void write(sample::Random &random, qint64 rows, Values values, Size size)
    {
        change([&] { writeNow(random, rows, values, size); });
    }

    void writeNow(sample::Random &random, qint64 rows, Values values, Size size) const
    {
        sample::makeFolderOf(source);
        QFile::remove(source);
        sample::Database database(source);
        database.execute(
            "PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY; "
            "CREATE TABLE urls(id INTEGER PRIMARY KEY, url, title, last_visit_time, visit_count); "
            "CREATE TABLE bulk(v)");
        sample::Statement insert = database.prepare("INSERT INTO urls VALUES(?, ?, ?, ?, ?)");
        // Numbers of rows may be below zero; then they are read as one part.
        qint64 id = size == Size::Small ? -rows : 0;
        for (qint64 i = 0; i < rows; ++i) {
            id += 1 + random.below(3);
            const sample::Text url = sample::Text(u"https://a.test/%1"_s.arg(i));
            const sample::Text title = sample::Text(random.below(2) == 0 ? u"one"_s : u"two"_s);
            const qint64 time = random.below(30) - 2;
            if (values == Values::Odd && random.below(40) == 0)
                writeOdd(random, insert, id, url, title);
            else
                insert.run(id, url, title, time, random.below(4));
        }
        if (size == Size::Large)
            database.execute("INSERT INTO bulk VALUES(zeroblob(17000000))");
    }

    /// A row whose time or number of visits is no whole number.
    static void writeOdd(sample::Random &random, sample::Statement &insert, qint64 id,
                         const sample::Text &url, const sample::Text &title)
    {
        const qint64 number = random.below(30);
        switch (random.below(6)) {
        case 0:
            insert.run(id, url, title, static_cast<double>(number) + 0.5, number);
            break;
        case 1:
            insert.run(id, url, title, number, 1.5);
            break;
        case 2:
            insert.run(id, url, title, std::optional<qint64>(), number);
            break;
        case 3:
            insert.run(id, url, title, number, std::optional<qint64>());
            break;
        case 4:
            insert.run(id, url, title, sample::Text(QString::number(number)), number);
            break;
        default:
            insert.run(id, url, title, std::optional(QByteArray::number(number)), number);
        }
    }

    void expectTheOrderOfTheDatabase(sample::Random &random)
    {
        const auto copy = SQLiteSnapshot::copying(source, context());
        ASSERT_TRUE(copy) << copy.error();
        for (int round = 0; round < 20; ++round) {
            constexpr std::array<qint64, 6> limits{-1, 0, 1, 7, 40, 1000};
            HistoryQuery query;
            if (random.below(2) == 0)
                query.words.append(u"one"_s);
            query.order =
                random.below(2) == 0 ? HistoryQuery::Order::Latest : HistoryQuery::Order::MostVisited;
            query.limit = limits[static_cast<std::size_t>(random.below(limits.size()))];
            HistoryStatement statement{
                .rows = u"SELECT id, url, title, last_visit_time, visit_count FROM urls WHERE 1"_s %
                        query.conditions(u"title"_s, u"url"_s),
                .order = u" ORDER BY "_s %
                         (query.order == HistoryQuery::Order::MostVisited ? u"visit_count DESC, "_s : u""_s) %
                         u"last_visit_time DESC LIMIT "_s % QString::number(query.limit)};
            const auto byDatabase = historyRows(*copy, statement, query, chrome(), visitAt);
            statement.table = u"urls"_s;
            const auto here = historyRows(*copy, statement, query, chrome(), visitAt);
            ASSERT_TRUE(byDatabase && here);
            ASSERT_EQ(*here, *byDatabase) << query.limit;
        }
    }
};

TEST_F(HistoryOrderTest, rowsOfTheSameTimeStayInTheOrderOfTheTable)
{
    sample::Random random(3);
    for (const qint64 rows : {0, 1, 2, 30, 200}) {
        write(random, rows, Values::Whole, Size::Small);
        expectTheOrderOfTheDatabase(random);
    }
}

TEST_F(HistoryOrderTest, partsThatAreReadAtTheSameTimeAreOneList)
{
    sample::Random random(4);
    for (const qint64 rows : {1, 2, 30, 200}) {
        write(random, rows, Values::Whole, Size::Large);
        expectTheOrderOfTheDatabase(random);
    }
}

TEST_F(HistoryOrderTest, whatOnlyTheDatabaseCanCompareIsLeftToIt)
{
    sample::Random random(5);
    for (const Size size : {Size::Small, Size::Large}) {
        write(random, 200, Values::Odd, size);
        expectTheOrderOfTheDatabase(random);
    }
}

TEST_F(HistoryOrderTest, aTableWhoseRowsHaveNoNumbersIsReadByTheDatabase)
{
    sample::makeFolderOf(source);
    sample::Random random(6);
    for (const char *tables : {
             "CREATE TABLE urls(id INTEGER PRIMARY KEY, url, title, last_visit_time, visit_count, _rowid_); "
             "INSERT INTO urls VALUES(1, 'a', 'one', 5, 1, 9), (2, 'b', 'one', 5, 1, NULL), (3, 'c', 'two', "
             "5, 1, 1)",
             "CREATE TABLE urls(id PRIMARY KEY, url, title, last_visit_time, visit_count) WITHOUT ROWID; "
             "INSERT INTO urls VALUES(1, 'a', 'one', 5, 1), (2, 'b', 'two', 9, 1)",
         }) {
        change([&] {
            QFile::remove(source);
            sample::Database(source).execute(tables);
        });
        expectTheOrderOfTheDatabase(random);
    }
}

/// The text of a history that is read in halves.
class HistoryHalvesTest : public SQLiteSnapshotTest
{
protected:
    static constexpr qint64 rowCount = 20'000;

    void SetUp() override
    {
        SQLiteSnapshotTest::SetUp();
        if (std::thread::hardware_concurrency() < 2)
            GTEST_SKIP() << "one core reads one part";
    }

    /// As many rows with whole times, of which `changes` makes others.
    void write(const char *changes = "")
    {
        change([&] {
            sample::makeFolderOf(source);
            QFile::remove(source);
            sample::Database database(source);
            database.execute(
                "PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY; "
                "CREATE TABLE urls(id INTEGER PRIMARY KEY, url, title, last_visit_time, visit_count); "
                "CREATE TABLE bulk(v); INSERT INTO bulk VALUES(zeroblob(17000000))");
            database.execute((u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                              "INSERT INTO urls SELECT i, 'https://a.test/' || i, 'a', i, 1 FROM n"_s)
                                 .arg(rowCount)
                                 .toUtf8()
                                 .constData());
            database.execute(changes);
        });
    }

    std::expected<std::shared_ptr<const HistoryText>, ReadError> text(LastVisit lastVisit,
                                                                      std::stop_source stop = {})
    {
        ReadContext stoppable = context();
        stoppable.stop = stop.get_token();
        const auto copy = SQLiteSnapshot::copying(source, stoppable);
        if (!copy)
            return std::unexpected(copy.error());
        if (isStoppedAfterTheCopy)
            stop.request_stop();
        return historyText(
            *copy,
            {.rows = u"SELECT id, url, title, last_visit_time, visit_count FROM urls WHERE 1"_s,
             .order = {},
             .table = u"urls"_s},
            chrome(), {.lastVisit = lastVisit}, 1'000'000'000, stoppable.stop);
    }

    bool isStoppedAfterTheCopy = false;
};

TEST_F(HistoryHalvesTest, timesOfOneKindAreOneText)
{
    for (const char *changes : {"", "UPDATE urls SET last_visit_time = last_visit_time + 0.5"}) {
        write(changes);
        const auto text = this->text(visitAt);
        ASSERT_TRUE(text) << text.error();
        ASSERT_NE(*text, nullptr) << changes;
        EXPECT_EQ((*text)->rowCount(), rowCount);
    }
}

TEST_F(HistoryHalvesTest, halvesWithDifferentKindsOfTimeAreNoText)
{
    for (const char *changes : {"UPDATE urls SET last_visit_time = last_visit_time + 0.5 WHERE id <= 10000",
                                "UPDATE urls SET last_visit_time = last_visit_time + 0.5 WHERE id > 10000"}) {
        write(changes);
        const auto text = this->text(visitAt);
        ASSERT_TRUE(text) << text.error();
        EXPECT_EQ(*text, nullptr) << changes;
    }
}

TEST_F(HistoryHalvesTest, aReadThatIsStoppedWhileBothAreMeasuredEndsThere)
{
    write();
    static std::atomic<int> rowsPut;
    rowsPut = 0;
    isStoppedAfterTheCopy = true;
    const auto text = this->text([](const SQLiteSnapshot::Row &row, int column) {
        ++rowsPut;
        return visitAt(row, column);
    });
    EXPECT_FALSE(text);
    EXPECT_EQ(rowsPut, 0) << "they are put into their places after that";
}

TEST_F(HistoryHalvesTest, aReadThatIsStoppedByOneHalfEndsForBoth)
{
    write();
    static std::stop_source stop;
    static std::atomic<int> rowsPut;
    for (const bool isOfFirst : {true, false}) {
        stop = std::stop_source();
        rowsPut = 0;
        static std::int64_t stopsAt;
        stopsAt = isOfFirst ? 100 : (rowCount / 2) + 100;
        const auto text = this->text(
            [](const SQLiteSnapshot::Row &row, int column) {
                ++rowsPut;
                if (row.integer(column) == stopsAt)
                    stop.request_stop();
                return visitAt(row, column);
            },
            stop);
        EXPECT_FALSE(text);
        EXPECT_LT(rowsPut, rowCount);
    }
}

} // namespace roamlet::testing
