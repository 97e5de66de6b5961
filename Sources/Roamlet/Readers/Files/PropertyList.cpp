// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/PropertyList.h"

#include "Readers/Files/PropertyListGuard.h"

#include <QtEndian>

#include <plist/plist.h>

#include <bit>
#include <cmath>
#include <cstdlib>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// From 1970-01-01 to 2001-01-01, where the dates of property lists begin.
constexpr double secondsUntil2001 = 978'307'200;
/// Some 30 million years.
constexpr double farthest = 1e15;

struct FreeMemory {
    void operator()(void *memory) const { std::free(memory); } // NOLINT(cppcoreguidelines-no-malloc)
};

} // namespace

bool PropertyListValue::isDictionary() const
{
    return m_node != nullptr && plist_get_node_type(m_node) == PLIST_DICT;
}

PropertyListValue PropertyListValue::member(const char *key) const
{
    return isDictionary() ? PropertyListValue(plist_dict_get_item(m_node, key)) : PropertyListValue();
}

std::optional<QString> PropertyListValue::string() const
{
    if (m_node == nullptr || plist_get_node_type(m_node) != PLIST_STRING)
        return {};
    std::uint64_t length = 0;
    return QString::fromUtf8(plist_get_string_ptr(m_node, &length));
}

std::optional<PointInTime> PropertyListValue::date() const
{
    if (m_node == nullptr || plist_get_node_type(m_node) != PLIST_DATE)
        return {};
    // The library hands dates out as 32-bit seconds, which end in 2069. Written as a binary list of one, the
    // date stands behind the 8-byte header and a marker byte as the double that it is.
    constexpr qsizetype offset = 9;
    char *bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(m_node, &bytes, &length);
    const std::unique_ptr<char, FreeMemory> owner(bytes);
    if (length < offset + sizeof(double))
        return {};
    const auto seconds = std::bit_cast<double>(qFromBigEndian<quint64>(bytes + offset));
    // No date, only what is left of one in a damaged file: nothing could be done with it but count seconds
    // wrongly.
    if (!std::isfinite(seconds) || std::abs(seconds) > farthest)
        return {};
    return pointInTime(seconds + secondsUntil2001);
}

std::vector<PropertyListValue> PropertyListValue::dictionaries() const
{
    if (m_node == nullptr || plist_get_node_type(m_node) != PLIST_ARRAY)
        return {};
    std::vector<PropertyListValue> elements;
    elements.reserve(plist_array_get_size(m_node));
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(m_node, &iterator);
    const std::unique_ptr<void, FreeMemory> owner(iterator);
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(m_node, iterator, &item);
        if (item == nullptr)
            return elements;
        elements.emplace_back(item);
        if (!elements.back().isDictionary())
            return {};
    }
}

PropertyList::PropertyList(void *root) : m_root(root, plist_free) {}

std::expected<PropertyList, QString> PropertyList::parse(const QByteArray &bytes)
{
    if (const std::optional<QString> refusal = PropertyListGuard::refusal(bytes))
        return std::unexpected(*refusal);
    plist_t root = nullptr;
    plist_from_memory(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &root);
    if (root == nullptr)
        return std::unexpected(u"not a property list"_s);
    return PropertyList(root);
}

} // namespace roamlet
