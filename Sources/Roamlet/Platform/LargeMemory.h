// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory_resource>

namespace roamlet
{

/// Memory for texts of many MiB, which grow to that from small blocks. What is freed goes back to the system
/// at once, except for small blocks, and large ones come in large pages where there are any: getting many
/// small pages takes longer than filling them. Any thread.
std::pmr::memory_resource &largeMemory();

} // namespace roamlet
