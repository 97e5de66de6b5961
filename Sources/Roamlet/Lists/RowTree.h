// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowGroup.h"
#include "Lists/SortComparator.h"
#include "Lists/TableRow.h"
#include "Model/Collation.h"

#include <QList>

#include <memory>
#include <optional>
#include <stop_token>
#include <unordered_set>
#include <vector>

namespace roamlet
{

/// What a table shows, as one unchanging value that any thread may build: rows, each with the rows below it.
/// Children lie side by side, so that a place is found without searching.
class RowTree
{
public:
    using Number = std::size_t;

    struct Node {
        TableRow row;
        /// The number of the node above; the root's is its own.
        Number parent = 0;
        /// How many siblings come before.
        int position = 0;
        /// How many links lie below it, however deep.
        int linksBelow = 0;
        Number firstChild = 0;
        int childCount = 0;
        int depth = 0;

        bool operator==(const Node &) const = default;
    };

    /// Stands for the whole list and is not shown.
    static constexpr Number root = 0;

    /// An empty list.
    RowTree();

    /// Rows without sections.
    template<typename Row>
    static RowTree ofRows(const RowPointers<Row> &rows)
    {
        RowTree tree;
        tree.m_nodes.reserve(1 + rows.size());
        tree.appendChildren(root, rows);
        tree.countLinks();
        return tree;
    }

    template<typename Row>
    static RowTree ofGroups(const QList<RowGroup<Row>> &groups)
    {
        std::size_t count = 1 + static_cast<std::size_t>(groups.size());
        for (const RowGroup<Row> &group : groups)
            count += group.rows.size();
        RowTree tree;
        tree.m_nodes.reserve(count);
        tree.beginChildren(root);
        tree.m_visits.reserve(static_cast<std::size_t>(groups.size()));
        for (const RowGroup<Row> &group : groups) {
            tree.append(root, TableRow::section(group.title, group.site));
            tree.m_visits.push_back(group.visits);
        }
        Number section = tree.m_nodes[root].firstChild;
        for (const RowGroup<Row> &group : groups)
            tree.appendChildren(section++, group.rows);
        tree.countLinks();
        return tree;
    }

    /// Folders and bookmarks as they lie in each other, each folder's content in the order of `order`.
    /// Nothing when `stop` is requested on the way.
    static std::optional<RowTree> ofBookmarks(const QList<BookmarkNode> &nodes,
                                              const QList<SortComparator> &order, const Collation &collation,
                                              const std::stop_token &stop = {});

    bool operator==(const RowTree &) const = default;

    const Node &node(Number number) const { return m_nodes[number]; }
    const TableRow &row(Number number) const { return m_nodes[number].row; }
    /// All nodes, the root first, parents before their children.
    const std::vector<Node> &nodes() const { return m_nodes; }
    /// When the rows of a section were visited; without ticks for anything but a section by day.
    const VisitStrip &visits(Number section) const;
    /// How many links there are, whatever is open or closed.
    qsizetype linkCount() const { return m_nodes[root].linksBelow; }
    /// The visits of the row with the most.
    qint64 mostVisits() const { return m_mostVisits; }
    /// These nodes from top to bottom: numbers go level by level, people read otherwise.
    std::vector<Number> inReadingOrder(std::unordered_set<Number> numbers) const;

private:
    template<typename Row>
    void appendChildren(Number parent, const RowPointers<Row> &rows)
    {
        beginChildren(parent);
        for (const Row *row : rows)
            append(parent, TableRow::of(*row));
    }
    void beginChildren(Number parent);
    void append(Number parent, TableRow row);
    /// Once all nodes are there.
    void countLinks();

    std::vector<Node> m_nodes;
    /// Of the sections, which are the nodes behind the root.
    std::vector<VisitStrip> m_visits;
    qint64 m_mostVisits = 0;
};

using SharedRowTree = std::shared_ptr<const RowTree>;

} // namespace roamlet
