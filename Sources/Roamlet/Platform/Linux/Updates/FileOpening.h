// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

/// Opens a file with the application that the user prefers for its MIME type. False where no application
/// takes that type.
bool openFile(const QString &path, const QString &type);

} // namespace roamlet
