// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVariant>

namespace roamlet::sample
{

enum class PropertyListFormat { Binary, Xml };

/// A property list of this value. Maps become dictionaries, lists arrays, byte arrays data, date-times dates;
/// strings, booleans, integers and reals stay what they are. XML keeps whole seconds only.
QByteArray propertyList(const QVariant &root, PropertyListFormat format);

/// Writes one into a file.
void writePropertyList(const QString &path, const QVariant &root, PropertyListFormat format);

} // namespace roamlet::sample
