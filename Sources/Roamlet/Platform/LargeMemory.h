// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory_resource>
#include <utility>
#include <vector>

namespace roamlet
{

/// Memory for texts of many MiB, which grow to that from small blocks. What is freed goes back to the system
/// at once, except for small blocks, and large ones come in large pages where there are any: getting many
/// small pages takes longer than filling them. Any thread.
std::pmr::memory_resource &largeMemory();

/// Elements that are given no value are left as the memory is. So each piece is touched first by the thread
/// that fills it, and only once.
template<typename Value>
class UnsetAllocator : public std::pmr::polymorphic_allocator<Value>
{
public:
    using std::pmr::polymorphic_allocator<Value>::polymorphic_allocator;

    template<typename Object, typename... Values>
    void construct(Object *place, Values &&...values)
    {
        if constexpr (sizeof...(Values) == 0)
            ::new (static_cast<void *>(place)) Object;
        else
            ::new (static_cast<void *>(place)) Object(std::forward<Values>(values)...);
    }
};

template<typename Value>
using LargeVector = std::vector<Value, UnsetAllocator<Value>>;

} // namespace roamlet
