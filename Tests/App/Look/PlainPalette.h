// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

namespace roamlet::testing
{

/// A theme whose windows and fields have one colour, and their texts the other.
inline QPalette paletteOf(Qt::GlobalColor ground, Qt::GlobalColor text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    return palette;
}

} // namespace roamlet::testing
