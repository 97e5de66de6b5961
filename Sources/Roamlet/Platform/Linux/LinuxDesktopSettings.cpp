// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/DesktopSettings.h"
#include "Platform/Linux/DesktopPortal.h"
#include "Platform/Linux/Workspace/GLibPointer.h"

#include <QByteArray>
#include <QDBusConnection>

#include <unistd.h>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// What the desktop's own settings say, where it keeps such a one.
bool desktopKey(const char *group, const char *key, bool otherwise)
{
    GSettingsSchemaSource *known = g_settings_schema_source_get_default();
    // To ask for settings that are not installed would end the program.
    const GLibPointer<GSettingsSchema> schema(
        known != nullptr ? g_settings_schema_source_lookup(known, group, TRUE) : nullptr);
    if (!schema || g_settings_schema_has_key(schema.get(), key) == FALSE)
        return otherwise;
    const GLibPointer<GSettings> settings(g_settings_new_full(schema.get(), nullptr, nullptr));
    return g_settings_get_boolean(settings.get(), key) != FALSE;
}

DesktopSettings ofDesktop()
{
    // Without such a folder the library would make one in the user's home, or complain; a desktop has one.
    if (::access(qgetenv("XDG_RUNTIME_DIR").constData(), W_OK | X_OK) != 0)
        return {};
    return {
        .allowsMotion = desktopKey("org.gnome.desktop.interface", "enable-animations", true),
        .wantsMoreContrast = desktopKey("org.gnome.desktop.a11y.interface", "high-contrast", false),
    };
}

DesktopSettings ofPortal()
{
    // The connection that everybody shares belongs to the main thread.
    const QString name = u"roamlet-desktop-settings"_s;
    const DesktopSettings settings =
        DesktopPortal::settings(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name));
    QDBusConnection::disconnectFromBus(name);
    return settings;
}

} // namespace

DesktopSettings DesktopSettings::read()
{
    const DesktopSettings desktop = ofDesktop();
    const DesktopSettings portal = ofPortal();
    // Whoever has set it in one place means it.
    return {.allowsMotion = desktop.allowsMotion && portal.allowsMotion,
            .wantsMoreContrast = desktop.wantsMoreContrast || portal.wantsMoreContrast};
}

} // namespace roamlet
