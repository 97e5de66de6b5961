// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/DesktopSettings.h"
#include "Platform/Linux/Workspace/GLibPointer.h"

#include <QByteArray>

#include <unistd.h>

namespace roamlet::DesktopSettings
{

bool allowsMotion()
{
    // Without such a folder the library would make one in the user's home, or complain; a desktop has one.
    if (::access(qgetenv("XDG_RUNTIME_DIR").constData(), W_OK | X_OK) != 0)
        return true;
    constexpr const char *key = "enable-animations";
    GSettingsSchemaSource *known = g_settings_schema_source_get_default();
    // To ask for settings that are not installed would end the program.
    const GLibPointer<GSettingsSchema> schema(
        known != nullptr ? g_settings_schema_source_lookup(known, "org.gnome.desktop.interface", TRUE)
                         : nullptr);
    if (!schema || g_settings_schema_has_key(schema.get(), key) == FALSE)
        return true;
    const GLibPointer<GSettings> settings(g_settings_new_full(schema.get(), nullptr, nullptr));
    return g_settings_get_boolean(settings.get(), key) != FALSE;
}

} // namespace roamlet::DesktopSettings
