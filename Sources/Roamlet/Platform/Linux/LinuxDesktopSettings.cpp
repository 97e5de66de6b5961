// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/DesktopSettings.h"
#include "Platform/Linux/DesktopPortal.h"

#include <QDBusConnection>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The connection that everybody shares belongs to the main thread.
class OwnConnection
{
public:
    explicit OwnConnection(QString name)
        : m_name(std::move(name)), m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_name))
    {
    }
    OwnConnection(const OwnConnection &) = delete;
    OwnConnection &operator=(const OwnConnection &) = delete;
    ~OwnConnection() { QDBusConnection::disconnectFromBus(m_name); }

    const QDBusConnection &bus() const { return m_bus; }

private:
    QString m_name;
    QDBusConnection m_bus;
};

/// Hears of changes.
struct Follower {
    explicit Follower(std::function<void()> changed) : listener(connection.bus(), std::move(changed)) {}

    OwnConnection connection{u"roamlet-desktop-changes"_s};
    DesktopPortal::Listener listener;
};

} // namespace

// Every desktop that has such settings gives them to its portal. To read its own store would take more
// libraries and threads than the whole window.
DesktopSettings DesktopSettings::read()
{
    const OwnConnection connection(u"roamlet-desktop-settings"_s);
    return DesktopPortal::settings(connection.bus());
}

std::shared_ptr<void> DesktopSettings::follow(const std::function<void()> &changed)
{
    return std::make_shared<Follower>(changed);
}

} // namespace roamlet
