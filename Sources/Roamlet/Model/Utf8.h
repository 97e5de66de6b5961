// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QChar>
#include <QString>

namespace roamlet
{

/// The text that UTF-8 bytes stand for, broken sequences replaced. A value out of a file, and a file's
/// name, has no byte-order mark: what looks like one is its first character, which Qt would leave out.
inline QString utf8Text(QByteArrayView bytes)
{
    const QString text = QString::fromUtf8(bytes);
    return bytes.startsWith("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
}

} // namespace roamlet
