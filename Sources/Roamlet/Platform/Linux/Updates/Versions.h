// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <compare>

/// The versions of an update feed, by the rules that every reader of this kind of feed shares.
namespace roamlet::Versions
{

/// Whether this is a version at all: it begins with a number and is of a sensible length.
bool isVersion(QStringView text);
/// Number by number, where "1.0" is "1.0.0". Words make a version older ("1.0b2" is before "1.0"), and what
/// follows a hyphen does not count.
std::weak_ordering compare(QStringView left, QStringView right);

} // namespace roamlet::Versions
