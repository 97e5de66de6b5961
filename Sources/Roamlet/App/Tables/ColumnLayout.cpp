// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/ColumnLayout.h"

#include "Platform/UserDefaults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString orderName = u"order"_s;
const QString hiddenName = u"hidden"_s;
const QString widthsName = u"widths"_s;

/// A width beyond this is no wish but a damaged file.
constexpr int widest = 10'000;

std::optional<QStringList> strings(const QJsonValue &value)
{
    if (!value.isArray())
        return {};
    QStringList result;
    for (const auto &element : value.toArray()) {
        if (!element.isString())
            return {};
        result.append(element.toString());
    }
    return result;
}

} // namespace

ColumnLayout ColumnLayout::load(const UserDefaults &defaults, const QString &key)
{
    return fromJson(defaults.bytes(key).value_or(QByteArray())).value_or(ColumnLayout());
}

void ColumnLayout::save(UserDefaults &defaults, const QString &key) const
{
    defaults.setBytes(key, toJson());
}

QByteArray ColumnLayout::toJson() const
{
    QStringList hiddenColumns(hidden.cbegin(), hidden.cend());
    hiddenColumns.sort();
    QJsonObject widthOfColumn;
    for (auto width = widths.cbegin(); width != widths.cend(); ++width)
        widthOfColumn.insert(width.key(), *width);
    return QJsonDocument(QJsonObject{{orderName, QJsonArray::fromStringList(order)},
                                     {hiddenName, QJsonArray::fromStringList(hiddenColumns)},
                                     {widthsName, widthOfColumn}})
        .toJson(QJsonDocument::Compact);
}

std::optional<ColumnLayout> ColumnLayout::fromJson(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    const QJsonValue widthOfColumn = document[widthsName];
    const std::optional order = strings(document[orderName]);
    const std::optional hidden = strings(document[hiddenName]);
    if (!order || !hidden || !widthOfColumn.isObject())
        return {};

    ColumnLayout layout{
        .order = *order, .hidden = QSet<QString>(hidden->cbegin(), hidden->cend()), .widths = {}};
    layout.order.removeDuplicates();
    const QJsonObject widths = widthOfColumn.toObject();
    for (auto width = widths.constBegin(); width != widths.constEnd(); ++width) {
        const int pixels = width.value().toInt(-1);
        if (pixels < 0)
            return {};
        // Nobody has chosen a column that cannot be seen; the rest of the layout still holds.
        if (pixels > 0)
            layout.widths.insert(width.key(), std::min(pixels, widest));
    }
    return layout;
}

} // namespace roamlet
