// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/PlainFiles.h"
#include "Support/Sources.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::bookmarkNode;
using sample::folderNode;

namespace
{

QJsonObject folderWith(const QString &id, const QString &name, const QString &title)
{
    return folderNode(id, name, {bookmarkNode(id % u"1", title, u"https://%1.example/"_s.arg(title), 0)});
}

/// What the browsers of Chromium's family do that Chrome and Edge do not, or not yet.
class ChromiumFamily : public ReaderTest
{
protected:
    /// Writes the list of profiles of an installation, and a folder for each.
    void addProfiles(const QString &root, const QJsonObject &infoCache)
    {
        change([&] {
            sample::writeLocalState(home.path(root % u"/Local State"), infoCache);
            for (const QString &key : infoCache.keys())
                sample::makeFolder(home.path(root % u'/' % key));
        });
    }

    QStringList profiles(Source::Kind browser)
    {
        QStringList result;
        for (const Source &source : BrowserReader::profiles(browser, context()))
            result.append(source.id() % u"  " % source.label());
        return result;
    }

    void writeAccount(const QJsonObject &roots)
    {
        change([&] { sample::writeBookmarks(chromeFile(u"AccountBookmarks"_s), roots); });
    }
    void writeLocal(const QJsonObject &roots)
    {
        change([&] { sample::writeBookmarks(chromeFile(u"Bookmarks"_s), roots); });
    }
    void damage(const QString &name)
    {
        change([&] { sample::writeFile(chromeFile(name), "{"); });
    }

    /// The roots' titles, ids and, for bars, a star.
    static QStringList rootsOf(const BookmarkTrees &trees)
    {
        QStringList result;
        for (const BookmarkNode &root : trees.roots)
            result.append(root.title % u' ' % root.id % (root.isBar ? u"*" : u""));
        return result;
    }
};

} // namespace

TEST_F(ChromiumFamily, everyInstallationWithProfilesIsListedInOrder)
{
    addProfiles(u".config/google-chrome-beta"_s, {{u"Default"_s, sample::profileInfo(u"Work"_s)}});
    EXPECT_EQ(profiles(Source::Kind::Chrome), QStringList{u"chrome@beta/Default  Chrome - Work"_s})
        << "alone it needs no further name";
    addProfiles(u".var/app/com.google.Chrome/config/google-chrome"_s,
                {{u"Default"_s, sample::profileInfo(u"Chrome"_s)}});
    addProfiles(u".config/google-chrome"_s, {{u"Default"_s, sample::profileInfo(u"Home"_s)}});
    EXPECT_EQ(profiles(Source::Kind::Chrome),
              (QStringList{u"chrome/Default  Chrome - Home"_s, u"chrome@beta/Default  Chrome Beta - Work"_s,
                           u"chrome@flatpak/Default  Chrome (Flatpak)"_s}));
}

TEST_F(ChromiumFamily, aFolderOfAnotherProgramHidesNothing)
{
    change([this] {
        sample::writeFile(home.path(u".config/google-chrome/NativeMessagingHosts/keys.json"_s), "{}");
    });
    addProfiles(u".config/chromium"_s, {{u"Default"_s, sample::profileInfo(u"Me"_s)}});
    EXPECT_EQ(profiles(Source::Kind::Chrome), QStringList());
    EXPECT_EQ(profiles(browserKind(u"chromium")), QStringList{u"chromium/Default  Chromium - Me"_s});
}

TEST_F(ChromiumFamily, theFirstOfTwoFoldersWithProfilesServesAnInstallation)
{
    const QString second = u".var/app/io.github.ungoogled_software.ungoogled_chromium/config/chromium"_s;
    addProfiles(second, {{u"Default"_s, sample::profileInfo(u"Second"_s)}});
    EXPECT_EQ(profiles(browserKind(u"chromium")),
              QStringList{u"chromium@flatpak/Default  Chromium - Second"_s});
    addProfiles(u".var/app/org.chromium.Chromium/config/chromium"_s,
                {{u"Default"_s, sample::profileInfo(u"First"_s)}});
    EXPECT_EQ(profiles(browserKind(u"chromium")),
              QStringList{u"chromium@flatpak/Default  Chromium - First"_s});
}

TEST_F(ChromiumFamily, profilesOfGuestsAndPassingOnesAreLeftOutExceptOfTheFirstTwo)
{
    const QJsonObject cache{{u"Default"_s, sample::profileInfo(u"Me"_s)},
                            {u"Guest Profile"_s, sample::profileInfo(u"Guest"_s)},
                            {u"Profile 1"_s, sample::ephemeralProfileInfo(u"Passing"_s)},
                            {u"System Profile"_s, sample::profileInfo(u"System"_s)}};
    addProfiles(u".config/BraveSoftware/Brave-Browser"_s, cache);
    addProfiles(u".config/google-chrome"_s, cache);
    EXPECT_EQ(profiles(browserKind(u"brave")), QStringList{u"brave/Default  Brave - Me"_s});
    EXPECT_EQ(profiles(Source::Kind::Chrome).size(), 4);
}

TEST_F(ChromiumFamily, edgesRuleForNamesIsEdgesAlone)
{
    QJsonObject info = sample::profileInfo(u"Profile 1"_s);
    info[u"is_using_default_name"_s] = true;
    info[u"edge_account_type"_s] = 1;
    addProfiles(u".config/vivaldi"_s, {{u"Default"_s, info}});
    EXPECT_EQ(profiles(browserKind(u"vivaldi")), QStringList{u"vivaldi/Default  Vivaldi - Profile 1"_s});
}

TEST_F(ChromiumFamily, theAccountsBookmarksFollowTheLocalOnes)
{
    writeLocal({{u"bookmark_bar"_s, folderWith(u"1"_s, u"Bar"_s, u"a"_s)},
                {u"other"_s, folderNode(u"2"_s, u"Other"_s, {})}});
    writeAccount({{u"bookmark_bar"_s, folderWith(u"1"_s, u"Bar"_s, u"b"_s)},
                  {u"other"_s, folderWith(u"2"_s, u"Other"_s, u"c"_s)}});
    const auto trees = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_TRUE(trees);
    EXPECT_EQ(rootsOf(*trees),
              (QStringList{u"Bar chrome/Default/1*"_s, u"Bar (Account) chrome/Default/account/1*"_s,
                           u"Other chrome/Default/account/2"_s}))
        << "only where both are kept they need to be told apart";
    EXPECT_EQ(trees->roots[1].children->first().id, u"chrome/Default/account/11"_s);
    EXPECT_TRUE(trees->problems.isEmpty());
}

TEST_F(ChromiumFamily, theAccountsBookmarksAloneAreEnough)
{
    writeAccount({{u"bookmark_bar"_s, folderWith(u"1"_s, u"Bar"_s, u"b"_s)}});
    const auto trees = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_TRUE(trees);
    EXPECT_EQ(rootsOf(*trees), QStringList{u"Bar chrome/Default/account/1*"_s});
}

TEST_F(ChromiumFamily, oneDamagedFileDoesNotHideTheOther)
{
    writeLocal({{u"bookmark_bar"_s, folderWith(u"1"_s, u"Bar"_s, u"a"_s)}});
    damage(u"AccountBookmarks"_s);
    const auto local = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_TRUE(local);
    EXPECT_EQ(rootsOf(*local), QStringList{u"Bar chrome/Default/1*"_s});
    ASSERT_EQ(local->problems.size(), 1);
    EXPECT_EQ(local->problems.first().path(), chromeFile(u"AccountBookmarks"_s));

    damage(u"Bookmarks"_s);
    writeAccount({{u"bookmark_bar"_s, folderWith(u"1"_s, u"Bar"_s, u"b"_s)}});
    const auto account = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_TRUE(account);
    EXPECT_EQ(rootsOf(*account), QStringList{u"Bar chrome/Default/account/1*"_s});
    ASSERT_EQ(account->problems.size(), 1);
    EXPECT_EQ(account->problems.first().path(), chromeFile(u"Bookmarks"_s));
}

TEST_F(ChromiumFamily, whereNothingCanBeReadEachFileSaysWhy)
{
    damage(u"Bookmarks"_s);
    const auto one = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_FALSE(one);
    EXPECT_EQ(one.error().size(), 1);
    damage(u"AccountBookmarks"_s);
    const auto both = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_FALSE(both);
    EXPECT_EQ(both.error().size(), 2);
}

TEST_F(ChromiumFamily, refusedFilesSayEachThatTheyAre)
{
    writeLocal({});
    writeAccount({});
    home.files.failure = [](const QString &) { return std::make_error_code(std::errc::permission_denied); };
    const auto trees = ChromiumReader::bookmarks(chrome(), context());
    ASSERT_FALSE(trees);
    EXPECT_EQ(trees.error(), (ReadErrors{ReadError::noAccess(chromeFile(u"Bookmarks"_s)),
                                         ReadError::noAccess(chromeFile(u"AccountBookmarks"_s))}));
}

TEST_F(ChromiumFamily, bookmarksThatAreOnlyEncryptedAreToldFromNone)
{
    const auto areEncrypted = [this] {
        const auto trees = ChromiumReader::bookmarks(chrome(), context());
        return trees && trees->areEncrypted && trees->roots.isEmpty();
    };
    EXPECT_FALSE(areEncrypted());
    for (const QString &name : {u"EncryptedBookmarks"_s, u"EncryptedBookmarks2"_s,
                                u"EncryptedAccountBookmarks"_s, u"EncryptedAccountBookmarks2"_s}) {
        for (const char *beginning : {"v10", "v11"}) {
            change([&] { sample::writeEncryptedBookmarks(chromeFile(name), beginning); });
            EXPECT_TRUE(areEncrypted()) << name.toStdString();
        }
        change([&] { sample::writeFile(chromeFile(name), "{}"); });
        EXPECT_FALSE(areEncrypted()) << name.toStdString();
    }
    change([&] { sample::writeEncryptedBookmarks(chromeFile(u"EncryptedBookmarks2"_s)); });
    writeLocal({});
    EXPECT_FALSE(areEncrypted()) << "beside a file that can be read";
    damage(u"Bookmarks"_s);
    EXPECT_FALSE(ChromiumReader::bookmarks(chrome(), context())) << "a damaged one is a problem";
}

TEST_F(ChromiumFamily, operasFurtherRootsFollowTheThree)
{
    const QString root = u".config/opera"_s;
    addProfiles(root, {{u"Default"_s, sample::profileInfo(u"Me"_s)}});
    change([&] {
        QJsonObject custom;
        for (const QString &key : {u"zebra"_s, u"trash"_s, u"userRoot"_s, u"pinboard"_s, u"speedDial"_s,
                                   u"unsorted"_s, u"apple"_s})
            custom.insert(key, folderWith(key, key, u"x"_s));
        custom.insert(u"empty"_s, folderNode(u"9"_s, u"empty"_s, {}));
        custom.insert(u"number"_s, 5);
        sample::writeBookmarks(home.path(root % u"/Default/Bookmarks"),
                               {{u"other"_s, folderWith(u"2"_s, u"Other"_s, u"b"_s)},
                                {u"bookmark_bar"_s, folderWith(u"1"_s, u"Bar"_s, u"a"_s)},
                                {u"custom_root"_s, custom}});
    });
    const QList<Source> sources = BrowserReader::profiles(browserKind(u"opera"), context());
    ASSERT_EQ(sources.size(), 1);
    const auto trees = ChromiumReader::bookmarks(sources.first(), context());
    ASSERT_TRUE(trees);
    EXPECT_EQ(titlesOf(trees->roots), (QStringList{u"Bar"_s, u"Other"_s, u"unsorted"_s, u"speedDial"_s,
                                                   u"pinboard"_s, u"userRoot"_s, u"apple"_s, u"zebra"_s}));
}

TEST_F(ChromiumFamily, onlyOperaHasFurtherRoots)
{
    const QJsonObject custom{{u"unsorted"_s, folderWith(u"5"_s, u"unsorted"_s, u"x"_s)}};
    const QJsonObject roots{{u"bookmark_bar"_s, folderWith(u"1"_s, u"Bar"_s, u"a"_s)},
                            {u"custom_root"_s, custom},
                            {u"trash"_s, folderWith(u"6"_s, u"Trash"_s, u"y"_s)}};
    addProfiles(u".config/vivaldi"_s, {{u"Default"_s, sample::profileInfo(u"Me"_s)}});
    change([&] { sample::writeBookmarks(home.path(u".config/vivaldi/Default/Bookmarks"_s), roots); });
    writeLocal(roots);
    for (const Source &source :
         {BrowserReader::profiles(browserKind(u"vivaldi"), context()).value(0), chrome()}) {
        const auto trees = ChromiumReader::bookmarks(source, context());
        ASSERT_TRUE(trees);
        EXPECT_EQ(titlesOf(trees->roots), QStringList{u"Bar"_s}) << source.id().toStdString();
    }
}

TEST_F(ChromiumFamily, anOldOperaHasItsProfileInTheDataFolderItself)
{
    const QString root = u".config/opera"_s;
    change([&] {
        sample::writeLocalState(home.path(root % u"/Local State"), {});
        sample::writeHistory(home.path(root % u"/History"),
                             {sample::HistoryRow{.url = u"https://a.example/"_s,
                                                 .title = u"A"_s,
                                                 .lastVisitTime = 1'000'000}});
        sample::writeHistory(home.path(root % u"/_side_profiles/Work/History"), {});
        sample::writeHistory(home.path(root % u"/_side_profiles/Home/Default/History"), {});
        sample::writeFile(home.path(root % u"/_side_profiles/.DS_Store"), "no profile");
    });
    EXPECT_EQ(profiles(browserKind(u"opera")),
              (QStringList{u"opera/  Opera"_s, u"opera/_side_profiles/Home/Default  Opera - Home"_s,
                           u"opera/_side_profiles/Work  Opera - Work"_s}));
    const Source first = BrowserReader::profiles(browserKind(u"opera"), context()).value(0);
    EXPECT_EQ(ChromiumReader::historyFile(first, context()), home.path(root % u"/History"));
    const auto rows = ChromiumReader::history(first, HistoryQuery::recent(), context());
    ASSERT_TRUE(rows);
    EXPECT_EQ(titlesOf(*rows), QStringList{u"A"_s});

    addProfiles(root, {{u"Default"_s, sample::profileInfo(u"Me"_s)},
                       {u"_side_profiles/Work"_s, sample::profileInfo(u"Listed"_s)}});
    EXPECT_EQ(profiles(browserKind(u"opera")).value(0), u"opera/Default  Opera - Me"_s);
    EXPECT_EQ(profiles(browserKind(u"opera")).size(), 3);
}

TEST_F(ChromiumFamily, aDataFolderOfAnOldOperaThatWasNeverUsedIsNoProfile)
{
    change([&] { sample::writeLocalState(home.path(u".config/opera/Local State"_s), {}); });
    EXPECT_EQ(profiles(browserKind(u"opera")), QStringList());
}

} // namespace roamlet::testing
