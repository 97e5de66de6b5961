// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DBusRunningInstance.h"

#include "Platform/Linux/Search/ApplicationCall.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

using ApplicationCall::objectPath;
using ApplicationCall::serviceName;

/// Where the system leaves the token for what it has started, and where the window system looks for it.
constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN";

/// A program that does not answer for so long is not coming forward, and this start ends all the same.
constexpr int activationTimeout = 5'000; // milliseconds
/// A bus that falls silent meanwhile holds up the start no longer than this.
constexpr int busTimeout = 3'000; // milliseconds

} // namespace

DBusRunningInstance::DBusRunningInstance() : DBusRunningInstance(QDBusConnection::sessionBus()) {}

DBusRunningInstance::DBusRunningInstance(const QDBusConnection &bus) : m_bus(bus) {}

DBusRunningInstance::~DBusRunningInstance()
{
    release();
}

RunningInstance::Claim DBusRunningInstance::claim(const Wish &wish,
                                                  std::function<void(const Wish &)> activated)
{
    if (!m_bus.isConnected())
        return Claim::Alone;
    m_bus.interface()->setTimeout(busTimeout);
    // The object stands before the name is taken: whoever finds the name finds somebody who answers.
    m_bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    // The one that has the name can be about to end, and then this one is its successor.
    constexpr int mostAttempts = 5;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
            m_bus.interface()->registerService(serviceName, QDBusConnectionInterface::DontQueueService,
                                               QDBusConnectionInterface::DontAllowReplacement);
        if (!reply.isValid())
            break;
        if (reply.value() == QDBusConnectionInterface::ServiceRegistered) {
            m_activated = std::move(activated);
            return Claim::First;
        }
        if (wish.kind == Wish::Nothing || tell(wish)) {
            m_bus.unregisterObject(objectPath);
            return Claim::HandedOver;
        }
    }
    m_bus.unregisterObject(objectPath);
    return Claim::Alone;
}

/// Whether there is still one that has the name. One that is stuck counts: a second one would not free it.
bool DBusRunningInstance::tell(const Wish &wish)
{
    const QString owner = m_bus.interface()->serviceOwner(serviceName);
    if (owner.isEmpty())
        return false;
    const QDBusMessage message = ApplicationCall::message(owner, wish, qEnvironmentVariable(tokenVariable));
    const bool isHeard =
        m_bus.call(message, QDBus::Block, activationTimeout).type() == QDBusMessage::ReplyMessage;
    return isHeard || m_bus.interface()->serviceOwner(serviceName) == owner;
}

void DBusRunningInstance::release()
{
    if (!std::exchange(m_activated, nullptr))
        return;
    m_bus.unregisterService(serviceName);
    m_bus.unregisterObject(objectPath);
}

void DBusRunningInstance::Activate(const QVariantMap &platformData)
{
    hear(Wish::ComeForward, platformData);
}

void DBusRunningInstance::Open(const QStringList & /*uris*/, const QVariantMap &platformData)
{
    Activate(platformData);
}

void DBusRunningInstance::ActivateAction(const QString &name, const QVariantList &parameters,
                                         const QVariantMap &platformData)
{
    hear(ApplicationCall::wishOf(name, parameters), platformData);
}

void DBusRunningInstance::hear(const Wish &wish, const QVariantMap &platformData)
{
    if (!m_activated)
        return;
    if (const QString token = ApplicationCall::activationToken(platformData); !token.isEmpty())
        qputenv(tokenVariable, token.toUtf8());
    m_activated(wish);
}

} // namespace roamlet
