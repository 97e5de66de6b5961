// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

class QByteArray;

namespace roamlet
{

/// Whether the X server of this name ("DISPLAY") lets programs in. Takes less than a millisecond where it is
/// on this machine.
bool displayServerAnswers(const QByteArray &display);

} // namespace roamlet
