// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/LiteralLike.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace roamlet::LiteralLike
{

namespace
{

constexpr unsigned char caseBit = 0x20;

constexpr bool isLetter(unsigned char byte)
{
    return (byte | caseBit) >= 'a' && (byte | caseBit) <= 'z';
}

/// One byte of what is looked for; only the case of ASCII letters is ignored.
struct Wanted {
    unsigned char byte = 0;
    unsigned char ignored = 0;

    explicit Wanted(char character = 0)
        : byte(static_cast<unsigned char>(character)), ignored(isLetter(byte) ? caseBit : 0)
    {
        byte |= ignored;
    }
    bool isAt(const char *place) const { return (static_cast<unsigned char>(*place) | ignored) == byte; }
};

/// An ASCII text that is looked for anywhere in another one, whatever the case of its letters. Blocks of
/// places are tried at once, by the first and the last byte that would have to stand there, in a loop that
/// the compiler turns into vector instructions.
class Needle
{
public:
    explicit Needle(std::string_view text) : m_bytes(text.begin(), text.end()) {}

    bool isIn(std::string_view text) const
    {
        if (text.size() < m_bytes.size())
            return false;
        const size_t places = text.size() - m_bytes.size() + 1;
        const char *found = nullptr;
        if (places < blockSize)
            found = findAmong(text.data(), places);
        for (size_t place = 0; found == nullptr && place < places && places >= blockSize;
             place += blockSize) {
            // The last block overlaps the one before it.
            const char *block = text.data() + std::min(place, places - blockSize);
            if (mayStartIn(block))
                found = findAmong(block, blockSize);
        }
        // A text ends at a NUL, whatever its length says.
        return found != nullptr &&
               std::memchr(text.data(), 0, static_cast<size_t>(found - text.data())) == nullptr;
    }

private:
    static constexpr size_t blockSize = 32;

    bool mayStartIn(const char *block) const
    {
        const Wanted first = m_bytes.front();
        const Wanted last = m_bytes.back();
        const char *ends = block + m_bytes.size() - 1;
        unsigned char found = 0;
        for (size_t i = 0; i < blockSize; ++i)
            found |= static_cast<unsigned char>(static_cast<unsigned>(first.isAt(block + i)) &
                                                static_cast<unsigned>(last.isAt(ends + i)));
        return found != 0;
    }

    const char *findAmong(const char *places, size_t count) const
    {
        for (size_t i = 0; i < count; ++i) {
            if (isAt(places + i))
                return places + i;
        }
        return nullptr;
    }

    bool isAt(const char *place) const
    {
        for (const Wanted &wanted : m_bytes) {
            if (!wanted.isAt(place++))
                return false;
        }
        return true;
    }

    std::vector<Wanted> m_bytes;
};

/// What a pattern looks for when it is an ASCII text between two "%"; nothing for every other pattern.
std::optional<Needle> needleOf(std::string_view pattern, char escape)
{
    if (pattern.size() < 3 || !pattern.starts_with('%') || !pattern.ends_with('%'))
        return {};
    pattern = pattern.substr(1, pattern.size() - 2);
    std::string text;
    for (size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == escape) {
            if (++i == pattern.size())
                return {};
        } else if (pattern[i] == '%' || pattern[i] == '_') {
            return {};
        }
        if (static_cast<unsigned char>(pattern[i]) >= 0x80 || pattern[i] == 0)
            return {};
        text += pattern[i];
    }
    return Needle(text);
}

/// A pattern as it is kept while a statement runs.
struct Pattern {
    std::optional<Needle> needle;
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
            made->needle = needleOf(patternText, escape.front());
        sqlite3_set_auxdata(context, 0, made.release(),
                            [](void *kept) { delete static_cast<Pattern *>(kept); });
        pattern = static_cast<const Pattern *>(sqlite3_get_auxdata(context, 0));
    }
    if (text.data() == nullptr || sqlite3_value_type(patternValue) == SQLITE_NULL)
        return; // NULL, as LIKE has it
    if (pattern != nullptr && pattern->needle) {
        sqlite3_result_int(context, pattern->needle->isIn(text) ? 1 : 0);
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
