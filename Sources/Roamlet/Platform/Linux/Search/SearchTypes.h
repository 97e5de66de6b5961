// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/DesktopQuestions.h"

#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace roamlet
{

/// A picture on the bus: (iiibiiay).
struct BusIcon {
    IconPixels pixels;
};

/// A page that KRunner shows: (sssida{sv}).
struct KRunnerMatch {
    QString id;
    QString text;
    QString icon;
    /// How good the whole kind of match is, from 0 to 100,
    int category = 0;
    /// and this one among them, from 0 to 1.
    double relevance = 0;
    QVariantMap properties;
};

/// What can be done with a match besides opening it: (sss).
struct KRunnerAction {
    QString id;
    QString text;
    QString icon;
};

QDBusArgument &operator<<(QDBusArgument &argument, const BusIcon &icon);
const QDBusArgument &operator>>(const QDBusArgument &argument, BusIcon &icon);
QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerMatch &match);
const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerMatch &match);
QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerAction &action);
const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerAction &action);

/// Before any of them is sent or received.
void registerSearchTypes();

} // namespace roamlet

Q_DECLARE_METATYPE(roamlet::BusIcon)
Q_DECLARE_METATYPE(roamlet::KRunnerMatch)
Q_DECLARE_METATYPE(roamlet::KRunnerAction)
