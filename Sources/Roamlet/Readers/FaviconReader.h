// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Favicon.h"
#include "Model/ReadError.h"
#include "Model/Source.h"
#include "Readers/ReadContext.h"

#include <cstdint>
#include <expected>

/// Finds a small icon for as many sites as the browsers have one. Holds nothing and writes nothing; any
/// thread.
namespace roamlet::FaviconReader
{

/// Whether a bitmap of this width serves better than the one that is kept.
bool isBetter(std::int64_t width, std::int64_t keptWidth);
/// The name of the file in which Safari keeps an icon.
QString safariFileName(const QString &uuid);

/// The icons of one profile of Chromium's family. Empty when it has no icon store.
std::expected<Favicons, ReadError> chromium(const Source &source, const ReadContext &context);
/// The icons of one profile of Firefox's family: those of its pages, and for hosts without any those of the
/// whole host. Empty when it has no icon store.
std::expected<Favicons, ReadError> firefox(const Source &source, const ReadContext &context);
/// The icons of Safari, which has one store for all its profiles. The files are not looked for. Empty when
/// there is no icon store.
std::expected<Favicons, ReadError> safari(const ReadContext &context);

} // namespace roamlet::FaviconReader
