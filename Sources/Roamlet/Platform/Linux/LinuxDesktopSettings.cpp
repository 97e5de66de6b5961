// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/DesktopSettings.h"
#include "Platform/Linux/DesktopPortal.h"
#include "Platform/Linux/Workspace/GLibPointer.h"

#include <QByteArray>
#include <QDBusConnection>

#include <unistd.h>

#include <optional>
#include <utility>
#include <vector>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// One of the desktop's own settings.
struct DesktopKey {
    const char *group;
    const char *name;
};
constexpr DesktopKey animations{.group = "org.gnome.desktop.interface", .name = "enable-animations"};
constexpr DesktopKey highContrast{.group = "org.gnome.desktop.a11y.interface", .name = "high-contrast"};

/// Without such a folder the library would make one in the user's home, or complain; a desktop has one.
bool hasDesktop()
{
    return ::access(qgetenv("XDG_RUNTIME_DIR").constData(), W_OK | X_OK) == 0;
}

/// The settings of this one's group, where the desktop has such a one.
GLibPointer<GSettings> desktopGroup(const DesktopKey &key)
{
    GSettingsSchemaSource *known = g_settings_schema_source_get_default();
    // To ask for settings that are not installed would end the program.
    const GLibPointer<GSettingsSchema> schema(
        known != nullptr ? g_settings_schema_source_lookup(known, key.group, TRUE) : nullptr);
    if (!schema || g_settings_schema_has_key(schema.get(), key.name) == FALSE)
        return {};
    return GLibPointer<GSettings>(g_settings_new_full(schema.get(), nullptr, nullptr));
}

/// What the desktop's own settings say, where it keeps such a one.
bool desktopValue(const DesktopKey &key, bool otherwise)
{
    const GLibPointer<GSettings> group = desktopGroup(key);
    return group ? g_settings_get_boolean(group.get(), key.name) != FALSE : otherwise;
}

DesktopSettings ofDesktop()
{
    if (!hasDesktop())
        return {};
    return {
        .allowsMotion = desktopValue(animations, true),
        .wantsMoreContrast = desktopValue(highContrast, false),
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

/// Hears of changes in both places.
class DesktopFollower
{
public:
    explicit DesktopFollower(std::function<void()> changed) : m_changed(std::move(changed))
    {
        if (hasDesktop()) {
            follow(animations);
            follow(highContrast);
        }
        m_listener.emplace(QDBusConnection::connectToBus(QDBusConnection::SessionBus, busName), m_changed);
    }
    DesktopFollower(const DesktopFollower &) = delete;
    DesktopFollower &operator=(const DesktopFollower &) = delete;
    ~DesktopFollower()
    {
        m_listener.reset();
        QDBusConnection::disconnectFromBus(busName);
        for (const GLibPointer<GSettings> &group : m_groups)
            g_signal_handlers_disconnect_by_data(group.get(), &m_changed);
    }

private:
    /// The library tells the main loop, in which this thread has no part of its own, and Qt's events come out
    /// of the same one.
    void follow(const DesktopKey &key)
    {
        GLibPointer<GSettings> group = desktopGroup(key);
        if (!group)
            return;
        const QByteArray signal = QByteArray("changed::") + key.name;
        g_signal_connect(group.get(), signal.constData(),
                         G_CALLBACK(+[](GSettings *, gchar *, gpointer data) {
                             (*static_cast<std::function<void()> *>(data))();
                         }),
                         &m_changed);
        // The library tells of changes only to those who know what was there before.
        static_cast<void>(g_settings_get_boolean(group.get(), key.name));
        m_groups.push_back(std::move(group));
    }

    static inline const QString busName = u"roamlet-desktop-changes"_s;

    std::function<void()> m_changed;
    std::vector<GLibPointer<GSettings>> m_groups;
    std::optional<DesktopPortal::Listener> m_listener;
};

} // namespace

DesktopSettings DesktopSettings::read()
{
    const DesktopSettings desktop = ofDesktop();
    const DesktopSettings portal = ofPortal();
    // Whoever has set it in one place means it.
    return {.allowsMotion = desktop.allowsMotion && portal.allowsMotion,
            .wantsMoreContrast = desktop.wantsMoreContrast || portal.wantsMoreContrast};
}

std::shared_ptr<void> DesktopSettings::follow(const std::function<void()> &changed)
{
    return std::make_shared<DesktopFollower>(changed);
}

} // namespace roamlet
