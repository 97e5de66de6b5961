// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/OpenWindows.h"

#include <QApplication>
#include <QWidget>

namespace roamlet
{

QWidgetList openWindows()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget *window) {
        const bool isOurs = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        return !isOurs || !window->isVisible() || window->windowFlags().testFlag(Qt::BypassWindowManagerHint);
    });
    return windows;
}

} // namespace roamlet
