// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/DesktopSettings.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>

/// The service by which desktops tell programs what all of them have in common, whatever toolkit they use.
namespace roamlet::DesktopPortal
{

/// What the portal on this bus says. Nobody is started for it, and where no portal runs, or it knows nothing
/// of such settings, nothing is set. On any thread.
DesktopSettings settings(const QDBusConnection &bus);

/// Hears what the portal on a bus says when one of these settings changes. Lives on the main thread.
class Listener final : public QObject
{
    Q_OBJECT

public:
    /// Made on any thread; `changed` is called on the main one.
    Listener(QDBusConnection bus, std::function<void()> changed);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key);

private:
    std::function<void()> m_changed;
};

} // namespace roamlet::DesktopPortal
