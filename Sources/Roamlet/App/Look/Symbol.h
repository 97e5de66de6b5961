// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

#include <optional>

namespace roamlet
{

/// How strong the lines of a symbol are.
enum class SymbolWeight {
    Usual,
    Thin, ///< for one that is drawn much larger than a text
};

/// One of our single-colour symbols, such as "chart.bar" or "lock.fill", in the colour of the text around it:
/// it follows the palette, the selection and what is disabled. With a colour it keeps to that one. A null
/// icon for a name that there is not.
QIcon symbolIcon(const QString &name, const std::optional<QColor> &color = {},
                 SymbolWeight weight = SymbolWeight::Usual);
/// The same in a list whose selection may be a colour on which the usual one is not seen.
QIcon symbolIcon(const QString &name, const QColor &color, const QColor &colorInSelection);

/// The program's sign for a panel. One that finds it by its name in the desktop's icon theme draws it in its
/// own ink; others get it in a colour that is seen on light and on dark ones.
QIcon panelIcon();

/// Makes the drawings that come with the program available to whoever reads them by their names.
void useDrawings();

/// The program's own icon: the desktop theme's drawing of it where there is one, and otherwise ours.
QIcon applicationIcon();

} // namespace roamlet
