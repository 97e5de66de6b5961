// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/SampleHome.h"

#include "SampleHome/AwkwardValues.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"
#include "SampleHome/SampleBookmarks.h"
#include "SampleHome/SampleText.h"

#include <QStringList>

#include <array>
#include <cmath>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

constexpr double spanInSeconds = 2 * 365 * 86'400.0;

/// When a row was visited last, in Unix seconds: later rows are newer and closer together, the last one is
/// the newest.
double visitTime(const Options &options, quint64 seed, qsizetype row)
{
    const double age = 1 - double(row + 1) / double(options.rowsPerProfile);
    // Otherwise all profiles would share their times.
    const qint64 jitter = age > 0 ? Random(seed - quint64(row)).below(3'600'000'000) : 0;
    return double(options.newestVisit.toSecsSinceEpoch()) - spanInSeconds * std::pow(age, 1.5) -
           double(jitter) * 1e-6;
}

/// Most pages are seen once, a few every day.
qint64 visitCount(quint64 seed, qsizetype row)
{
    Random random(seed + quint64(row));
    const qint64 kind = random.below(100);
    return kind < 70 ? 1 : kind < 97 ? 2 + random.below(9) : 11 + random.below(400);
}

quint64 profileSeed(const Options &options, const QString &profileKey)
{
    quint64 seed = options.seed;
    for (const QChar character : profileKey)
        seed = seed * 31 + character.unicode();
    return Random(seed).next();
}

/// Writes the files of one home and counts what they hold.
class HomeWriter final
{
public:
    HomeWriter(QString home, const Options &options) : m_home(std::move(home)), m_options(options) {}

    Contents write();

private:
    struct Chromium {
        QString root;
        QString key;
        QStringList profileNames;
        int profileCount = 0;
    };

    void writeChromium(const Chromium &browser);
    void writeChromiumProfile(const QString &folder, quint64 seed, int number);
    void writeChromiumHistory(const QString &folder, quint64 seed, Journal journal);
    void writeChromiumBookmarks(const QString &path, quint64 seed);
    void writeChromiumIcons(const QString &path, Journal journal);

    void writeSafari();
    void writeSafariProfileHistory(const QString &path, quint64 seed);
    void writeSafariBookmarks(const QStringList &ownFolderIDs);
    void writeSafariIcons(const QString &folder);

    QList<BookmarkEntry> someBookmarks(quint64 seed);
    qint64 newest() const { return m_options.newestVisit.toSecsSinceEpoch(); }
    /// How Safari's databases are left: it keeps changes in its log for long.
    Journal safariJournal() const { return m_options.leavesLogs ? Journal::UnmergedWal : Journal::Clean; }
    /// The path of a file or folder below Safari's main folder, and below its container's.
    QString safariPath(const QString &name) const { return m_home % u"/Library/Safari/" % name; }
    QString containerPath(const QString &name) const
    {
        return m_home % u"/Library/Containers/com.apple.Safari/Data/Library/Safari/" % name;
    }

    QString m_home;
    Options m_options;
    Contents m_contents;
};

Contents HomeWriter::write()
{
    const bool isMac = m_options.layout == Layout::Mac;
    makeFolder(m_home);
    const QString support = m_home % u"/Library/Application Support/";
    const QString config = m_home % u"/.config/";
    writeChromium(
        {.root = isMac ? QString(support % u"Google/Chrome") : QString(config % u"google-chrome"),
         .key = u"chrome"_s,
         .profileNames = {u"Work"_s, u"Personal"_s, u"Family"_s, u"Side project"_s, u"Voyage été"_s},
         .profileCount = m_options.chromeProfiles});
    writeChromium({.root = isMac ? QString(support % u"Microsoft Edge") : QString(config % u"microsoft-edge"),
                   .key = u"edge"_s,
                   .profileNames = {u"Profile 1"_s, u"Office"_s, u"School"_s},
                   .profileCount = m_options.edgeProfiles});
    if (isMac && m_options.safariProfiles >= 0)
        writeSafari();
    return m_contents;
}

void HomeWriter::writeChromium(const Chromium &browser)
{
    if (browser.profileCount == 0)
        return;
    QJsonObject infoCache;
    for (int number = 0; number < browser.profileCount; ++number) {
        const QString folder = number == 0 ? u"Default"_s : u"Profile %1"_s.arg(number);
        const QString name = number < browser.profileNames.size() ? browser.profileNames.at(number)
                                                                  : QString(u"Guest %1"_s.arg(number));
        QJsonObject info{{u"name"_s, name},
                         {u"is_using_default_name"_s, false},
                         {u"active_time"_s, double(newest() - number)},
                         {u"avatar_icon"_s, u"chrome://theme/IDR_PROFILE_AVATAR_26"_s},
                         {u"user_name"_s, u""_s}};
        // Edge shows a first profile that was never renamed as "Personal".
        if (browser.key == u"edge") {
            info.insert(u"is_using_default_name"_s, number == 0);
            info.insert(u"edge_account_type"_s, number == 0 ? 1 : 2);
        }
        infoCache.insert(folder, info);
        writeChromiumProfile(browser.root % u'/' % folder, profileSeed(m_options, browser.key % folder),
                             number);
    }
    if (m_options.isAwkward) {
        const QJsonObject more = awkwardProfiles();
        for (auto profile = more.begin(); profile != more.end(); ++profile) {
            if (infoCache.contains(profile.key()))
                continue;
            infoCache.insert(profile.key(), profile.value());
            if (profile.key() != u"Profile 404")
                makeFolder(browser.root % u'/' % profile.key());
        }
    }
    writeLocalState(browser.root % u"/Local State", infoCache);
}

void HomeWriter::writeChromiumProfile(const QString &folder, quint64 seed, int number)
{
    // One profile with each kind of leftover: a reader has to cope with both.
    const Journal journal = !m_options.leavesLogs ? Journal::Clean
                            : number % 2 == 0     ? Journal::HotJournal
                                                  : Journal::UnmergedWal;
    writeChromiumHistory(folder, seed, journal);
    writeChromiumIcons(folder % u"/Favicons", journal);
    if (journal == Journal::Clean) {
        // The journal is emptied after each change, not removed.
        writeFile(folder % u"/History-journal", {});
        writeFile(folder % u"/Favicons-journal", {});
    }
    writeChromiumBookmarks(folder % u"/Bookmarks", seed);
    ++m_contents.profiles;
}

void HomeWriter::writeChromiumHistory(const QString &folder, quint64 seed, Journal journal)
{
    const qsizetype count = m_options.rowsPerProfile;
    const QList<HistoryRow> awkward = m_options.isAwkward ? awkwardHistory(newest()) : QList<HistoryRow>();
    const auto row = [&](qsizetype number) {
        const Page visited = page(seed, number);
        const double time = visitTime(m_options, seed, number);
        const auto microseconds = chromiumTime(0) + std::llround(time * 1e6);
        return HistoryRow{.url = visited.url,
                          .title = visited.title,
                          .visitCount = visitCount(seed, number),
                          .lastVisitTime = microseconds};
    };
    writeHistory(folder % u"/History", Rows<HistoryRow>::generated(count, row) + awkward, journal);
    m_contents.historyRows += count;
}

void HomeWriter::writeChromiumBookmarks(const QString &path, quint64 seed)
{
    const QList<BookmarkEntry> entries = someBookmarks(seed);
    const qsizetype inBar = (entries.size() + 1) / 2;
    qint64 nextID = 4;
    const QJsonArray barNodes = chromiumNodes(entries.first(inBar), nextID);
    QJsonArray otherNodes = chromiumNodes(entries.sliced(inBar), nextID);
    if (m_options.isAwkward)
        otherNodes.append(folderNode(u"awkward"_s, u"Awkward"_s, awkwardNodes()));
    writeBookmarks(path, {{u"bookmark_bar"_s, folderNode(u"1"_s, u"Bookmarks bar"_s, barNodes)},
                          {u"other"_s, folderNode(u"2"_s, u"Other bookmarks"_s, otherNodes)},
                          {u"synced"_s, folderNode(u"3"_s, u"Mobile bookmarks"_s, {})}});
}

void HomeWriter::writeChromiumIcons(const QString &path, Journal journal)
{
    constexpr std::array widths{16, 32};
    const qsizetype count = m_options.iconsPerProfile;
    const auto bitmap = [&](qsizetype index) {
        const int width = widths.at(size_t(index) % widths.size());
        return FaviconBitmap{.iconID = index / 2 + 1, .image = siteIcon(index / 2, width), .width = width};
    };
    const auto mapping = [](qsizetype index) {
        return FaviconMapping{.pageURL = frontPage(index).url, .iconID = index + 1};
    };
    QList<FaviconBitmap> awkward;
    QList<FaviconMapping> awkwardPages;
    if (m_options.isAwkward) {
        awkward = awkwardBitmaps(count + 1);
        awkwardPages = awkwardMappings(count + 1);
    }
    writeFavicons(path, Rows<FaviconBitmap>::generated(2 * count, bitmap) + awkward,
                  Rows<FaviconMapping>::generated(count, mapping) + awkwardPages, journal);
    m_contents.icons += count;
}

void HomeWriter::writeSafari()
{
    constexpr std::array<QStringView, 4> names{u"Work", u"School", u"Travel", u"Shared flat"};
    Random random(profileSeed(m_options, u"safari"_s));
    writeSafariProfileHistory(safariPath(u"History.db"_s), random.next());
    ++m_contents.profiles;

    QList<SafariProfileRow> profiles;
    QStringList ownFolderIDs;
    for (int number = 0; number < m_options.safariProfiles; ++number) {
        const QString uuid = random.uuid();
        // Every second profile shares the default one's favourites.
        const bool hasOwnFolder = number % 2 == 0;
        const QString folderID = hasOwnFolder ? random.uuid() : u"Favorites Bar"_s;
        if (hasOwnFolder)
            ownFolderIDs.append(folderID);
        const QVariantMap attributes{{u"CustomFavoritesFolderServerID"_s, folderID},
                                     {u"ProfileColor"_s, QByteArray(16, char(number))},
                                     {u"SymbolImageName"_s, u"briefcase.fill"_s}};
        const auto format = hasOwnFolder ? PropertyListFormat::Binary : PropertyListFormat::Xml;
        const QString name = number < int(names.size()) ? names.at(size_t(number)).toString()
                                                        : QString(u"Profile %1"_s.arg(number + 1));
        profiles.append(
            {.title = name, .serverID = uuid, .extraAttributes = propertyList(attributes, format)});
        writeSafariProfileHistory(containerPath(u"Profiles/" % uuid % u"/History.db"), random.next());
        ++m_contents.profiles;
    }
    if (m_options.isAwkward)
        profiles.append(awkwardSafariProfiles());
    writeSafariTabs(containerPath(u"SafariTabs.db"_s), profiles, safariJournal());
    writeSafariBookmarks(ownFolderIDs);
    writeSafariIcons(safariPath(u"Favicon Cache"_s));
}

void HomeWriter::writeSafariProfileHistory(const QString &path, quint64 seed)
{
    const qsizetype count = m_options.rowsPerProfile;
    const auto item = [&](qsizetype index) {
        return SafariItem{
            .id = index + 1, .url = page(seed, index).url, .visitCount = visitCount(seed, index)};
    };
    // One visit each, and for every second item an older one, when the page had another title.
    const auto visit = [&](qsizetype index) {
        const bool isOlder = index >= count;
        const qsizetype number = isOlder ? (index - count) * 2 : index;
        const QString title = page(seed, number).title;
        const double time = safariTime(visitTime(m_options, seed, number)) + (isOlder ? -86'400.5 : 0);
        return SafariVisit{
            .itemID = number + 1, .time = time, .title = isOlder ? title % u" (loading)" : title};
    };
    QList<SafariItem> awkwardItems;
    QList<SafariVisit> awkwardVisits;
    if (m_options.isAwkward) {
        awkwardItems = awkwardSafariItems(count + 1);
        awkwardVisits = awkwardSafariVisits(count + 1, newest());
    }
    writeSafariHistory(path, Rows<SafariItem>::generated(count, item) + awkwardItems,
                       Rows<SafariVisit>::generated(count + (count + 1) / 2, visit) + awkwardVisits,
                       safariJournal());
    m_contents.historyRows += count;
}

void HomeWriter::writeSafariBookmarks(const QStringList &ownFolderIDs)
{
    Random random(profileSeed(m_options, u"safari bookmarks"_s));
    QVariantList entries = safariEntries(someBookmarks(random.next()), random);
    const qsizetype inBar = (entries.size() + 1) / 2;
    const QVariantList bar = entries.mid(0, inBar);
    QVariantList menu = entries.mid(inBar);
    if (m_options.isAwkward)
        menu.append(safariFolder(random.uuid(), u"Awkward"_s, awkwardSafariEntries()));

    QVariantList roots{
        QVariantMap{{u"WebBookmarkType"_s, u"WebBookmarkTypeProxy"_s},
                    {u"WebBookmarkIdentifier"_s, u"History"_s},
                    {u"WebBookmarkUUID"_s, random.uuid()},
                    {u"Title"_s, u"History"_s}},
        safariFolder(random.uuid(), u"BookmarksBar"_s, bar, u"Favorites Bar"_s),
        safariFolder(random.uuid(), u"BookmarksMenu"_s, menu, u"Bookmarks Menu"_s),
    };
    for (const QString &serverID : ownFolderIDs) {
        const QVariantList own = safariEntries(someBookmarks(random.next()), random);
        roots.append(safariFolder(random.uuid(), u"Own favourites"_s, own, serverID));
    }
    QVariantMap later = safariBookmark(random.uuid(), u"To be read later"_s, u"https://later.example/"_s, {});
    later.insert(u"dateAdded"_s, m_options.newestVisit);
    later.insert(u"ReadingList"_s,
                 QVariantMap{{u"DateAdded"_s, m_options.newestVisit}, {u"PreviewText"_s, u"…"_s}});
    roots.append(safariFolder(random.uuid(), u"com.apple.ReadingList"_s, {later}, u"Reading List"_s));
    const QVariantMap root{{u"WebBookmarkFileVersion"_s, 1},
                           {u"WebBookmarkType"_s, u"WebBookmarkTypeList"_s},
                           {u"WebBookmarkUUID"_s, random.uuid()},
                           {u"Title"_s, u""_s},
                           {u"Children"_s, roots}};
    writePropertyList(safariPath(u"Bookmarks.plist"_s), root, PropertyListFormat::Binary);
}

void HomeWriter::writeSafariIcons(const QString &folder)
{
    const qsizetype count = m_options.iconsPerProfile;
    const auto uuid = [seed = profileSeed(m_options, u"safari icons"_s)](qsizetype index) {
        return Random(seed + quint64(index)).uuid();
    };
    const auto icon = [&](qsizetype index) {
        return SafariIcon{.uuid = uuid(index),
                          .timestamp = safariTime(double(newest() - index)),
                          .image = siteIcon(index, 32)};
    };
    const auto page = [&](qsizetype index) {
        return SafariIconPage{.url = frontPage(index).url, .uuid = uuid(index)};
    };
    QList<SafariIcon> awkward;
    QList<SafariIconPage> awkwardPages;
    if (m_options.isAwkward) {
        awkward = {{.uuid = u"no file"_s},
                   {.uuid = u"broken file"_s, .image = QByteArray("\x89PNG and no more")}};
        awkwardPages = {{.url = u"https://no-file.example/"_s, .uuid = u"no file"_s},
                        {.url = u"https://broken-file.example/"_s, .uuid = u"broken file"_s},
                        {.url = u"https://unknown-icon.example/"_s, .uuid = u"unknown"_s},
                        {.url = u"https://null-icon.example/"_s},
                        {.uuid = u"broken file"_s},
                        {.url = u"about:blank"_s, .uuid = u"broken file"_s}};
    }
    writeSafariFavicons(folder, Rows<SafariIcon>::generated(count, icon) + awkward,
                        Rows<SafariIconPage>::generated(count, page) + awkwardPages, safariJournal());
    m_contents.icons += count;
}

QList<BookmarkEntry> HomeWriter::someBookmarks(quint64 seed)
{
    m_contents.bookmarks += m_options.bookmarksPerProfile;
    return bookmarkEntries(seed, m_options.bookmarksPerProfile, newest());
}

} // namespace

Contents build(const QString &homeFolder, const Options &options)
{
    return HomeWriter(homeFolder, options).write();
}

} // namespace roamlet::sample
