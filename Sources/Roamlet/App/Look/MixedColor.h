// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

namespace roamlet
{

/// `ground` with a share of `tint` in it, between 0 and 1. Colours made from the palette in this way stay
/// readable in every theme.
inline QColor mixedColor(const QColor &ground, const QColor &tint, float share)
{
    const auto channel = [share](float from, float to) { return from + ((to - from) * share); };
    return QColor::fromRgbF(channel(ground.redF(), tint.redF()), channel(ground.greenF(), tint.greenF()),
                            channel(ground.blueF(), tint.blueF()));
}

} // namespace roamlet
