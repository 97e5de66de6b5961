// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/FileEvents.h"

#include <chrono>

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

    explicit InotifyFileEvents(const Clock &clock) : m_clock(clock) {}

    std::unique_ptr<Stream> open(const QStringList &folders, Handler handler) override;

private:
    const Clock &m_clock;
};

} // namespace roamlet
