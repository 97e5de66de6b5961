// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"
#include "Readers/ReadContext.h"

#include <QList>

/// Where a browser of Firefox's family keeps its profiles: those that it lists in a text file, and those made
/// in its own menu, of which only the database of their group knows.
namespace roamlet::FirefoxProfiles
{

/// The profiles of one installation, data folder by data folder: the one that starts by itself first, the
/// others by name. Where the database of a group cannot be read now, its members are those of `known`.
QList<Source> read(const BrowserFolders::Installation &installation, const ReadContext &context,
                   const QList<Source> &known);

} // namespace roamlet::FirefoxProfiles
