// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace roamlet::testing
{

/// What a desktop's portal says about its settings, on a bus of a test's own.
class FakePortal final : public QDBusVirtualObject
{
public:
    /// By groups and keys.
    using Settings = QMap<QString, QVariantMap>;

    /// Answers everybody, until it goes.
    explicit FakePortal(const QString &address)
        : m_bus(QDBusConnection::connectToBus(address, QStringLiteral("fake portal")))
    {
        qDBusRegisterMetaType<Settings>();
        m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    FakePortal(const FakePortal &) = delete;
    FakePortal &operator=(const FakePortal &) = delete;
    ~FakePortal() override { QDBusConnection::disconnectFromBus(QStringLiteral("fake portal")); }

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        questions.append(QString(message.interface() + u'.' + message.member()));
        if (isSilent) {
            message.setDelayedReply(true);
            return true;
        }
        Settings answer;
        for (const QString &group : message.arguments().constFirst().toStringList()) {
            if (settings.contains(group))
                answer.insert(group, settings.value(group));
        }
        return bus.send(message.createReply(strange.isValid() ? strange : QVariant::fromValue(answer)));
    }

    /// As when the user has set something.
    void change(const QString &group, const QString &key, const QVariant &value)
    {
        settings[group].insert(key, value);
        announce(group, key, value);
    }
    /// Says that something has changed, whatever is true.
    void announce(const QString &group, const QString &key, const QVariant &value)
    {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                         QStringLiteral("org.freedesktop.portal.Settings"),
                                                         QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

    Settings settings;
    /// What it answers instead.
    QVariant strange;
    bool isSilent = false;
    QStringList questions;

private:
    QDBusConnection m_bus;
};

} // namespace roamlet::testing
