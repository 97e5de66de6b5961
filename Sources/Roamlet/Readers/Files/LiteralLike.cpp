// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/LiteralLike.h"

#include "Readers/Files/FoldedNeedle.h"

#include <sqlite3.h>

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace roamlet::LiteralLike
{

namespace
{

/// A pattern as it is kept while a statement runs.
struct Pattern {
    /// Nothing where it is more than an ASCII text between two "%". Of other letters SQLite compares the
    /// numbers, which broken UTF-8 can have in several ways.
    std::optional<FoldedNeedle> needle;
};

std::string_view textOf(sqlite3_value *value)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    if (text == nullptr)
        return {};
    return {text, static_cast<size_t>(sqlite3_value_bytes(value))};
}

bool isUsableEscape(std::string_view escape)
{
    return escape.size() == 1 && static_cast<unsigned char>(escape.front()) < 0x80 && escape != "%" &&
           escape != "_";
}

/// `text LIKE pattern ESCAPE escape`, for arguments in the order in which SQLite hands them over.
void like(sqlite3_context *context, int /*count*/, sqlite3_value **arguments)
{
    sqlite3_value *patternValue = arguments[0];
    sqlite3_value *textValue = arguments[1];
    if (sqlite3_value_type(patternValue) == SQLITE_BLOB || sqlite3_value_type(textValue) == SQLITE_BLOB) {
        sqlite3_result_int(context, 0);
        return;
    }
    const std::string_view text = textOf(textValue);
    const std::string_view escape = textOf(arguments[2]);
    if (escape.data() == nullptr)
        return; // NULL, as LIKE has it
    if (!isUsableEscape(escape)) {
        sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
        return;
    }
    const auto *pattern = static_cast<const Pattern *>(sqlite3_get_auxdata(context, 0));
    if (pattern == nullptr) {
        const std::string_view patternText = textOf(patternValue);
        const int limit =
            sqlite3_limit(sqlite3_context_db_handle(context), SQLITE_LIMIT_LIKE_PATTERN_LENGTH, -1);
        if (std::cmp_greater(patternText.size(), limit)) {
            sqlite3_result_error(context, "LIKE or GLOB pattern too complex", -1);
            return;
        }
        auto made = std::make_unique<Pattern>();
        if (patternText.data() != nullptr)
            made->needle = FoldedNeedle::ofPattern(patternText, escape.front());
        if (made->needle && !made->needle->isAscii())
            made->needle.reset();
        sqlite3_set_auxdata(context, 0, made.release(),
                            [](void *kept) { delete static_cast<Pattern *>(kept); });
        pattern = static_cast<const Pattern *>(sqlite3_get_auxdata(context, 0));
    }
    if (text.data() == nullptr || sqlite3_value_type(patternValue) == SQLITE_NULL)
        return; // NULL, as LIKE has it
    if (pattern != nullptr && pattern->needle) {
        // A text ends at a NUL, whatever its length says.
        const size_t found = pattern->needle->find(text, 0, text.size());
        const bool isFound = found != FoldedNeedle::nowhere && !text.substr(0, found).contains('\0');
        sqlite3_result_int(context, isFound ? 1 : 0);
        return;
    }
    const auto escapeCharacter = static_cast<unsigned char>(escape.front());
    const int difference = sqlite3_strlike(textOf(patternValue).data(), text.data(), escapeCharacter);
    sqlite3_result_int(context, difference == 0 ? 1 : 0);
}

} // namespace

void install(sqlite3 *connection)
{
    constexpr int argumentCount = 3;
    sqlite3_create_function_v2(connection, "like", argumentCount, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                               like, nullptr, nullptr, nullptr);
}

} // namespace roamlet::LiteralLike
