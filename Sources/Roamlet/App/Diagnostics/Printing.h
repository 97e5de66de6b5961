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
/// Writes a message to the error stream, a line of its own under the program's name. It may hold paths and
/// ids and be read on a terminal: control characters are shown, not obeyed.
void complain(Console &console, const QString &message);

} // namespace roamlet
