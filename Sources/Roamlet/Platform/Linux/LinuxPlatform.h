// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/InotifyFileEvents.h"
#include "Platform/Linux/LinuxFiles.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Linux/SettingsUserDefaults.h"
#include "Platform/Linux/SystemClock.h"
#include "Platform/Platform.h"

namespace roamlet
{

/// This machine, for this user.
class LinuxPlatform
{
public:
    Platform services() { return {m_folders, m_files, m_defaults, m_fileEvents, m_clock}; }

private:
    SettingsUserDefaults m_defaults;
    LinuxFiles m_files;
    LinuxFolders m_folders{LinuxFolders::Environment::ofThisProcess(), m_files, m_defaults};
    SystemClock m_clock;
    InotifyFileEvents m_fileEvents{m_clock};
};

} // namespace roamlet
