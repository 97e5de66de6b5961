// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

namespace roamlet
{

/// How many attributes the tag with the most of them has, to be asked before Qt's reader gets a foreign text:
/// it compares each attribute of a tag with all the others. No fewer than the reader will find.
qsizetype mostAttributesOfATag(QStringView xml);

} // namespace roamlet
