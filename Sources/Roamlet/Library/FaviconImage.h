// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Favicon.h"

#include <QImage>

namespace roamlet
{

class Files;

/// Turns icons into images. Any thread.
namespace FaviconImage
{

/// Large enough for 16 points on any display.
constexpr int largestSide = 64;

/// The icon's first picture, scaled down to largestSide; a null image when the bytes are no icon that a site
/// would honestly have.
QImage decode(const Favicon &favicon, const Files &files);

} // namespace FaviconImage

} // namespace roamlet
