// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

/// How present the program is on the desktop. On the main thread.
class ActivationPolicy
{
public:
    enum class Policy {
        Regular,   ///< its windows stand in the task switcher
        Accessory, ///< they do not; the program lives in the tray
    };

    ActivationPolicy() = default;
    ActivationPolicy(const ActivationPolicy &) = delete;
    ActivationPolicy &operator=(const ActivationPolicy &) = delete;
    virtual ~ActivationPolicy() = default;

    /// Holds for the windows that are open and for those that will be.
    virtual void setPolicy(Policy policy) = 0;
    /// Puts the program's windows before those of other programs and gives it the keyboard.
    virtual void bringToFront() = 0;
};

} // namespace roamlet
