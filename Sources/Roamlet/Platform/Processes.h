// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

/// What is asked of the system about processes. Any thread.
namespace roamlet::Processes
{

/// The id of this process.
std::int32_t ownID();
/// Whether a process with this id exists, whoever it belongs to.
bool exists(std::int32_t id);
/// Lets threads have so many heaps at most that giveBackMemory() reaches all of them. Before any other
/// thread.
void limitHeaps();
/// Gives the memory that this process no longer uses back to the system. Takes a few milliseconds. The
/// main thread only.
void giveBackMemory();

} // namespace roamlet::Processes
