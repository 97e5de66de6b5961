// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// How texts stand in a terminal. Pure functions.
namespace roamlet::TextLayout
{

/// How many columns a terminal gives the text: two for wide characters, none for combining marks.
int width(QStringView text);
/// The text with blanks after it up to `columns`.
QString padded(const QString &text, int columns);
/// The text, cut with "…" where it is wider than `columns`.
QString elided(const QString &text, int columns);
/// Whether a terminal would obey the character, be it a command, a mark that reorders a line or one that ends
/// it.
bool isObeyed(QChar character);
/// The text with pictures in the place of control characters and of marks that reorder a line: shown, not
/// obeyed.
QString shown(const QString &text);
/// Rows whose columns stand below each other, two blanks apart, each as wide as its widest cell but not wider
/// than `widest`; a wider cell pushes its own row on. The last column is not padded.
QStringList aligned(const QList<QStringList> &rows, int widest);

} // namespace roamlet::TextLayout
