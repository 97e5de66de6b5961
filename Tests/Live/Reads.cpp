// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// Reads the histories of a home while they are written to, again and again, in each way in which the program
// does, and judges every answer. Takes the seconds and the file in which the writers count their commits.

#include "Library/Library.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Readers/BrowserReader.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstring>
#include <map>
#include <mutex>
#include <set>
#include <thread>

using namespace roamlet;
using namespace Qt::StringLiterals;

namespace
{

/// What a writer has begun to write, and what it has committed; the same number is in every row.
struct Counts {
    qint64 begun = 0;
    qint64 committed = 0;
};

/// Before and after each of its commits, a writer puts the number of it into this file.
class Counters
{
public:
    explicit Counters(const QString &path) : m_file(path)
    {
        if (m_file.open(QIODevice::ReadOnly))
            m_bytes = m_file.map(0, m_file.size());
    }

    bool isThere() const { return m_bytes != nullptr; }
    /// Of the writer of this profile; nothing where it is a real browser's.
    std::optional<Counts> of(const QString &profile) const
    {
        const QRegularExpressionMatch match = QRegularExpression(u"^Profile (\\d+)$"_s).match(profile);
        const qint64 place = match.hasMatch() ? match.captured(1).toLongLong() * qint64{sizeof(Counts)} : -1;
        if (place < 0 || place + qint64{sizeof(Counts)} > m_file.size())
            return {};
        Counts counts;
        std::memcpy(&counts, m_bytes + place, sizeof counts);
        return counts;
    }

private:
    QFile m_file;
    const uchar *m_bytes = nullptr;
};

/// What came out of the reads, for each profile and way of reading.
class Verdicts
{
public:
    enum class Kind { Good, Complaint, Wrong, Torn };

    void note(const Source &source, const QString &way, Kind kind, const QString &detail = {})
    {
        const std::scoped_lock lock(m_mutex);
        Row &row = m_rows[{source.id(), way}];
        ++row.reads;
        row.complaints += kind == Kind::Complaint ? 1 : 0;
        row.wrong += kind == Kind::Wrong ? 1 : 0;
        row.torn += kind == Kind::Torn ? 1 : 0;
        if (kind != Kind::Good)
            QTextStream(stderr) << source.id() << ", " << way << ": " << detail << Qt::endl;
    }

    void print() const
    {
        QTextStream out(stdout);
        for (const auto &[key, row] : m_rows)
            out << key.first << u'\t' << key.second << u'\t' << row.reads << u'\t' << row.complaints << u'\t'
                << row.wrong << u'\t' << row.torn << Qt::endl;
    }

private:
    struct Row {
        qint64 reads = 0;
        qint64 complaints = 0;
        qint64 wrong = 0;
        qint64 torn = 0;
    };

    std::mutex m_mutex;
    std::map<std::pair<QString, QString>, Row> m_rows;
};

/// Judges the answers of one way of reading, which come one after the other.
class Judge
{
public:
    Judge(QString way, const Counters &counters, Verdicts &verdicts)
        : m_way(std::move(way)), m_counters(counters), m_verdicts(verdicts)
    {
    }

    std::optional<Counts> counts(const Source &source) const
    {
        return m_counters.of(source.profile.value_or(QString()));
    }

    /// All rows of a source, read after it counted so.
    void judge(const Source &source, const QList<HistoryItem> &rows, const std::optional<Counts> &before)
    {
        const QString wrong = before ? wrongOfWriter(source, rows, *before) : wrongOfBrowser(source, rows);
        m_verdicts.note(source, m_way, wrong.isEmpty() ? Verdicts::Kind::Good : Verdicts::Kind::Wrong, wrong);
    }

    void complain(const Source &source, const QString &message)
    {
        m_verdicts.note(source, m_way, Verdicts::Kind::Complaint, message);
    }

    /// Whether the writer can have said this number since it counted so.
    QString wrongNumber(const Source &source, qint64 number, const Counts &before) const
    {
        const Counts now = counts(source).value_or(Counts());
        return number >= before.committed && number <= now.begun
                   ? QString()
                   : u"%1 is not from %2 to %3"_s.arg(number).arg(before.committed).arg(now.begun);
    }

private:
    QString wrongOfWriter(const Source &source, const QList<HistoryItem> &rows, const Counts &before) const
    {
        constexpr qsizetype rowsOfWriter = 60;
        std::set<qint64> numbers;
        for (const HistoryItem &row : rows) {
            numbers.insert(row.visitCount);
            numbers.insert(row.title.section(u' ', 1, 1).toLongLong());
        }
        if (rows.size() != rowsOfWriter)
            return u"%1 rows"_s.arg(rows.size());
        if (numbers.size() != 1)
            return u"%1 and %2 at once"_s.arg(*numbers.begin()).arg(*numbers.rbegin());
        return wrongNumber(source, *numbers.begin(), before);
    }

    /// A browser visits numbered pages one after the other.
    QString wrongOfBrowser(const Source &source, const QList<HistoryItem> &rows)
    {
        std::set<qint64> pages;
        for (const HistoryItem &row : rows) {
            const QRegularExpressionMatch match = QRegularExpression(u"/page/(\\d+)$"_s).match(row.url);
            if (match.hasMatch())
                pages.insert(match.captured(1).toLongLong());
        }
        const qint64 last = pages.empty() ? 0 : *pages.rbegin();
        const qint64 seen = std::max(std::exchange(m_pages[source.id()], last), qint64{0});
        // The latest thousand are read.
        if (pages.size() != static_cast<size_t>(last) && rows.size() < HistoryQuery::defaultLimit)
            return u"%1 pages up to the %2nd"_s.arg(pages.size()).arg(last);
        return last < seen ? u"the %1nd page after the %2nd"_s.arg(last).arg(seen) : QString();
    }

    QString m_way;
    const Counters &m_counters;
    Verdicts &m_verdicts;
    std::map<QString, qint64> m_pages;
};

/// Anew for each round: browsers make their folders when they start.
ReadContext contextOf(const Platform &platform)
{
    return {.folders = BrowserFolders::of(platform.folders, platform.files),
            .files = &platform.files,
            .locale = u"en_US"_s,
            .stop = {},
            .onUnreadableList = {}};
}

QList<Source> allSources(const ReadContext &context)
{
    QList<Source> sources;
    for (const QString &browser : {u"chrome"_s, u"chromium"_s, u"firefox"_s}) {
        if (const auto kind = Source::kindFromRawValue(browser))
            sources += BrowserReader::profiles(*kind, context);
    }
    return sources;
}

/// Private copies as the readers make them, and what SQLite itself thinks of them.
void copyAgainAndAgain(const Platform &platform, const Counters &counters, Verdicts &verdicts,
                       const std::stop_token &stop)
{
    const QString way = u"copy"_s;
    const Judge judge(way, counters, verdicts);
    const auto copyOf = [&](const Source &source, const ReadContext &context) {
        const auto before = judge.counts(source);
        const QString file = BrowserReader::historyFile(source, context);
        if (!context.files->exists(file))
            return;
        const auto copy = SQLiteSnapshot::copying(file, context);
        if (!copy) {
            verdicts.note(source, way, Verdicts::Kind::Complaint, copy.error().errorDescription());
            return;
        }
        QStringList values;
        const auto take = [&values](const SQLiteSnapshot::Row &row) {
            values.append(row.text(0).value_or(QString()));
        };
        const auto checked = copy->query(u"PRAGMA integrity_check"_s, {}, take);
        if (!checked || values != QStringList{u"ok"_s}) {
            verdicts.note(source, way, Verdicts::Kind::Torn,
                          checked ? values.value(0) : checked.error().errorDescription());
            return;
        }
        if (!before) {
            verdicts.note(source, way, Verdicts::Kind::Good);
            return;
        }
        values.clear();
        const auto told = copy->query(
            u"SELECT DISTINCT visit_count FROM urls UNION SELECT DISTINCT n FROM padding"_s, {}, take);
        const QString wrong = !told ? told.error().errorDescription()
                              : values.size() != 1
                                  ? QString(values.join(u" and ") % u" at once")
                                  : judge.wrongNumber(source, values[0].toLongLong(), *before);
        verdicts.note(source, way, wrong.isEmpty() ? Verdicts::Kind::Good : Verdicts::Kind::Torn, wrong);
    };
    while (!stop.stop_requested()) {
        const ReadContext context = contextOf(platform);
        for (const Source &source : allSources(context)) {
            if (!stop.stop_requested())
                copyOf(source, context);
        }
    }
}

/// One question after the other to the databases.
void askAgainAndAgain(const Platform &platform, const Counters &counters, Verdicts &verdicts,
                      const std::stop_token &stop)
{
    Judge judge(u"reader"_s, counters, verdicts);
    while (!stop.stop_requested()) {
        const ReadContext context = contextOf(platform);
        for (const Source &source : allSources(context)) {
            for (const auto order : {HistoryQuery::Order::Latest, HistoryQuery::Order::MostVisited}) {
                const auto before = judge.counts(source);
                const auto rows =
                    BrowserReader::history(source, {.words = {}, .site = {}, .order = order}, context);
                if (stop.stop_requested())
                    return;
                if (rows)
                    judge.judge(source, *rows, before);
                else
                    judge.complain(source, rows.error().errorDescription());
            }
        }
    }
}

/// What a window shows: the library loads again whenever it has loaded, and is searched in between.
class Window
{
public:
    Window(const Platform &platform, const Counters &counters, Verdicts &verdicts)
        : m_loads(u"window"_s, counters, verdicts),
          m_searches(u"window's search"_s, counters, verdicts),
          m_library(platform)
    {
        QObject::connect(&m_library, &Library::snapshotChanged, &m_library, [this] { judge(); });
        m_library.setSearching(true);
        m_library.start();
    }

private:
    void judge()
    {
        const Library::Snapshot &snapshot = m_library.snapshot();
        for (const Source &source : snapshot.sources) {
            const QList<HistoryItem> rows = rowsOf(source, snapshot.history);
            std::optional<Counts> before = m_loads.counts(source);
            // A snapshot keeps what was not read again. It never goes back.
            if (before)
                before->committed =
                    std::exchange(m_shown[source.id()], rows.isEmpty() ? 0 : rows[0].visitCount);
            if (snapshot.problems.contains(source.id()))
                m_loads.complain(source, snapshot.problems.value(source.id()));
            else
                m_loads.judge(source, rows, before);
        }
        std::map<QString, std::optional<Counts>> begun;
        for (const Source &source : snapshot.sources)
            begun[source.id()] = m_searches.counts(source);
        const HistoryQuery query{.words = {u"e"_s}, .site = {}, .order = HistoryQuery::Order::MostVisited};
        const QList<HistoryItem> found = m_library.queryHistory(query, {}).run({}).results.items;
        for (const Source &source : snapshot.sources) {
            const QList<HistoryItem> rows = rowsOf(source, found);
            // A search answers nothing for what cannot be read, and has the loading complain.
            if (!rows.isEmpty())
                m_searches.judge(source, rows, begun[source.id()]);
        }
        QTimer::singleShot(0, &m_library, [this] { m_library.load({}); });
    }

    static QList<HistoryItem> rowsOf(const Source &source, const QList<HistoryItem> &rows)
    {
        QList<HistoryItem> own;
        std::ranges::copy_if(rows, std::back_inserter(own),
                             [prefix = QString(source.id() % u'/')](const HistoryItem &row) {
                                 return row.id.startsWith(prefix);
                             });
        return own;
    }

    std::map<QString, qint64> m_shown;
    Judge m_loads;
    Judge m_searches;
    Library m_library;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Counters counters(application.arguments().value(2));
    const int seconds = application.arguments().value(1).toInt();
    if (!counters.isThere() || seconds <= 0) {
        QTextStream(stderr) << "Usage: roamlet-live-reads SECONDS COUNTERS" << Qt::endl;
        return 2;
    }
    LinuxPlatform platform;
    const Platform services = platform.services();
    Verdicts verdicts;
    {
        const std::jthread copies(
            [&](const std::stop_token &stop) { copyAgainAndAgain(services, counters, verdicts, stop); });
        const std::jthread questions(
            [&](const std::stop_token &stop) { askAgainAndAgain(services, counters, verdicts, stop); });
        const Window window(services, counters, verdicts);
        QTimer::singleShot(std::chrono::seconds(seconds), &application, &QCoreApplication::quit);
        QCoreApplication::exec();
    }
    verdicts.print();
    return 0;
}
