// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/AwkwardFirefox.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/HomeParts.h"
#include "SampleHome/Installations.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleText.h"

#include <QStringList>

#include <array>
#include <cmath>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

/// Writes the profiles of one Firefox or relative.
class FirefoxWriter final
{
public:
    FirefoxWriter(HomeParts &home, const Installation &browser)
        : m_home(home),
          m_root(home.path(browser.dataFolder(home.options.layout)) % u'/'),
          m_name(browser.key.isEmpty() ? browser.kind.toString() : QString(browser.kind % u'@' % browser.key))
    {
    }

    void write(int profiles);

private:
    /// A new profile's folder, as "profiles.ini" names it.
    QString profilePath(const QString &name) const;
    void writeProfile(const QString &path, int number);
    void writePlaces(const QString &file, quint64 seed, Journal journal);
    void writeIcons(const QString &file, Journal journal);
    QList<FirefoxBookmarkRow> bookmarkRows(quint64 seed);
    void writeUnusualProfiles(QList<FirefoxProfile> &profiles);

    HomeParts &m_home;
    QString m_root;
    QString m_name;
};

void FirefoxWriter::write(int profiles)
{
    const QStringList names{u"default-release"_s, u"Work"_s, u"Personal"_s, u"Family"_s, u"Voyage été"_s};
    // A new Firefox makes this one and never uses it.
    QList<FirefoxProfile> list{{.name = u"default"_s, .path = profilePath(u"default"_s), .isDefault = true}};
    makeFolder(m_root % list.first().path);
    for (int number = 0; number < profiles; ++number) {
        const QString name =
            number < names.size() ? names.at(number) : QString(u"Profile %1"_s.arg(number + 1));
        list.append({.name = name, .path = profilePath(name)});
        writeProfile(list.last().path, number);
    }
    const QList<FirefoxInstall> installs{{u"4F96D1932A9F858E"_s, list.at(1).path}};
    if (m_home.options.isAwkward)
        writeUnusualProfiles(list);
    writeFirefoxProfiles(m_root % u"profiles.ini", list, installs,
                         m_home.options.isAwkward ? IniStyle{true, true, true, true, true, 3} : IniStyle());
}

QString FirefoxWriter::profilePath(const QString &name) const
{
    const QString salt = QString::number(m_home.profileSeed(m_name % name), 36).right(8);
    const QString folder = salt % u'.' % name;
    return m_home.options.layout == Layout::Mac ? QString(u"Profiles/" % folder) : folder;
}

void FirefoxWriter::writeUnusualProfiles(QList<FirefoxProfile> &profiles)
{
    const QString storeID = u"1234abcd"_s;
    profiles[1].storeID = storeID;
    const QString inGroupOnly = profilePath(u"In the group only"_s);
    const Rows<FirefoxPage> onePage{{.url = u"https://unusual.example/"_s,
                                     .title = u"In an unusual profile"_s,
                                     .lastVisitDate = firefoxTime(m_home.newest())}};
    writeFirefoxPlaces(m_root % inGroupOnly % u"/places.sqlite", onePage);
    writeFirefoxGroup(m_root % u"Profile Groups/" % storeID % u".sqlite",
                      {{.path = profiles.at(1).path, .name = u"Renamed in the group"_s},
                       {.path = inGroupOnly, .name = u"In the group only"_s}},
                      m_home.options.leavesLogs ? Journal::UnmergedWal : Journal::Clean);
    for (const QString &name : awkwardFirefoxProfileNames()) {
        const QString path = u"awkward.%1"_s.arg(profiles.size());
        writeFirefoxPlaces(m_root % path % u"/places.sqlite", onePage);
        profiles.append({.name = name, .path = path});
    }
    profiles.append({.name = u"Without a folder"_s, .path = u"gone.folder"_s});
    profiles.append({.name = u"The same folder again"_s, .path = profiles.at(1).path});
}

void FirefoxWriter::writeProfile(const QString &path, int number)
{
    const quint64 seed = m_home.profileSeed(m_name % path);
    const Journal journal = !m_home.options.leavesLogs ? Journal::Clean
                            : number % 2 == 0          ? Journal::UnmergedWal
                                                       : Journal::WalAlone;
    writePlaces(m_root % path % u"/places.sqlite", seed, journal);
    writeIcons(m_root % path % u"/favicons.sqlite", journal);
    ++m_home.contents.profiles;
}

void FirefoxWriter::writePlaces(const QString &file, quint64 seed, Journal journal)
{
    const qsizetype count = m_home.options.rowsPerProfile;
    const auto row = [&](qsizetype number) {
        const Page visited = page(seed, number);
        const double time = m_home.visitTime(seed, number);
        return FirefoxPage{.url = visited.url,
                           .title = visited.title,
                           .visitCount = HomeParts::visitCount(seed, number),
                           .lastVisitDate = std::llround(time * 1e6)};
    };
    QList<FirefoxPage> awkward;
    if (m_home.options.isAwkward)
        awkward = awkwardFirefoxPages(m_home.newest());
    writeFirefoxPlaces(file, Rows<FirefoxPage>::generated(count, row) + awkward, bookmarkRows(seed), journal);
    m_home.contents.historyRows += count;
}

QList<FirefoxBookmarkRow> FirefoxWriter::bookmarkRows(quint64 seed)
{
    const QList<FirefoxNode> nodes = firefoxNodes(m_home.someBookmarks(seed));
    const qsizetype onBar = (nodes.size() + 1) / 2;
    const qsizetype inMenu = (nodes.size() - onBar + 1) / 2;
    FirefoxBookmarks bookmarks{.toolbar = nodes.first(onBar),
                               .menu = nodes.sliced(onBar, inMenu),
                               .unfiled = nodes.sliced(onBar + inMenu)};
    bookmarks.menu.prepend(firefoxSeparator());
    QList<FirefoxBookmarkRow> rows = firefoxBookmarkRows(bookmarks);
    if (m_home.options.isAwkward) {
        const auto next = [&rows] { return *rows.last().id + 1; };
        rows += awkwardFirefoxBookmarks(next());
        rows += circlingFirefoxFolders(next());
        rows += orphanedFirefoxBookmarks(next());
        rows += firefoxRootBelowItself(firefox_folder::mobile, u"mobile______"_s, next());
    }
    return rows;
}

void FirefoxWriter::writeIcons(const QString &file, Journal journal)
{
    constexpr std::array widths{16, 32};
    const qsizetype count = m_home.options.iconsPerProfile;
    // Every third site has one icon for all of its pages.
    const auto isWhole = [](qsizetype site) { return site % 3 == 2; };
    const auto icon = [&](qsizetype index) {
        const qsizetype site = index / 2;
        const int width = widths.at(size_t(index) % widths.size());
        const QString host = frontPage(site).url.section(u'/', 0, 2);
        return FirefoxIcon{.id = index + 1,
                           .url = host % (isWhole(site) ? u"/favicon.ico"_s : u"/icon-%1.png"_s.arg(width)),
                           .width = width,
                           .root = isWhole(site),
                           .data = siteIcon(site, width)};
    };
    const auto iconPage = [&](qsizetype number) {
        const qsizetype site = number / 2 * 3 + number % 2;
        return FirefoxIconPage{.url = frontPage(site).url, .icons = {2 * site + 1, 2 * site + 2}};
    };
    QList<FirefoxIcon> awkward;
    QList<FirefoxIconPage> awkwardPages;
    if (m_home.options.isAwkward) {
        awkward = awkwardFirefoxIcons(2 * count + 1);
        awkwardPages = awkwardFirefoxIconPages(2 * count + 1);
    }
    writeFirefoxFavicons(file, Rows<FirefoxIcon>::generated(2 * count, icon) + awkward,
                         Rows<FirefoxIconPage>::generated(count - count / 3, iconPage) + awkwardPages,
                         journal);
    m_home.contents.icons += count;
}

} // namespace

void writeFirefox(HomeParts &home, const Installation &browser, int profiles)
{
    FirefoxWriter(home, browser).write(profiles);
}

} // namespace roamlet::sample
