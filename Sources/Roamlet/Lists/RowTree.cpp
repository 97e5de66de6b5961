// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/RowTree.h"

#include "Lists/SortedRows.h"

#include <algorithm>
#include <utility>

namespace roamlet
{

RowTree::RowTree() : m_nodes(1) {}

std::optional<RowTree> RowTree::ofBookmarks(const QList<BookmarkNode> &nodes,
                                            const QList<SortComparator> &order, const Collation &collation,
                                            const std::stop_token &stop)
{
    RowTree tree;
    // The folders whose content is still missing, in the order of their nodes. Foreign trees may be deep, so
    // nothing here recurses.
    struct Open {
        Number number;
        const QList<BookmarkNode> *children;
    };
    std::vector<Open> folders{{root, &nodes}};
    for (std::size_t i = 0; i < folders.size(); ++i) {
        const Open folder = folders[i];
        const std::optional sorted = sortedRows(allRows(*folder.children), order, collation, stop);
        if (!sorted || stop.stop_requested())
            return {};
        tree.beginChildren(folder.number);
        std::optional<QString> id;
        if (folder.number != root)
            id = tree.row(folder.number).id;
        for (const BookmarkNode *node : *sorted) {
            if (node->isFolder() && !node->children->isEmpty())
                folders.push_back({tree.m_nodes.size(), &*node->children});
            tree.append(folder.number, TableRow::of(*node, id));
        }
    }
    tree.countLinks();
    return tree;
}

const VisitStrip &RowTree::visits(Number section) const
{
    static const VisitStrip none;
    return section > 0 && section <= m_visits.size() ? m_visits[section - 1] : none;
}

std::vector<RowTree::Number> RowTree::inReadingOrder(std::unordered_set<Number> numbers) const
{
    std::vector<Number> result;
    result.reserve(numbers.size());
    std::vector<Number> open{root};
    while (!open.empty() && !numbers.empty()) {
        const Number number = open.back();
        open.pop_back();
        if (numbers.erase(number) > 0)
            result.push_back(number);
        for (int child = m_nodes[number].childCount - 1; child >= 0; --child)
            open.push_back(m_nodes[number].firstChild + static_cast<Number>(child));
    }
    return result;
}

void RowTree::countLinks()
{
    // Children have higher numbers than the node that they lie in.
    for (Number number = m_nodes.size() - 1; number != root; --number) {
        const Node &node = m_nodes[number];
        m_nodes[node.parent].linksBelow += node.row.kind == TableRow::Kind::Link ? 1 : node.linksBelow;
    }
}

void RowTree::beginChildren(Number parent)
{
    m_nodes[parent].firstChild = m_nodes.size();
}

void RowTree::append(Number parent, TableRow row)
{
    m_mostVisits = std::max(m_mostVisits, row.visits);
    const int depth = parent == root ? 0 : m_nodes[parent].depth + 1;
    m_nodes.push_back({.row = std::move(row),
                       .parent = parent,
                       .position = m_nodes[parent].childCount++,
                       .firstChild = 0,
                       .childCount = 0,
                       .depth = depth});
}

} // namespace roamlet
