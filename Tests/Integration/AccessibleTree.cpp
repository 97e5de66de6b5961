// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Integration/AccessibleTree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const QString accessible = u"org.a11y.atspi.Accessible"_s;
constexpr int answerTime = 10'000;

QDBusConnection accessibilityBus(const QString &sessionBus)
{
    const QDBusConnection session = QDBusConnection::connectToBus(sessionBus, u"session of a reader"_s);
    const QDBusMessage reply =
        session.call(QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s,
                                                    u"GetAddress"_s),
                     QDBus::Block, answerTime);
    return QDBusConnection::connectToBus(reply.arguments().value(0).toString(), u"bus of a reader"_s);
}

} // namespace

AccessibleTree::AccessibleTree(const QString &sessionBus) : m_bus(accessibilityBus(sessionBus)) {}

AccessibleTree::~AccessibleTree()
{
    QDBusConnection::disconnectFromBus(u"bus of a reader"_s);
    QDBusConnection::disconnectFromBus(u"session of a reader"_s);
}

QDBusMessage AccessibleTree::call(const QString &service, const QString &path, const QString &interface,
                                  const QString &method, const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return m_bus.call(message, QDBus::Block, answerTime);
}

AccessibleNode AccessibleTree::described(const QString &service, const QString &path) const
{
    AccessibleNode node{.service = service, .path = path, .role = {}, .name = {}};
    node.role = call(service, path, accessible, u"GetRoleName"_s).arguments().value(0).toString();
    const QVariant name =
        call(service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {accessible, u"Name"_s})
            .arguments()
            .value(0);
    node.name = name.value<QDBusVariant>().variant().toString();
    QList<uint> states;
    const QVariant reply = call(service, path, accessible, u"GetState"_s).arguments().value(0);
    if (reply.canConvert<QDBusArgument>())
        reply.value<QDBusArgument>() >> states;
    const auto has = [&states](uint bit) { return !states.isEmpty() && (states.first() >> bit & 1U) != 0; };
    constexpr uint focusable = 11;
    constexpr uint showing = 25;
    node.isFocusable = has(focusable);
    node.isShowing = has(showing);
    return node;
}

QList<AccessibleNode> AccessibleTree::children(const QString &service, const QString &path) const
{
    QList<AccessibleNode> result;
    const QVariant reply = call(service, path, accessible, u"GetChildren"_s).arguments().value(0);
    if (!reply.canConvert<QDBusArgument>())
        return result;
    const auto list = reply.value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString owner;
        QDBusObjectPath object;
        list.beginStructure();
        list >> owner >> object;
        list.endStructure();
        result.append(described(owner, object.path()));
    }
    list.endArray();
    return result;
}

std::optional<AccessibleNode> AccessibleTree::application(const QString &name) const
{
    for (const AccessibleNode &node :
         children(u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s)) {
        if (node.name == name)
            return node;
    }
    return {};
}

QList<AccessibleNode> AccessibleTree::below(const AccessibleNode &node) const
{
    QList<AccessibleNode> result;
    QList<AccessibleNode> open = children(node.service, node.path);
    while (!open.isEmpty()) {
        const AccessibleNode next = open.takeFirst();
        result.append(next);
        open = children(next.service, next.path) + open;
    }
    return result;
}

bool AccessibleTree::press(const AccessibleNode &node) const
{
    return call(node.service, node.path, u"org.a11y.atspi.Action"_s, u"DoAction"_s, {0})
        .arguments()
        .value(0)
        .toBool();
}

} // namespace roamlet::testing
