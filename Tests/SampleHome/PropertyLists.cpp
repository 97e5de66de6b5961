// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/PropertyLists.h"

#include "SampleHome/PlainFiles.h"

#include <QDateTime>

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

/// Property lists count their dates from the first second of 2001.
constexpr qint64 referenceDateInUnixMilliseconds = 978'307'200'000;

plist_t node(const QVariant &value);

plist_t dictionary(const QVariantMap &map)
{
    plist_t dictionary = plist_new_dict();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        plist_dict_set_item(dictionary, entry.key().toUtf8().constData(), node(entry.value()));
    return dictionary;
}

plist_t array(const QVariantList &list)
{
    plist_t array = plist_new_array();
    for (const QVariant &value : list)
        plist_array_append_item(array, node(value));
    return array;
}

plist_t date(const QDateTime &time)
{
    const qint64 milliseconds = time.toMSecsSinceEpoch() - referenceDateInUnixMilliseconds;
    return plist_new_date(int32_t(milliseconds / 1000), int32_t(milliseconds % 1000 * 1000));
}

plist_t node(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return dictionary(value.toMap());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return array(value.toList());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), uint64_t(bytes.size()));
    }
    case QMetaType::QDateTime:
        return date(value.toDateTime());
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::Int:
    case QMetaType::LongLong:
        return plist_new_uint(uint64_t(value.toLongLong()));
    case QMetaType::QString:
        return plist_new_string(value.toString().toUtf8().constData());
    default:
        throw Failure(u"a property list cannot hold a "_s % QString::fromUtf8(value.typeName()));
    }
}

} // namespace

QByteArray propertyList(const QVariant &root, PropertyListFormat format)
{
    const std::unique_ptr<void, void (*)(plist_t)> list(node(root), plist_free);
    char *bytes = nullptr;
    uint32_t length = 0;
    if (format == PropertyListFormat::Binary)
        plist_to_bin(list.get(), &bytes, &length);
    else
        plist_to_xml(list.get(), &bytes, &length);
    const std::unique_ptr<char, void (*)(void *)> owner(bytes, std::free);
    if (!bytes)
        throw Failure(u"the property list cannot be written"_s);
    return {bytes, qsizetype(length)};
}

void writePropertyList(const QString &path, const QVariant &root, PropertyListFormat format)
{
    writeFile(path, propertyList(root, format));
}

} // namespace roamlet::sample
