// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/PasteNotice.h"

#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

PasteNotice::PasteNotice(const QDBusConnection &bus, SetClipboard setClipboard, Wording wording)
    : m_bus(bus), m_setClipboard(std::move(setClipboard)), m_wording(std::move(wording))
{
}

void PasteNotice::show(const QString &page)
{
    m_setClipboard(page);
    const Words words = m_wording(page);
    QDBusMessage message = QDBusMessage::createMethodCall(u"org.freedesktop.Notifications"_s,
                                                          u"/org/freedesktop/Notifications"_s,
                                                          u"org.freedesktop.Notifications"_s, u"Notify"_s);
    constexpr uint newNotice = 0;
    constexpr int untilTheDesktopSaysSo = -1;
    message << u"Roamlet"_s << newNotice << u"org.roamlet.Roamlet"_s << words.title << words.text
            << QStringList() << QVariantMap() << untilTheDesktopSaysSo;
    m_bus.send(message);
}

} // namespace roamlet
