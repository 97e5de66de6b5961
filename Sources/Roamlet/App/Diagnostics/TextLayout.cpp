// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/TextLayout.h"

#include <QTextBoundaryFinder>

#include <unicode/uchar.h>

#include <algorithm>

namespace roamlet::TextLayout
{

using namespace Qt::StringLiterals;

namespace
{

constexpr char16_t deleteCharacter = 0x7F;

int codePointWidth(char32_t codePoint)
{
    const auto c = static_cast<UChar32>(codePoint);
    switch (u_charType(c)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
    case U_CONTROL_CHAR:
        return 0;
    default:
        break;
    }
    const int eastAsianWidth = u_getIntPropertyValue(c, UCHAR_EAST_ASIAN_WIDTH);
    return eastAsianWidth == U_EA_FULLWIDTH || eastAsianWidth == U_EA_WIDE ? 2 : 1;
}

/// A character that a person sees is as wide as its widest part; one drawn as an emoji is wide.
int characterWidth(QStringView character)
{
    constexpr char32_t asEmoji = 0xFE0F;
    int result = 0;
    int flagLetters = 0;
    for (const char32_t codePoint : character.toUcs4()) {
        flagLetters += codePoint >= 0x1F1E6 && codePoint <= 0x1F1FF ? 1 : 0;
        const bool isWide = flagLetters == 2 || (codePoint == asEmoji && result > 0);
        result = std::max(result, isWide ? 2 : codePointWidth(codePoint));
    }
    return result;
}

/// Calls `visit` with each character that a person sees, until it answers false.
template<typename Visit>
void forEachCharacter(QStringView text, Visit visit)
{
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype start = 0;
    for (qsizetype end = boundaries.toNextBoundary(); end >= 0; end = boundaries.toNextBoundary()) {
        if (!visit(text.sliced(start, end - start)))
            return;
        start = end;
    }
}

/// Whether the mark changes the direction of what follows, or breaks the line, wherever it stands.
bool isLayoutMark(char16_t c)
{
    return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0x200E || c == 0x200F ||
           c == 0x061C || c == 0x2028 || c == 0x2029;
}

} // namespace

int width(QStringView text)
{
    const bool isPlain = std::ranges::all_of(text, [](QChar c) { return c >= u' ' && c <= u'~'; });
    if (isPlain)
        return static_cast<int>(text.size());
    int result = 0;
    forEachCharacter(text, [&result](QStringView character) {
        result += characterWidth(character);
        return true;
    });
    return result;
}

QString padded(const QString &text, int columns)
{
    return text % QString(std::max(columns - width(text), 0), u' ');
}

QString elided(const QString &text, int columns)
{
    // Long before the end of a title of a million characters it is clear that it does not fit.
    qsizetype length = 0;
    int used = 0;
    bool fits = true;
    forEachCharacter(text, [&](QStringView character) {
        used += characterWidth(character);
        fits = used <= columns;
        if (used < columns)
            length += character.size();
        return fits;
    });
    return fits ? text : QString(text.first(length) % u'…');
}

bool isObeyed(QChar character)
{
    const char16_t code = character.unicode();
    return code < u' ' || (code >= deleteCharacter && code < 0xA0) || isLayoutMark(code);
}

QString shown(const QString &text)
{
    constexpr char16_t firstPicture = 0x2400;
    constexpr char16_t deletePicture = 0x2421;
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        if (code < u' ')
            result += QChar(static_cast<char16_t>(firstPicture + code));
        else if (code == deleteCharacter)
            result += QChar(deletePicture);
        else if (isObeyed(c))
            result += u"<U+" % QString::number(code, 16).toUpper().rightJustified(4, u'0') % u'>';
        else
            result += c;
    }
    return result;
}

QStringList aligned(const QList<QStringList> &rows, int widest)
{
    QList<int> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column + 1 < row.size(); ++column)
            widths[column] = std::max(widths[column], std::min(width(row[column]), widest));
    }
    QStringList lines;
    lines.reserve(rows.size());
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype column = 0; column + 1 < row.size(); ++column)
            line += padded(row[column], widths[column]) % u"  ";
        lines.append(row.isEmpty() ? line : QString(line % row.last()));
    }
    return lines;
}

} // namespace roamlet::TextLayout
