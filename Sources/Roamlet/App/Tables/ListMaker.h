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
    /// What a list of this key would differ in from the shown one.
    ListChange changeTo(const Key &key) const { return change(m_shown, key); }
    /// The shown list, and any that is on its way, is made of other rows than there are now.
    void outdate()
    {
        cancel();
        // No list is of this one.
        if (m_shown)
            m_shown->generation = 0;
    }

    /// `search` is the text that the rows still have to be searched for.
    void make(const Key &key, QList<Row> rows, const QString &search, Cut cut, Deliver deliver)
    {
        const std::uint64_t turn = begin(key);
        m_refining = refine(
            m_runner, std::move(rows), search, key.order, &Row::searchKey, m_collation,
            [this, turn, deliver = std::move(deliver)](std::optional<SharedRowTree> tree) {
                if (tree)
                    take(turn, *tree, deliver);
            },
            [cut = std::move(cut), previous = m_tree](const QList<Row> &refined) {
                return shared(cut(refined), previous);
            });
    }

    /// For lists that are refined in one go with being built, which may be stopped.
    using Build = std::function<std::optional<RowTree>(const std::stop_token &stop)>;
    void make(const Key &key, Build makeTree, Deliver deliver)
    {
        const std::uint64_t turn = begin(key);
        auto built = std::make_shared<SharedRowTree>();
        m_runner.run(
            [built, makeTree = std::move(makeTree), previous = m_tree, stop = m_refining.get_token()] {
                if (std::optional<RowTree> tree = makeTree(stop))
                    *built = shared(std::move(*tree), previous);
            },
            [this, built, turn, deliver = std::move(deliver)] {
                if (*built)
                    take(turn, *built, deliver);
            });
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

    /// The previous tree when nothing has changed: what is shown then stays as it is.
    static SharedRowTree shared(RowTree tree, const SharedRowTree &previous)
    {
        return tree == *previous ? previous : std::make_shared<RowTree>(std::move(tree));
    }

    void take(std::uint64_t turn, const SharedRowTree &tree, const Deliver &deliver)
    {
        if (turn != m_turn)
            return;
        m_tree = tree;
        const std::optional<Key> before = std::exchange(m_shown, std::exchange(m_coming, {}));
        deliver(m_tree, change(before, *m_shown));
    }

    static ListChange change(std::optional<Key> before, const Key &after)
    {
        if (before)
            before->generation = after.generation;
        return before == after ? ListChange::Reloaded : ListChange::Asked;
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
