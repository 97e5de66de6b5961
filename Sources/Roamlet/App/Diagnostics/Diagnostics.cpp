// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/Diagnostics.h"

#include "App/Diagnostics/BookmarkSearch.h"
#include "App/Diagnostics/JobOutput.h"
#include "App/Diagnostics/ProfileFacts.h"
#include "App/Diagnostics/TextLayout.h"
#include "Export/BookmarkExport.h"
#include "Library/BrowserWatcher.h"
#include "Library/LibraryReading.h"
#include "Library/ProfileChoice.h"
#include "Platform/Clock.h"
#include "Platform/Confinement.h"
#include "Platform/Console.h"
#include "Platform/Folders.h"
#include "Readers/BrowserReader.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QDateTime>
#include <QEventLoop>
#include <QLocale>
#include <QRegularExpression>

#include <system_error>

#include <algorithm>
#include <chrono>
#include <limits>
#include <thread>

namespace roamlet::Diagnostics
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int success = JobOutput::success;
constexpr int failure = JobOutput::failure;
constexpr int misuse = 2;

constexpr qsizetype topLength = 10;
constexpr double defaultWatchSeconds = 60;

QString localTime(PointInTime time)
{
    if (countable(time) != time)
        return u"unknown time"_s;
    return QDateTime::fromMSecsSinceEpoch(millisecondsSince1970(time)).toString(u"yyyy-MM-dd HH:mm"_s);
}

class Stopwatch
{
public:
    /// The seconds since the beginning with two decimals, the same in every language.
    QString seconds() const
    {
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - m_begin;
        return QString::number(elapsed.count(), 'f', 2);
    }

private:
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
};

/// One run of one job.
class Job
{
public:
    Job(const Command &command, const Platform &platform, Console &console, const std::stop_token &stop)
        : m_command(command),
          m_platform(platform),
          m_stop(stop),
          m_output(console, stop),
          m_context(context())
    {
    }

    int summary();
    int exportBookmarks(const std::optional<QString> &formatName, const std::optional<QString> &sourceID);
    int top();
    int search(HistoryQuery query);
    int searchBookmarks(const QString &words);
    int watch(const std::optional<QString> &duration);
    int open(const QString &rowID, const OpenPage &openPage);

private:
    /// As the folders are now.
    ReadContext context();
    QList<Source> enabledSources() const
    {
        return ProfileChoice(m_platform.defaults).enabled(LibraryReading::allProfiles({}, m_context));
    }

    /// The rows of these sources. The error stream tells which of them could not be read.
    HistoryResults history(const HistoryQuery &query, const QList<Source> &sources)
    {
        return LibraryReading::history(
            query, sources, m_context, [this](const Source &source, const ReadError &error) {
                // Whoever has ended the run knows why nothing more was read.
                if (!m_stop.stop_requested())
                    m_output.complain(source.label() % u": " % error.errorDescription());
            });
    }
    /// The pages that are asked for, the newest first. Complains where another program would take them for
    /// all.
    HistoryResults newestFirst(const HistoryQuery &query);
    /// Takes away what is more than was asked for. Returns whether there was more.
    template<typename Row>
    bool cut(QList<Row> &rows) const
    {
        const qint64 limit = m_command.limit.value_or(std::numeric_limits<qint64>::max());
        const bool isTooLong = rows.size() > limit;
        if (isTooLong)
            rows.resize(static_cast<qsizetype>(limit));
        return isTooLong;
    }
    /// The line that follows rows that were found.
    static QString countLine(qsizetype count, bool isCapped, const Stopwatch &stopwatch)
    {
        return QString::number(count) % (count == 1 ? u" match, " : u" matches, ") %
               (isCapped ? u"capped" : u"not capped") % u", in " % stopwatch.seconds() % u's';
    }
    /// The bookmarks of one source, or why there is no such source. What cannot be read is complained of.
    std::expected<QList<BookmarkNode>, QString> bookmarks(const QString &sourceID);
    /// Every profile that there is now: a browser may have been installed since the start.
    QList<Source> profilesNow();
    /// What stands for the sources that the watcher reports, sorted.
    QStringList labels(const QSet<QString> &sourceIDs) const;

    const Command &m_command;
    const Platform &m_platform;
    std::stop_token m_stop;
    JobOutput m_output;
    ReadContext m_context;
    /// Of every profile that was found so far: a list may be unreadable at the moment.
    QHash<QString, QString> m_labels;
    /// What was said of lists that could not be read.
    QSet<QString> m_saidOfLists;
};

ReadContext Job::context()
{
    ReadContext context = LibraryReading::readContext(m_platform);
    context.stop = m_stop;
    // Lists are read by the thread of the job itself.
    context.onUnreadableList = [this](const ReadError &error) {
        const QString text = error.errorDescription();
        if (!m_saidOfLists.contains(text))
            m_output.complain(text);
        m_saidOfLists.insert(text);
    };
    return context;
}

int Job::summary()
{
    const Stopwatch stopwatch;
    const QSet<QString> disabled = ProfileChoice(m_platform.defaults).disabled();
    const Snapshot snapshot = LibraryReading::readAll({.disabled = disabled, .only = {}, .previous = {}},
                                                      m_context, m_platform.clock);

    if (snapshot.browserProfiles.isEmpty())
        m_output.complain(u"No browser profiles were found in " % m_platform.folders.home());
    const QList<ProfileFacts> profiles = ProfileFacts::of(snapshot);
    if (m_command.isJson)
        return m_output.printJson(profiles);

    QList<QStringList> cells;
    QList<ProfileFacts> enabled;
    QStringList switchedOff;
    for (const ProfileFacts &profile : profiles) {
        if (!profile.isEnabled) {
            switchedOff.append(m_output.text(profile.source.label()));
            continue;
        }
        const QString newest = profile.latestVisit ? localTime(*profile.latestVisit) : u"none"_s;
        enabled.append(profile);
        cells.append({m_output.text(profile.source.label()),
                      QString::number(profile.bookmarks) % u" bookmarks, " %
                          QString::number(profile.folders) % u" folders",
                      QString::number(profile.icons) % u" site icons",
                      QString::number(profile.pages) % u" history URLs, latest visit " % newest});
    }
    const QStringList aligned = TextLayout::aligned(cells, JobOutput::widestCell);

    QStringList lines;
    for (qsizetype i = 0; i < aligned.size(); ++i) {
        lines.append(aligned[i]);
        for (const QString &line : enabled[i].problems)
            lines.append(u"  ! " % m_output.text(line));
    }
    if (!switchedOff.isEmpty())
        lines.append(u"Turned off in Settings: " % switchedOff.join(u", "_s));
    if (snapshot.safariBlocked)
        lines.append(u"Safari is blocked: grant Full Disk Access."_s);
    lines.append(u"Read in " % stopwatch.seconds() % u's');
    return m_output.print(lines);
}

std::expected<QList<BookmarkNode>, QString> Job::bookmarks(const QString &sourceID)
{
    const QList<Source> sources = enabledSources();
    const auto source = std::ranges::find(sources, sourceID, &Source::id);
    if (source == sources.end()) {
        const bool isDisabled = ProfileChoice(m_platform.defaults).disabled().contains(sourceID);
        if (isDisabled)
            return std::unexpected(sourceID % u" is turned off in Settings.");
        QStringList ids;
        for (const Source &known : sources)
            ids.append(known.id());
        return std::unexpected(u"There is no source " % sourceID % u'.' %
                               (ids.isEmpty() ? QString() : QString(u" There are: " % ids.join(u", "_s))));
    }
    const auto trees = BrowserReader::bookmarks(*source, m_context);
    for (const ReadError &error : trees ? trees->problems : trees.error())
        m_output.complain(source->label() % u": " % error.errorDescription());
    if (trees && trees->areEncrypted)
        m_output.complain(Source::displayName(source->kind) % u" keeps the bookmarks of " % source->label() %
                          u" encrypted. Only it can export them.");
    return trees ? trees->roots : QList<BookmarkNode>();
}

int Job::exportBookmarks(const std::optional<QString> &formatName, const std::optional<QString> &sourceID)
{
    const std::optional<BookmarkExport::Format> format =
        formatName ? BookmarkExport::format(*formatName) : std::nullopt;
    if (!format) {
        m_output.print({u"Formats: html, markdown, csv"_s});
        return failure;
    }
    const auto tree = bookmarks(sourceID.value_or(Source::safari().id()));
    if (!tree)
        m_output.complain(tree.error());
    const QList<BookmarkNode> roots = tree.value_or(QList<BookmarkNode>());
    if (BookmarkExport::isTooDeep(*format, roots)) {
        m_output.complain(u"The folders are nested too deeply for this format."_s);
        return failure;
    }
    // Every bookmark of the flat list names all folders around it, which takes far more room than the tree.
    QList<Bookmark> flat;
    if (*format == BookmarkExport::Format::Csv)
        flat = BookmarkNode::flattened(roots);
    return m_output.write(m_output.lines(BookmarkExport::render(*format, roots, flat)));
}

int Job::top()
{
    const Stopwatch stopwatch;
    auto query = HistoryQuery::matching({}, {}, HistoryQuery::Order::MostVisited);
    const qint64 length = m_command.limit.value_or(topLength);
    query.limit = std::max(query.limit, length);
    QList<HistoryItem> rows = history(query, enabledSources()).items;
    std::ranges::stable_sort(rows, std::ranges::greater(), &HistoryItem::visitCount);
    const QList<HistoryItem> first =
        rows.first(static_cast<qsizetype>(std::min<qint64>(rows.size(), length)));
    if (m_command.isJson)
        return m_output.printJson(first);

    // No columns: the line is the same on a terminal and in a pipe.
    QStringList lines;
    for (const HistoryItem &row : first)
        lines.append(QString::number(row.visitCount) % u"  " % m_output.text(row.source->name) % u"  " %
                     m_output.text(row.site) % u"  " % m_output.text(row.title));
    lines.append(QString::number(rows.size()) % u" URLs in " % stopwatch.seconds() % u's');
    return m_output.print(lines);
}

HistoryResults Job::newestFirst(const HistoryQuery &query)
{
    const QList<Source> sources = enabledSources();
    HistoryResults results = history(query, sources);
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < sources.size(); ++i)
        places.insert(sources[i].id(), i);
    // Sources come as they finish; pages of one time keep the order of the sources, each time the same.
    std::ranges::stable_sort(results.items, [&places](const HistoryItem &left, const HistoryItem &right) {
        return left.lastVisit != right.lastVisit
                   ? left.lastVisit > right.lastVisit
                   : places.value(left.source.id()) < places.value(right.source.id());
    });

    QHash<QString, qint64> counts;
    bool isCut = results.isCapped;
    for (const HistoryItem &item : std::as_const(results.items))
        isCut = isCut || ++counts[item.source.id()] == query.limit;
    if (m_command.isJson && !m_command.limit && isCut)
        m_output.complain(u"Of each profile only the "_s % QString::number(query.limit) %
                          u" newest rows that match were looked at. --limit says how many are wanted.");
    return results;
}

int Job::search(HistoryQuery query)
{
    const Stopwatch stopwatch;
    const PointInTime now = m_platform.clock.now();
    if (m_command.since)
        query.visited.begin = m_command.since->begin(now);
    if (m_command.until)
        query.visited.end = m_command.until->end(now);
    if (query.visited.begin && query.visited.end && *query.visited.begin >= *query.visited.end) {
        m_output.complain(u"--since has to be before --until."_s);
        return misuse;
    }
    // Of what was narrowed nothing may be missing. Rows that only mention the site go after the search, so
    // that nobody knows before how many it takes.
    if (m_command.limit && !query.site)
        query.limit = std::min(*m_command.limit, std::numeric_limits<qint64>::max() - 1) + 1;
    else if (m_command.limit || query.visited.isLimited())
        query.limit = -1;
    HistoryResults results = newestFirst(query);
    if (m_command.limit)
        results.isCapped = cut(results.items);
    if (m_command.isJson)
        return m_output.printJson(results.items);

    QList<QStringList> cells;
    cells.reserve(results.items.size());
    for (const HistoryItem &item : std::as_const(results.items))
        cells.append({localTime(item.lastVisit), m_output.text(item.source.label()),
                      m_output.titleCell(item.title), m_output.text(item.url)});
    QStringList lines = TextLayout::aligned(cells, JobOutput::widestCell);
    lines.append(countLine(results.items.size(), results.isCapped, stopwatch));
    return m_output.print(lines);
}

int Job::searchBookmarks(const QString &words)
{
    const Stopwatch stopwatch;
    QList<Bookmark> found = BookmarkSearch::run(
        words, enabledSources(), m_context,
        [this](const Source &source, const std::expected<BookmarkTrees, ReadErrors> &trees) {
            if (m_stop.stop_requested())
                return;
            for (const ReadError &error : trees ? trees->problems : trees.error())
                m_output.complain(source.label() % u": " % error.errorDescription());
            if (trees && trees->areEncrypted)
                m_output.complain(Source::displayName(source.kind) % u" keeps the bookmarks of " %
                                  source.label() % u" encrypted. Only it can find them.");
        });
    const bool isCapped = cut(found);
    if (m_command.isJson)
        return m_output.printJson(found);

    QList<QStringList> cells;
    cells.reserve(found.size());
    for (const Bookmark &bookmark : std::as_const(found))
        cells.append({bookmark.dateAdded ? localTime(*bookmark.dateAdded) : u"unknown time"_s,
                      m_output.text(bookmark.source.label()), m_output.titleCell(bookmark.folder),
                      m_output.titleCell(bookmark.title), m_output.text(bookmark.url)});
    QStringList lines = TextLayout::aligned(cells, JobOutput::widestCell);
    lines.append(countLine(found.size(), isCapped, stopwatch));
    return m_output.print(lines);
}

int Job::open(const QString &rowID, const OpenPage &openPage)
{
    std::expected<FoundRow, QString> row;
    const auto read = [&] {
        row = FoundRow::ofID(rowID, LibraryReading::allProfiles({}, m_context),
                             ProfileChoice(m_platform.defaults).disabled(), m_context);
    };
    try {
        // What is read is read by a thread that may write nothing; a browser must be free to.
        const std::jthread reading([&] {
            Confinement::ofReadingThread(m_context.folders.temporary);
            read();
        });
    } catch (const std::system_error &) {
        read();
    }
    if (m_stop.stop_requested())
        return failure;
    const auto opened = row ? openPage(row->url, row->source) : std::unexpected(row.error());
    if (opened)
        return success;
    m_output.complain(opened.error());
    return failure;
}

QList<Source> Job::profilesNow()
{
    const QList<Source> profiles = LibraryReading::allProfiles({}, context());
    for (const Source &source : profiles)
        m_labels.insert(source.id(), source.label());
    return profiles;
}

QStringList Job::labels(const QSet<QString> &sourceIDs) const
{
    QStringList result;
    for (const QString &id : sourceIDs)
        result.append(m_output.text(m_labels.value(id, id)));
    result.sort();
    return result;
}

int Job::watch(const std::optional<QString> &duration)
{
    static const QRegularExpression decimal(
        QRegularExpression::anchoredPattern(u"[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?"));
    double seconds = defaultWatchSeconds;
    if (duration && decimal.match(*duration).hasMatch())
        seconds = duration->toDouble();
    // The longest time that a timer can be set for is some 24 days.
    constexpr double longest = 2'000'000;
    const auto milliseconds = static_cast<qint64>(std::clamp(seconds, 0.0, longest) * 1000);

    int status = success;
    bool isLimitReached = false;
    QEventLoop loop;
    const auto report = [&](BrowserWatcher &watcher, const QSet<QString> &sourceIDs) {
        // One that lies elsewhere may be new, too.
        watcher.setProfiles(profilesNow());
        status =
            m_output.print({localTime(m_platform.clock.now()) % u"  " % labels(sourceIDs).join(u", "_s)});
        if (!m_output.canWrite())
            loop.quit();
    };
    const auto endAtLimit = [&] {
        isLimitReached = true;
        m_output.complain(
            u"The browsers' folders cannot be watched: the system has no more watches to give. "
            "fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are."_s);
        loop.quit();
    };
    const auto tellOfSilence = [this](const QStringList &folders) {
        for (const QString &folder : folders)
            m_output.complain(
                folder % u" is looked at once a minute: the system does not tell of every change in it.");
    };
    BrowserWatcher watcher(
        m_platform, [&](const QSet<QString> &sourceIDs) { report(watcher, sourceIDs); }, endAtLimit,
        tellOfSilence);
    if (!watcher.isWatching())
        m_output.complain(
            u"The browsers' folders cannot be watched: the system reports no changes in them."_s);
    else
        watcher.setProfiles(profilesNow());
    if (!watcher.isWatching() || isLimitReached)
        return failure;
    m_platform.clock.after(std::chrono::milliseconds(milliseconds), &loop, [&loop] { loop.quit(); });
    const std::stop_callback end(m_stop,
                                 [&loop] { QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection); });
    m_output.complain(
        u"Watching the browsers' folders for "_s %
        QString::number(static_cast<double>(milliseconds) / 1000, 'f', QLocale::FloatingPointShortest) %
        u" s.");
    loop.exec();
    return isLimitReached ? failure : status;
}

int runJob(const Command &command, Job &job, const OpenPage &openPage)
{
    switch (command.job) {
    case Command::Job::Summary:
        return job.summary();
    case Command::Job::Export:
        return job.exportBookmarks(command.argument, command.sourceID);
    case Command::Job::Top:
        return job.top();
    case Command::Job::Search:
        return job.search(
            HistoryQuery::matching(command.argument.value_or(QString()), {}, HistoryQuery::Order::Latest));
    case Command::Job::Site:
        return job.search(HistoryQuery::matching({}, command.argument, HistoryQuery::Order::Latest));
    case Command::Job::Watch:
        return job.watch(command.argument);
    case Command::Job::Bookmarks:
        return job.searchBookmarks(command.argument.value_or(QString()));
    case Command::Job::Open:
        return job.open(command.argument.value_or(QString()), openPage);
    case Command::Job::DesktopSearch:
    case Command::Job::Help:
    case Command::Job::Version:
    case Command::Job::Windows:
    case Command::Job::Unknown:
    case Command::Job::Misuse:
        break;
    }
    Q_UNREACHABLE();
}

} // namespace

int run(const Command &command, const Platform &platform, Console &console, const std::stop_token &stop,
        const OpenPage &openPage)
{
    Job job(command, platform, console, stop);
    const int status = runJob(command, job, openPage);
    // Copies that a run could not put away, because it was killed, wait for nobody's window.
    SQLiteSnapshot::removeLeftovers(platform.files, platform.folders.temporary());
    return status;
}

} // namespace roamlet::Diagnostics
