// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/SearchTexts.h"

#include "Library/SourceRead.h"
#include "Platform/UserDefaults.h"
#include "Readers/BrowserReader.h"

#include <algorithm>
#include <utility>

namespace roamlet
{

SearchText SearchText::of(const Source &source, size_t mostBytes, const ReadContext &context)
{
    // Taken before the files are read: whatever happens to them since makes it another one.
    SearchText result{.text = {}, .state = SourceRead::stateOfHistory(source, context)};
    if (mostBytes == 0) {
        result.refusedBytes = 0;
        return result;
    }
    auto text = BrowserReader::historyText(source, context, mostBytes);
    // What cannot be read is read again when its files are others, or the next search is expected.
    if (text) {
        result.text = std::move(*text);
        result.refusedBytes = mostBytes;
    }
    return result;
}

size_t bytesLeft(const SearchTexts &texts, size_t limit)
{
    size_t left = limit;
    for (const SearchText &text : texts)
        left -= std::min(left, text.text ? text.text->byteCount() : 0);
    return left;
}

size_t textLimit(const UserDefaults &defaults)
{
    constexpr size_t mebibyte = size_t{1} << 20;
    bool isNumber = false;
    const qint64 stored = defaults.string(textLimitKey).value_or(QString()).toLongLong(&isNumber);
    const qint64 limit = isNumber ? std::clamp<qint64>(stored, 0, 1 << 20) : defaultTextLimit;
    return static_cast<size_t>(limit) * mebibyte;
}

} // namespace roamlet
