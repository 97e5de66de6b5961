// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/DesktopQuestions.h"

#include <QByteArray>

#include <optional>

/// Icons without the library of windows, which takes as much memory and time as all the rest of a search. Any
/// thread.
namespace roamlet::PngIcon
{

/// Large enough for any desktop's list.
constexpr int largestSide = 64;

/// The picture, scaled down to largestSide. Nothing for other formats, in which hardly any browser keeps
/// icons, and for what no site would honestly have.
std::optional<IconPixels> decode(const QByteArray &bytes);

} // namespace roamlet::PngIcon
