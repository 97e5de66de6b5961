// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <vector>

namespace roamlet
{

struct PropertyListTree;

/// From 1970-01-01 to 2001-01-01, where the dates of property lists begin, and all of Safari's times.
inline constexpr std::int64_t secondsUntil2001 = 978'307'200;

/// One value in a property list; also one that is not there. Valid as long as the PropertyList it came from.
class PropertyListValue
{
public:
    /// A value that is not there.
    PropertyListValue() = default;
    /// The value at this place of a tree.
    PropertyListValue(const PropertyListTree &tree, std::uint32_t node) : m_tree(&tree), m_node(node) {}

    bool isDictionary() const;
    /// The value under `key`, the last one if there are several; one that is not there when this is no
    /// dictionary or has no such key.
    PropertyListValue member(const char *key) const;
    /// The text when this is a string.
    std::optional<QString> string() const;
    /// The point in time when this is a date.
    std::optional<PointInTime> date() const;
    /// The elements when this is an array of dictionaries and of nothing else; empty otherwise.
    std::vector<PropertyListValue> dictionaries() const;

private:
    /// What is here when it is of this kind, else null.
    template<typename Kind>
    const Kind *as() const;

    const PropertyListTree *m_tree = nullptr;
    std::uint32_t m_node = 0;
};

/// A property list, binary or XML.
class PropertyList
{
public:
    /// The reason when the bytes are no property list, or one that no honest program writes: nested deeper
    /// than any bookmark, or unfolding to many times the size of the file.
    static std::expected<PropertyList, QString> parse(QByteArrayView bytes);

    /// The value that holds all others, as long as this list is there.
    PropertyListValue root() const;

private:
    explicit PropertyList(PropertyListTree tree);

    std::shared_ptr<const PropertyListTree> m_tree;
};

} // namespace roamlet
