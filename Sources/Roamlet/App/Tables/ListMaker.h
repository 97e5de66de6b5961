// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/RowTree.h"
#include "Lists/ListKeys.h"
#include "Lists/Refine.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

namespace roamlet
{

/// What distinguishes a list from the one that was shown before it.
enum class ListChange {
    Reloaded, ///< only what the browsers' files hold now
    Asked     ///< something that the user asked for
};

/// Makes what a table shows out of rows, in the background, and knows for which key it was made. A newer list
/// supersedes one that is still on its way.
template<typename Row>
class ListMaker
{
public:
    using Key = RefineKey<Row>;
    /// Cuts refined rows into what is shown. Called away from the main thread.
    using Cut = std::function<RowTree(const QList<Row> &rows)>;
    /// Takes the new list on the main thread; it is the previous one when nothing has changed.
    using Deliver = std::function<void(SharedRowTree tree, ListChange change)>;

    ListMaker(RefineRunner &runner, std::shared_ptr<const Collation> collation)
        : m_runner(runner), m_collation(std::move(collation))
    {
    }
    ListMaker(const ListMaker &) = delete;
    ListMaker &operator=(const ListMaker &) = delete;
    ~ListMaker() { cancel(); }

    /// Whether the list of this key still has to be made. Any other that is on its way is not wanted any
    /// more.
    bool needs(const Key &key)
    {
        if (m_coming == key)
            return false;
        cancel();
        return m_shown != key;
    }
    /// The key of what was delivered last.
    const std::optional<Key> &shown() const { return m_shown; }

    /// `search` is the text that the rows still have to be searched for.
    void make(const Key &key, QList<Row> rows, const QString &search, Cut cut, Deliver deliver)
    {
        const std::uint64_t turn = begin(key);
        m_refining =
            refine(m_runner, std::move(rows), search, key.order, &Row::searchKey, m_collation,
                   [this, turn, cut = std::move(cut),
                    deliver = std::move(deliver)](std::optional<QList<Row>> refined) {
                       if (refined && turn == m_turn)
                           build(turn, [cut, rows = std::move(*refined)] { return cut(rows); }, deliver);
                   });
    }

    /// For lists that are refined in one go with being built, which may be stopped.
    using Build = std::function<std::optional<RowTree>(const std::stop_token &stop)>;
    void make(const Key &key, Build makeTree, Deliver deliver)
    {
        const std::uint64_t turn = begin(key);
        build(
            turn, [makeTree = std::move(makeTree), stop = m_refining.get_token()] { return makeTree(stop); },
            std::move(deliver));
    }

    /// What is on its way is not wanted any more.
    void cancel()
    {
        m_refining.request_stop();
        m_refining = {};
        m_coming.reset();
        ++m_turn;
    }
    /// What is shown has to be made again, although its key is the same.
    void invalidate()
    {
        cancel();
        m_shown.reset();
    }

private:
    std::uint64_t begin(const Key &key)
    {
        cancel();
        m_coming = key;
        return m_turn;
    }

    template<typename Work>
    void build(std::uint64_t turn, Work work, Deliver deliver)
    {
        auto built = std::make_shared<SharedRowTree>();
        m_runner.run(
            [built, work = std::move(work), previous = m_tree] {
                std::optional<RowTree> tree = work();
                if (tree)
                    *built = *tree == *previous ? previous : std::make_shared<RowTree>(std::move(*tree));
            },
            [this, built, turn, deliver = std::move(deliver)] {
                if (turn != m_turn || !*built)
                    return;
                m_tree = *built;
                const std::optional<Key> before = std::exchange(m_shown, std::exchange(m_coming, {}));
                deliver(m_tree, changeSince(before));
            });
    }

    ListChange changeSince(std::optional<Key> before) const
    {
        if (before)
            before->generation = m_shown->generation;
        return before == m_shown ? ListChange::Reloaded : ListChange::Asked;
    }

    RefineRunner &m_runner;
    std::shared_ptr<const Collation> m_collation;
    /// Counts what was begun or cancelled: only the latest may deliver.
    std::uint64_t m_turn = 0;
    std::stop_source m_refining;
    std::optional<Key> m_coming;
    std::optional<Key> m_shown;
    SharedRowTree m_tree = std::make_shared<RowTree>();
};

} // namespace roamlet
