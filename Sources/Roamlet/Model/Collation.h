// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace roamlet
{

/// The order in which people expect names: case and accents are ignored first, runs of digits compare by
/// value, then accents decide, then lower case before upper case. Any thread may ask, several at a time.
class Collation
{
public:
    /// For a locale such as "de_DE". A locale that is unknown, "C" or "POSIX" gets the order that suits most
    /// languages: those two would otherwise sort by code and put "Z" before "a".
    explicit Collation(const QString &locale);
    ~Collation();
    Collation(Collation &&) noexcept;
    Collation &operator=(Collation &&) noexcept;

    /// Less than, equal to or greater than zero.
    int compare(QStringView left, QStringView right) const;

    /// Appends bytes to `keys`, none of them zero, and then a zero. Compared byte by byte they have the order
    /// of the texts: whoever sorts many texts makes one key for each instead of comparing them in pairs.
    void appendSortKey(QStringView text, std::vector<char> &keys) const;

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace roamlet
