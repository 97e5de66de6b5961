// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DesktopPortal.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace roamlet::DesktopPortal
{

using namespace Qt::StringLiterals;

namespace
{

const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
/// One that counts, of all desktops or of one of them, and its value for who has chosen it.
struct Setting {
    QString group;
    QString key;
    QVariant chosen;
};
const QString appearance = u"org.freedesktop.appearance"_s;
const QList<Setting> lessMotion{
    {.group = appearance, .key = u"reduced-motion"_s, .chosen = 1U},
    {.group = u"org.gnome.desktop.interface"_s, .key = u"enable-animations"_s, .chosen = false}};
const QList<Setting> moreContrast{
    {.group = appearance, .key = u"contrast"_s, .chosen = 1U},
    {.group = u"org.gnome.desktop.a11y.interface"_s, .key = u"high-contrast"_s, .chosen = true}};

QStringList groups()
{
    QStringList result;
    for (const Setting &setting : lessMotion + moreContrast)
        result.append(setting.group);
    result.removeDuplicates();
    return result;
}

} // namespace

DesktopSettings settings(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return {};
    QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, portalPath,
                                                           settingsInterface, u"ReadAll"_s);
    question << groups();
    // A portal waits for the desktop behind it when it starts, which can take half a minute where there is
    // none. A desktop that has one starts it with the session.
    question.setAutoStartService(false);
    constexpr int patience = 500; // milliseconds
    const QDBusMessage answer = bus.call(question, QDBus::Block, patience);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "a{sa{sv}}"_L1)
        return {};
    const auto values = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst());
    // Whoever has set it in one place means it.
    const auto isChosen = [&values](const QList<Setting> &settings) {
        return std::ranges::any_of(settings, [&values](const Setting &setting) {
            return values.value(setting.group).value(setting.key) == setting.chosen;
        });
    };
    return {.allowsMotion = !isChosen(lessMotion), .wantsMoreContrast = isChosen(moreContrast)};
}

Listener::Listener(QDBusConnection bus, std::function<void()> changed) : m_changed(std::move(changed))
{
    moveToThread(QCoreApplication::instance()->thread());
    // Whoever says it: to watch for the portal's own name would mean to ask for it again and again, and all
    // that this leads to is that the portal is asked.
    for (const QString &group : groups())
        bus.connect({}, portalPath, settingsInterface, u"SettingChanged"_s, {group}, u"ssv"_s, this,
                    SLOT(settingChanged(QString, QString)));
}

void Listener::settingChanged(const QString &group, const QString &key)
{
    const bool counts = std::ranges::any_of(lessMotion + moreContrast, [&](const Setting &setting) {
        return setting.group == group && setting.key == key;
    });
    if (counts)
        m_changed();
}

} // namespace roamlet::DesktopPortal
