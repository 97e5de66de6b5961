// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Console.h"

namespace roamlet
{

/// The process's own standard streams. A pipe that closes is an error to its writer and no signal.
class LinuxConsole final : public Console
{
public:
    LinuxConsole();

    std::error_code writeOutput(QByteArrayView bytes) override;
    void writeError(QByteArrayView bytes) override;
    bool isTerminal() const override;
    int columns() const override;
};

} // namespace roamlet
