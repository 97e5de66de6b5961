// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace roamlet
{

/// The tree at and below one entry of a browser's file. `nodeOf(entry, isRoot)` answers an entry's node, a
/// folder still without its children, or nothing for an entry to leave out; `childrenOf(entry)` answers a
/// vector of entries. Without recursion: the file decides how deep it goes.
template<typename Entry, typename NodeOf, typename ChildrenOf>
std::optional<BookmarkNode> bookmarkTree(const Entry &rootEntry, NodeOf nodeOf, ChildrenOf childrenOf)
{
    struct OpenFolder {
        BookmarkNode node;
        std::vector<Entry> entries;
        std::size_t next = 0;
    };
    std::optional<BookmarkNode> root = nodeOf(rootEntry, true);
    if (!root || !root->isFolder())
        return root;
    std::vector<OpenFolder> open;
    open.push_back({std::move(*root), childrenOf(rootEntry)});
    for (;;) {
        OpenFolder &folder = open.back();
        if (folder.next < folder.entries.size()) {
            const Entry entry = folder.entries[folder.next++];
            std::optional<BookmarkNode> child = nodeOf(entry, false);
            if (child && child->isFolder())
                open.push_back({std::move(*child), childrenOf(entry)});
            else if (child)
                folder.node.children->append(std::move(*child));
            continue;
        }
        BookmarkNode finished = std::move(folder.node);
        open.pop_back();
        if (open.empty())
            return finished;
        open.back().node.children->append(std::move(finished));
    }
}

} // namespace roamlet
