// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace roamlet
{

/// Foreign texts in a form that can be shown.
namespace CellText
{

/// Nobody reads more of a title, and laying out a million characters would stop the window.
constexpr qsizetype longestText = 1000;
/// What still fits into a menu.
constexpr qsizetype longestMenuText = 80;

/// The beginning of `text` on one line: line ends, tabs and control characters become blanks.
QString oneLine(QStringView text, qsizetype longest = longestText);
/// oneLine for a menu, in which an "&" would otherwise underline the letter behind it.
QString inMenu(QStringView text);
/// A tooltip over these lines, each shown as it is and broken where it gets too wide.
QString toolTip(const QStringList &lines);

} // namespace CellText

} // namespace roamlet
