// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Titles as short as a menu needs them. Pure functions.
namespace roamlet::MenuTitle
{

/// A title of up to 60 characters whole, a longer one cut to its first 58 and an ellipsis. Characters are
/// what people take for one, however many code points they are made of.
QString shortened(const QString &title);
/// The shortened title as the text of a menu item: on one line, and without a letter to press.
QString inMenu(const QString &title);

} // namespace roamlet::MenuTitle
