// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace roamlet::testing
{

/// Writes binary property lists object by object, also such as no program would write: values that contain
/// themselves, unfold without end or refer to nothing.
class BinaryPropertyList
{
public:
    explicit BinaryPropertyList(int referenceWidth = 4) : m_referenceWidth(referenceWidth) {}

    /// Each adds an object and returns its number; the first one is 0.
    int ascii(const QByteArray &text);
    int utf16(const QByteArray &bigEndian);
    /// Seconds since 2001.
    int date(double seconds);
    int integer(quint8 value);
    int array(const QList<int> &references);
    int dictionary(const QList<std::pair<int, int>> &entries);
    /// An object of these bytes.
    int raw(const QByteArray &bytes);

    /// Arrays inside each other, `depth` of them, around `innermost`; returns the outermost.
    int nestedArrays(int depth, int innermost);

    /// The whole file. The root is the object that was added last, if no other is named.
    QByteArray finish(int root = -1) const;

private:
    QByteArray header(quint8 type, qsizetype length) const;
    QByteArray reference(int object) const;

    int m_referenceWidth;
    QList<QByteArray> m_objects;
};

} // namespace roamlet::testing
