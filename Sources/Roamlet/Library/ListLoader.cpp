// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/ListLoader.h"

#include "Library/Library.h"
#include "Lists/Refine.h"
#include "Platform/Clock.h"

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

struct ListLoader::Made {
    ListWish wish;
    Effort effort = Effort::Databases;
    /// What a history has for the wish; absent where its databases still have to be asked.
    std::optional<HistorySearch::Answer> answer;
    /// Absent where there is nothing to show yet.
    SharedRowTree tree;
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
    // The rows are on their way: only what is made of them is another thing now.
    if (m_wish && !hasRows(wish) && m_wish->searchKey() == wish.searchKey()) {
        m_wish = wish;
        return;
    }
    cancel();
    if (!m_isOutdated && m_shown == wish.refineKey() && hasRows(wish)) {
        setProgress(Progress::Done);
        return;
    }
    m_wish = wish;
    const bool isTyped = isSearchText(wish.search);
    if (isTyped && !wish.isOfHistory())
        await(refineDelay);
    else if (isTyped && !hasRows(wish))
        await(searchDelay);
    else
        begin();
}

void ListLoader::await(std::chrono::milliseconds delay)
{
    m_wait = std::make_unique<QObject>();
    m_clock.after(delay, m_wait.get(), [this] { begin(); });
    // Nobody has to wait where no file is read: most letters are answered before the next one is typed.
    if (m_wish->isOfHistory() && m_library.isReadyForSearch())
        make(Effort::Memory);
    else
        setProgress(Progress::Waiting);
}

void ListLoader::begin()
{
    // What a reload brings may take its time: a list is there.
    const bool isReloaded = isReload(*m_wish);
    setProgress(isReloaded ? Progress::Reloading : Progress::Working);
    make(isReloaded ? Effort::Databases : Effort::Snapshot);
}

void ListLoader::make(Effort effort)
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
        this, [job = std::move(job)](const std::stop_token &stop) { return made(job, stop); },
        [this](const Made &made) { take(made); });
}

ListLoader::Made ListLoader::made(const Job &job, const std::stop_token &stop)
{
    Made made{.wish = job.wish, .effort = job.effort, .answer = job.found, .tree = {}};
    std::optional<RowTree> tree;
    if (job.wish.mode == ListWish::Mode::BookmarkTree) {
        tree = RowTree::ofBookmarks(job.bookmarkTree, job.wish.order, *job.setting.collation, stop);
    } else if (job.wish.mode == ListWish::Mode::Bookmarks) {
        tree = ListTree::ofBookmarks(job.bookmarks, job.wish, job.setting, stop);
    } else {
        std::optional<HistoryResults> standIn;
        if (job.search) {
            made.answer = job.search->known();
            if (!made.answer && job.effort == Effort::Snapshot)
                standIn = job.search->standIn();
            if (!made.answer && !standIn && job.effort != Effort::Memory)
                made.answer = job.search->run(stop);
        }
        if (made.answer || standIn)
            tree = ListTree::ofHistory((standIn ? *standIn : made.answer->results).items, job.wish,
                                       job.setting, stop);
    }
    if (tree)
        made.tree = *tree == *job.shown ? job.shown : std::make_shared<RowTree>(std::move(*tree));
    return made;
}

void ListLoader::take(const Made &made)
{
    if (made.answer) {
        m_found = {made.wish.searchKey(), *made.answer};
        m_wait.reset();
    }
    std::optional<ShownList> list;
    // Or else it was asked to be sorted or cut in another way while the rows were on their way.
    const bool isWished = made.wish == m_wish;
    if (isWished && made.tree) {
        list = {.tree = made.tree,
                .isCapped = made.answer && made.answer->results.isCapped,
                .change = isReload(made.wish) ? ListChange::Reloaded : ListChange::Asked};
        m_shown = made.wish.refineKey();
        m_tree = made.tree;
        m_isOutdated = false;
    }
    if (hasRows(made.wish) && isWished) {
        m_wish.reset();
        setProgress(Progress::Done);
    } else if (made.effort == Effort::Memory && !made.answer) {
        // What memory has is old, or not yet all there is.
        m_library.expectSearch();
        setProgress(Progress::Waiting);
    } else {
        make(Effort::Databases);
    }
    // Whoever hears of it may wish for the next one.
    if (list)
        Q_EMIT listLoaded(*list);
}

void ListLoader::outdate()
{
    cancel();
    m_isOutdated = true;
}

void ListLoader::cancel()
{
    m_wish.reset();
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
