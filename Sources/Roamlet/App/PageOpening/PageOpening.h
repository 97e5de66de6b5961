// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QString>

#include <expected>

namespace roamlet
{

class Workspace;

/// Opens one page for somebody who waits for nothing but whether it could be. Without an application object
/// and without a display.
namespace PageOpening
{

/// Opens an address in the browser and the profile of its source, or says why that cannot be done.
std::expected<void, QString> open(const QString &url, const Source &source, Workspace &workspace);
/// The same with the applications of this machine. What it starts goes on when this process ends. The token,
/// where there is one, lets it come forward.
std::expected<void, QString> open(const QString &url, const Source &source, const QString &activationToken);

} // namespace PageOpening

} // namespace roamlet
