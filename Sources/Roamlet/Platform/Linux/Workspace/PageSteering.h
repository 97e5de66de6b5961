// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Clock.h"
#include "Platform/Linux/Workspace/BrowserWindows.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>

namespace roamlet
{

/// Shows a browser's own pages. A browser opens no such page for another program, so that a blank tab is
/// opened and the page's address typed into it, one page after the other. On the main thread, in steps that
/// each take no time.
class PageSteering final : public QObject
{
public:
    /// How long a browser gets to show the blank tab: so many looks, so far apart.
    static constexpr int looks = 40;
    static constexpr Clock::Duration lookInterval{100};
    /// How long the address field gets to take the keyboard. Keys that come earlier are lost, and what is
    /// left of the address would be searched for.
    static constexpr Clock::Duration focusTime{300};
    /// How long it gets to select what it shows, once it has the keyboard.
    static constexpr Clock::Duration selectTime{100};
    /// How long the page gets to show itself before its address is typed again, and how often it is typed.
    static constexpr Clock::Duration showTime{500};
    static constexpr int attempts = 3;

    struct Request {
        QString page;
        /// The classes that the browser's windows may have.
        QStringList windowClasses;
        std::function<void()> openBlankTab;
    };

    PageSteering(BrowserWindows &windows, const Clock &clock) : m_windows(windows), m_clock(clock) {}

    /// Shows a page, after those that were asked for before. Gives up quietly when no blank tab comes.
    void show(Request request);

private:
    void begin();
    void look();
    void lookAgain();
    void focusAddress(std::uint64_t window);
    void selectAddress(std::uint64_t window);
    void typeAddress(std::uint64_t window);
    void check();
    void end();
    /// The browser's front window, while it is blank.
    std::optional<BrowserWindows::Window> blankWindow();
    /// Whether keys would go to this window, and it is still blank.
    bool isReady(std::uint64_t id);

    BrowserWindows &m_windows;
    const Clock &m_clock;
    /// The first one is being shown.
    std::deque<Request> m_requests;
    int m_looks = 0;
    int m_attempts = 0;
    bool m_hasActivated = false;
};

} // namespace roamlet
