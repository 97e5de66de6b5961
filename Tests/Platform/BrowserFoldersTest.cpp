// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/BrowserFolders.h"

#include "Platform/WithoutPrivileges.h"
#include "SampleHome/PlainFiles.h"
#include "Support/Sources.h"
#include "Support/TestHome.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

class BrowserFoldersTest : public ::testing::Test
{
protected:
    BrowserFolders folders() const { return BrowserFolders::of(home.folders, home.files); }

    /// The keys of the installations of a browser that have profiles.
    QStringList withProfiles(QStringView browser) const
    {
        QStringList keys;
        for (const BrowserFolders::Installation &each : folders().installations) {
            if (each.browser == browserKind(browser) && each.hasProfiles)
                keys.append(each.key.isEmpty() ? u"native"_s : each.key);
        }
        return keys;
    }

    void listProfilesIn(const QString &folder) const
    {
        const bool isFirefox = folder.contains(u"firefox");
        sample::writeFile(home.path(folder % (isFirefox ? u"/profiles.ini" : u"/Local State")), "x");
    }

    void addPlaces(const QString &folder) const
    {
        sample::writeFile(home.path(folder % u"/places.sqlite"), "");
    }

    TestHome home;
};

TEST_F(BrowserFoldersTest, aFolderWithoutAListOfProfilesHidesNoOther)
{
    // As a password manager leaves one behind.
    sample::writeFile(home.path(u".config/google-chrome/NativeMessagingHosts/x.json"_s), "{}");
    EXPECT_TRUE(withProfiles(u"chrome").isEmpty());
    listProfilesIn(u".config/chromium"_s);
    EXPECT_EQ(withProfiles(u"chromium"), QStringList{u"native"_s});
    listProfilesIn(u".var/app/com.google.Chrome/config/google-chrome"_s);
    EXPECT_EQ(withProfiles(u"chrome"), QStringList{u"flatpak"_s});
}

TEST_F(BrowserFoldersTest, everyInstallationWithProfilesCountsInTheTablesOrder)
{
    for (const QString &folder : {u"google-chrome-beta"_s, u"google-chrome"_s, u"google-chrome-unstable"_s})
        listProfilesIn(u".config/"_s % folder);
    listProfilesIn(u".var/app/com.google.Chrome/config/google-chrome"_s);
    EXPECT_EQ(withProfiles(u"chrome"), (QStringList{u"native"_s, u"beta"_s, u"dev"_s, u"flatpak"_s}));
}

TEST_F(BrowserFoldersTest, theFirstFolderWithProfilesServesAChromium)
{
    EXPECT_EQ(folders().roots(profileOf(browserKind(u"chrome"), u"Default"_s)),
              QStringList{home.path(u"Library/Application Support/Google/Chrome"_s)})
        << "where none has profiles, the first one";
    listProfilesIn(u".config/google-chrome"_s);
    EXPECT_EQ(folders().roots(profileOf(browserKind(u"chrome"), u"Default"_s)),
              QStringList{home.path(u".config/google-chrome"_s)});
    listProfilesIn(u"Library/Application Support/Google/Chrome"_s);
    EXPECT_EQ(folders().roots(profileOf(browserKind(u"chrome"), u"Default"_s)),
              QStringList{home.path(u"Library/Application Support/Google/Chrome"_s)});
    EXPECT_EQ(folders().profile(profileOf(browserKind(u"chrome"), u"Profile 1"_s), home.files),
              home.path(u"Library/Application Support/Google/Chrome/Profile 1"_s));
}

TEST_F(BrowserFoldersTest, everyFolderWithProfilesServesAFirefox)
{
    listProfilesIn(u".mozilla/firefox"_s);
    EXPECT_EQ(folders().roots(profileOf(browserKind(u"firefox"), u"a"_s)),
              QStringList{home.path(u".mozilla/firefox"_s)});
    listProfilesIn(u".config/mozilla/firefox"_s);
    EXPECT_EQ(folders().roots(profileOf(browserKind(u"firefox"), u"a"_s)),
              (QStringList{home.path(u".config/mozilla/firefox"_s), home.path(u".mozilla/firefox"_s)}));
}

TEST_F(BrowserFoldersTest, aProfileLiesWhereItsFilesAre)
{
    listProfilesIn(u".mozilla/firefox"_s);
    listProfilesIn(u".config/mozilla/firefox"_s);
    addPlaces(u".mozilla/firefox/old"_s);
    addPlaces(u".config/mozilla/firefox/new"_s);
    EXPECT_EQ(folders().profile(profileOf(browserKind(u"firefox"), u"old"_s), home.files),
              home.path(u".mozilla/firefox/old"_s));
    EXPECT_EQ(folders().profile(profileOf(browserKind(u"firefox"), u"new"_s), home.files),
              home.path(u".config/mozilla/firefox/new"_s));
    EXPECT_EQ(folders().profile(profileOf(browserKind(u"firefox"), u"/mnt/profile"_s), home.files),
              u"/mnt/profile"_s);
    EXPECT_EQ(folders().profile(profileOf(browserKind(u"chrome"), u"/etc"_s), home.files),
              home.path(u"Library/Application Support/Google/Chrome//etc"_s))
        << "only Firefox's profiles may lie elsewhere";
}

TEST_F(BrowserFoldersTest, anInstallationIsNamedWhereSeveralHaveProfiles)
{
    const auto isNamed = [this](const QString &key) {
        const QList<BrowserFolders::Installation> all = folders().installations;
        const auto found = std::ranges::find_if(all, [&key](const BrowserFolders::Installation &each) {
            return each.browser == Source::Kind::Chrome && each.key == key;
        });
        return found->isNamed;
    };
    listProfilesIn(u".config/google-chrome-beta"_s);
    EXPECT_FALSE(isNamed(u"beta"_s));
    listProfilesIn(u".config/microsoft-edge"_s);
    EXPECT_FALSE(isNamed(u"beta"_s)) << "another browser is no other installation";
    listProfilesIn(u".config/google-chrome"_s);
    EXPECT_TRUE(isNamed(u"beta"_s));
    EXPECT_FALSE(isNamed({})) << "the native release is the browser itself";
}

TEST_F(BrowserFoldersTest, safariIsThereWhenOnlyItsContainerIs)
{
    EXPECT_FALSE(folders().hasSafari);
    sample::makeFolder(home.path(u"Library/Containers/com.apple.Safari/Data/Library/Safari"_s));
    EXPECT_TRUE(folders().hasSafari);
}

TEST_F(BrowserFoldersTest, aPlaceThatMayNotBeLookedIntoCountsAsThere)
{
    sample::makeFolder(home.path(u"Library/Safari"_s));
    ASSERT_TRUE(QFile::setPermissions(home.path(u"Library"_s), QFile::Permissions()));
    const bool hasSafari = [this] {
        const WithoutPrivileges guard;
        return !guard.arePermissionsChecked() || folders().hasSafari;
    }();
    ASSERT_TRUE(QFile::setPermissions(home.path(u"Library"_s),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(hasSafari);
}

} // namespace roamlet::testing
