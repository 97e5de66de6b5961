// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Console.h"

#include <functional>
#include <stop_token>

namespace roamlet
{

/// The process's own standard streams. A pipe that closes is an error to its writer and no signal.
class LinuxConsole final : public Console
{
public:
    /// A write for which nobody makes room ends when `stop` is requested (std::errc::operation_canceled).
    explicit LinuxConsole(const std::stop_token &stop);
    ~LinuxConsole() override;

    std::error_code writeOutput(QByteArrayView bytes) override;
    void writeError(QByteArrayView bytes) override;
    bool isTerminal() const override;

    /// Takes the places of standard streams that were closed before the start, so that no file opened later
    /// gets the output; writing to them goes on failing. Before anything is opened.
    static void holdClosedStreams();

private:
    int m_wake;
    std::stop_callback<std::function<void()>> m_onStop;
};

} // namespace roamlet
