// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

class QFontMetrics;

/// Foreign texts in a form that windows can show: they may be of any length, hold line ends and marks, turn
/// the words around them, and look like mark-up. Pure functions.
namespace roamlet::ForeignText
{

/// Nobody reads more of a title, and laying out a million characters would stop the window.
constexpr qsizetype longestText = 1000;
/// What still fits into a menu.
constexpr qsizetype longestMenuText = 80;

/// The beginning of `text` with its lines, and an ellipsis for the rest.
QString shownBeginning(QStringView text, qsizetype longest = longestText);
/// The beginning of `text` on one line: line ends, tabs and control characters become blanks.
QString oneLine(QStringView text, qsizetype longest = longestText);
/// As much of a text as fits into so many pixels, with an ellipsis for the rest. All of it where it is as
/// wide as that after rounding.
QString fitted(const QString &text, const QFontMetrics &metrics, int width);
/// The beginning of `text` for a label of one line, which elides it: without blanks that nobody sees.
QString inLabel(const QString &text);

/// oneLine for a menu, in which an "&" would otherwise underline the letter behind it.
QString inMenu(QStringView text);
/// A title of up to 60 characters whole, a longer one cut to its first 58 and an ellipsis. Characters are
/// what people take for one, however many code points they are made of.
QString shortenedTitle(const QString &title);
/// The shortened title as the text of a menu item: on one line, and without a letter to press.
QString titleInMenu(const QString &title);

/// A tooltip over these lines, each shown as it is and broken where it gets too wide.
QString toolTip(const QStringList &lines);
/// A tooltip that is broken between words.
QString wrappedToolTip(const QString &text);
/// The same, which also begins a new line where the text does.
QString wrappedToolTipOfLines(const QString &text);

} // namespace roamlet::ForeignText
