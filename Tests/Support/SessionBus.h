// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QString>

namespace roamlet::testing
{

/// A session's message bus that only a test knows, gone with this object.
class SessionBus final
{
public:
    SessionBus() = default;
    SessionBus(const SessionBus &) = delete;
    SessionBus &operator=(const SessionBus &) = delete;
    ~SessionBus();

    /// Whether this machine has the program for one.
    static bool isAvailable();
    /// Whether it runs. Services that it starts get this environment.
    bool start(const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    /// As in DBUS_SESSION_BUS_ADDRESS.
    QString address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace roamlet::testing
