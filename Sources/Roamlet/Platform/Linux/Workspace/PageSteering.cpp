// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/PageSteering.h"

#include "Platform/Linux/Workspace/BrowserWindows.h"

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

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
    m_hasActivated = false;
    m_requests.front().openBlankTab();
    look();
}

std::optional<std::uint64_t> PageSteering::activeBlankWindow()
{
    const auto window = m_windows.front(m_requests.front().windowClasses);
    if (!window || !isBlank(window->title))
        return {};
    if (window->isActive)
        return window->id;
    // Some desktops leave the window of a program that was started by another one in the background. Once
    // only: the user may have turned to something else meanwhile.
    if (!std::exchange(m_hasActivated, true))
        m_windows.activate(window->id);
    return {};
}

void PageSteering::look()
{
    if (m_looks++ == looks) {
        end();
        return;
    }
    const std::optional<std::uint64_t> window = activeBlankWindow();
    if (!window || m_windows.isModifierHeld()) {
        lookAgain();
        return;
    }
    m_windows.press(*window, u"ctrl+l"_s);
    m_clock.after(focusTime, this, [this, window = *window] { typeAddress(window); });
}

void PageSteering::lookAgain()
{
    m_clock.after(lookInterval, this, [this] { look(); });
}

void PageSteering::typeAddress(std::uint64_t window)
{
    if (activeBlankWindow() != window || m_windows.isModifierHeld()) {
        lookAgain();
        return;
    }
    m_windows.type(window, m_requests.front().page);
    // Takes away what the browser proposes to add to the address.
    m_windows.press(window, u"Delete"_s);
    m_windows.press(window, u"Return"_s);
    end();
}

void PageSteering::end()
{
    m_requests.pop_front();
    if (!m_requests.empty())
        begin();
}

} // namespace roamlet
