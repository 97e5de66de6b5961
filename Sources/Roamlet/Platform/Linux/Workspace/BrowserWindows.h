// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace roamlet
{

/// The windows of browsers on the screen, as far as another program may see and steer them. On the main
/// thread.
class BrowserWindows
{
public:
    struct Window {
        std::uint64_t id = 0;
        QString title;
        bool isActive = false; ///< it gets what is typed

        bool operator==(const Window &) const = default;
    };

    BrowserWindows() = default;
    BrowserWindows(const BrowserWindows &) = delete;
    BrowserWindows &operator=(const BrowserWindows &) = delete;
    virtual ~BrowserWindows() = default;

    /// Whether this desktop lets programs do this at all, and its keyboard has the letters of addresses.
    /// Asked before each use of the others.
    virtual bool canSteer() = 0;
    /// The frontmost window that has one of these classes.
    virtual std::optional<Window> front(const QStringList &classes) = 0;
    /// Asks the desktop to make the window the active one.
    virtual void activate(std::uint64_t window) = 0;
    /// Whether the user holds a key that would change the meaning of others.
    virtual bool isModifierHeld() = 0;
    /// Presses and releases keys together, such as "ctrl+l", in the active window `window`.
    virtual void press(std::uint64_t window, const QString &keys) = 0;
    /// Types a text into the active window `window`.
    virtual void type(std::uint64_t window, const QString &text) = 0;
};

} // namespace roamlet
