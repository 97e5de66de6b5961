// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidgetList>

namespace roamlet
{

/// The program's windows and dialogs that are on the screen, minimised or not. The widget that some desktops'
/// trays want for the icon is none of them.
QWidgetList openWindows();

} // namespace roamlet
