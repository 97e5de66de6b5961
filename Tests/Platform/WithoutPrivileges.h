// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>

namespace roamlet::testing
{

/// Lets file permissions count for as long as it lives, also where the tests run as root, whom none of them
/// stop. Folders that shall stay reachable need to be open to everybody.
class WithoutPrivileges
{
public:
    WithoutPrivileges()
    {
        constexpr uid_t nobody = 65534;
        if (m_user == 0 && seteuid(nobody) != 0)
            m_arePermissionsChecked = false;
    }
    WithoutPrivileges(const WithoutPrivileges &) = delete;
    WithoutPrivileges &operator=(const WithoutPrivileges &) = delete;
    ~WithoutPrivileges()
    {
        if (m_user == 0)
            m_arePermissionsChecked = seteuid(m_user) == 0;
    }

    /// False where the system does not let root step down.
    bool arePermissionsChecked() const { return m_arePermissionsChecked; }

private:
    uid_t m_user = geteuid();
    bool m_arePermissionsChecked = true;
};

} // namespace roamlet::testing
