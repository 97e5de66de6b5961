// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/SampleBookmarks.h"

#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/SafariFiles.h"
#include "SampleHome/SampleText.h"

#include <array>
#include <utility>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

constexpr std::array<QStringView, 10> folderTitles{u"Reading", u"Recipes", u"Work",   u"Rezepte", u"Travel",
                                                   u"旅行",    u"Tools",   u"À lire", u"Music",   u"Someday"};

constexpr qint64 secondsBetweenBookmarks = 37'021;

} // namespace

QList<BookmarkEntry> bookmarkEntries(quint64 seed, qsizetype count, qint64 newest)
{
    constexpr qsizetype bookmarksInFolder = 8;
    QList<BookmarkEntry> entries;
    QList<BookmarkEntry> folder;
    auto closeFolder = [&, number = qsizetype(0)]() mutable {
        const QString title = folderTitles.at(size_t(number) % folderTitles.size()).toString();
        ++number;
        // Every third one goes into the folder before it.
        auto *previous =
            entries.isEmpty() ? nullptr : std::get_if<BookmarkEntry::Folder>(&entries.last().content);
        const BookmarkEntry closed{title, std::exchange(folder, {})};
        if (previous && previous->size() == bookmarksInFolder && number % 3 == 0)
            previous->append(closed);
        else
            entries.append(closed);
    };
    for (qsizetype number = 0; number < count; ++number) {
        const Page link = number % 3 == 0 ? frontPage(number / 3) : page(seed, number);
        const BookmarkEntry entry{link.title,
                                  BookmarkEntry::Link{link.url, newest - number * secondsBetweenBookmarks}};
        // A few lie outside of all folders, where the bar shows them.
        if (number < 4) {
            entries.append(entry);
            continue;
        }
        folder.append(entry);
        if (folder.size() == bookmarksInFolder)
            closeFolder();
    }
    if (!folder.isEmpty())
        closeFolder();
    return entries;
}

QJsonArray chromiumNodes(const QList<BookmarkEntry> &entries, qint64 &nextID)
{
    QJsonArray nodes;
    for (const BookmarkEntry &entry : entries) {
        const QString id = QString::number(nextID++);
        if (const auto *link = std::get_if<BookmarkEntry::Link>(&entry.content))
            nodes.append(bookmarkNode(id, entry.title, link->url, chromiumTime(link->added)));
        else
            nodes.append(folderNode(id, entry.title,
                                    chromiumNodes(std::get<BookmarkEntry::Folder>(entry.content), nextID)));
    }
    return nodes;
}

QVariantList safariEntries(const QList<BookmarkEntry> &entries, Random &random)
{
    QVariantList list;
    for (const BookmarkEntry &entry : entries) {
        const QString uuid = random.uuid();
        if (const auto *link = std::get_if<BookmarkEntry::Link>(&entry.content))
            list.append(safariBookmark(uuid, entry.title, link->url,
                                       QDateTime::fromSecsSinceEpoch(link->added, Qt::UTC)));
        else
            list.append(safariFolder(uuid, entry.title,
                                     safariEntries(std::get<BookmarkEntry::Folder>(entry.content), random)));
    }
    return list;
}

QList<FirefoxNode> firefoxNodes(const QList<BookmarkEntry> &entries)
{
    QList<FirefoxNode> nodes;
    for (const BookmarkEntry &entry : entries) {
        if (const auto *link = std::get_if<BookmarkEntry::Link>(&entry.content)) {
            const QStringList tags = link->added % 5 == 0 ? QStringList{u"later"_s} : QStringList();
            nodes.append(firefoxBookmark(entry.title, link->url, firefoxTime(link->added), tags));
        } else {
            nodes.append(
                firefoxFolder(entry.title, firefoxNodes(std::get<BookmarkEntry::Folder>(entry.content))));
        }
    }
    return nodes;
}

} // namespace roamlet::sample
