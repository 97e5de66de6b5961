// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DesktopPortal.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace roamlet::DesktopPortal
{

using namespace Qt::StringLiterals;

namespace
{

const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearanceGroup = u"org.freedesktop.appearance"_s;
const QString motionKey = u"reduced-motion"_s;
const QString contrastKey = u"contrast"_s;

} // namespace

DesktopSettings settings(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return {};
    QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, portalPath,
                                                           settingsInterface, u"ReadAll"_s);
    question << QStringList{appearanceGroup};
    // A portal waits for the desktop behind it when it starts, which can take half a minute where there is
    // none. A desktop that has one starts it with the session.
    question.setAutoStartService(false);
    constexpr int patience = 500; // milliseconds
    const QDBusMessage answer = bus.call(question, QDBus::Block, patience);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "a{sa{sv}}"_L1)
        return {};
    const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst());
    const QVariantMap appearance = groups.value(appearanceGroup);
    const auto isOne = [&appearance](const QString &key) { return appearance.value(key) == QVariant(1U); };
    return {.allowsMotion = !isOne(motionKey), .wantsMoreContrast = isOne(contrastKey)};
}

Listener::Listener(QDBusConnection bus, std::function<void()> changed) : m_changed(std::move(changed))
{
    moveToThread(QCoreApplication::instance()->thread());
    // Whoever says it: to watch for the portal's own name would mean to ask for it again and again, and all
    // that this leads to is that the portal is asked.
    bus.connect({}, portalPath, settingsInterface, u"SettingChanged"_s, {appearanceGroup}, u"ssv"_s, this,
                SLOT(settingChanged(QString, QString)));
}

void Listener::settingChanged(const QString & /*group*/, const QString &key)
{
    if (key == motionKey || key == contrastKey)
        m_changed();
}

} // namespace roamlet::DesktopPortal
