// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

/// The AppImage that this program runs from; empty when it does not. The variable that names it is not
/// enough: every program that another AppImage starts inherits it, and that other file must never be taken
/// for ours.
QString ownAppImage();

} // namespace roamlet
