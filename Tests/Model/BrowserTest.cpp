// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Browser.h"

#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

Source named(QStringView browser, const QString &profile, const QString &name, const QString &installation,
             bool isNamed = false)
{
    return {.kind = Source::kindFromRawValue(browser).value(),
            .profile = profile,
            .name = name,
            .safariBookmarks = {},
            .installation = installation,
            .namesInstallation = isNamed};
}

TEST(Browser, everyRowIsFoundByItsKindAndItsName)
{
    QSet<QString> names;
    for (const Browser &browser : Browser::all()) {
        EXPECT_EQ(Browser::of(browser.kind).rawValue, browser.rawValue);
        EXPECT_EQ(Source::kindFromRawValue(browser.rawValue), browser.kind);
        names.insert(browser.rawValue);
        names.insert(browser.displayName);
    }
    EXPECT_EQ(names.size(), 2 * Browser::all().size()) << "a name stands for two browsers";
}

TEST(Browser, namesFamiliesAndInstallationsStandInTheOrderInWhichTheyAreListed)
{
    struct Row {
        const char *rawValue;
        const char *displayName;
        Browser::Family family;
        QStringList installations;
    };
    using enum Browser::Family;
    const QString beta = u"beta"_s;
    const QString dev = u"dev"_s;
    const QString nightly = u"nightly"_s;
    const QString snap = u"snap"_s;
    const QString flatpak = u"flatpak"_s;
    const QList<Row> rows{{"safari", "Safari", Safari, {{}}},
                          {"chrome", "Chrome", Chromium, {{}, beta, dev, flatpak, u"dev-flatpak"_s}},
                          {"edge", "Edge", Chromium, {{}, beta, dev, flatpak, u"beta-flatpak"_s}},
                          {"chromium", "Chromium", Chromium, {{}, snap, flatpak}},
                          {"brave", "Brave", Chromium, {{}, beta, nightly, snap, flatpak}},
                          {"vivaldi", "Vivaldi", Chromium, {{}, nightly, snap, flatpak}},
                          {"opera", "Opera", Chromium, {{}, beta, dev, snap, flatpak}},
                          {"firefox", "Firefox", Firefox, {{}, snap, flatpak}},
                          {"librewolf", "LibreWolf", Firefox, {{}, flatpak}},
                          {"waterfox", "Waterfox", Firefox, {{}, flatpak}},
                          {"floorp", "Floorp", Firefox, {{}, flatpak}},
                          {"zen", "Zen", Firefox, {{}, flatpak}}};
    ASSERT_EQ(Browser::all().size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const Browser &browser = Browser::all()[i];
        QStringList keys;
        for (const Browser::Installation &installation : browser.installations)
            keys.append(installation.key);
        EXPECT_EQ(browser.kind, static_cast<Source::Kind>(i));
        EXPECT_EQ(browser.rawValue.toStdString(), rows[i].rawValue);
        EXPECT_EQ(browser.displayName.toStdString(), rows[i].displayName);
        EXPECT_EQ(browser.family, rows[i].family) << rows[i].rawValue;
        EXPECT_EQ(keys.join(u' ').toStdString(), rows[i].installations.join(u' ').toStdString())
            << rows[i].rawValue;
    }
}

TEST(Browser, theFirstThreeAreThoseThatCodeNames)
{
    EXPECT_EQ(Browser::of(Source::Kind::Safari).rawValue, u"safari");
    EXPECT_EQ(Browser::of(Source::Kind::Chrome).rawValue, u"chrome");
    EXPECT_EQ(Browser::of(Source::Kind::Edge).rawValue, u"edge");
}

TEST(Browser, theNativeReleaseIsTheFirstInstallationAndKeysAreUnique)
{
    for (const Browser &browser : Browser::all()) {
        QSet<QString> keys;
        for (const Browser::Installation &installation : browser.installations)
            keys.insert(installation.key);
        EXPECT_EQ(keys.size(), browser.installations.size()) << browser.rawValue.toStdString();
        EXPECT_EQ(browser.installations.first().key, QString()) << browser.rawValue.toStdString();
    }
}

TEST(Browser, aKeyTellsHowTheBrowserCameHere)
{
    using Packaging = Browser::Installation::Packaging;
    const auto packaging = [](const QString &key) {
        return Browser::Installation{key, {}, {}, {}}.packaging();
    };
    EXPECT_EQ(packaging({}), Packaging::Native);
    EXPECT_EQ(packaging(u"beta"_s), Packaging::Native);
    EXPECT_EQ(packaging(u"flatpak"_s), Packaging::Flatpak);
    EXPECT_EQ(packaging(u"beta-flatpak"_s), Packaging::Flatpak);
    EXPECT_EQ(packaging(u"snap"_s), Packaging::Snap);
}

TEST(Browser, theIdNamesTheInstallationWhateverElseIsThere)
{
    EXPECT_EQ(named(u"chrome", u"Default"_s, u"Work"_s, {}).id(), u"chrome/Default");
    EXPECT_EQ(named(u"chrome", u"Default"_s, u"Work"_s, u"beta"_s).id(), u"chrome@beta/Default");
    EXPECT_EQ(named(u"chrome", u"Default"_s, u"Work"_s, u"beta"_s, true).id(), u"chrome@beta/Default");
    EXPECT_EQ(named(u"firefox", u"abc.default"_s, u"x"_s, u"snap"_s).id(), u"firefox@snap/abc.default");
    EXPECT_EQ(named(u"opera", u""_s, u"Opera"_s, {}).id(), u"opera/");
}

TEST(Browser, theLabelNamesTheInstallationOnlyBesideOthers)
{
    EXPECT_EQ(named(u"chrome", u"p"_s, u"Work"_s, u"beta"_s).label(), u"Chrome - Work");
    EXPECT_EQ(named(u"chrome", u"p"_s, u"Work"_s, u"beta"_s, true).label(), u"Chrome Beta - Work");
    EXPECT_EQ(named(u"firefox", u"p"_s, u"default"_s, u"snap"_s, true).label(), u"Firefox (Snap) - default");
    EXPECT_EQ(named(u"chrome", u"p"_s, u"Work"_s, u"beta-flatpak"_s, true).label(),
              u"Chrome Beta (Flatpak) - Work");
    EXPECT_EQ(named(u"chrome", u"p"_s, u"Chrome"_s, u"beta"_s, true).label(), u"Chrome Beta");
    EXPECT_EQ(named(u"chrome", u"p"_s, u"Chrome"_s, {}, true).label(), u"Chrome");
}

TEST(Browser, sourcesOfTwoInstallationsDiffer)
{
    const Source native = named(u"chrome", u"Default"_s, u"Work"_s, {});
    const Source beta = named(u"chrome", u"Default"_s, u"Work"_s, u"beta"_s);
    EXPECT_NE(native, beta);
    EXPECT_NE(qHash(native), qHash(beta));
}

} // namespace
} // namespace roamlet::testing
