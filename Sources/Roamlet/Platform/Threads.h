// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

/// What is asked of the system about threads.
namespace roamlet::Threads
{

/// Lets other threads, of this program and of the user's others, go before the calling one and those that it
/// starts from now on. It cannot be taken back.
void giveWay();

} // namespace roamlet::Threads
