// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/FuzzHome.h"
#include "Kit/Looks.h"
#include "Kit/Targets.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"
#include "SampleHome/SampleBookmarks.h"
#include "SampleHome/SampleText.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackSafariBookmarks(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Safari/Bookmarks.plist"_s);
    home.reading(bytes, [] {
        static const ReadContext context = home.context();
        lookAt(SafariReader::bookmarks(Source::safari(), context));
        const Source named{.kind = Source::Kind::Safari,
                           .profile = u"P"_s,
                           .name = u"Work"_s,
                           .safariBookmarks = Source::Folder{u"X"_s}};
        lookAt(SafariReader::bookmarks(named, context));
    });
}

QList<QByteArray> safariBookmarkSeeds()
{
    sample::Random random(1);
    const QVariantList entries = sample::safariEntries(sample::bookmarkEntries(1, 4, 1'700'000'000), random);
    const QDateTime added(QDate(2026, 5, 9), QTime(6, 13, 20), Qt::UTC);
    const QVariantList folders{
        sample::safariFolder(u"1"_s, u"BookmarksBar"_s, entries),
        sample::safariFolder(u"2"_s, u"Favourites"_s,
                             {sample::safariBookmark(u"3"_s, u"one"_s, u"https://a.example/"_s, added)},
                             u"X"_s),
        sample::safariFolder(u"4"_s, u"com.apple.ReadingList"_s, entries)};
    const QVariant root = sample::safariFolder(u"root"_s, {}, folders);
    return {sample::propertyList(root, sample::PropertyListFormat::Binary),
            sample::propertyList(root, sample::PropertyListFormat::Xml)};
}

} // namespace

Target safariBookmarks()
{
    return {.name = "SafariBookmarks",
            .attack = attackSafariBookmarks,
            .seeds = safariBookmarkSeeds,
            .dictionary = "PropertyList",
            .longest = 16'384};
}

} // namespace roamlet::fuzz
