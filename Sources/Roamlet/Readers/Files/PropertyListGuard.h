// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// The library that parses property lists trusts them: it follows nesting with its own stack and unfolds
/// every reference. This looks at a file first and refuses what would exhaust either.
namespace roamlet::PropertyListGuard
{

/// Dictionaries and arrays inside each other. A bookmark folder takes two levels.
constexpr int deepestNesting = 20'000;

/// Why the bytes must not be parsed, or nothing.
std::optional<QString> refusal(QByteArrayView bytes);

} // namespace roamlet::PropertyListGuard
