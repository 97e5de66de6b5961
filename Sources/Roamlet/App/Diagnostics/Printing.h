// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

class Console;

/// What became of a text.
enum class Printed {
    Written,
    Unread, ///< whoever read the output has closed it, or the user wants the run to end
    Failed, ///< the error stream says why
};

/// Writes a text to the output as UTF-8.
Printed print(Console &console, const QString &text);

} // namespace roamlet
