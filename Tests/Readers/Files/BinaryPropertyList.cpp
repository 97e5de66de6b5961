// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/BinaryPropertyList.h"

#include <bit>

namespace roamlet::testing
{

namespace
{

QByteArray bigEndian(quint64 number, int width)
{
    QByteArray bytes;
    for (int i = width - 1; i >= 0; --i)
        bytes += static_cast<char>((number >> (8U * static_cast<unsigned int>(i))) & 0xFFU);
    return bytes;
}

} // namespace

int BinaryPropertyList::ascii(const QByteArray &text)
{
    return raw(header(0x5, text.size()) + text);
}

int BinaryPropertyList::utf16(const QByteArray &bigEndian)
{
    return raw(header(0x6, bigEndian.size() / 2) + bigEndian);
}

int BinaryPropertyList::date(double seconds)
{
    return raw('\x33' + bigEndian(std::bit_cast<quint64>(seconds), sizeof(double)));
}

int BinaryPropertyList::integer(quint8 value)
{
    return raw('\x10' + bigEndian(value, 1));
}

int BinaryPropertyList::array(const QList<int> &references)
{
    QByteArray bytes = header(0xA, references.size());
    for (const int object : references)
        bytes += reference(object);
    return raw(bytes);
}

int BinaryPropertyList::dictionary(const QList<std::pair<int, int>> &entries)
{
    QByteArray bytes = header(0xD, entries.size());
    for (const auto &[key, value] : entries)
        bytes += reference(key);
    for (const auto &[key, value] : entries)
        bytes += reference(value);
    return raw(bytes);
}

int BinaryPropertyList::raw(const QByteArray &bytes)
{
    m_objects.append(bytes);
    return static_cast<int>(m_objects.size()) - 1;
}

int BinaryPropertyList::nestedArrays(int depth, int innermost)
{
    int object = innermost;
    for (int i = 0; i < depth; ++i)
        object = array({object});
    return object;
}

QByteArray BinaryPropertyList::finish(int root) const
{
    constexpr int offsetWidth = 4;
    QByteArray bytes = "bplist00";
    QByteArray table;
    for (const QByteArray &object : m_objects) {
        table += bigEndian(static_cast<quint64>(bytes.size()), offsetWidth);
        bytes += object;
    }
    const auto tableOffset = static_cast<quint64>(bytes.size());
    const auto rootObject = static_cast<quint64>(root < 0 ? m_objects.size() - 1 : root);
    return bytes + table + QByteArray(6, '\0') + static_cast<char>(offsetWidth) +
           static_cast<char>(m_referenceWidth) + bigEndian(static_cast<quint64>(m_objects.size()), 8) +
           bigEndian(rootObject, 8) + bigEndian(tableOffset, 8);
}

QByteArray BinaryPropertyList::header(quint8 type, qsizetype length) const
{
    constexpr qsizetype countFollows = 15;
    const auto marker = [type](qsizetype low) {
        return QByteArray(1, static_cast<char>((type << 4U) | static_cast<quint8>(low)));
    };
    if (length < countFollows)
        return marker(length);
    return marker(countFollows) + '\x12' + bigEndian(static_cast<quint64>(length), 4);
}

QByteArray BinaryPropertyList::reference(int object) const
{
    return bigEndian(static_cast<quint64>(object), m_referenceWidth);
}

} // namespace roamlet::testing
