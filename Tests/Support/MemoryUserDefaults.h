// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/UserDefaults.h"

#include <QHash>
#include <QVariant>

namespace roamlet::testing
{

/// Settings that are gone with the test. Only a value of exactly the type asked for is found.
class MemoryUserDefaults final : public UserDefaults
{
public:
    std::optional<QStringList> stringList(const QString &key) const override
    {
        return value<QStringList>(key);
    }
    std::optional<QString> string(const QString &key) const override { return value<QString>(key); }
    std::optional<bool> boolean(const QString &key) const override { return value<bool>(key); }
    std::optional<QByteArray> bytes(const QString &key) const override { return value<QByteArray>(key); }

    void setStringList(const QString &key, const QStringList &list) override { m_values.insert(key, list); }
    void setString(const QString &key, const QString &text) override { m_values.insert(key, text); }
    void setBoolean(const QString &key, bool isTrue) override { m_values.insert(key, isTrue); }
    void setBytes(const QString &key, const QByteArray &bytes) override { m_values.insert(key, bytes); }
    void remove(const QString &key) override { m_values.remove(key); }

    void renew() override {}

    bool contains(const QString &key) const { return m_values.contains(key); }

private:
    template<typename Type>
    std::optional<Type> value(const QString &key) const
    {
        const QVariant stored = m_values.value(key);
        if (stored.metaType() != QMetaType::fromType<Type>())
            return {};
        return stored.value<Type>();
    }

    QHash<QString, QVariant> m_values;
};

} // namespace roamlet::testing
