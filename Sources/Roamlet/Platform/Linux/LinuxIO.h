// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>

#include <system_error>

#include <poll.h>
#include <span>

namespace roamlet
{

/// The last failed call's error.
std::error_code lastError();
/// Writes all the bytes to a file descriptor, however many calls that takes.
std::error_code writeAll(int descriptor, QByteArrayView bytes);
/// Waits until something can be done with one of these, and returns whether that is known: the system can
/// lack the memory to say so. Then it returns after a moment, so that whoever tries again does not keep a
/// core busy.
bool waitFor(std::span<pollfd> descriptors);
/// Sees to it that the process may have as many files open as it needs, as far as the system lets it. False
/// where that is so few that nothing could be read.
bool ensureDescriptors();
/// Lets a file that may not grow any more (RLIMIT_FSIZE) be an error to its writer, as a full disk is.
/// Otherwise the system ends the process in the middle of its work. For the whole process, and what it starts
/// inherits it.
void ignoreFileSizeSignal();

} // namespace roamlet
