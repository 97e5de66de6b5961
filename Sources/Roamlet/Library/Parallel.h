// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <system_error>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <semaphore>
#include <thread>
#include <vector>

namespace roamlet
{

/// Turns at the machine's cores: as many as there are cores can be held at a time.
class CoreTurns
{
public:
    /// Waits for a turn and gives it back when it goes.
    class Turn
    {
    public:
        explicit Turn(CoreTurns &turns) : m_turns(turns) { m_turns.m_free.acquire(); }
        Turn(const Turn &) = delete;
        Turn &operator=(const Turn &) = delete;
        ~Turn() { m_turns.m_free.release(); }

    private:
        CoreTurns &m_turns;
    };

private:
    std::counting_semaphore<> m_free{
        std::max<std::ptrdiff_t>(1, static_cast<std::ptrdiff_t>(std::thread::hardware_concurrency()))};
};

/// Calls work(0, turns) … work(count - 1, turns), each on a thread of its own as far as the system has that
/// many, and returns when all have ended; what one of them threw is thrown then. Work that keeps a core busy
/// takes a turn first; work that only waits takes none, so that it keeps nobody waiting.
template<typename Work>
void forEachInParallel(std::size_t count, Work work)
{
    CoreTurns turns;
    if (count == 1) {
        work(std::size_t{0}, turns);
        return;
    }
    std::vector<std::exception_ptr> thrown(count);
    {
        std::vector<std::jthread> threads;
        threads.reserve(count);
        std::size_t begun = 0;
        const auto perform = [&](std::size_t index) {
            try {
                work(index, turns);
            } catch (...) {
                thrown[index] = std::current_exception();
            }
        };
        try {
            for (; begun < count; ++begun)
                threads.emplace_back([begun, &perform] { perform(begun); });
        } catch (const std::system_error &) {
            // The system has no more threads for us: this one does the rest.
            for (; begun < count; ++begun)
                perform(begun);
        }
    }
    const auto first =
        std::ranges::find_if(thrown, [](const std::exception_ptr &each) { return each != nullptr; });
    if (first != thrown.end())
        std::rethrow_exception(*first);
}

} // namespace roamlet
