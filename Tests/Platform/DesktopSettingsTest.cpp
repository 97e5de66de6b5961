// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/DesktopSettings.h"

#include "Platform/FakePortal.h"
#include "Support/SessionBus.h"
#include "Support/Waiting.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A desktop whose settings are those of a file.
struct SettingsOnDisk {
    /// What stands there for animations; nothing for a user who never chose.
    std::optional<QByteArray> animations = {};
    std::optional<QByteArray> highContrast = {};
    /// What the desktop's portal says. No bus where there is nothing.
    std::optional<QVariantMap> portal = {};
    bool hasRuntimeFolder = true;
    /// Whether it is known which settings there are.
    bool hasSchemas = true;
};

constexpr int strayFile = 2;
constexpr int tooEarly = 3;
constexpr int notHeard = 4;

/// The answer as the status of a process.
int statusOf(const DesktopSettings &settings)
{
    return 10 + (settings.allowsMotion ? 1 : 0) + (settings.wantsMoreContrast ? 2 : 0);
}

/// Asks on a thread of its own, as in the program.
DesktopSettings readElsewhere()
{
    std::atomic<bool> isDone = false;
    DesktopSettings answer;
    const std::jthread reader([&] {
        answer = DesktopSettings::read();
        isDone = true;
    });
    waitUntil([&isDone] { return isDone.load(); });
    return answer;
}

void writeSettings(const QString &path, const SettingsOnDisk &settings)
{
    // In one step, as the desktop does.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    if (settings.animations)
        file.write("[org/gnome/desktop/interface]\nenable-animations=" + *settings.animations + '\n');
    if (settings.highContrast)
        file.write("[org/gnome/desktop/a11y/interface]\nhigh-contrast=" + *settings.highContrast + '\n');
    file.commit();
}

/// Follows the settings from a thread of its own, lets `change` set something, and reads when it hears of it.
DesktopSettings readAfter(const std::function<void()> &change)
{
    bool hasChanged = false;
    std::shared_ptr<void> follower;
    std::atomic<bool> follows = false;
    const std::jthread reader([&] {
        follower = DesktopSettings::follow([&hasChanged] { hasChanged = true; });
        DesktopSettings::read();
        follows = true;
    });
    waitUntil([&follows] { return follows.load(); });
    if (hasChanged)
        std::exit(tooEarly);
    change();
    if (!waitUntil([&hasChanged] { return hasChanged; }))
        std::exit(notHeard);
    follower.reset();
    return readElsewhere();
}

/// With `later`, when the user sets that while the settings are being followed.
[[noreturn]] void exitWithAnswer(const SettingsOnDisk &settings,
                                 const std::optional<SettingsOnDisk> &later = {})
{
    DesktopSettings answer;
    {
        SessionBus bus;
        std::optional<FakePortal> portal;
        if (settings.portal && bus.start()) {
            portal.emplace(bus.address());
            portal->settings = {{u"org.freedesktop.appearance"_s, *settings.portal}};
        }
        qputenv("DBUS_SESSION_BUS_ADDRESS",
                portal ? bus.address().toUtf8() : QByteArray("unix:path=/nonexistent/bus"));
        const QTemporaryDir home;
        const QString folder = home.filePath(u"config/glib-2.0/settings"_s);
        QDir().mkpath(folder);
        const QString file = folder % u"/keyfile"_s;
        writeSettings(file, settings);
        qputenv("HOME", QFile::encodeName(home.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(u"config"_s)));
        qunsetenv("XDG_CACHE_HOME");
        if (settings.hasRuntimeFolder) {
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.path()));
            qputenv("GSETTINGS_BACKEND", "keyfile");
        } else {
            qunsetenv("XDG_RUNTIME_DIR");
            qunsetenv("GSETTINGS_BACKEND");
        }
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        qputenv("XDG_DATA_DIRS", settings.hasSchemas ? "/usr/share" : QFile::encodeName(home.path()));
        answer = !later ? readElsewhere() : readAfter([&] {
            if (later->portal)
                portal->change(u"org.freedesktop.appearance"_s, later->portal->firstKey(),
                               later->portal->first());
            else
                writeSettings(file, *later);
        });
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        if (QDir(home.path()).entryList(all) != QStringList{u"config"_s})
            std::exit(strayFile);
    }
    std::exit(statusOf(answer));
}

/// Asked in a process of its own: the library remembers the first settings that it sees.
void expectAnswer(const SettingsOnDisk &settings, const DesktopSettings &answer)
{
    EXPECT_EXIT(exitWithAnswer(settings), ::testing::ExitedWithCode(statusOf(answer)), "^$");
}

/// The same once the user has set something else.
void expectAnswer(const SettingsOnDisk &settings, const SettingsOnDisk &later, const DesktopSettings &answer)
{
    EXPECT_EXIT(exitWithAnswer(settings, later), ::testing::ExitedWithCode(statusOf(answer)), "^$");
}

} // namespace

class DesktopSettingsTest : public ::testing::Test
{
protected:
    DesktopSettingsTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    ~DesktopSettingsTest() override { GTEST_FLAG_SET(death_test_style, m_style); }

private:
    const std::string m_style = GTEST_FLAG_GET(death_test_style);
};

TEST_F(DesktopSettingsTest, motionAndContrastAreAsTheUserHasChosen)
{
    if (!QFile::exists(u"/usr/share/glib-2.0/schemas/org.gnome.desktop.interface.gschema.xml"_s))
        GTEST_SKIP() << "the desktop's settings are not installed";
    expectAnswer({.animations = "false"}, {.allowsMotion = false});
    expectAnswer({.animations = "true", .highContrast = "false"}, {});
    expectAnswer({.highContrast = "true"}, {.wantsMoreContrast = true});
    expectAnswer({}, {});
}

TEST_F(DesktopSettingsTest, whereNoSuchSettingIsKnownAllIsAsUsual)
{
    expectAnswer({.animations = "false", .highContrast = "true", .hasSchemas = false}, {});
}

TEST_F(DesktopSettingsTest, whatThePortalSaysCountsAsMuch)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    expectAnswer({.portal = QVariantMap{{u"reduced-motion"_s, 1U}}}, {.allowsMotion = false});
    expectAnswer({.portal = QVariantMap{{u"contrast"_s, 1U}}, .hasRuntimeFolder = false},
                 {.wantsMoreContrast = true});
}

TEST_F(DesktopSettingsTest, whatTheUserSetsLaterIsHeardOf)
{
    if (!QFile::exists(u"/usr/share/glib-2.0/schemas/org.gnome.desktop.interface.gschema.xml"_s))
        GTEST_SKIP() << "the desktop's settings are not installed";
    expectAnswer({}, {.animations = "false"}, {.allowsMotion = false});
    expectAnswer({.highContrast = "true"}, {.highContrast = "false"}, {});
}

TEST_F(DesktopSettingsTest, whatIsSetInThePortalLaterIsHeardOf)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    expectAnswer({.portal = QVariantMap{}}, {.portal = QVariantMap{{u"contrast"_s, 1U}}},
                 {.wantsMoreContrast = true});
    expectAnswer({.portal = QVariantMap{{u"reduced-motion"_s, 1U}}, .hasRuntimeFolder = false},
                 {.portal = QVariantMap{{u"reduced-motion"_s, 0U}}}, {});
}

TEST_F(DesktopSettingsTest, withoutADesktopNothingIsLeftInTheHome)
{
    expectAnswer({.hasRuntimeFolder = false}, {});
}

} // namespace roamlet::testing
