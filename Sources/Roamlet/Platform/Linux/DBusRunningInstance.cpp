// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DBusRunningInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString serviceName = u"org.roamlet.Roamlet"_s;
const QString objectPath = u"/org/roamlet/Roamlet"_s;
const QString interfaceName = u"org.freedesktop.Application"_s;
/// A program that does not answer for so long is not coming forward, and this start ends all the same.
constexpr int activationTimeout = 5'000; // milliseconds

} // namespace

DBusRunningInstance::DBusRunningInstance() : DBusRunningInstance(QDBusConnection::sessionBus()) {}

DBusRunningInstance::DBusRunningInstance(const QDBusConnection &bus) : m_bus(bus) {}

DBusRunningInstance::~DBusRunningInstance()
{
    if (m_activated) {
        m_bus.unregisterService(serviceName);
        m_bus.unregisterObject(objectPath);
    }
}

RunningInstance::Claim DBusRunningInstance::claim(Wish wish, std::function<void()> activated)
{
    if (!m_bus.isConnected())
        return Claim::Alone;
    // The object stands before the name is taken: whoever finds the name finds somebody who answers.
    m_bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        m_bus.interface()->registerService(serviceName, QDBusConnectionInterface::DontQueueService,
                                           QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid()) {
        m_bus.unregisterObject(objectPath);
        return Claim::Alone;
    }
    if (reply.value() == QDBusConnectionInterface::ServiceRegistered) {
        m_activated = std::move(activated);
        return Claim::First;
    }
    m_bus.unregisterObject(objectPath);
    if (wish == Wish::Nothing)
        return Claim::HandedOver;
    QDBusMessage message =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, u"Activate"_s);
    message << QVariantMap();
    m_bus.call(message, QDBus::Block, activationTimeout);
    return Claim::HandedOver;
}

void DBusRunningInstance::Activate(const QVariantMap & /*platformData*/)
{
    if (m_activated)
        m_activated();
}

void DBusRunningInstance::Open(const QStringList & /*uris*/, const QVariantMap &platformData)
{
    Activate(platformData);
}

void DBusRunningInstance::ActivateAction(const QString & /*name*/, const QVariantList & /*parameters*/,
                                         const QVariantMap &platformData)
{
    Activate(platformData);
}

} // namespace roamlet
