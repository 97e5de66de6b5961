// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <optional>

namespace roamlet
{

/// A package that the system's own service for packages installs, after it has asked the user for permission.
/// Destroying this asks the service to stop, and nothing is called any more. On the main thread.
class PackageKitInstallation final : public QObject
{
    Q_OBJECT

public:
    enum class End {
        Installed,
        Refused,     ///< permission was not given, or the user cancelled it
        Failed,      ///< in the service's words
        Unavailable, ///< nothing was tried: there is no such service, or it takes no files
    };
    struct Handlers {
        /// How far it is, of a hundred; nothing when nobody knows.
        std::function<void(std::optional<int> percent)> progress;
        /// Called at the end. It may destroy the installation.
        std::function<void(End end, const QString &text)> finish;
    };

    /// `patience` is how long the service may take to say that it is there. After that the user decides.
    PackageKitInstallation(const QDBusConnection &bus, std::chrono::milliseconds patience,
                           const QString &package, Handlers handlers);
    ~PackageKitInstallation() override;

private Q_SLOTS:
    void hearChange(const QString &interface, const QVariantMap &values) const;
    void hearError(uint code, const QString &details);
    void hearEnd(uint status);

private:
    void begin(const QDBusMessage &reply, const QString &package);
    QDBusMessage call(const QString &method, const QVariantList &arguments) const;
    void finish(End end, const QString &text = {});

    QDBusConnection m_bus;
    Handlers m_handlers;
    /// The service's own address, and its object for this installation; empty before there is one.
    QString m_service;
    QString m_transaction;
    /// The last error that it told of, and its words.
    std::optional<uint> m_error;
    QString m_details;
};

} // namespace roamlet
