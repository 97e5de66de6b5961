// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <stop_token>
#include <thread>

namespace roamlet
{

/// Turns the signals by which a run is asked to end (interrupt, terminate, hang-up) into a stop request, so
/// that the run can put away what it made. Made before any other thread, on the main thread.
class StopSignals
{
public:
    StopSignals();
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;
    ~StopSignals();

    std::stop_token token() const { return m_stop.get_token(); }
    /// When a signal asked for the end: ends the process by it, as whoever sent it expects. Otherwise does
    /// nothing.
    void endProcessIfAsked();

private:
    void listen(const std::stop_token &end);

    std::stop_source m_stop;
    std::atomic<int> m_received = 0;
    int m_signals = -1;
    int m_wake = -1;
    std::jthread m_listener;
};

} // namespace roamlet
