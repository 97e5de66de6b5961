// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QIcon>
#include <QImage>

#include <optional>

namespace roamlet
{

/// The icon of a profile: the browser's own icon where it has one, and otherwise our mark of the browser. A
/// dot at its lower trailing corner tells the profiles of one browser apart by their number; the only one has
/// none. The ring around the dot is cut out, so that it has the colour of whatever the icon lies on.
QIcon browserMark(Source::Kind kind, const std::optional<qsizetype> &profileNumber = {},
                  const QImage &ownIcon = {});

} // namespace roamlet
