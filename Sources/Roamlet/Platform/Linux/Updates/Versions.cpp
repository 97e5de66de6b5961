// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Versions.h"

#include <algorithm>
#include <vector>

namespace roamlet::Versions
{

using namespace Qt::StringLiterals;

namespace
{

enum class Kind {
    Number,
    Period,
    /// A space, a bracket and their like; in comparisons it is as good as a period.
    Separator,
    Word,
};

struct Part {
    Kind kind;
    QStringView text;
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

Kind kindOf(QChar c)
{
    if (isDigit(c))
        return Kind::Number;
    if (c == u'.')
        return Kind::Period;
    return c.isSpace() || c.isPunct() ? Kind::Separator : Kind::Word;
}

std::vector<Part> parts(QStringView version)
{
    // A hyphen begins a note, such as the revision that was built. At the very beginning it is no such thing.
    const qsizetype hyphen = version.indexOf(u'-', 1);
    if (hyphen > 0)
        version = version.first(hyphen);
    std::vector<Part> result;
    while (!version.isEmpty()) {
        const Kind kind = kindOf(version.front());
        qsizetype length = 1;
        if (kind == Kind::Number || kind == Kind::Word) {
            while (length < version.size() && kindOf(version[length]) == kind)
                ++length;
        }
        result.push_back({kind, version.first(length)});
        version = version.sliced(length);
    }
    return result;
}

/// Gives `shorter` the zeros that it lacks behind its leading numbers: "1.0b1" becomes "1.0.0b1" beside
/// "1.0.0".
void fillUp(std::vector<Part> &shorter, const std::vector<Part> &longer)
{
    const auto isWordLike = [](const Part &part) {
        return part.kind != Kind::Number && part.kind != Kind::Period;
    };
    const auto place = std::ranges::find_if(shorter, isWordLike) - shorter.begin();
    const auto end = std::ranges::find_if(longer, isWordLike) - longer.begin();
    for (auto i = place; i < end; ++i) {
        const bool isNumber = longer[static_cast<std::size_t>(i)].kind == Kind::Number;
        shorter.insert(shorter.begin() + i, isNumber ? Part{Kind::Number, u"0"} : Part{Kind::Period, u"."});
    }
}

/// Numbers of any length, without a type that could overflow.
std::weak_ordering compareNumbers(QStringView left, QStringView right)
{
    const auto withoutZeros = [](QStringView digits) {
        while (digits.startsWith(u'0'))
            digits = digits.sliced(1);
        return digits;
    };
    left = withoutZeros(left);
    right = withoutZeros(right);
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right) <=> 0;
}

std::weak_ordering compareParts(const Part &left, const Part &right)
{
    // From old to new, what may stand in one place.
    const auto rank = [](Kind kind) {
        if (kind == Kind::Word)
            return 0;
        return kind == Kind::Number ? 2 : 1;
    };
    if (const std::weak_ordering order = rank(left.kind) <=> rank(right.kind); order != 0)
        return order;
    switch (left.kind) {
    case Kind::Number:
        return compareNumbers(left.text, right.text);
    case Kind::Word:
        return left.text.compare(right.text) <=> 0;
    default:
        return std::weak_ordering::equivalent;
    }
}

} // namespace

bool isVersion(QStringView text)
{
    constexpr qsizetype longest = 100;
    return !text.isEmpty() && text.size() <= longest && isDigit(text.front());
}

std::weak_ordering compare(QStringView left, QStringView right)
{
    std::vector<Part> leftParts = parts(left);
    std::vector<Part> rightParts = parts(right);
    fillUp(leftParts, rightParts);
    fillUp(rightParts, leftParts);
    for (std::size_t i = 0; i < std::min(leftParts.size(), rightParts.size()); ++i) {
        if (const std::weak_ordering order = compareParts(leftParts[i], rightParts[i]); order != 0)
            return order;
    }
    const std::weak_ordering order = leftParts.size() <=> rightParts.size();
    if (order == 0)
        return order;
    // A word more makes it older ("1.0b"), anything else newer ("1.0 (5)").
    const std::vector<Part> &longer = order > 0 ? leftParts : rightParts;
    const Part &first = longer[std::min(leftParts.size(), rightParts.size())];
    if (first.kind != Kind::Word)
        return order;
    return order > 0 ? std::weak_ordering::less : std::weak_ordering::greater;
}

} // namespace roamlet::Versions
