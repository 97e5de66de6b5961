// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

class QFontMetrics;

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

/// As much of a text as fits into so many pixels, with an ellipsis for the rest. All of it where it is as
/// wide as that after rounding.
QString fitted(const QString &text, const QFontMetrics &metrics, int width);

} // namespace CellText

} // namespace roamlet
