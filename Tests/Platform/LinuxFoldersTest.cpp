// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxFolders.h"

#include "Model/Browser.h"
#include "Platform/Linux/LinuxFiles.h"
#include "Platform/Variable.h"
#include "SampleHome/PlainFiles.h"
#include "Support/MemoryUserDefaults.h"
#include "Support/Sources.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <unistd.h>

#include <optional>
#include <pwd.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

class LinuxFoldersTest : public ::testing::Test
{
protected:
    QString home() const { return m_folder.path(); }
    QString home(const QString &relative) const { return m_folder.filePath(relative); }
    void make(const QString &relative) const { sample::makeFolder(home(relative)); }

    /// The folders as they are now.
    LinuxFolders folders(const QString &configHome = {}) const
    {
        return {{.home = home(), .configHome = configHome, .temporary = u"/some/tmp"_s}, m_files, defaults};
    }

    MemoryUserDefaults defaults;

private:
    QTemporaryDir m_folder;
    LinuxFiles m_files;
};

TEST_F(LinuxFoldersTest, namesHomeAndTheTemporaryFolder)
{
    EXPECT_EQ(folders().home(), home());
    EXPECT_EQ(folders().temporary(), u"/some/tmp"_s);
}

TEST_F(LinuxFoldersTest, theLayoutOfAMacComesFirst)
{
    EXPECT_EQ(folders().dataFolders(Source::Kind::Safari, {}), QStringList{home(u"Library/Safari"_s)});
    EXPECT_EQ(folders().dataFolders(Source::Kind::Chrome, {}),
              (QStringList{home(u"Library/Application Support/Google/Chrome"_s),
                           home(u".config/google-chrome"_s)}));
    EXPECT_EQ(folders().dataFolders(Source::Kind::Edge, {}),
              (QStringList{home(u"Library/Application Support/Microsoft Edge"_s),
                           home(u".config/microsoft-edge"_s)}));
    EXPECT_EQ(folders().safariContainer(),
              home(u"Library/Containers/com.apple.Safari/Data/Library/Safari"_s));
}

TEST_F(LinuxFoldersTest, everyInstallationOfATableRowHasFolders)
{
    for (const Browser &browser : Browser::all()) {
        for (const Browser::Installation &installation : browser.installations) {
            const QStringList places = folders().dataFolders(browser.kind, installation.key);
            ASSERT_FALSE(places.isEmpty()) << qPrintable(browser.rawValue);
            for (const QString &place : places)
                EXPECT_TRUE(place.startsWith(home() % u'/')) << qPrintable(place);
        }
    }
    EXPECT_TRUE(folders().dataFolders(Source::Kind::Chrome, u"no-such-key"_s).isEmpty());
}

TEST_F(LinuxFoldersTest, sandboxesKeepTheirDataInFoldersOfTheirOwn)
{
    EXPECT_EQ(folders().dataFolders(Source::Kind::Chrome, u"flatpak"_s),
              QStringList{home(u".var/app/com.google.Chrome/config/google-chrome"_s)});
    EXPECT_EQ(folders().dataFolders(Source::Kind::Edge, u"beta-flatpak"_s),
              QStringList{home(u".var/app/com.microsoft.Edge/config/microsoft-edge-beta"_s)});
    EXPECT_EQ(folders().dataFolders(browserKind(u"chromium"), u"snap"_s),
              QStringList{home(u"snap/chromium/common/chromium"_s)});
    EXPECT_EQ(folders().dataFolders(browserKind(u"firefox"), u"snap"_s),
              QStringList{home(u"snap/firefox/common/.mozilla/firefox"_s)});
}

TEST_F(LinuxFoldersTest, anotherFolderForConfigurationsIsHonoured)
{
    const LinuxFolders there = folders(home(u"elsewhere"_s));
    EXPECT_EQ(there.dataFolders(Source::Kind::Chrome, {}).last(), home(u"elsewhere/google-chrome"_s));
    EXPECT_EQ(there.dataFolders(Source::Kind::Chrome, u"beta"_s),
              QStringList{home(u"elsewhere/google-chrome-beta"_s)});
    EXPECT_EQ(there.dataFolders(browserKind(u"firefox"), {}),
              (QStringList{home(u"Library/Application Support/Firefox"_s),
                           home(u"elsewhere/mozilla/firefox"_s), home(u".mozilla/firefox"_s)}));
    EXPECT_EQ(there.dataFolders(Source::Kind::Chrome, u"flatpak"_s),
              QStringList{home(u".var/app/com.google.Chrome/config/google-chrome"_s)})
        << "a sandboxed browser keeps its own folder for configurations";
}

TEST_F(LinuxFoldersTest, settingsOverrideThePlaces)
{
    defaults.setString(u"dataRoot.chrome"_s, home(u"backup/Chrome"_s));
    EXPECT_EQ(folders().dataFolders(Source::Kind::Chrome, {}), QStringList{home(u"backup/Chrome"_s)});
    EXPECT_EQ(folders().dataFolders(Source::Kind::Edge, {}).size(), 2) << "each for its own browser";
    EXPECT_EQ(folders().dataFolders(Source::Kind::Chrome, u"beta"_s),
              QStringList{home(u".config/google-chrome-beta"_s)})
        << "and its own installation";

    defaults.setString(u"dataRoot.chrome@beta"_s, u"/no/such/folder"_s);
    EXPECT_EQ(folders().dataFolders(Source::Kind::Chrome, u"beta"_s), QStringList{u"/no/such/folder"_s})
        << "also to where nothing is";
    defaults.setString(u"dataRoot.firefox"_s, home(u"backup/firefox"_s));
    EXPECT_EQ(folders().dataFolders(browserKind(u"firefox"), {}), QStringList{home(u"backup/firefox"_s)});
}

TEST_F(LinuxFoldersTest, settingsAreTidiedAndKnowTheHomeFolder)
{
    const auto root = [this](const QString &value) {
        defaults.setString(u"dataRoot.chrome"_s, value);
        return folders().dataFolders(Source::Kind::Chrome, {}).first();
    };
    EXPECT_EQ(root(u"/backup/Chrome/"_s), u"/backup/Chrome"_s);
    EXPECT_EQ(root(u"/backup//x/../Chrome"_s), u"/backup/Chrome"_s);
    EXPECT_EQ(root(u"~/backup/Chrome"_s), home(u"backup/Chrome"_s));
    EXPECT_EQ(root(u"~"_s), home());
    EXPECT_EQ(root(u"/~/x"_s), u"/~/x"_s);
    EXPECT_EQ(root(u""_s), home(u"Library/Application Support/Google/Chrome"_s)) << "an empty one is none";
    defaults.setBoolean(u"dataRoot.chrome"_s, true);
    EXPECT_EQ(folders().dataFolders(Source::Kind::Chrome, {}).first(),
              home(u"Library/Application Support/Google/Chrome"_s));
}

TEST_F(LinuxFoldersTest, safarisContainerLiesBesideAnOverriddenRoot)
{
    make(u"backup/Library/Safari"_s);
    defaults.setString(u"dataRoot.safari"_s, home(u"backup/Library/Safari"_s));
    EXPECT_EQ(folders().dataFolders(Source::Kind::Safari, {}), QStringList{home(u"backup/Library/Safari"_s)});
    EXPECT_EQ(folders().safariContainer(), home(u"backup/Library/Safari"_s))
        << "a folder that was copied alone holds everything itself";
    make(u"backup/Library/Containers/com.apple.Safari/Data/Library/Safari"_s);
    EXPECT_EQ(folders().safariContainer(),
              home(u"backup/Library/Containers/com.apple.Safari/Data/Library/Safari"_s));
}

TEST(LinuxFoldersEnvironment, comesFromTheVariables)
{
    const QTemporaryDir folder;
    const Variable home("HOME", QFile::encodeName(folder.path()));
    const Variable temporary("TMPDIR", QFile::encodeName(folder.filePath(u"tmp"_s)));
    const Variable config("XDG_CONFIG_HOME", QByteArray("/etc//elsewhere/"));
    const auto environment = LinuxFolders::Environment::ofThisProcess();
    EXPECT_EQ(environment.home, folder.path());
    EXPECT_EQ(environment.temporary, folder.filePath(u"tmp"_s)) << "also while it is missing";
    EXPECT_EQ(environment.configHome, u"/etc/elsewhere"_s);
}

TEST(LinuxFoldersEnvironment, withoutAVariableTheSystemsTemporaryFolderServes)
{
    for (const std::optional<QByteArray> &value :
         {std::optional<QByteArray>(), std::optional(QByteArray(""))}) {
        const Variable temporary("TMPDIR", value);
        EXPECT_EQ(LinuxFolders::Environment::ofThisProcess().temporary, u"/tmp"_s);
    }
}

TEST(LinuxFoldersEnvironment, withoutAUsableVariableConfigurationsLieBelowHome)
{
    const QTemporaryDir folder;
    const Variable home("HOME", QFile::encodeName(folder.path()));
    const LinuxFiles files;
    const MemoryUserDefaults defaults;
    for (const std::optional<QByteArray> &value : {std::optional<QByteArray>(), std::optional(QByteArray("")),
                                                   std::optional(QByteArray("relative"))}) {
        const Variable config("XDG_CONFIG_HOME", value);
        const LinuxFolders folders(LinuxFolders::Environment::ofThisProcess(), files, defaults);
        EXPECT_EQ(folders.dataFolders(Source::Kind::Chrome, {}).at(1),
                  folder.filePath(u".config/google-chrome"_s))
            << value.value_or("unset").constData();
    }
}

TEST(LinuxFoldersEnvironment, withoutAVariableTheUserDatabaseNamesTheHome)
{
    const passwd *user = getpwuid(getuid()); // NOLINT(concurrency-mt-unsafe): no other thread asks
    ASSERT_NE(user, nullptr);
    const QString expected = QDir::cleanPath(QFile::decodeName(user->pw_dir));
    const Variable config("XDG_CONFIG_HOME", {});
    for (const std::optional<QByteArray> &value :
         {std::optional<QByteArray>(), std::optional(QByteArray(""))}) {
        const Variable home("HOME", value);
        const auto environment = LinuxFolders::Environment::ofThisProcess();
        EXPECT_EQ(environment.home, expected);
        EXPECT_EQ(environment.configHome, QString(expected % u"/.config"));
    }
}

} // namespace roamlet::testing
