// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/ColumnLayout.h"

#include "Kit/Targets.h"

namespace roamlet::fuzz
{

namespace
{

void attackColumnLayout(QByteArrayView bytes)
{
    const auto layout = ColumnLayout::fromJson(bytes.toByteArray());
    if (!layout)
        return;
    QStringList once = layout->order;
    require(once.removeDuplicates() == 0, "a column has one place");
    for (const int width : layout->widths)
        require(width > 0 && width <= 10'000, "a column can be seen, and others beside it");
    const auto again = ColumnLayout::fromJson(layout->toJson());
    require(again.has_value(), "what was arranged is read again");
    require(again->order.size() <= layout->order.size() && again->widths.size() <= layout->widths.size(),
            "what is read again is no more");
}

QList<QByteArray> columnLayoutSeeds()
{
    return {R"({"order":["title","url"],"hidden":["visits"],"widths":{"title":300,"url":0}})",
            R"({"hidden":[],"order":[],"widths":{}})",
            R"({"order":["title","title","\u00e9\ud83d\ude00"],"hidden":["a","a"],"widths":{"a":99999999}})",
            R"({"order":"title","hidden":[1],"widths":{"a":-1}})"};
}

} // namespace

Target columnLayout()
{
    return {
        .name = "ColumnLayout", .attack = attackColumnLayout, .seeds = columnLayoutSeeds, .longest = 1024};
}

} // namespace roamlet::fuzz
