// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include <initializer_list>
#include <optional>

namespace roamlet
{

/// The grounds on which one colour has to be seen.
using Surfaces = std::initializer_list<QColor>;

/// `ground` with a share of `tint` in it, between 0 and 1. Colours made from the palette in this way fit
/// every theme.
QColor mixedColor(const QColor &ground, const QColor &tint, double share);

/// The luminance of the guidelines for accessible contents, from 0 for black to 1 for white.
double relativeLuminance(const QColor &color);

/// By how much the lighter of two colours outshines the other: 1 for equal ones, 21 for black and white.
double contrastRatio(const QColor &one, const QColor &other);

/// On the surface where the colour is seen worst.
double lowestContrast(const QColor &color, Surfaces surfaces);

/// The mixture with the smallest share of `ink`, from `share` on, that has this contrast on every surface.
/// None when not even the ink itself has it.
std::optional<QColor> readableMix(const QColor &ground, const QColor &ink, double share, Surfaces surfaces,
                                  double contrast);

/// The colour, made darker or lighter by no more than it needs to have this contrast on every surface. None
/// when no shade of it has.
std::optional<QColor> readableShade(const QColor &color, Surfaces surfaces, double contrast);

} // namespace roamlet
