// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/LowerCase.h"

#include <unicode/ustring.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace roamlet
{

namespace
{

constexpr QChar sigma = u'σ';
constexpr QChar finalSigma = u'ς';

/// Most texts are of ASCII alone, and there are many.
bool isAscii(const QString &text)
{
    constexpr char16_t end = 0x80;
    char16_t all = 0;
    for (const QChar character : text)
        all |= character.unicode();
    return all < end;
}

} // namespace

QString lowerCased(QString text)
{
    if (isAscii(text)) {
        constexpr char16_t caseBit = 0x20;
        for (QChar &character : text) {
            const char16_t code = character.unicode();
            character = QChar(static_cast<char16_t>(code >= u'A' && code <= u'Z' ? code | caseBit : code));
        }
        return text;
    }
    // Qt knows nothing of the sigma at the end of a word. No letter becomes more than three.
    constexpr qsizetype longest = std::numeric_limits<std::int32_t>::max() / 3;
    if (text.size() > longest)
        return std::move(text).toLower();
    QString result(text.size(), Qt::Uninitialized);
    std::int32_t length = 0;
    UErrorCode status = U_BUFFER_OVERFLOW_ERROR;
    while (status == U_BUFFER_OVERFLOW_ERROR) {
        result.resize(std::max<qsizetype>(result.size(), length));
        status = U_ZERO_ERROR;
        length = u_strToLower(reinterpret_cast<char16_t *>(result.data()),
                              static_cast<std::int32_t>(result.size()), QStringView(text).utf16(),
                              static_cast<std::int32_t>(text.size()), "", &status);
    }
    if (U_FAILURE(status) != 0)
        return std::move(text).toLower();
    result.resize(length);
    return result;
}

bool hasSigma(const QString &text)
{
    return text.contains(sigma) || text.contains(finalSigma);
}

QString withPlainSigmas(QString text)
{
    text.replace(finalSigma, sigma);
    return text;
}

} // namespace roamlet
