// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QList>
#include <QString>

#include <optional>

namespace roamlet::testing
{

/// One thing on the screen, as a screen reader is told of it.
struct AccessibleNode {
    QString service;
    QString path;
    QString role;
    QString name;
    /// On the screen now.
    bool isShowing = false;
    /// Takes the keyboard.
    bool isFocusable = false;
};

/// The way of a screen reader to programs: their accessible objects on the desktop's accessibility bus.
class AccessibleTree final
{
public:
    /// Asks this session's bus for the accessibility bus.
    explicit AccessibleTree(const QString &sessionBus);
    AccessibleTree(const AccessibleTree &) = delete;
    AccessibleTree &operator=(const AccessibleTree &) = delete;
    ~AccessibleTree();

    /// Whether there is such a bus on this machine.
    bool isConnected() const { return m_bus.isConnected(); }
    /// The program that goes by this name, once it has registered.
    std::optional<AccessibleNode> application(const QString &name) const;
    /// Everything below a node, in order.
    QList<AccessibleNode> below(const AccessibleNode &node) const;
    /// Does what a click on the node would do. Says whether it has such an action.
    bool press(const AccessibleNode &node) const;

private:
    QDBusMessage call(const QString &service, const QString &path, const QString &interface,
                      const QString &method, const QVariantList &arguments = {}) const;
    QList<AccessibleNode> children(const QString &service, const QString &path) const;
    AccessibleNode described(const QString &service, const QString &path) const;

    QDBusConnection m_bus;
};

} // namespace roamlet::testing
