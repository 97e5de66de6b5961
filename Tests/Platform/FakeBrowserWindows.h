// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Workspace/BrowserWindows.h"

#include <QStringList>

#include <functional>

namespace roamlet::testing
{

/// A screen with at most one browser's window, and a keyboard that writes down its keys.
class FakeBrowserWindows final : public BrowserWindows
{
public:
    bool canSteer() override { return isSteerable; }
    std::optional<Window> front(const QStringList &classes) override
    {
        ++looks;
        askedClasses = classes;
        return window;
    }
    void activate(std::uint64_t id) override
    {
        keys.append(QStringLiteral("(activate %1)").arg(id));
        if (window && letsActivate)
            window->isActive = true;
    }
    bool isModifierHeld() override { return isShiftHeld; }
    void press(std::uint64_t id, const QString &combination) override
    {
        keys.append(QStringLiteral("%1: <%2>").arg(id).arg(combination));
        if (window && takesAddresses && combination == QStringLiteral("Return"))
            window->title = QStringLiteral("A page");
        if (onPress)
            onPress();
    }
    void type(std::uint64_t id, const QString &text) override
    {
        keys.append(QStringLiteral("%1: %2").arg(id).arg(text));
    }

    bool isSteerable = true;
    bool isShiftHeld = false;
    /// Whether the desktop does as it is told.
    bool letsActivate = true;
    std::optional<Window> window;
    /// Whether the browser shows a page whose address was typed.
    bool takesAddresses = true;
    /// Called after each combination of keys.
    std::function<void()> onPress;

    QStringList askedClasses;
    int looks = 0;
    QStringList keys;
};

} // namespace roamlet::testing
