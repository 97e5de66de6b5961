// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Search/SearchService.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

// What the library itself says of a connection.
const QString localPath = u"/org/freedesktop/DBus/Local"_s;
const QString localInterface = u"org.freedesktop.DBus.Local"_s;
const QString disconnected = u"Disconnected"_s;

} // namespace

SearchService::SearchService(const QDBusConnection &bus, DesktopQuestions &questions, const QString &showAll,
                             std::function<void()> busGone)
    : m_bus(bus), m_gnome(questions), m_kRunner(questions, showAll), m_busGone(std::move(busGone))
{
}

SearchService::~SearchService()
{
    release();
    m_bus.unregisterObject(gnomePath);
    m_bus.unregisterObject(kRunnerPath);
}

SearchService::Start SearchService::start()
{
    if (!m_bus.isConnected())
        return Start::NoBus;
    m_bus.connect({}, localPath, localInterface, disconnected, this, SLOT(busHasGone()));
    // The objects stand before the name is taken: whoever finds the name finds somebody who answers.
    m_bus.registerObject(gnomePath, &m_gnome, QDBusConnection::ExportAllSlots);
    m_bus.registerObject(kRunnerPath, &m_kRunner, QDBusConnection::ExportAllSlots);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        m_bus.interface()->registerService(serviceName, QDBusConnectionInterface::DontQueueService,
                                           QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid())
        return Start::NoBus;
    return reply.value() == QDBusConnectionInterface::ServiceRegistered ? Start::Answering : Start::Taken;
}

void SearchService::release()
{
    if (m_bus.isConnected())
        m_bus.unregisterService(serviceName);
}

void SearchService::busHasGone()
{
    m_busGone();
}

} // namespace roamlet
