// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// The host rule by which pages are grouped, filtered and given icons.
namespace roamlet::Site
{

/// The lower-cased host of `url` without one leading "www.", or nothing when the text has no host or does not
/// parse. The host is taken as it is stored: punycode stays punycode, a trailing dot and the brackets of an
/// IPv6 address stay, because filters match it against the stored text.
std::optional<QString> name(QStringView url);

} // namespace roamlet::Site
