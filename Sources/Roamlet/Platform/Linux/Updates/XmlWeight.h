// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

namespace roamlet
{

/// What an XML document costs to read, found out by one look over its characters. A reader calls itself for
/// each level of nesting, so a document from elsewhere is weighed before it is read.
struct XmlWeight {
    /// How deep its elements are nested.
    qsizetype depth = 0;

    /// Right for a document without a type declaration, up to where it stops being one.
    static XmlWeight of(QStringView document);
};

} // namespace roamlet
