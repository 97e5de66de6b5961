// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Browser.h"
#include "Readers/BrowserReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/Installations.h"
#include "SampleHome/SampleHome.h"

#include <QHash>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using sample::Layout;

/// A home with one page in each profile, and no browsers but these, in the folders that the samples know.
sample::Options homeOf(Layout layout, const QList<sample::BrowserSample> &browsers)
{
    return {.layout = layout,
            .chromeProfiles = 0,
            .edgeProfiles = 0,
            .safariProfiles = -1,
            .furtherBrowsers = browsers,
            .rowsPerProfile = 1,
            .bookmarksPerProfile = 0,
            .iconsPerProfile = 0};
}

QString nameOf(const sample::Installation &installation)
{
    return installation.key.isEmpty() ? installation.kind.toString()
                                      : QString(installation.kind % u'@' % installation.key);
}

QList<Source> allProfiles(const ReadContext &context)
{
    QList<Source> result;
    for (const Browser &browser : Browser::all())
        result += BrowserReader::profiles(browser.kind, context);
    return result;
}

/// The beginning of the ids of an installation's profiles. The folders of earlier versions belong to the same
/// one.
QString idPrefix(const sample::Installation &installation)
{
    if (installation.key.isEmpty() || installation.key == u"old")
        return installation.kind % u'/';
    const QString key = installation.key == u"old-flatpak" ? u"flatpak"_s : installation.key.toString();
    return installation.kind % u'@' % key % u'/';
}

/// What the label of an installation's first profile is when no other one is there.
QString labelAlone(const sample::Installation &installation)
{
    static const QHash<QString, QString> labels{{u"chrome"_s, u"Chrome - Work"_s},
                                                {u"edge"_s, u"Edge - Personal"_s},
                                                {u"chromium"_s, u"Chromium - Work"_s},
                                                {u"brave"_s, u"Brave - Work"_s},
                                                {u"vivaldi"_s, u"Vivaldi - Work"_s},
                                                {u"opera"_s, u"Opera - Work"_s},
                                                {u"firefox"_s, u"Firefox - default-release"_s},
                                                {u"librewolf"_s, u"LibreWolf - default-release"_s},
                                                {u"waterfox"_s, u"Waterfox - default-release"_s},
                                                {u"floorp"_s, u"Floorp - default-release"_s},
                                                {u"zen"_s, u"Zen - default-release"_s}};
    // The profile in the data folder itself has no name of its own.
    return installation.arrangement == sample::Arrangement::OldOpera
               ? u"Opera"_s
               : labels.value(installation.kind.toString());
}

} // namespace

TEST(EveryInstallation, ofTheSamplesIsReadUnderItsKeyInBothLayouts)
{
    int read = 0;
    for (const Layout layout : {Layout::Linux, Layout::Mac}) {
        for (const sample::Installation &installation : sample::allInstallations()) {
            if (layout == Layout::Mac && installation.macFolder.isEmpty())
                continue;
            SCOPED_TRACE(
                QString(nameOf(installation) % u" in " % installation.dataFolder(layout)).toStdString());
            const TestHome home;
            sample::build(home.path(), homeOf(layout, {{nameOf(installation)}}));
            const FolderFingerprint before(home.path());
            const QList<Source> sources = allProfiles(home.context());
            ASSERT_EQ(sources.size(), 1);
            const QString id = sources.first().id();
            EXPECT_TRUE(id.startsWith(idPrefix(installation))) << id.toStdString();
            EXPECT_EQ(sources.first().label(), labelAlone(installation));
            const auto history =
                BrowserReader::history(sources.first(), HistoryQuery::recent(), home.context());
            ASSERT_TRUE(history.has_value()) << history.error();
            ASSERT_EQ(history->size(), 1);
            EXPECT_EQ(history->first().id, QString(id % u"/1"));
            EXPECT_EQ(before.differencesTo(FolderFingerprint(home.path())), "");
            EXPECT_EQ(home.leftovers(), QStringList());
            ++read;
        }
    }
    EXPECT_EQ(read, 56) << "the samples have other browsers than before";
}

TEST(EveryInstallation, standsInItsPlaceAndIsNamedInItsLabelWhereAllAreThere)
{
    const TestHome home;
    QList<sample::BrowserSample> all;
    for (const sample::Installation &installation : sample::allInstallations()) {
        // Lies in the folder of a new one.
        if (installation.arrangement != sample::Arrangement::OldOpera)
            all.append({nameOf(installation)});
    }
    sample::build(home.path(), homeOf(Layout::Linux, all));
    QStringList labels;
    for (const Source &source : allProfiles(home.context()))
        labels.append(source.label());
    EXPECT_EQ(labels.join(u'\n').toStdString(), "Chrome - Work\n"
                                                "Chrome Beta - Work\n"
                                                "Chrome Dev - Work\n"
                                                "Chrome (Flatpak) - Work\n"
                                                "Chrome Dev (Flatpak) - Work\n"
                                                "Edge - Personal\n"
                                                "Edge Beta - Personal\n"
                                                "Edge Dev - Personal\n"
                                                "Edge (Flatpak) - Personal\n"
                                                "Edge Beta (Flatpak) - Personal\n"
                                                "Chromium - Work\n"
                                                "Chromium (Snap) - Work\n"
                                                "Chromium (Flatpak) - Work\n"
                                                "Brave - Work\n"
                                                "Brave Beta - Work\n"
                                                "Brave Nightly - Work\n"
                                                "Brave (Snap) - Work\n"
                                                "Brave (Flatpak) - Work\n"
                                                "Vivaldi - Work\n"
                                                "Vivaldi Nightly - Work\n"
                                                "Vivaldi (Snap) - Work\n"
                                                "Vivaldi (Flatpak) - Work\n"
                                                "Opera - Work\n"
                                                "Opera Beta - Work\n"
                                                "Opera Dev - Work\n"
                                                "Opera (Snap) - Work\n"
                                                "Opera (Flatpak) - Work\n"
                                                "Firefox - default-release\n"
                                                "Firefox - default-release\n"
                                                "Firefox (Snap) - default-release\n"
                                                "Firefox (Flatpak) - default-release\n"
                                                "Firefox (Flatpak) - default-release\n"
                                                "LibreWolf - default-release\n"
                                                "LibreWolf - default-release\n"
                                                "LibreWolf (Flatpak) - default-release\n"
                                                "LibreWolf (Flatpak) - default-release\n"
                                                "Waterfox - default-release\n"
                                                "Waterfox (Flatpak) - default-release\n"
                                                "Floorp - default-release\n"
                                                "Floorp (Flatpak) - default-release\n"
                                                "Zen - default-release\n"
                                                "Zen - default-release\n"
                                                "Zen (Flatpak) - default-release");
}

} // namespace roamlet::testing
