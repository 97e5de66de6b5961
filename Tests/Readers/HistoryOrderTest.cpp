// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshotTest.h"
#include "Readers/HistoryRows.h"
#include "SampleHome/SampleText.h"

#include <optional>

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
        // Numbers of rows may be below zero.
        qint64 id = -rows;
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

} // namespace roamlet::testing
