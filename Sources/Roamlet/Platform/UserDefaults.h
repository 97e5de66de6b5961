// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

/// The user's stored settings, by key. A value of another type than the one asked for counts as absent. On
/// the main thread.
class UserDefaults
{
public:
    UserDefaults() = default;
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;
    virtual ~UserDefaults() = default;

    virtual std::optional<QStringList> stringList(const QString &key) const = 0;
    virtual std::optional<QString> string(const QString &key) const = 0;
    virtual std::optional<bool> boolean(const QString &key) const = 0;
    virtual std::optional<QByteArray> bytes(const QString &key) const = 0;

    virtual void setStringList(const QString &key, const QStringList &value) = 0;
    virtual void setString(const QString &key, const QString &value) = 0;
    virtual void setBoolean(const QString &key, bool value) = 0;
    virtual void setBytes(const QString &key, const QByteArray &value) = 0;
    virtual void remove(const QString &key) = 0;

    /// Takes over what other processes have stored since.
    virtual void renew() = 0;
};

} // namespace roamlet
