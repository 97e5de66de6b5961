// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory_resource>

namespace roamlet
{

/// Memory for blocks of many MiB that are written from one end to the other: in pages as large as the system
/// has, because getting a million small ones takes longer than filling them, and given back as soon as it is
/// freed. Smaller blocks come from where all others do. Any thread.
std::pmr::memory_resource &largeMemory();

} // namespace roamlet
