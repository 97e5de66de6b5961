// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Source.h"

#include "Model/Favicon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

Source source(Source::Kind kind, const std::optional<QString> &profile, const QString &name,
              const Source::SafariBookmarks &bookmarks = Source::None{})
{
    return {.kind = kind, .profile = profile, .name = name, .safariBookmarks = bookmarks};
}

} // namespace

TEST(Source, kindsHaveStoredAndDisplayedNames)
{
    EXPECT_EQ(Source::rawValue(Source::Kind::Safari), u"safari"_s);
    EXPECT_EQ(Source::rawValue(Source::Kind::Chrome), u"chrome"_s);
    EXPECT_EQ(Source::rawValue(Source::Kind::Edge), u"edge"_s);
    EXPECT_EQ(Source::displayName(Source::Kind::Safari), u"Safari"_s);
    EXPECT_EQ(Source::displayName(Source::Kind::Chrome), u"Chrome"_s);
    EXPECT_EQ(Source::displayName(Source::Kind::Edge), u"Edge"_s);
}

TEST(Source, kindsAreOrderedSafariChromeEdge)
{
    EXPECT_LT(Source::Kind::Safari, Source::Kind::Chrome);
    EXPECT_LT(Source::Kind::Chrome, Source::Kind::Edge);
}

TEST(Source, onlyTheExactStoredNameGivesAKind)
{
    EXPECT_EQ(Source::kindFromRawValue(u"safari"), Source::Kind::Safari);
    EXPECT_EQ(Source::kindFromRawValue(u"chrome"), Source::Kind::Chrome);
    EXPECT_EQ(Source::kindFromRawValue(u"edge"), Source::Kind::Edge);
    for (const QString &text : {u""_s, u"Safari"_s, u"CHROME"_s, u"edge "_s, u" edge"_s, u"chrom"_s,
                                u"Chromium"_s, u"netscape"_s, u"chrome/Default"_s, u"chrome@beta"_s})
        EXPECT_FALSE(Source::kindFromRawValue(text).has_value()) << qPrintable(text);
}

TEST(Source, idIsTheKindAndTheProfile)
{
    EXPECT_EQ(source(Source::Kind::Chrome, u"Default"_s, u"Work"_s).id(), u"chrome/Default"_s);
    EXPECT_EQ(source(Source::Kind::Edge, u"Profile 10"_s, u"x"_s).id(), u"edge/Profile 10"_s);
    EXPECT_EQ(source(Source::Kind::Safari, u"4F6A-11"_s, u"School"_s).id(), u"safari/4F6A-11"_s);
}

TEST(Source, anEmptyProfileIsNoAbsentOne)
{
    EXPECT_EQ(source(Source::Kind::Chrome, u""_s, u"x"_s).id(), u"chrome/"_s);
    EXPECT_NE(source(Source::Kind::Chrome, u""_s, u"x"_s), source(Source::Kind::Chrome, {}, u"x"_s));
}

TEST(Source, withoutAProfileTheIdIsSafariWhateverTheKind)
{
    EXPECT_EQ(source(Source::Kind::Safari, {}, u"Safari"_s).id(), u"safari"_s);
    EXPECT_EQ(source(Source::Kind::Chrome, {}, u"Chrome"_s).id(), u"safari"_s);
    EXPECT_EQ(source(Source::Kind::Edge, {}, u"Edge"_s).id(), u"safari"_s);
}

TEST(Source, labelNamesTheBrowserOnce)
{
    EXPECT_EQ(source(Source::Kind::Safari, {}, u"Safari"_s).label(), u"Safari"_s);
    EXPECT_EQ(source(Source::Kind::Chrome, u"Default"_s, u"Chrome"_s).label(), u"Chrome"_s);
    EXPECT_EQ(source(Source::Kind::Edge, u"Default"_s, u"Edge"_s).label(), u"Edge"_s);
}

TEST(Source, labelJoinsBrowserAndProfileName)
{
    EXPECT_EQ(source(Source::Kind::Chrome, u"Default"_s, u"Work"_s).label(), u"Chrome - Work"_s);
    EXPECT_EQ(source(Source::Kind::Chrome, u"Default"_s, u"chrome"_s).label(), u"Chrome - chrome"_s);
    EXPECT_EQ(source(Source::Kind::Chrome, u"Default"_s, u"Edge"_s).label(), u"Chrome - Edge"_s);
    EXPECT_EQ(source(Source::Kind::Edge, u"Default"_s, u" Edge"_s).label(), u"Edge -  Edge"_s);
    EXPECT_EQ(source(Source::Kind::Safari, u"1"_s, u""_s).label(), u"Safari - "_s);
    EXPECT_EQ(source(Source::Kind::Safari, u"1"_s, u"学校"_s).label(), u"Safari - 学校"_s);
}

TEST(Source, safariIsTheDefaultProfileWithAllBookmarks)
{
    const Source safari = Source::safari();
    EXPECT_EQ(safari.kind, Source::Kind::Safari);
    EXPECT_FALSE(safari.profile.has_value());
    EXPECT_EQ(safari.name, u"Safari"_s);
    ASSERT_TRUE(std::holds_alternative<Source::AllExcept>(safari.safariBookmarks));
    EXPECT_TRUE(std::get<Source::AllExcept>(safari.safariBookmarks).serverIDs.isEmpty());
    EXPECT_EQ(safari.id(), u"safari"_s);
}

TEST(Source, bookmarkSelectionsStandInTheirOrder)
{
    using Selection = Source::SafariBookmarks;
    EXPECT_EQ(Selection(Source::AllExcept{}).index(), 0U);
    EXPECT_EQ(Selection(Source::Folder{}).index(), 1U);
    EXPECT_EQ(Selection(Source::None{}).index(), 2U);
}

TEST(Source, equalityAndHashCoverEveryField)
{
    const Source original = source(Source::Kind::Chrome, u"Default"_s, u"Work"_s, Source::Folder{u"A"_s});
    Source beta = original;
    beta.installation = u"beta"_s;
    Source named = original;
    named.namesInstallation = true;
    const QList<Source> others{
        beta,
        named,
        source(Source::Kind::Edge, u"Default"_s, u"Work"_s, Source::Folder{u"A"_s}),
        source(Source::Kind::Chrome, u"Profile 1"_s, u"Work"_s, Source::Folder{u"A"_s}),
        source(Source::Kind::Chrome, {}, u"Work"_s, Source::Folder{u"A"_s}),
        source(Source::Kind::Chrome, u"Default"_s, u"work"_s, Source::Folder{u"A"_s}),
        source(Source::Kind::Chrome, u"Default"_s, u"Work"_s, Source::Folder{u"B"_s}),
        source(Source::Kind::Chrome, u"Default"_s, u"Work"_s, Source::AllExcept{{u"A"_s}}),
        source(Source::Kind::Chrome, u"Default"_s, u"Work"_s, Source::None{}),
    };
    const Source same = source(Source::Kind::Chrome, u"Default"_s, u"Work"_s, Source::Folder{u"A"_s});
    EXPECT_EQ(same, original);
    EXPECT_EQ(qHash(same), qHash(original));
    for (const Source &other : others) {
        EXPECT_NE(other, original) << qPrintable(other.label());
        EXPECT_NE(qHash(other), qHash(original)) << qPrintable(other.label());
    }
}

TEST(Source, exceptionsAreASetWithoutOrder)
{
    QSet<QString> forwards;
    QSet<QString> backwards;
    for (int i = 0; i < 100; ++i) {
        forwards.insert(QString::number(i));
        backwards.insert(QString::number(99 - i));
    }
    const Source one = source(Source::Kind::Safari, {}, u"Safari"_s, Source::AllExcept{forwards});
    const Source other = source(Source::Kind::Safari, {}, u"Safari"_s, Source::AllExcept{backwards});
    EXPECT_EQ(one, other);
    EXPECT_EQ(qHash(one), qHash(other));
    EXPECT_NE(one, source(Source::Kind::Safari, {}, u"Safari"_s, Source::AllExcept{{u"0"_s}}));
}

TEST(Source, canBeAKey)
{
    QHash<Source, int> places;
    places[Source::safari()] = 1;
    places[source(Source::Kind::Chrome, u"Default"_s, u"Work"_s)] = 2;
    EXPECT_EQ(places.value(Source::safari()), 1);
    EXPECT_EQ(places.value(source(Source::Kind::Chrome, u"Default"_s, u"Work"_s)), 2);
    EXPECT_FALSE(places.contains(source(Source::Kind::Edge, u"Default"_s, u"Work"_s)));
}

TEST(Favicon, isAFileOrBytesInThatOrder)
{
    const Favicon file = FaviconFile{u"/icons/1"_s};
    const Favicon data = FaviconData{"/icons/1"};
    EXPECT_EQ(file.index(), 0U);
    EXPECT_EQ(data.index(), 1U);
    EXPECT_NE(file, data);
    EXPECT_EQ(file, Favicon(FaviconFile{u"/icons/1"_s}));
    EXPECT_NE(file, Favicon(FaviconFile{u"/icons/2"_s}));
    EXPECT_EQ(data, Favicon(FaviconData{"/icons/1"}));
    EXPECT_NE(data, Favicon(FaviconData{QByteArray()}));
}

} // namespace roamlet::testing
