// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/UserDefaults.h"

#include <QSettings>

#include <memory>

namespace roamlet
{

/// Settings in an INI file, the keys as they are named, in its General section.
class SettingsUserDefaults final : public UserDefaults
{
public:
    /// The user's own file, "Roamlet/Roamlet.conf" in the configuration folder.
    SettingsUserDefaults();
    /// The file at `path`.
    explicit SettingsUserDefaults(const QString &path);

    std::optional<QStringList> stringList(const QString &key) const override;
    std::optional<QString> string(const QString &key) const override;
    std::optional<bool> boolean(const QString &key) const override;
    std::optional<QByteArray> bytes(const QString &key) const override;

    void setStringList(const QString &key, const QStringList &value) override;
    void setString(const QString &key, const QString &value) override;
    void setBoolean(const QString &key, bool value) override;
    void setBytes(const QString &key, const QByteArray &value) override;
    void remove(const QString &key) override;

    void renew() override { m_settings->sync(); }

private:
    void set(const QString &key, const QVariant &value);
    /// Before the settings change. Where they cannot be saved, they are those of this run only.
    void prepareSaving();
    /// Complains once where it cannot.
    void save();
    void complain();

    std::unique_ptr<QSettings> m_settings;
    bool m_isSaved;
};

} // namespace roamlet
