// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <expected>
#include <variant>
#include <vector>

namespace roamlet
{

/// The values of a property list, all in one row: what the file nests or shares refers to others by their
/// places in it, so that nobody has to recurse.
struct PropertyListTree {
    /// Where in `children` the elements of an array stand.
    struct Array {
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };
    /// Where in `children` the keys and the values of a dictionary stand, in turn.
    struct Dictionary {
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };
    /// Seconds since 2001.
    struct Date {
        double seconds = 0;
    };
    /// Nobody asks for numbers, bytes and the like.
    using Other = std::monostate;
    using Node = std::variant<Other, QString, Date, Array, Dictionary>;

    std::vector<Node> nodes;
    /// Places in `nodes`.
    std::vector<std::uint32_t> children;
    std::uint32_t root = 0;

    /// Dictionaries and arrays inside each other. A bookmark folder takes two levels.
    static constexpr std::size_t deepestNesting = 20'000;

    /// Read bytes of one of the two formats, in time and memory that grow with their number, or say why they
    /// are refused.
    static std::expected<PropertyListTree, QString> ofBinary(QByteArrayView bytes);
    static std::expected<PropertyListTree, QString> ofXml(QByteArrayView bytes);
};

} // namespace roamlet
