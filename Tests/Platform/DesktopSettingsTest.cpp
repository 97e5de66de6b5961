// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/DesktopSettings.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A desktop whose settings are those of a file.
struct SettingsOnDisk {
    /// What stands there for animations; nothing for a user who never chose.
    std::optional<QByteArray> animations = {};
    bool hasRuntimeFolder = true;
    /// Whether it is known which settings there are.
    bool hasSchemas = true;
};

[[noreturn]] void exitWithAnswer(const SettingsOnDisk &settings)
{
    bool answer = false;
    {
        const QTemporaryDir home;
        const QString folder = home.filePath(u"config/glib-2.0/settings"_s);
        QDir().mkpath(folder);
        if (settings.animations) {
            QFile file(folder % u"/keyfile"_s);
            if (file.open(QIODevice::WriteOnly))
                file.write("[org/gnome/desktop/interface]\nenable-animations=" + *settings.animations + '\n');
        }
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
        answer = DesktopSettings::allowsMotion();
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        if (QDir(home.path()).entryList(all) != QStringList{u"config"_s})
            std::exit(2);
    }
    std::exit(answer ? 1 : 0);
}

/// Asked in a process of its own: the library remembers the first settings that it sees.
void expectAnswer(const SettingsOnDisk &settings, bool answer)
{
    EXPECT_EXIT(exitWithAnswer(settings), ::testing::ExitedWithCode(answer ? 1 : 0), "^$");
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

TEST_F(DesktopSettingsTest, motionIsAsTheUserHasChosen)
{
    if (!QFile::exists(u"/usr/share/glib-2.0/schemas/org.gnome.desktop.interface.gschema.xml"_s))
        GTEST_SKIP() << "the desktop's settings are not installed";
    expectAnswer({.animations = "false"}, false);
    expectAnswer({.animations = "true"}, true);
    expectAnswer({}, true);
}

TEST_F(DesktopSettingsTest, whereNoSuchSettingIsKnownThingsMove)
{
    expectAnswer({.animations = "false", .hasSchemas = false}, true);
}

TEST_F(DesktopSettingsTest, withoutADesktopNothingIsLeftInTheHome)
{
    expectAnswer({.hasRuntimeFolder = false}, true);
}

} // namespace roamlet::testing
