// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Console.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace roamlet::testing
{

/// Keeps what is written to it, or refuses it.
class FakeConsole final : public Console
{
public:
    std::error_code writeOutput(QByteArrayView bytes) override
    {
        ++writes;
        if (!outputError)
            output.append(bytes.data(), bytes.size());
        return outputError;
    }
    void writeError(QByteArrayView bytes) override
    {
        errors.append(bytes.data(), bytes.size());
        if (onError)
            onError();
    }
    bool isTerminal() const override { return terminal; }

    /// What was written to the output stream, without the line end after the last line.
    QStringList lines() const
    {
        QStringList result = QString::fromUtf8(output).split(u'\n');
        if (result.last().isEmpty())
            result.removeLast();
        return result;
    }

    bool terminal = false;
    /// Answered in the place of writing the output.
    std::error_code outputError;
    /// Called after each text on the error stream.
    std::function<void()> onError;
    QByteArray output;
    QByteArray errors;
    /// How often something was to be written to the output stream.
    int writes = 0;
};

} // namespace roamlet::testing
