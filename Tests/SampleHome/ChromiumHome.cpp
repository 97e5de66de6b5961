// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/AwkwardValues.h"
#include "SampleHome/ChromiumFiles.h"
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

/// Writes the profiles of one Chromium or relative.
class ChromiumWriter final
{
public:
    ChromiumWriter(HomeParts &home, const Installation &browser)
        : m_home(home), m_browser(browser), m_root(home.path(browser.dataFolder(home.options.layout)))
    {
    }

    void write(int profiles);

private:
    QString profileFolder(int number) const;
    QJsonObject profileListEntry(int number) const;
    /// Opera names those in a folder of their own by it.
    bool isListed(int number) const;
    void writeProfile(const QString &folder, quint64 seed, int number);
    void writeVisits(const QString &folder, quint64 seed, Journal journal);
    void writeBookmarkFile(const QString &path, quint64 seed);
    void writeIcons(const QString &path, Journal journal);
    void addUnusualProfiles(QJsonObject &infoCache);

    HomeParts &m_home;
    const Installation &m_browser;
    QString m_root;
};

QString profileName(Arrangement arrangement, int number)
{
    const QStringList names =
        arrangement == Arrangement::Edge
            ? QStringList{u"Profile 1"_s, u"Office"_s, u"School"_s}
            : QStringList{u"Work"_s, u"Personal"_s, u"Family"_s, u"Side project"_s, u"Voyage été"_s};
    return number < names.size() ? names.at(number) : QString(u"Guest %1"_s.arg(number));
}

void ChromiumWriter::write(int profiles)
{
    // What the program calls such an installation, too, so that two of them hold different pages.
    const QString name =
        m_browser.key.isEmpty() ? m_browser.kind.toString() : QString(m_browser.kind % u'@' % m_browser.key);
    QJsonObject infoCache;
    for (int number = 0; number < profiles; ++number) {
        const QString folder = profileFolder(number);
        if (isListed(number))
            infoCache.insert(folder, profileListEntry(number));
        writeProfile(folder.isEmpty() ? m_root : QString(m_root % u'/' % folder),
                     m_home.profileSeed(name % folder), number);
    }
    if (m_home.options.isAwkward)
        addUnusualProfiles(infoCache);
    writeLocalState(m_root % u"/Local State", infoCache);
}

QString ChromiumWriter::profileFolder(int number) const
{
    const QString side = u"_side_profiles/" % profileName(m_browser.arrangement, number);
    if (m_browser.arrangement == Arrangement::OldOpera)
        return number == 0 ? QString() : side;
    if (number == 0)
        return u"Default"_s;
    return m_browser.arrangement == Arrangement::Opera ? QString(side % u"/Default")
                                                       : u"Profile %1"_s.arg(number);
}

bool ChromiumWriter::isListed(int number) const
{
    return m_browser.arrangement == Arrangement::Opera ? number == 0
                                                       : m_browser.arrangement != Arrangement::OldOpera;
}

QJsonObject ChromiumWriter::profileListEntry(int number) const
{
    QJsonObject info{{u"name"_s, profileName(m_browser.arrangement, number)},
                     {u"is_using_default_name"_s, false},
                     {u"active_time"_s, double(m_home.newest() - number)},
                     {u"avatar_icon"_s, u"chrome://theme/IDR_PROFILE_AVATAR_26"_s},
                     {u"user_name"_s, u""_s}};
    // Edge shows a first profile that was never renamed as "Personal".
    if (m_browser.arrangement == Arrangement::Edge) {
        info.insert(u"is_using_default_name"_s, number == 0);
        info.insert(u"edge_account_type"_s, number == 0 ? 1 : 2);
    }
    return info;
}

void ChromiumWriter::addUnusualProfiles(QJsonObject &infoCache)
{
    const QJsonObject more = awkwardProfiles();
    for (auto profile = more.begin(); profile != more.end(); ++profile) {
        if (infoCache.contains(profile.key()))
            continue;
        infoCache.insert(profile.key(), profile.value());
        if (profile.key() != u"Profile 404")
            makeFolder(m_root % u'/' % profile.key());
    }
    if (m_browser.kind == u"chrome" || m_browser.kind == u"edge")
        return;
    // What its relatives show differently: profiles of one window, encrypted bookmarks, those of an account.
    const auto folder = [&](const QString &name) { return QString(m_root % u'/' % name); };
    const Rows<HistoryRow> onePage{{.url = u"https://unusual.example/"_s,
                                    .title = u"In an unusual profile"_s,
                                    .lastVisitTime = chromiumTime(m_home.newest())}};
    for (const QString &name : {u"Guest Profile"_s, u"System Profile"_s, u"Profile 77"_s, u"Profile 88"_s})
        writeHistory(folder(name) % u"/History", onePage);
    infoCache.insert(u"Guest Profile"_s, profileInfo(u"Guest"_s));
    infoCache.insert(u"Profile 77"_s, ephemeralProfileInfo(u"For one window"_s));
    infoCache.insert(u"Profile 88"_s, profileInfo(u"Encrypted"_s));
    writeEncryptedBookmarks(folder(u"Profile 88"_s) % u"/EncryptedBookmarks2");
    writeEncryptedBookmarks(folder(u"Profile 88"_s) % u"/EncryptedAccountBookmarks", "v11");
    const QString first = profileFolder(0).isEmpty() ? m_root : folder(profileFolder(0));
    writeEncryptedBookmarks(first % u"/EncryptedBookmarks2");
    const QJsonArray synced{bookmarkNode(u"5"_s, u"Synced with the account"_s, u"https://account.example/"_s,
                                         chromiumTime(m_home.newest()))};
    writeBookmarks(first % u"/AccountBookmarks",
                   {{u"bookmark_bar"_s, folderNode(u"1"_s, u"Bookmarks bar"_s, synced)},
                    {u"other"_s, folderNode(u"2"_s, u"Other bookmarks"_s, {})},
                    {u"synced"_s, folderNode(u"3"_s, u"Mobile bookmarks"_s, {})}});
}

void ChromiumWriter::writeProfile(const QString &folder, quint64 seed, int number)
{
    // One profile with each kind of leftover: a reader has to cope with both.
    const Journal journal = !m_home.options.leavesLogs ? Journal::Clean
                            : number % 2 == 0          ? Journal::HotJournal
                                                       : Journal::UnmergedWal;
    writeVisits(folder, seed, journal);
    writeIcons(folder % u"/Favicons", journal);
    if (journal == Journal::Clean) {
        // The journal is emptied after each change, not removed.
        writeFile(folder % u"/History-journal", {});
        writeFile(folder % u"/Favicons-journal", {});
    }
    writeBookmarkFile(folder % u"/Bookmarks", seed);
    ++m_home.contents.profiles;
}

void ChromiumWriter::writeVisits(const QString &folder, quint64 seed, Journal journal)
{
    const qsizetype count = m_home.options.rowsPerProfile;
    const QList<HistoryRow> awkward =
        m_home.options.isAwkward ? awkwardHistory(m_home.newest()) : QList<HistoryRow>();
    const auto row = [&](qsizetype number) {
        const Page visited = page(seed, number);
        const double time = m_home.visitTime(seed, number);
        const auto microseconds = chromiumTime(0) + std::llround(time * 1e6);
        return HistoryRow{.url = visited.url,
                          .title = visited.title,
                          .visitCount = HomeParts::visitCount(seed, number),
                          .lastVisitTime = microseconds};
    };
    writeHistory(folder % u"/History", Rows<HistoryRow>::generated(count, row) + awkward, journal);
    m_home.contents.historyRows += count;
}

void ChromiumWriter::writeBookmarkFile(const QString &path, quint64 seed)
{
    const QList<BookmarkEntry> entries = m_home.someBookmarks(seed);
    const qsizetype inBar = (entries.size() + 1) / 2;
    qint64 nextID = 4;
    const QJsonArray barNodes = chromiumNodes(entries.first(inBar), nextID);
    QJsonArray otherNodes = chromiumNodes(entries.sliced(inBar), nextID);
    if (m_home.options.isAwkward)
        otherNodes.append(folderNode(u"awkward"_s, u"Awkward"_s, awkwardNodes()));
    const QJsonArray deleted{bookmarkNode(u"900000"_s, u"Deleted"_s, u"https://deleted.example/"_s,
                                          chromiumTime(m_home.newest()))};
    QJsonObject roots{{u"bookmark_bar"_s, folderNode(u"1"_s, u"Bookmarks bar"_s, barNodes)},
                      {u"other"_s, folderNode(u"2"_s, u"Other bookmarks"_s, otherNodes)},
                      {u"synced"_s, folderNode(u"3"_s, u"Mobile bookmarks"_s, {})}};
    if (m_browser.arrangement == Arrangement::Vivaldi) {
        roots.insert(u"trash"_s, folderNode(u"900001"_s, u"Trash"_s, deleted));
    } else if (m_browser.arrangement == Arrangement::Opera ||
               m_browser.arrangement == Arrangement::OldOpera) {
        roots.insert(u"other"_s, folderNode(u"2"_s, u"Other bookmarks"_s, {}));
        roots.insert(u"custom_root"_s, operaCustomRoot({{u"unsorted"_s, otherNodes}, {u"trash"_s, deleted}}));
    }
    writeBookmarks(path, roots);
}

void ChromiumWriter::writeIcons(const QString &path, Journal journal)
{
    constexpr std::array widths{16, 32};
    const qsizetype count = m_home.options.iconsPerProfile;
    const auto bitmap = [&](qsizetype index) {
        const int width = widths.at(size_t(index) % widths.size());
        return FaviconBitmap{.iconID = index / 2 + 1, .image = siteIcon(index / 2, width), .width = width};
    };
    const auto mapping = [](qsizetype index) {
        return FaviconMapping{.pageURL = frontPage(index).url, .iconID = index + 1};
    };
    QList<FaviconBitmap> awkward;
    QList<FaviconMapping> awkwardPages;
    if (m_home.options.isAwkward) {
        awkward = awkwardBitmaps(count + 1);
        awkwardPages = awkwardMappings(count + 1);
    }
    writeFavicons(path, Rows<FaviconBitmap>::generated(2 * count, bitmap) + awkward,
                  Rows<FaviconMapping>::generated(count, mapping) + awkwardPages, journal);
    m_home.contents.icons += count;
}

} // namespace

void writeChromium(HomeParts &home, const Installation &browser, int profiles)
{
    ChromiumWriter(home, browser).write(profiles);
}

} // namespace roamlet::sample
