// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/HistorySearch.h"
#include "Lists/ListTree.h"
#include "Lists/ListWish.h"
#include "Lists/RowTree.h"
#include "Model/HistoryQuery.h"
#include "Platform/BackgroundTasks.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace roamlet
{

class Clock;
class Library;

/// What distinguishes a list from the one that was shown before it.
enum class ListChange {
    Reloaded, ///< only what the browsers' files hold now
    Asked     ///< something that the user asked for
};

/// A finished list.
struct ShownList {
    /// The previous one when nothing in it has changed.
    SharedRowTree tree;
    /// Whether a search stopped at its limit, so that there may be more.
    bool isCapped = false;
    /// Whether it is empty for want of memory.
    bool lacksMemory = false;
    ListChange change = ListChange::Asked;
    /// What time it was for whoever cut it into days.
    PointInTime now;
};

/// The one way to a list: takes what is wished for and delivers what a table shows, made away from the main
/// thread in one go. A newer wish supersedes an older one. Lives on the main thread, with one table, whose
/// wishes are all of the same mode.
class ListLoader final : public QObject
{
    Q_OBJECT

public:
    /// How long a typed text has to stand before the databases are searched for it.
    static constexpr std::chrono::milliseconds searchDelay{250};
    /// How long it has to stand before bookmarks are.
    static constexpr std::chrono::milliseconds refineDelay{150};

    /// What becomes of a wish.
    enum class Progress {
        Done,     ///< its list is shown
        Looking,  ///< memory may have it: it is shown in a moment, or more has to be done
        Waiting,  ///< for the user to stop typing
        Working,  ///< on something that the user asked for
        Reloading ///< on what the browsers' files hold now
    };

    /// `calendar` is asked on the main thread for each list.
    ListLoader(Library &library, const Clock &clock, std::shared_ptr<const Collation> collation,
               std::function<UserCalendar()> calendar, QObject *parent = nullptr);

    /// Sees to it that the list of this wish is shown.
    void load(const ListWish &wish);
    /// What is on its way is not wanted any more.
    void cancel();
    /// The shown list has to be made again although the same is wished for, because its order of folders or
    /// the day is another one.
    void outdate();
    Progress progress() const { return m_progress; }

Q_SIGNALS:
    void listLoaded(const roamlet::ShownList &list);
    void progressChanged();

private:
    struct Found {
        SearchKey key;
        HistorySearch::Answer answer;
    };
    /// How the rows of a history are come by.
    enum class Effort {
        Memory,   ///< only memory is asked
        Snapshot, ///< where memory does not have them, the snapshot's rows are shown first
        Databases ///< where memory does not have them, the databases are asked
    };
    struct Job;
    struct Result;

    static Result resultOf(const Job &job, const std::stop_token &stop);
    /// The same, where there is enough memory.
    static Result made(const Job &job, const std::stop_token &stop);

    /// Whether nothing has to be searched for: the rows of bookmarks are always there.
    bool hasRows(const ListWish &wish) const;
    /// Whether the list differs from the shown one in what the browsers' files hold, and in nothing else.
    bool isReload(const ListWish &wish) const;
    /// Makes the list once the user has stopped typing.
    void makeLater(std::chrono::milliseconds delay);
    void makeNow();
    void startJob(Effort effort);
    void take(const Result &result);
    /// Shows that there is not enough memory for the list.
    void giveUp(const Result &result);
    void drop();
    void setProgress(Progress progress);

    Library &m_library;
    const Clock &m_clock;
    std::shared_ptr<const Collation> m_collation;
    std::function<UserCalendar()> m_calendar;

    /// What is on its way.
    std::optional<ListWish> m_wish;
    /// Lives as long as the wait for typing to end.
    std::unique_ptr<QObject> m_wait;
    std::stop_source m_task;
    Progress m_progress = Progress::Done;
    /// The last search that ended.
    std::optional<Found> m_found;
    /// What is shown.
    std::optional<RefineKey> m_shown;
    SharedRowTree m_tree = std::make_shared<RowTree>();
    /// Whether it shows the snapshot's rows while the databases are asked for m_wish.
    bool m_isStandIn = false;
    /// Whether what is shown has to be made again all the same.
    bool m_isOutdated = false;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
