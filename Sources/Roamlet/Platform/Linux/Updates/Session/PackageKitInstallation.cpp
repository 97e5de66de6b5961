// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/PackageKitInstallation.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QLocale>

#include <limits>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString serviceName = u"org.freedesktop.PackageKit"_s;
const QString transactionInterface = u"org.freedesktop.PackageKit.Transaction"_s;

// The service's numbers for how a transaction ended, and why.
constexpr uint statusSuccess = 1;
constexpr uint statusCancelled = 3;
constexpr uint errorNotSupported = 3;
constexpr uint errorCancelled = 17;
constexpr uint errorNotAuthorized = 48;
constexpr uint wholePercentage = 100;

} // namespace

PackageKitInstallation::PackageKitInstallation(const QDBusConnection &bus, std::chrono::milliseconds patience,
                                               const QString &package, Handlers handlers)
    : m_bus(bus), m_handlers(std::move(handlers))
{
    if (!m_bus.isConnected()) {
        QMetaObject::invokeMethod(this, [this] { finish(End::Unavailable); }, Qt::QueuedConnection);
        return;
    }
    const QDBusMessage create = QDBusMessage::createMethodCall(serviceName, u"/org/freedesktop/PackageKit"_s,
                                                               serviceName, u"CreateTransaction"_s);
    auto *watcher =
        new QDBusPendingCallWatcher(m_bus.asyncCall(create, static_cast<int>(patience.count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, package] { begin(watcher->reply(), package); });
}

PackageKitInstallation::~PackageKitInstallation()
{
    if (m_handlers.finish && !m_transaction.isEmpty())
        m_bus.send(call(u"Cancel"_s, {}));
}

QDBusMessage PackageKitInstallation::call(const QString &method, const QVariantList &arguments) const
{
    QDBusMessage result =
        QDBusMessage::createMethodCall(m_service, m_transaction, transactionInterface, method);
    result.setArguments(arguments);
    result.setInteractiveAuthorizationAllowed(true);
    return result;
}

void PackageKitInstallation::begin(const QDBusMessage &reply, const QString &package)
{
    const auto path = reply.arguments().value(0).value<QDBusObjectPath>();
    if (reply.type() != QDBusMessage::ReplyMessage || path.path().isEmpty()) {
        finish(End::Unavailable);
        return;
    }
    m_service = reply.service();
    m_transaction = path.path();
    m_bus.connect(m_service, m_transaction, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                  this, SLOT(hearChange(QString, QVariantMap)));
    m_bus.connect(m_service, m_transaction, transactionInterface, u"ErrorCode"_s, this,
                  SLOT(hearError(uint, QString)));
    m_bus.connect(m_service, m_transaction, transactionInterface, u"Finished"_s, this, SLOT(hearEnd(uint)));
    auto *presence =
        new QDBusServiceWatcher(m_service, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(presence, &QDBusServiceWatcher::serviceUnregistered, this, [this] { finish(End::Failed); });

    m_bus.send(call(u"SetHints"_s, {QStringList{u"interactive=true"_s, u"background=false"_s,
                                                u"locale="_s % QLocale().name() % u".UTF-8"}}));
    // The user may take as long as they like for the password.
    auto *watcher = new QDBusPendingCallWatcher(
        m_bus.asyncCall(call(u"InstallFiles"_s, {QVariant::fromValue(qulonglong{0}), QStringList{package}}),
                        std::numeric_limits<int>::max()),
        this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        if (!watcher->isError())
            return;
        const QDBusMessage answer = watcher->reply();
        if (answer.errorName().endsWith(u"NotSupported"_s))
            finish(End::Unavailable);
        else if (answer.errorName().endsWith(u"RefusedByPolicy"_s))
            finish(End::Refused);
        else
            finish(End::Failed, answer.errorMessage());
    });
}

void PackageKitInstallation::hearChange(const QString & /*interface*/, const QVariantMap &values) const
{
    const auto percentage = values.constFind(u"Percentage"_s);
    if (percentage == values.cend() || !m_handlers.finish)
        return;
    const uint value = percentage->toUInt();
    m_handlers.progress(value <= wholePercentage ? std::optional(static_cast<int>(value)) : std::nullopt);
}

void PackageKitInstallation::hearError(uint code, const QString &details)
{
    m_error = code;
    m_details = details;
}

void PackageKitInstallation::hearEnd(uint status)
{
    if (status == statusSuccess)
        finish(End::Installed);
    else if (status == statusCancelled || m_error == errorCancelled || m_error == errorNotAuthorized)
        finish(End::Refused);
    else if (m_error == errorNotSupported)
        finish(End::Unavailable);
    else
        finish(End::Failed, m_details);
}

void PackageKitInstallation::finish(End end, const QString &text)
{
    if (!m_handlers.finish)
        return;
    // The handler may destroy this, and with it the text.
    const auto handler = std::exchange(m_handlers.finish, nullptr);
    handler(end, QString(text));
}

} // namespace roamlet
