// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DesktopPortal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

namespace roamlet::DesktopPortal
{

using namespace Qt::StringLiterals;

DesktopSettings settings(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return {};
    const QString group = u"org.freedesktop.appearance"_s;
    QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.portal.Settings"_s, u"ReadAll"_s);
    question << QStringList{group};
    // A portal waits for the desktop behind it when it starts, which can take half a minute where there is
    // none. A desktop that has one starts it with the session.
    question.setAutoStartService(false);
    constexpr int patience = 500; // milliseconds
    const QDBusMessage answer = bus.call(question, QDBus::Block, patience);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "a{sa{sv}}"_L1)
        return {};
    const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst());
    const QVariantMap appearance = groups.value(group);
    const auto isOne = [&appearance](const QString &key) { return appearance.value(key) == QVariant(1U); };
    return {.allowsMotion = !isOne(u"reduced-motion"_s), .wantsMoreContrast = isOne(u"contrast"_s)};
}

} // namespace roamlet::DesktopPortal
