// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxFolders.h"

#include "Platform/Linux/LinuxFiles.h"
#include "Platform/WithoutPrivileges.h"
#include "SampleHome/PlainFiles.h"
#include "Support/MemoryUserDefaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>
#include <ranges>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const QString safari = u"safari"_s;
const QString chrome = u"chrome"_s;
const QString edge = u"edge"_s;

/// An environment variable with another value for as long as this lives.
class Variable
{
public:
    Variable(const char *name, const std::optional<QByteArray> &value)
        : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_before(qgetenv(name))
    {
        if (value)
            qputenv(name, *value);
        else
            qunsetenv(name);
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;
    ~Variable()
    {
        if (m_wasSet)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }

private:
    const char *m_name;
    bool m_wasSet;
    QByteArray m_before;
};

} // namespace

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

TEST_F(LinuxFoldersTest, theLayoutOfAMacServesWhereNothingExists)
{
    EXPECT_EQ(folders().dataRoot(safari), home(u"Library/Safari"_s));
    EXPECT_EQ(folders().dataRoot(chrome), home(u"Library/Application Support/Google/Chrome"_s));
    EXPECT_EQ(folders().dataRoot(edge), home(u"Library/Application Support/Microsoft Edge"_s));
    EXPECT_EQ(folders().safariContainer(),
              home(u"Library/Containers/com.apple.Safari/Data/Library/Safari"_s));
    for (const QString &browser : {safari, chrome, edge})
        EXPECT_FALSE(folders().hasData(browser)) << qPrintable(browser);
}

TEST_F(LinuxFoldersTest, chromeIsLookedForInEveryPlaceBestFirst)
{
    const QStringList places{home(u"Library/Application Support/Google/Chrome"_s),
                             home(u".config/google-chrome"_s),
                             home(u".var/app/com.google.Chrome/config/google-chrome"_s),
                             home(u".config/chromium"_s),
                             home(u"snap/chromium/common/chromium"_s),
                             home(u".var/app/org.chromium.Chromium/config/chromium"_s)};
    EXPECT_EQ(folders().dataRootCandidates(chrome), places);
    // From the last to the first, each that appears takes over.
    for (const QString &place : places | std::views::reverse) {
        sample::makeFolder(place);
        EXPECT_EQ(folders().dataRoot(chrome), place);
        EXPECT_TRUE(folders().hasData(chrome));
    }
    EXPECT_FALSE(folders().hasData(edge));
    EXPECT_FALSE(folders().hasData(safari));
}

TEST_F(LinuxFoldersTest, edgeIsLookedForInEveryPlaceBestFirst)
{
    const QStringList places{home(u"Library/Application Support/Microsoft Edge"_s),
                             home(u".config/microsoft-edge"_s),
                             home(u".var/app/com.microsoft.Edge/config/microsoft-edge"_s),
                             home(u".var/app/com.microsoft.Edge/config/microsoft-edge-beta"_s)};
    EXPECT_EQ(folders().dataRootCandidates(edge), places);
    for (const QString &place : places | std::views::reverse) {
        sample::makeFolder(place);
        EXPECT_EQ(folders().dataRoot(edge), place);
        EXPECT_TRUE(folders().hasData(edge));
    }
    EXPECT_FALSE(folders().hasData(chrome));
}

TEST_F(LinuxFoldersTest, safariHasNoOtherPlace)
{
    EXPECT_EQ(folders().dataRootCandidates(safari), QStringList{home(u"Library/Safari"_s)});
    make(u"Library/Safari"_s);
    EXPECT_TRUE(folders().hasData(safari));
}

TEST_F(LinuxFoldersTest, safariIsThereWhenOnlyItsContainerIs)
{
    make(u"Library/Containers/com.apple.Safari/Data/Library/Safari"_s);
    EXPECT_TRUE(folders().hasData(safari));
    EXPECT_EQ(folders().dataRoot(safari), home(u"Library/Safari"_s));
}

TEST_F(LinuxFoldersTest, anotherFolderForConfigurationsIsHonoured)
{
    make(u".config/google-chrome"_s);
    make(u"elsewhere/chromium"_s);
    make(u"elsewhere/microsoft-edge"_s);
    const LinuxFolders there = folders(home(u"elsewhere"_s));
    EXPECT_EQ(there.dataRoot(chrome), home(u"elsewhere/chromium"_s));
    EXPECT_EQ(there.dataRoot(edge), home(u"elsewhere/microsoft-edge"_s));
    make(u"elsewhere/google-chrome"_s);
    EXPECT_EQ(there.dataRoot(chrome), home(u"elsewhere/google-chrome"_s));
    make(u".var/app/com.google.Chrome/config/google-chrome"_s);
    EXPECT_EQ(there.dataRoot(chrome), home(u"elsewhere/google-chrome"_s))
        << "a sandboxed browser keeps its own folder for configurations, and comes later";
}

TEST_F(LinuxFoldersTest, aFolderThatAppearsLaterIsFound)
{
    const LinuxFolders early = folders();
    EXPECT_FALSE(early.hasData(chrome));
    make(u".config/google-chrome"_s);
    EXPECT_EQ(early.dataRoot(chrome), home(u".config/google-chrome"_s));
    EXPECT_TRUE(early.hasData(chrome));
}

TEST_F(LinuxFoldersTest, settingsOverrideThePlaces)
{
    make(u"Library/Application Support/Google/Chrome"_s);
    make(u".config/google-chrome"_s);
    make(u"backup/Chrome"_s);
    defaults.setString(u"dataRoot.chrome"_s, home(u"backup/Chrome"_s));
    EXPECT_EQ(folders().dataRoot(chrome), home(u"backup/Chrome"_s));
    EXPECT_EQ(folders().dataRootCandidates(chrome), QStringList{home(u"backup/Chrome"_s)});
    EXPECT_TRUE(folders().hasData(chrome));
    EXPECT_EQ(folders().dataRoot(edge), home(u"Library/Application Support/Microsoft Edge"_s))
        << "each for its own browser";

    defaults.setString(u"dataRoot.edge"_s, u"/no/such/folder"_s);
    EXPECT_EQ(folders().dataRoot(edge), u"/no/such/folder"_s) << "also to where nothing is";
    EXPECT_FALSE(folders().hasData(edge));
}

TEST_F(LinuxFoldersTest, settingsAreTidiedAndKnowTheHomeFolder)
{
    const auto root = [this](const QString &value) {
        defaults.setString(u"dataRoot.chrome"_s, value);
        return folders().dataRoot(chrome);
    };
    EXPECT_EQ(root(u"/backup/Chrome/"_s), u"/backup/Chrome"_s);
    EXPECT_EQ(root(u"/backup//x/../Chrome"_s), u"/backup/Chrome"_s);
    EXPECT_EQ(root(u"~/backup/Chrome"_s), home(u"backup/Chrome"_s));
    EXPECT_EQ(root(u"~"_s), home());
    EXPECT_EQ(root(u"/~/x"_s), u"/~/x"_s);
    EXPECT_EQ(root(u""_s), home(u"Library/Application Support/Google/Chrome"_s)) << "an empty one is none";
    defaults.setBoolean(u"dataRoot.chrome"_s, true);
    EXPECT_EQ(folders().dataRoot(chrome), home(u"Library/Application Support/Google/Chrome"_s));
}

TEST_F(LinuxFoldersTest, safarisContainerLiesBesideAnOverriddenRoot)
{
    make(u"backup/Library/Safari"_s);
    defaults.setString(u"dataRoot.safari"_s, home(u"backup/Library/Safari"_s));
    EXPECT_EQ(folders().dataRoot(safari), home(u"backup/Library/Safari"_s));
    EXPECT_EQ(folders().safariContainer(), home(u"backup/Library/Safari"_s))
        << "a folder that was copied alone holds everything itself";
    make(u"backup/Library/Containers/com.apple.Safari/Data/Library/Safari"_s);
    EXPECT_EQ(folders().safariContainer(),
              home(u"backup/Library/Containers/com.apple.Safari/Data/Library/Safari"_s));
}

TEST_F(LinuxFoldersTest, aPlaceThatMayNotBeLookedIntoCountsAsThere)
{
    make(u".config/google-chrome"_s);
    ASSERT_TRUE(QFile::setPermissions(home(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                  QFile::ReadOther | QFile::ExeOther));
    ASSERT_TRUE(QFile::setPermissions(home(u".config"_s), QFile::Permissions()));
    const bool hasData = [this] {
        const WithoutPrivileges guard;
        return !guard.arePermissionsChecked() || folders().hasData(chrome);
    }();
    ASSERT_TRUE(
        QFile::setPermissions(home(u".config"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(hasData);
}

TEST(LinuxFoldersEnvironment, comesFromTheVariables)
{
    const QTemporaryDir folder;
    const Variable home("HOME", QFile::encodeName(folder.path()));
    const Variable temporary("TMPDIR", QFile::encodeName(folder.filePath(u"tmp"_s)));
    const Variable config("XDG_CONFIG_HOME", QByteArray("/etc/elsewhere"));
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
        EXPECT_EQ(folders.dataRootCandidates(chrome).at(1), folder.filePath(u".config/google-chrome"_s))
            << value.value_or("unset").constData();
    }
}

} // namespace roamlet::testing
