// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

struct UpdateError;

/// What went wrong with an update, as a sentence for the user, with the details of the system or the server
/// behind it.
QString updateErrorText(const UpdateError &error);

} // namespace roamlet
