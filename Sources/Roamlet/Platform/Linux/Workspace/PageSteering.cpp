// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/PageSteering.h"

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Puts the keyboard into the address field and selects what that shows.
const QString addressKeys = u"ctrl+l"_s;

/// Whether a window's title says that its active tab is blank. The tab's title comes first, after marks of
/// writing direction in some languages, and then the browser's name.
bool isBlank(QStringView title)
{
    constexpr QStringView blank = u"about:blank";
    while (!title.isEmpty() && title.front().category() == QChar::Other_Format)
        title = title.sliced(1);
    return title.startsWith(blank) &&
           (title.size() == blank.size() || !title.at(blank.size()).isLetterOrNumber());
}

} // namespace

void PageSteering::show(Request request)
{
    m_requests.push_back(std::move(request));
    if (m_requests.size() == 1)
        begin();
}

void PageSteering::begin()
{
    m_looks = 0;
    m_attempts = 0;
    m_hasActivated = false;
    m_requests.front().openBlankTab();
    look();
}

std::optional<BrowserWindows::Window> PageSteering::blankWindow()
{
    const auto window = m_windows.front(m_requests.front().windowClasses);
    return window && isBlank(window->title) ? window : std::nullopt;
}

bool PageSteering::isReady(std::uint64_t id)
{
    const auto window = blankWindow();
    return window && window->id == id && window->isActive && !m_windows.isModifierHeld();
}

void PageSteering::look()
{
    if (m_looks++ == looks) {
        end();
        return;
    }
    const auto window = blankWindow();
    // Some desktops leave the window of a program that was started by another one in the background. Once
    // only: the user may have turned to something else meanwhile.
    if (window && !window->isActive && !std::exchange(m_hasActivated, true))
        m_windows.activate(window->id);
    if (window && window->isActive && !m_windows.isModifierHeld())
        focusAddress(window->id);
    else
        lookAgain();
}

void PageSteering::lookAgain()
{
    m_clock.after(lookInterval, this, [this] { look(); });
}

void PageSteering::focusAddress(std::uint64_t window)
{
    m_windows.press(window, addressKeys);
    m_clock.after(focusTime, this, [this, window] { selectAddress(window); });
}

void PageSteering::selectAddress(std::uint64_t window)
{
    if (!isReady(window)) {
        lookAgain();
        return;
    }
    // Once more, as the tab may only have come after the first time.
    m_windows.press(window, addressKeys);
    m_clock.after(selectTime, this, [this, window] { typeAddress(window); });
}

void PageSteering::typeAddress(std::uint64_t window)
{
    if (!isReady(window)) {
        lookAgain();
        return;
    }
    ++m_attempts;
    m_windows.type(window, m_requests.front().page);
    // Takes away what the browser proposes to add to the address.
    m_windows.press(window, u"Delete"_s);
    m_windows.press(window, u"Return"_s);
    m_clock.after(showTime, this, [this] { check(); });
}

void PageSteering::check()
{
    if (blankWindow() && m_attempts < attempts)
        look();
    else
        end();
}

void PageSteering::end()
{
    m_requests.pop_front();
    if (!m_requests.empty())
        begin();
}

} // namespace roamlet
