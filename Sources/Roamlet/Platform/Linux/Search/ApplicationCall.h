// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/RunningInstance.h"

#include <QDBusMessage>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// What is said to a program that a desktop's launcher can activate, and to this one in particular.
namespace roamlet::ApplicationCall
{

inline const QString serviceName = QStringLiteral("org.roamlet.Roamlet");
inline const QString objectPath = QStringLiteral("/org/roamlet/Roamlet");

/// The action in the desktop entry that wishes this; empty where none does.
QString actionOf(RunningInstance::Wish::Kind kind);
/// What the action of this name wishes; to come forward where there is no such action.
RunningInstance::Wish wishOf(const QString &action, const QVariantList &parameters = {});
/// The message by which `service` hears the wish. The token lets its window come forward; it may be empty.
QDBusMessage message(const QString &service, const RunningInstance::Wish &wish,
                     const QString &activationToken);
/// The token in what a launcher says beside the wish.
QString activationToken(const QVariantMap &platformData);

} // namespace roamlet::ApplicationCall
