// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <QByteArray>
#include <QString>

#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace roamlet
{

/// One value in a property list; also one that is not there. Valid as long as the PropertyList it came from.
class PropertyListValue
{
public:
    /// A value that is not there.
    PropertyListValue() = default;
    /// Wraps a node of the library's.
    explicit PropertyListValue(void *node) : m_node(node) {}

    bool isDictionary() const;
    /// The value under `key`; one that is not there when this is no dictionary or has no such key.
    PropertyListValue member(const char *key) const;
    /// The text, up to a NUL, when this is a string.
    std::optional<QString> string() const;
    /// The point in time when this is a date.
    std::optional<PointInTime> date() const;
    /// The elements when this is an array of dictionaries and of nothing else; empty otherwise.
    std::vector<PropertyListValue> dictionaries() const;

private:
    void *m_node = nullptr;
};

/// A property list, binary or XML.
class PropertyList
{
public:
    /// The reason when the bytes are no property list, or one that no honest program writes: nested deeper
    /// than a reader could follow, or unfolding to many times the size of the file.
    static std::expected<PropertyList, QString> parse(const QByteArray &bytes);

    PropertyListValue root() const { return PropertyListValue(m_root.get()); }

private:
    explicit PropertyList(void *root);

    std::unique_ptr<void, std::function<void(void *)>> m_root;
};

} // namespace roamlet
