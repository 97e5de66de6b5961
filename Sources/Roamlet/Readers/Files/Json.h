// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <nlohmann/json.hpp>

#include <cstddef>
#include <expected>
#include <optional>

/// Strict reading of JSON. Qt's own reader refuses what nests deeper than 1,024 levels, and bookmark folders
/// may, although no browser could read them any more.
namespace roamlet::Json
{

using Value = nlohmann::json;

/// Objects and arrays inside each other. A bookmark folder takes two levels.
inline constexpr std::size_t deepestNesting = 30'000;
/// Members and elements in all. A million bookmarks have some ten million.
inline constexpr std::size_t mostValues = 32'000'000;

/// The reason when the bytes are not exactly one JSON text in UTF-8, or are nothing but nesting: that would
/// take a hundred times its size in memory, and minutes.
std::expected<Value, QString> parse(const QByteArray &bytes);

/// The value under `key` when `value` is an object that has it, else null.
const Value *member(const Value &value, const char *key);
/// The same, only when it is an object.
const Value *objectMember(const Value &value, const char *key);
/// The text when `value` is a string.
std::optional<QString> text(const Value *value);
/// The text of a string or of an object's key.
QString text(const std::string &value);
/// Whether `value` is the number `number`, written with or without a fraction.
bool isInteger(const Value *value, std::int64_t number);
/// Whether `value` is `true`, not merely something like it.
bool isTrue(const Value *value);

} // namespace roamlet::Json
