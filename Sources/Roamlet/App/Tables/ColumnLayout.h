// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

class UserDefaults;

/// How the user has arranged the columns of a table.
struct ColumnLayout {
    /// The identifiers from left to right. Columns that it does not name follow in their own order.
    QStringList order;
    QSet<QString> hidden;
    /// In pixels; a column that is not named has the width that suits it.
    QHash<QString, int> widths;

    bool operator==(const ColumnLayout &) const = default;

    /// What is stored under `key`; the default layout where nothing is stored, or nothing that can be read.
    static ColumnLayout load(const UserDefaults &defaults, const QString &key);
    void save(UserDefaults &defaults, const QString &key) const;

    QByteArray toJson() const;
    static std::optional<ColumnLayout> fromJson(const QByteArray &json);
};

} // namespace roamlet
