// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

class Clock;
class FileEvents;
class Files;
class Folders;
class UserDefaults;

/// The services of the operating system, made in one place at start-up and handed down. They outlive whoever
/// gets them.
struct Platform {
    const Folders &folders;
    const Files &files;
    UserDefaults &defaults;
    FileEvents &fileEvents;
    const Clock &clock;
};

} // namespace roamlet
