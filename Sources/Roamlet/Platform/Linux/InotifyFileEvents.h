// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/FileEvents.h"

#include <chrono>
#include <cstdint>
#include <functional>

namespace roamlet
{

class Clock;

/// File events from the kernel. Only the folders themselves and their direct subfolders are watched, never a
/// whole browser tree: a profile holds tens of thousands of cache files that nobody here reads.
class InotifyFileEvents final : public FileEvents
{
public:
    /// How long events are gathered before they are reported together.
    static constexpr std::chrono::milliseconds latency{2000};

    /// What is asked of the kernel.
    struct Calls {
        std::function<int(int flags)> init;
        std::function<int(int descriptor, const char *path, std::uint32_t mask)> addWatch;
        /// The kind of file system that a folder lies on (statfs), or 0.
        std::function<std::uint32_t(const char *path)> fileSystem;

        static Calls ofKernel();
    };

    explicit InotifyFileEvents(const Clock &clock, Calls calls = Calls::ofKernel());

    std::unique_ptr<Stream> open(const QStringList &folders, Handler handler) override;

private:
    const Clock &m_clock;
    Calls m_calls;
};

} // namespace roamlet
