// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryText.h"

#include "Kit/FuzzHome.h"
#include "Kit/Portions.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/Firefox/FirefoxReader.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/SqliteFile.h"

#include <array>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

using sample::Text;

/// A page as the bytes describe it.
struct Page {
    Text url;
    Text title;
    /// In seconds of the family's own clock; 0 for "never". Otherwise a different one for each page: of two
    /// pages at the same time, any may come first.
    qint64 time = 0;
    qint64 visitCount = 0;
    bool isHidden = false;
};

/// A small history that is filled anew for each input.
class History
{
public:
    using ReadIn = std::expected<QList<HistoryItem>, ReadError> (*)(const SQLiteSnapshot &, const Source &,
                                                                    const HistoryQuery &);

    struct Statements {
        const char *create;
        const char *clear;
        const char *insert;
    };

    History(const QString &file, Source source, ReadIn readIn, const Statements &statements)
        : m_home(file),
          m_source(std::move(source)),
          m_readIn(readIn),
          m_statements(statements),
          m_isSafari(m_source.kind == Source::Kind::Safari),
          m_database(m_home.file())
    {
        m_database.execute("PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY; PRAGMA page_size = 1024");
        m_database.execute(statements.create);
        m_context = m_home.context();
    }

    void fill(const QList<Page> &pages)
    {
        m_database.execute("BEGIN");
        m_database.execute(m_statements.clear);
        auto insert = m_database.prepare(m_statements.insert);
        qint64 id = 0;
        if (m_isSafari) {
            auto insertVisit = m_database.prepare("INSERT INTO history_visits VALUES(?, ?, ?)");
            for (const Page &page : pages) {
                ++id;
                const auto time = static_cast<double>(page.time == 0 ? -id : page.time);
                insert.run(id, page.url, page.visitCount);
                insertVisit.run(id, time + 0.25, page.title);
                if (page.isHidden)
                    insertVisit.run(id, time, page.url);
            }
        } else {
            for (const Page &page : pages)
                insert.run(++id, page.url, page.title, page.time * 1'000'000, page.visitCount,
                           int{page.isHidden});
        }
        m_database.execute("COMMIT");
    }

    void compare(const QList<HistoryQuery> &queries) const
    {
        constexpr size_t mostBytes = size_t{1} << 20U;
        const auto text = BrowserReader::historyText(m_source, m_context, mostBytes);
        require(text && *text, "a history has a text");
        const auto copy = SQLiteSnapshot::copying(m_home.file(), m_context);
        require(copy.has_value(), "a history can be copied");
        std::optional<HistoryText::Answer> before;
        for (qsizetype i = 0; i < queries.size(); ++i) {
            const auto answer = (*text)->search(queries[i]);
            const QString words = queries[i].words.join(u' ') % queries[i].site.value_or(QString());
            require(answer.has_value() || words.contains(QChar(QChar::Null)) ||
                        queries[i].words.contains(QString()),
                    "a text knows the answer");
            if (answer) {
                const auto rows = m_readIn(*copy, m_source, queries[i]);
                require(rows.has_value(), "the database knows the answer");
                require(answer->results.items == *rows, "a text answers as the database does");
            }
            if (answer && before && before->hasAllRows && queries[i].isWithin(queries[i - 1])) {
                const auto narrowed = (*text)->search(queries[i], &before->rows);
                require(narrowed && narrowed->results == answer->results,
                        "narrowing finds what searching anew finds");
            }
            before = answer;
        }
    }

private:
    FuzzHome m_home;
    Source m_source;
    ReadIn m_readIn;
    Statements m_statements;
    bool m_isSafari;
    sample::Database m_database;
    ReadContext m_context;
};

History &historyOf(int family)
{
    static History chromium(
        u"Library/Application Support/Google/Chrome/Default/History"_s, chrome(), ChromiumReader::historyIn,
        {.create =
             "CREATE TABLE urls(id INTEGER PRIMARY KEY, url, title, last_visit_time, visit_count, hidden)",
         .clear = "DELETE FROM urls",
         .insert = "INSERT INTO urls VALUES(?, ?, ?, ?, ?, ?)"});
    static History mozilla(u"Library/Application Support/Firefox/abcd.default/places.sqlite"_s, firefox(),
                           FirefoxReader::historyIn,
                           {.create = "CREATE TABLE moz_places(id INTEGER PRIMARY KEY, url, title, "
                                      "last_visit_date, visit_count, hidden);"
                                      "CREATE TABLE moz_bookmarks(id INTEGER PRIMARY KEY, type, fk, parent, "
                                      "position, title, dateAdded, guid)",
                            .clear = "DELETE FROM moz_places",
                            .insert = "INSERT INTO moz_places VALUES(?, ?, ?, ?, ?, ?)"});
    static History safari(u"Library/Safari/History.db"_s, Source::safari(), SafariReader::historyIn,
                          {.create = "CREATE TABLE history_items(id INTEGER PRIMARY KEY, url, visit_count);"
                                     "CREATE TABLE history_visits(history_item, visit_time, title)",
                           .clear = "DELETE FROM history_items; DELETE FROM history_visits",
                           .insert = "INSERT INTO history_items VALUES(?, ?, ?)"});
    switch (family % 3) {
    case 0:
        return chromium;
    case 1:
        return mozilla;
    default:
        return safari;
    }
}

void attackHistoryText(QByteArrayView bytes)
{
    Portions portions(bytes);
    History &history = historyOf(portions.number());
    const auto text = [&portions] {
        const QByteArrayView bytesOfText = portions.bytes();
        return bytesOfText == "NULL" ? Text() : Text::raw(bytesOfText.toByteArray());
    };
    QList<Page> pages;
    for (int count = portions.number() % 16; count > 0; --count) {
        const int flags = portions.number();
        Page page{.url = text(), .title = text(), .visitCount = flags / 8, .isHidden = (flags & 1) != 0};
        page.time = (flags & 6) == 6 ? 0 : 1000 + pages.size() * 37 % 101;
        pages.append(page);
    }
    QList<HistoryQuery> queries;
    for (int count = 1 + portions.number() % 4; count > 0; --count) {
        const int flags = portions.number();
        constexpr std::array<qint64, 4> limits{1000, 1, 3, -1};
        HistoryQuery query;
        for (int words = flags % 4; words > 0; --words)
            query.words.append(portions.text());
        if ((flags & 4) != 0)
            query.site = portions.text();
        query.limit = limits.at(static_cast<size_t>(flags >> 3U & 3));
        queries.append(query);
    }
    history.fill(pages);
    history.compare(queries);
}

QList<QByteArray> historyTextSeeds()
{
    QList<QByteArray> seeds;
    for (const int family : {0, 1, 2}) {
        PortionWriter writer;
        writer.number(family).number(4);
        writer.number(8).text("https://www.a.example/x").text("One Word");
        writer.number(16).text("http://b.example:80/?u=https://a.example/").text("Zo\xC3\xAB \xCF\x82");
        writer.number(9).text("https://c.example/").text("NULL");
        writer.number(14).text("https://d.example/\xFF\xC3").text("broken \xE6\x9D");
        writer.number(4);
        writer.number(1).text("word").number(2).text("a.ex").text("one");
        writer.number(5).text("zo\xC3\xAB").text("b.example").number(8);
        seeds.append(writer.bytes());
    }
    return seeds;
}

} // namespace

Target historyText()
{
    return {.name = "HistoryText", .attack = attackHistoryText, .seeds = historyTextSeeds, .longest = 1024};
}

} // namespace roamlet::fuzz
