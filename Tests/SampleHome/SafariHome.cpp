// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/AwkwardValues.h"
#include "SampleHome/HomeParts.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"
#include "SampleHome/SampleText.h"

#include <QStringList>

#include <array>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

/// Writes the files of Safari and its profiles.
class SafariWriter final
{
public:
    explicit SafariWriter(HomeParts &home) : m_home(home) {}

    void write();

private:
    void writeProfileHistory(const QString &path, quint64 seed);
    void writeBookmarkFile(const QStringList &ownFolderIDs);
    void writeIcons(const QString &folder);

    /// How Safari's databases are left: it keeps changes in its log for long.
    Journal safariJournal() const
    {
        return m_home.options.leavesLogs ? Journal::UnmergedWal : Journal::Clean;
    }
    /// The path of a file or folder below Safari's main folder, and below its container's.
    QString safariPath(const QString &name) const { return m_home.path(u"Library/Safari/" % name); }
    QString containerPath(const QString &name) const
    {
        return m_home.path(u"Library/Containers/com.apple.Safari/Data/Library/Safari/" % name);
    }

    HomeParts &m_home;
};

void SafariWriter::write()
{
    constexpr std::array<QStringView, 4> names{u"Work", u"School", u"Travel", u"Shared flat"};
    Random random(m_home.profileSeed(u"safari"_s));
    writeProfileHistory(safariPath(u"History.db"_s), random.next());
    ++m_home.contents.profiles;

    QList<SafariProfileRow> profiles;
    QStringList ownFolderIDs;
    for (int number = 0; number < m_home.options.safariProfiles; ++number) {
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
        writeProfileHistory(containerPath(u"Profiles/" % uuid % u"/History.db"), random.next());
        ++m_home.contents.profiles;
    }
    if (m_home.options.isAwkward)
        profiles.append(awkwardSafariProfiles());
    writeSafariTabs(containerPath(u"SafariTabs.db"_s), profiles, safariJournal());
    writeBookmarkFile(ownFolderIDs);
    writeIcons(safariPath(u"Favicon Cache"_s));
}

void SafariWriter::writeProfileHistory(const QString &path, quint64 seed)
{
    const qsizetype count = m_home.options.rowsPerProfile;
    const auto item = [&](qsizetype index) {
        return SafariItem{
            .id = index + 1, .url = page(seed, index).url, .visitCount = HomeParts::visitCount(seed, index)};
    };
    // One visit each, and for every second item an older one, when the page had another title.
    const auto visit = [&](qsizetype index) {
        const bool isOlder = index >= count;
        const qsizetype number = isOlder ? (index - count) * 2 : index;
        const QString title = page(seed, number).title;
        const double time = safariTime(m_home.visitTime(seed, number)) + (isOlder ? -86'400.5 : 0);
        return SafariVisit{
            .itemID = number + 1, .time = time, .title = isOlder ? title % u" (loading)" : title};
    };
    QList<SafariItem> awkwardItems;
    QList<SafariVisit> awkwardVisits;
    if (m_home.options.isAwkward) {
        awkwardItems = awkwardSafariItems(count + 1);
        awkwardVisits = awkwardSafariVisits(count + 1, m_home.newest());
    }
    writeSafariHistory(path, Rows<SafariItem>::generated(count, item) + awkwardItems,
                       Rows<SafariVisit>::generated(count + (count + 1) / 2, visit) + awkwardVisits,
                       safariJournal());
    m_home.contents.historyRows += count;
}

void SafariWriter::writeBookmarkFile(const QStringList &ownFolderIDs)
{
    Random random(m_home.profileSeed(u"safari bookmarks"_s));
    QVariantList entries = safariEntries(m_home.someBookmarks(random.next()), random);
    const qsizetype inBar = (entries.size() + 1) / 2;
    const QVariantList bar = entries.mid(0, inBar);
    QVariantList menu = entries.mid(inBar);
    if (m_home.options.isAwkward)
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
        const QVariantList own = safariEntries(m_home.someBookmarks(random.next()), random);
        roots.append(safariFolder(random.uuid(), u"Own favourites"_s, own, serverID));
    }
    QVariantMap later = safariBookmark(random.uuid(), u"To be read later"_s, u"https://later.example/"_s, {});
    later.insert(u"dateAdded"_s, m_home.options.newestVisit);
    later.insert(u"ReadingList"_s,
                 QVariantMap{{u"DateAdded"_s, m_home.options.newestVisit}, {u"PreviewText"_s, u"…"_s}});
    roots.append(safariFolder(random.uuid(), u"com.apple.ReadingList"_s, {later}, u"Reading List"_s));
    const QVariantMap root{{u"WebBookmarkFileVersion"_s, 1},
                           {u"WebBookmarkType"_s, u"WebBookmarkTypeList"_s},
                           {u"WebBookmarkUUID"_s, random.uuid()},
                           {u"Title"_s, u""_s},
                           {u"Children"_s, roots}};
    writePropertyList(safariPath(u"Bookmarks.plist"_s), root, PropertyListFormat::Binary);
}

void SafariWriter::writeIcons(const QString &folder)
{
    const qsizetype count = m_home.options.iconsPerProfile;
    const auto uuid = [seed = m_home.profileSeed(u"safari icons"_s)](qsizetype index) {
        return Random(seed + quint64(index)).uuid();
    };
    const auto icon = [&](qsizetype index) {
        return SafariIcon{.uuid = uuid(index),
                          .timestamp = safariTime(double(m_home.newest() - index)),
                          .image = siteIcon(index, 32)};
    };
    const auto page = [&](qsizetype index) {
        return SafariIconPage{.url = frontPage(index).url, .uuid = uuid(index)};
    };
    QList<SafariIcon> awkward;
    QList<SafariIconPage> awkwardPages;
    if (m_home.options.isAwkward) {
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
    m_home.contents.icons += count;
}

} // namespace

void writeSafari(HomeParts &home)
{
    SafariWriter(home).write();
}

} // namespace roamlet::sample
