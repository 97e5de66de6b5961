// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/ListLoader.h"

#include "Library/Library.h"
#include "Lists/Refine.h"
#include "Platform/Clock.h"

#include <new>
#include <utility>

namespace roamlet
{

/// What a list is made of.
struct ListLoader::Job {
    ListWish wish;
    ListTree::Setting setting;
    /// What is shown now.
    SharedRowTree shown;
    /// Of bookmarks,
    QList<Bookmark> bookmarks;
    QList<BookmarkNode> bookmarkTree;
    /// or of a history: what was found already, or else what is to be found.
    std::optional<HistorySearch::Answer> found;
    std::optional<HistorySearch> search;
    Effort effort = Effort::Databases;
};

struct ListLoader::Result {
    ListWish wish;
    Effort effort = Effort::Databases;
    PointInTime now;
    /// What a history has for the wish; absent where its databases still have to be asked.
    std::optional<HistorySearch::Answer> answer;
    /// Absent where there is nothing to show yet.
    SharedRowTree tree;
    /// Whether nothing could be made for want of memory.
    bool lacksMemory = false;
};

ListLoader::ListLoader(Library &library, const Clock &clock, std::shared_ptr<const Collation> collation,
                       std::function<UserCalendar()> calendar, QObject *parent)
    : QObject(parent),
      m_library(library),
      m_clock(clock),
      m_collation(std::move(collation)),
      m_calendar(std::move(calendar))
{
}

bool ListLoader::hasRows(const ListWish &wish) const
{
    return !wish.isOfHistory() || (m_found && m_found->key == wish.searchKey());
}

bool ListLoader::isReload(const ListWish &wish) const
{
    RefineKey key = wish.refineKey();
    if (m_shown)
        key.generation = m_shown->generation;
    return m_shown == key;
}

void ListLoader::load(const ListWish &wish)
{
    if (m_wish == wish)
        return;
    // The rows are on their way: they are only to be sorted or cut in another way.
    if (m_wish && !hasRows(wish) && m_wish->searchKey() == wish.searchKey()) {
        m_wish = wish;
        if (m_isStandIn)
            startJob(Effort::Snapshot);
        return;
    }
    drop();
    if (!m_isOutdated && m_shown == wish.refineKey() && hasRows(wish)) {
        setProgress(Progress::Done);
        return;
    }
    m_wish = wish;
    const bool isTyped = isSearchText(wish.search);
    if (isTyped && !wish.isOfHistory())
        makeLater(refineDelay);
    else if (isTyped && !hasRows(wish))
        makeLater(searchDelay);
    else
        makeNow();
}

void ListLoader::makeLater(std::chrono::milliseconds delay)
{
    m_wait = std::make_unique<QObject>();
    m_clock.after(delay, m_wait.get(), [this] { makeNow(); });
    if (!m_wish->isOfHistory()) {
        setProgress(Progress::Waiting);
        return;
    }
    // Nobody has to wait where no file is read: most letters are answered before the next one is typed.
    if (m_library.isReadyForSearch()) {
        startJob(Effort::Memory);
        setProgress(Progress::Looking);
    } else {
        m_library.renewSearch();
        setProgress(Progress::Waiting);
    }
}

void ListLoader::makeNow()
{
    // What a reload brings may take its time: a list is there.
    const bool isReloaded = isReload(*m_wish);
    const bool mayStandIn = !isReloaded && !isSearchText(m_wish->search);
    startJob(mayStandIn ? Effort::Snapshot : Effort::Databases);
    setProgress(isReloaded ? Progress::Reloading : Progress::Working);
}

void ListLoader::startJob(Effort effort)
{
    const ListWish &wish = *m_wish;
    Job job;
    job.wish = wish;
    job.setting = {m_collation, m_calendar(), m_clock.now()};
    job.shown = m_tree;
    job.effort = effort;
    switch (wish.mode) {
    case ListWish::Mode::Recent:
    case ListWish::Mode::MostVisited:
        if (hasRows(wish)) {
            job.found = m_found->answer;
        } else {
            const auto order = wish.mode == ListWish::Mode::Recent ? HistoryQuery::Order::Latest
                                                                   : HistoryQuery::Order::MostVisited;
            job.search =
                m_library.queryHistory(HistoryQuery::matching(wish.search, wish.site, order), wish.sourceID);
            if (m_found)
                job.search->narrow(m_found->answer.findings);
        }
        break;
    case ListWish::Mode::Bookmarks:
        job.bookmarks = m_library.snapshot().bookmarks;
        break;
    case ListWish::Mode::BookmarkTree:
        job.bookmarkTree = m_library.bookmarkTree(wish.sourceID);
        break;
    }
    m_task.request_stop();
    m_task = m_tasks.run(
        this, [job = std::move(job)](const std::stop_token &stop) { return resultOf(job, stop); },
        [this](const Result &result) { take(result); });
}

ListLoader::Result ListLoader::resultOf(const Job &job, const std::stop_token &stop)
{
    try {
        return made(job, stop);
    } catch (const std::bad_alloc &) {
        return {.wish = job.wish,
                .effort = job.effort,
                .now = job.setting.now,
                .answer = {},
                .tree = {},
                .lacksMemory = true};
    }
}

ListLoader::Result ListLoader::made(const Job &job, const std::stop_token &stop)
{
    Result result{
        .wish = job.wish, .effort = job.effort, .now = job.setting.now, .answer = job.found, .tree = {}};
    std::optional<RowTree> tree;
    if (job.wish.mode == ListWish::Mode::BookmarkTree) {
        tree = RowTree::ofBookmarks(job.bookmarkTree, job.wish.order, *job.setting.collation, stop);
    } else if (job.wish.mode == ListWish::Mode::Bookmarks) {
        tree = ListTree::ofBookmarks(job.bookmarks, job.wish, job.setting, stop);
    } else {
        std::optional<HistoryResults> standIn;
        if (job.search) {
            if (job.effort != Effort::Databases)
                result.answer = job.search->known();
            if (!result.answer && job.effort == Effort::Snapshot)
                standIn = job.search->standIn();
            if (!result.answer && !standIn && job.effort != Effort::Memory)
                result.answer = job.search->run(stop);
        }
        if (result.answer || standIn)
            tree = ListTree::ofHistory((standIn ? *standIn : result.answer->results).items, job.wish,
                                       job.setting, stop);
    }
    if (tree)
        result.tree = *tree == *job.shown ? job.shown : std::make_shared<RowTree>(std::move(*tree));
    return result;
}

void ListLoader::take(const Result &result)
{
    if (result.lacksMemory && result.wish == m_wish) {
        giveUp(result);
        return;
    }
    if (result.answer) {
        m_found = {result.wish.searchKey(), *result.answer};
        m_wait.reset();
    }
    std::optional<ShownList> list;
    // Or else it was asked to be sorted or cut in another way while the rows were on their way.
    const bool isWished = result.wish == m_wish;
    if (isWished && result.tree) {
        list = {.tree = result.tree,
                .isCapped = result.answer && result.answer->results.isCapped,
                .change = isReload(result.wish) ? ListChange::Reloaded : ListChange::Asked,
                .now = result.now};
        m_shown = result.wish.refineKey();
        m_tree = result.tree;
        m_isStandIn = !hasRows(result.wish);
        m_isOutdated = false;
    }
    Progress progress = m_progress;
    if (hasRows(result.wish) && isWished) {
        m_wish.reset();
        progress = Progress::Done;
    } else if (result.effort == Effort::Memory && !result.answer) {
        m_library.renewSearch();
        progress = Progress::Waiting;
    } else {
        startJob(isWished ? Effort::Databases : result.effort);
    }
    // Whoever hears of it may wish for the next one.
    const bool isChanged = std::exchange(m_progress, progress) != progress;
    if (list)
        Q_EMIT listLoaded(*list);
    if (isChanged)
        Q_EMIT progressChanged();
}

void ListLoader::giveUp(const Result &result)
{
    const ListChange change = isReload(result.wish) ? ListChange::Reloaded : ListChange::Asked;
    m_tree = std::make_shared<RowTree>();
    m_shown = result.wish.refineKey();
    m_isStandIn = false;
    // There may be more the next time.
    m_isOutdated = true;
    m_found.reset();
    m_wait.reset();
    m_wish.reset();
    Q_EMIT listLoaded({.tree = m_tree, .lacksMemory = true, .change = change, .now = result.now});
    setProgress(Progress::Done);
}

void ListLoader::cancel()
{
    drop();
    setProgress(Progress::Done);
}

void ListLoader::outdate()
{
    cancel();
    m_isOutdated = true;
}

void ListLoader::drop()
{
    m_wish.reset();
    m_isStandIn = false;
    m_wait.reset();
    m_task.request_stop();
    m_task = {};
}

void ListLoader::setProgress(Progress progress)
{
    if (progress == m_progress)
        return;
    m_progress = progress;
    Q_EMIT progressChanged();
}

} // namespace roamlet
