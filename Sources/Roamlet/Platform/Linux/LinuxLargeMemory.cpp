// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/LargeMemory.h"

#include <sys/mman.h>

#include <cstddef>
#include <new>

namespace roamlet
{

namespace
{

/// From here on a block is worth a call of the system. What a thread frees of smaller ones the C library
/// keeps, and of blocks that grow up to the size of a large page that would be some MiB.
constexpr std::size_t smallest = std::size_t{128} << 10;

/// Most machines have pages of this size beside the small ones.
constexpr std::size_t largePage = std::size_t{2} << 20;

class LargePages final : public std::pmr::memory_resource
{
private:
    void *do_allocate(std::size_t size, std::size_t alignment) override
    {
        if (size < smallest)
            return std::pmr::new_delete_resource()->allocate(size, alignment);
        void *memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED)
            throw std::bad_alloc();
        // Only a wish: without large pages it takes longer.
        if (size >= largePage)
            ::madvise(memory, size, MADV_HUGEPAGE);
        return memory;
    }

    void do_deallocate(void *memory, std::size_t size, std::size_t alignment) override
    {
        if (size < smallest)
            std::pmr::new_delete_resource()->deallocate(memory, size, alignment);
        else
            ::munmap(memory, size);
    }

    bool do_is_equal(const std::pmr::memory_resource &other) const noexcept override
    {
        return this == &other;
    }
};

} // namespace

std::pmr::memory_resource &largeMemory()
{
    static LargePages pages;
    return pages;
}

} // namespace roamlet
