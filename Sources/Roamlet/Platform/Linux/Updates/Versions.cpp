// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Versions.h"

#include <QList>

#include <algorithm>

namespace roamlet::Versions
{

namespace
{

// From old to new, what may stand in one place.
enum class Kind { Word, End, Separator, Number };

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

Kind kindOf(QStringView part)
{
    if (part.isEmpty())
        return Kind::End;
    if (isDigit(part.front()))
        return Kind::Number;
    return part.front().isSpace() || part.front().isPunct() ? Kind::Separator : Kind::Word;
}

/// Takes the next number, word or separator away from `rest`.
QStringView takePart(QStringView &rest)
{
    const Kind kind = kindOf(rest);
    qsizetype length = std::min<qsizetype>(rest.size(), 1);
    while (kind != Kind::Separator && length < rest.size() && kindOf(rest.sliced(length)) == kind)
        ++length;
    const QStringView result = rest.first(length);
    rest = rest.sliced(length);
    return result;
}

/// Takes the numbers with periods between them away from the beginning of `rest`.
QList<QStringView> takeNumbers(QStringView &rest)
{
    const QChar *end = std::ranges::find_if_not(rest, [](QChar c) { return isDigit(c) || c == u'.'; });
    const QStringView numbers = rest.first(end - rest.begin());
    rest = rest.sliced(numbers.size());
    return numbers.split(u'.');
}

/// Numbers of any length, without a type that could overflow. What is missing is nothing.
std::weak_ordering compareNumbers(QStringView left, QStringView right)
{
    const auto withoutZeros = [](QStringView digits) {
        return digits.sliced(std::ranges::find_if(digits, [](QChar c) { return c != u'0'; }) -
                             digits.begin());
    };
    left = withoutZeros(left);
    right = withoutZeros(right);
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right) <=> 0;
}

/// A hyphen begins a note, such as the revision that was built. At the very beginning it is no such thing.
QStringView withoutNote(QStringView version)
{
    const qsizetype hyphen = version.indexOf(u'-', 1);
    return hyphen > 0 ? version.first(hyphen) : version;
}

} // namespace

bool isVersion(QStringView text)
{
    constexpr qsizetype longest = 100;
    return !text.isEmpty() && text.size() <= longest && isDigit(text.front());
}

std::weak_ordering compare(QStringView left, QStringView right)
{
    left = withoutNote(left);
    right = withoutNote(right);
    const QList<QStringView> leftNumbers = takeNumbers(left);
    const QList<QStringView> rightNumbers = takeNumbers(right);
    std::weak_ordering order = std::weak_ordering::equivalent;
    for (qsizetype i = 0; i < std::max(leftNumbers.size(), rightNumbers.size()) && order == 0; ++i)
        order = compareNumbers(leftNumbers.value(i), rightNumbers.value(i));
    while (order == 0 && !(left.isEmpty() && right.isEmpty())) {
        const QStringView leftPart = takePart(left);
        const QStringView rightPart = takePart(right);
        order = kindOf(leftPart) <=> kindOf(rightPart);
        if (order == 0 && kindOf(leftPart) == Kind::Number)
            order = compareNumbers(leftPart, rightPart);
        else if (order == 0 && kindOf(leftPart) == Kind::Word)
            order = leftPart.compare(rightPart) <=> 0;
    }
    return order;
}

} // namespace roamlet::Versions
