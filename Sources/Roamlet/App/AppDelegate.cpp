// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/AppDelegate.h"

#include "Platform/ActivationPolicy.h"
#include "Platform/UserDefaults.h"

#include <QString>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

AppDelegate::AppDelegate(const UserDefaults &defaults, ActivationPolicy &activation,
                         std::function<bool()> hasMenuBarIcon)
    : m_defaults(defaults), m_activation(activation), m_hasMenuBarIcon(std::move(hasMenuBarIcon))
{
}

void AppDelegate::windowOpenerIsReady(OpenWindow opener)
{
    const bool isFirst = !m_openMainWindow;
    m_openMainWindow = std::move(opener);
    if (isFirst && !m_launchedAtLogin)
        m_openMainWindow();
}

void AppDelegate::applicationShouldHandleReopen(bool hasVisibleWindows)
{
    if (!hasVisibleWindows && m_openMainWindow)
        m_openMainWindow();
    else
        m_activation.bringToFront();
}

void AppDelegate::mainWindowDidAppear()
{
    m_isMainWindowOpen = true;
    applyPolicy();
    m_activation.bringToFront();
}

void AppDelegate::mainWindowDidDisappear(bool otherWindowIsVisible)
{
    m_isMainWindowOpen = false;
    applyPolicy();
    if (otherWindowIsVisible)
        m_activation.bringToFront();
}

void AppDelegate::showDockIconDidChange()
{
    applyPolicy();
    m_activation.bringToFront();
}

void AppDelegate::applyPolicy()
{
    const bool showsDockIcon = m_defaults.boolean(u"showDockIcon"_s).value_or(false);
    const bool isRegular = m_isMainWindowOpen || showsDockIcon || !m_hasMenuBarIcon();
    m_activation.setPolicy(isRegular ? ActivationPolicy::Policy::Regular
                                     : ActivationPolicy::Policy::Accessory);
}

} // namespace roamlet
