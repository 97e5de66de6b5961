// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

#include <algorithm>

namespace roamlet::fuzz
{

/// Takes several values out of one row of bytes, which has as many as anybody wants: at the end they are
/// empty.
class Portions
{
public:
    explicit Portions(QByteArrayView bytes) : m_bytes(bytes) {}

    bool atEnd() const { return m_bytes.isEmpty(); }
    /// One byte.
    int number()
    {
        if (atEnd())
            return 0;
        const int result = static_cast<uchar>(m_bytes.front());
        m_bytes = m_bytes.sliced(1);
        return result;
    }
    /// As many as the next byte says.
    QByteArrayView bytes()
    {
        const qsizetype wanted = number();
        const qsizetype size = std::min(wanted, m_bytes.size());
        const QByteArrayView result = m_bytes.first(size);
        m_bytes = m_bytes.sliced(size);
        return result;
    }
    QString text() { return QString::fromUtf8(bytes()); }
    /// What is left.
    QByteArrayView rest() const { return m_bytes; }

private:
    QByteArrayView m_bytes;
};

/// The same values as one row of bytes; texts are cut where a byte cannot tell their length.
class PortionWriter
{
public:
    PortionWriter &number(int value)
    {
        m_bytes += static_cast<char>(value);
        return *this;
    }
    PortionWriter &text(const QByteArray &text)
    {
        const QByteArray written = text.first(std::min<qsizetype>(text.size(), 255));
        number(static_cast<int>(written.size()));
        m_bytes += written;
        return *this;
    }
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace roamlet::fuzz
