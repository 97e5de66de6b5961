// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/LibraryHome.h"

#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PropertyLists.h"
#include "Support/Waiting.h"

#include <QBuffer>
#include <QImage>

#include <atomic>
#include <memory>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

void LibraryHome::TearDown()
{
    EXPECT_TRUE(home.leftovers().isEmpty()) << qPrintable(home.leftovers().join(u' '));
    expectUntouched();
}

void LibraryHome::expectUntouched() const
{
    EXPECT_EQ(m_asWritten.differencesTo(FolderFingerprint(home.path())), "");
}

void LibraryHome::fail(const QString &path, std::errc error)
{
    home.files.failure = [path, error](const QString &file) {
        return file == path ? std::make_error_code(error) : std::error_code{};
    };
}

void LibraryHome::addChromium()
{
    setChromeHistory(u"Default"_s, {u"a1"_s, u"a2"_s});
    setChromeHistory(u"Profile 1"_s, {u"b1"_s}, newest + 100);
    change([this] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, u"Personal"_s}}},
                                 {u"Profile 1"_s, QJsonObject{{u"name"_s, u"Work"_s}}}});
        sample::writeLocalState(edgeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, u"Office"_s}}}});
        sample::writeHistory(edgeFile(u"Default/History"_s),
                             {sample::HistoryRow{.url = u"https://edge.example/"_s,
                                                 .title = u"e1"_s,
                                                 .visitCount = 3,
                                                 .lastVisitTime = sample::chromiumTime(newest + 50)}});
        sample::writeBookmarks(
            chromeFile(u"Default/Bookmarks"_s),
            {{u"bookmark_bar"_s,
              sample::folderNode(u"1"_s, u"Bar"_s,
                                 {sample::bookmarkNode(u"5"_s, u"Mark"_s, u"https://mark.example/"_s, 0)})}});
    });
}

void LibraryHome::addChromeBeta()
{
    change([this] {
        sample::writeLocalState(chromeBetaFile(u"Local State"_s),
                                {{u"Default"_s, sample::profileInfo(u"Trial"_s)}});
        sample::writeHistory(chromeBetaFile(u"Default/History"_s),
                             {sample::HistoryRow{.url = u"https://beta.example/"_s,
                                                 .title = u"Beta"_s,
                                                 .lastVisitTime = sample::chromiumTime(newest + 30)}});
        sample::writeBookmarks(
            chromeBetaFile(u"Default/Bookmarks"_s),
            {{u"bookmark_bar"_s,
              sample::folderNode(
                  u"1"_s, u"Bar"_s,
                  {sample::bookmarkNode(u"5"_s, u"Beta mark"_s, u"https://betamark.example/"_s, 0)})}});
    });
}

void LibraryHome::addFirefox(const QString &folder)
{
    change([&] {
        const QString data = home.path(folder);
        sample::writeFirefoxProfiles(data % u"/profiles.ini",
                                     {{.name = u"default"_s, .path = u"abc.default"_s}});
        sample::writeFirefoxPlaces(
            data % u"/abc.default/places.sqlite",
            {sample::FirefoxPage{.url = u"https://fox.example/"_s,
                                 .title = u"Fox"_s,
                                 .lastVisitDate = sample::firefoxTime(newest + 40)}},
            sample::firefoxBookmarkRows(
                {.toolbar = {sample::firefoxBookmark(u"Kept"_s, u"https://kept.example/"_s, 1)}}));
    });
}

void LibraryHome::addSafari()
{
    change([this] {
        sample::writeSafariHistory(
            safariFile(u"History.db"_s), {sample::SafariItem{.id = 1, .url = u"https://s.example/"_s}},
            {sample::SafariVisit{.itemID = 1, .time = sample::safariTime(newest + 10), .title = u"s1"_s}});
        sample::writePropertyList(
            safariFile(u"Bookmarks.plist"_s),
            QVariantMap{{u"Children"_s, QVariantList{sample::safariFolder(
                                            u"F"_s, u"BookmarksBar"_s,
                                            {sample::safariBookmark(u"B"_s, u"Safari mark"_s,
                                                                    u"https://smark.example/"_s, {})})}}},
            sample::PropertyListFormat::Binary);
        sample::writeSafariFavicons(
            safariFile(u"Favicon Cache"_s),
            {sample::SafariIcon{.uuid = u"U"_s, .timestamp = 1, .image = png(16, Qt::green)}},
            {sample::SafariIconPage{.url = u"https://shared.example/"_s, .uuid = u"U"_s}});
    });
}

void LibraryHome::addSafariProfile()
{
    change([this] {
        sample::writeSafariTabs(safariContainerFile(u"SafariTabs.db"_s),
                                {sample::SafariProfileRow{.title = u"Travel"_s, .serverID = u"T"_s}});
        sample::writeSafariHistory(
            safariContainerFile(u"Profiles/T/History.db"_s),
            {sample::SafariItem{.id = 1, .url = u"https://t.example/"_s}},
            {sample::SafariVisit{.itemID = 1, .time = sample::safariTime(newest + 20), .title = u"t1"_s}});
    });
}

void LibraryHome::setChromeHistory(const QString &profile, const QStringList &pageTitles, qint64 newestVisit)
{
    QList<sample::HistoryRow> rows;
    for (qsizetype i = 0; i < pageTitles.size(); ++i) {
        rows.append({.id = {},
                     .url = u"https://" % pageTitles[i] % u".example/",
                     .title = pageTitles[i],
                     .visitCount = 1,
                     .lastVisitTime = sample::chromiumTime(newestVisit - i),
                     .hidden = false});
    }
    change([&] { sample::writeHistory(chromeFile(profile % u"/History"), rows); });
}

void LibraryHome::setChromePages(const QString &profile, qsizetype count, const QString &url)
{
    change([&] {
        sample::writeHistory(chromeFile(profile % u"/History"),
                             sample::Rows<sample::HistoryRow>::generated(count, [url](qsizetype i) {
                                 return sample::HistoryRow{.url = url % QString::number(i),
                                                           .title = u"word"_s,
                                                           .lastVisitTime = sample::chromiumTime(newest - i)};
                             }));
    });
}

void LibraryHome::setChromePagesAroundASite(const QString &profile)
{
    change([&] {
        sample::writeHistory(chromeFile(profile % u"/History"),
                             sample::Rows<sample::HistoryRow>::generated(1000, [](qsizetype i) {
                                 const QString url =
                                     i < 10 ? u"https://www.site.example/%1"_s.arg(i)
                                            : u"https://other.example/?u=https://site.example/%1"_s.arg(i);
                                 return sample::HistoryRow{.url = url,
                                                           .title = u"t"_s,
                                                           .lastVisitTime = sample::chromiumTime(newest - i)};
                             }));
    });
}

void LibraryHome::setChromeIcon(const QString &profile, const QString &pageUrl, const QByteArray &image)
{
    change([&] {
        sample::writeFavicons(chromeFile(profile % u"/Favicons"),
                              {sample::FaviconBitmap{.iconID = 1, .image = image, .width = 16}},
                              {sample::FaviconMapping{.pageURL = pageUrl, .iconID = 1}});
    });
}

void LibraryHome::recordReads(Gate *gate)
{
    home.files.failure = [this, gate, isFirst = std::make_shared<std::atomic_flag>(),
                          folders = home.context().folders](const QString &path) {
        const bool isHistory = path.endsWith(u"/History") || path.endsWith(u"/History.db");
        const std::optional<QString> id = BrowserWatcher::sourceID(path, folders);
        if (!isHistory || !id)
            return std::error_code{};
        {
            const std::scoped_lock lock(m_readsMutex);
            m_reads.append(*id);
        }
        if (gate != nullptr && !isFirst->test_and_set())
            gate->pass();
        return std::error_code{};
    };
}

QStringList LibraryHome::takeReads()
{
    const std::scoped_lock lock(m_readsMutex);
    m_reads.sort();
    return std::exchange(m_reads, {});
}

void LibraryHome::loadNow(Library &library, const std::optional<QSet<QString>> &only)
{
    library.load(only);
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
}

QStringList titles(const QList<HistoryItem> &items)
{
    QStringList result;
    for (const HistoryItem &item : items)
        result.append(item.title);
    return result;
}

QStringList ids(const QList<Source> &sources)
{
    QStringList result;
    for (const Source &source : sources)
        result.append(source.id());
    return result;
}

QByteArray png(int side, const QColor &colour)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(colour);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace roamlet::testing
