// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

namespace roamlet
{

/// What an XML document costs to read, found out by one look over its characters. A reader calls itself for
/// each level of nesting and compares each attribute with the others of its element and each name with every
/// namespace, so a document from elsewhere is weighed before it is read.
struct XmlWeight {
    qsizetype elements = 0;
    /// How many the element has that has the most, its namespaces among them.
    qsizetype attributes = 0;
    /// How deep its elements are nested.
    qsizetype depth = 0;

    /// Right for a document without a type declaration, up to where it stops being one.
    static XmlWeight of(QStringView document);
};

} // namespace roamlet
