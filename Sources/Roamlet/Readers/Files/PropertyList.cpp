// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/PropertyList.h"

#include "Readers/Files/PropertyListTree.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Some 30 million years.
constexpr double farthest = 1e15;

} // namespace

template<typename Kind>
const Kind *PropertyListValue::as() const
{
    return m_tree != nullptr ? std::get_if<Kind>(&m_tree->nodes[m_node]) : nullptr;
}

bool PropertyListValue::isDictionary() const
{
    return as<PropertyListTree::Dictionary>() != nullptr;
}

PropertyListValue PropertyListValue::member(const char *key) const
{
    const auto *dictionary = as<PropertyListTree::Dictionary>();
    if (dictionary == nullptr)
        return {};
    for (std::uint32_t entry = dictionary->count; entry > 0; --entry) {
        const std::uint32_t *place = &m_tree->children[dictionary->first + (2 * (entry - 1))];
        const auto *name = std::get_if<QString>(&m_tree->nodes[place[0]]);
        if (name != nullptr && *name == QLatin1StringView(key))
            return {*m_tree, place[1]};
    }
    return {};
}

std::optional<QString> PropertyListValue::string() const
{
    const auto *text = as<QString>();
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

std::optional<PointInTime> PropertyListValue::date() const
{
    const auto *date = as<PropertyListTree::Date>();
    // No date, only what is left of one in a damaged file: nothing could be done with it but count seconds
    // wrongly.
    if (date == nullptr || !std::isfinite(date->seconds) || std::abs(date->seconds) > farthest)
        return {};
    return pointInTime(date->seconds + secondsUntil2001);
}

std::vector<PropertyListValue> PropertyListValue::dictionaries() const
{
    const auto *array = as<PropertyListTree::Array>();
    if (array == nullptr)
        return {};
    std::vector<PropertyListValue> elements;
    elements.reserve(array->count);
    for (std::uint32_t i = 0; i < array->count; ++i) {
        elements.emplace_back(*m_tree, m_tree->children[array->first + i]);
        if (!elements.back().isDictionary())
            return {};
    }
    return elements;
}

PropertyList::PropertyList(PropertyListTree tree)
    : m_tree(std::make_shared<const PropertyListTree>(std::move(tree)))
{
}

std::expected<PropertyList, QString> PropertyList::parse(QByteArrayView bytes)
{
    // Places in the file and in the tree are counted with 32 bits.
    if (bytes.size() >= std::numeric_limits<std::int32_t>::max())
        return std::unexpected(QCoreApplication::translate("roamlet::ReadError", "it is too large"));
    auto tree =
        bytes.startsWith("bplist00") ? PropertyListTree::ofBinary(bytes) : PropertyListTree::ofXml(bytes);
    if (!tree)
        return std::unexpected(tree.error());
    return PropertyList(std::move(*tree));
}

PropertyListValue PropertyList::root() const
{
    return {*m_tree, m_tree->root};
}

} // namespace roamlet
