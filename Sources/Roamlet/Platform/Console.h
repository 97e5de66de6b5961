// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>

#include <system_error>

namespace roamlet
{

/// The output and error streams of a run without windows. Any thread.
class Console
{
public:
    Console() = default;
    Console(const Console &) = delete;
    Console &operator=(const Console &) = delete;
    virtual ~Console() = default;

    /// Writes all the bytes or tells why not; std::errc::broken_pipe when nobody reads them any more.
    virtual std::error_code writeOutput(QByteArrayView bytes) = 0;
    /// Writes as much as it can: there is nobody left to tell when that fails.
    virtual void writeError(QByteArrayView bytes) = 0;
    /// Whether a person reads the output on a terminal, as opposed to a file or another program.
    virtual bool isTerminal() const = 0;
};

} // namespace roamlet
