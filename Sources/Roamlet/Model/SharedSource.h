// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QExplicitlySharedDataPointer>
#include <QString>

namespace roamlet
{

/// The source of a row. A list has thousands of rows of few sources: a copy of this is a pointer, and what is
/// asked of each row is made once. Any thread.
class SharedSource
{
public:
    /// Of a source with nothing in it; all of these are one.
    SharedSource();
    // Whoever makes a row has a source.
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions)
    SharedSource(const Source &source);

    /// Source::id() and Source::label().
    const QString &id() const { return m_data->id; }
    const QString &label() const { return m_data->label; }

    const Source &operator*() const { return m_data->source; }
    const Source *operator->() const { return &m_data->source; }
    // Most of those who take a source want to know which one it is, and not who else has it.
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions)
    operator const Source &() const { return m_data->source; }

    friend bool operator==(const SharedSource &left, const SharedSource &right)
    {
        return left.m_data == right.m_data || *left == *right;
    }
    friend bool operator==(const SharedSource &left, const Source &right) { return *left == right; }

private:
    struct Data final : QSharedData {
        explicit Data(const Source &from) : source(from), id(from.id()), label(from.label()) {}

        Source source;
        QString id;
        QString label;
    };

    QExplicitlySharedDataPointer<const Data> m_data;
};

} // namespace roamlet
