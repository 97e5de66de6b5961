// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/RunningInstance.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace roamlet
{

/// The one running program, by its well-known name on the session bus. Answers as a desktop's launcher
/// expects of an application that can be activated.
class DBusRunningInstance final : public QObject, public RunningInstance
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// On the user's session bus.
    DBusRunningInstance();
    explicit DBusRunningInstance(const QDBusConnection &bus);
    ~DBusRunningInstance() override;

    Claim claim(const Wish &wish, std::function<void(const Wish &)> activated) override;
    void release() override;

public Q_SLOTS:
    /// A later start, or the desktop, brings the program forward.
    void
    Activate(const QVariantMap &platformData); // NOLINT(readability-identifier-naming): the interface's name
    /// There is nothing that could be opened with this program; it comes forward.
    void Open(const QStringList &uris, const QVariantMap &platformData);
    /// One of the actions in the desktop entry, or what a later start asks for.
    void ActivateAction(const QString &name, const QVariantList &parameters, const QVariantMap &platformData);

private:
    bool tell(const Wish &wish);
    void hear(const Wish &wish, const QVariantMap &platformData);

    QDBusConnection m_bus;
    std::function<void(const Wish &)> m_activated;
};

} // namespace roamlet
