// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/FaviconReader.h"

#include "Model/Site.h"
#include "Platform/Files.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QCryptographicHash>

#include <utility>

namespace roamlet::FaviconReader
{

using namespace Qt::StringLiterals;

namespace
{

struct Bitmap {
    std::int64_t width;
    QByteArray bytes;
};

/// One of the bitmaps that could serve.
struct Candidate {
    std::int64_t icon;
    std::int64_t width;
};

/// Keeps the best bitmap for each key, of equal ones the first.
template<typename Key>
void choose(QHash<Key, Candidate> &chosen, const Key &key, Candidate candidate)
{
    const auto kept = chosen.find(key);
    if (kept == chosen.end())
        chosen.insert(key, candidate);
    else if (isBetter(candidate.width, kept->width))
        *kept = candidate;
}

} // namespace

/// Small icons are drawn 16 points wide, on fine displays with 32 pixels: the smallest bitmap that has these
/// is best, else the widest.
bool isBetter(std::int64_t width, std::int64_t keptWidth)
{
    constexpr std::int64_t wideEnough = 32;
    return keptWidth >= wideEnough ? width >= wideEnough && width < keptWidth : width > keptWidth;
}

/// Safari names an icon's file by the digest of its identifier.
QString safariFileName(const QString &uuid)
{
    const QByteArray digest = QCryptographicHash::hash(uuid.toUtf8(), QCryptographicHash::Md5);
    return QString::fromLatin1(digest.toHex().toUpper());
}

std::expected<Favicons, ReadError> chromium(const Source &source, const ReadContext &context)
{
    const QString file = ChromiumReader::folder(source, context) % u"/Favicons";
    if (!context.files->exists(file))
        return Favicons();
    const auto snapshot = SQLiteSnapshot::copying(file, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());

    QHash<std::int64_t, Bitmap> bitmaps;
    const auto readBitmaps = snapshot->query(
        u"SELECT icon_id, image_data, width FROM favicon_bitmaps"_s, {}, [&](const SQLiteSnapshot::Row &row) {
            enum Column { IconId, ImageData, Width };
            const QByteArrayView bytes = row.blob(ImageData);
            if (bytes.isEmpty())
                return;
            const std::int64_t width = row.integer(Width);
            const auto kept = bitmaps.constFind(row.integer(IconId));
            if (kept == bitmaps.cend() || isBetter(width, kept->width))
                bitmaps.insert(row.integer(IconId), {width, bytes.toByteArray()});
        });
    if (!readBitmaps)
        return std::unexpected(readBitmaps.error());

    Favicons favicons;
    const auto readMappings = snapshot->query(
        u"SELECT page_url, icon_id FROM icon_mapping"_s, {}, [&](const SQLiteSnapshot::Row &row) {
            enum Column { PageUrl, IconId };
            const std::optional<QString> url = row.text(PageUrl);
            const std::optional<QString> site = url ? Site::name(*url) : std::nullopt;
            const auto bitmap = bitmaps.constFind(row.integer(IconId));
            if (site && bitmap != bitmaps.cend())
                favicons.insert(*site, FaviconData{bitmap->bytes});
        });
    if (!readMappings)
        return std::unexpected(readMappings.error());
    return favicons;
}

std::expected<Favicons, ReadError> firefox(const Source &source, const ReadContext &context)
{
    const QString file = context.folders.profile(source, *context.files) % u"/favicons.sqlite";
    if (!context.files->exists(file))
        return Favicons();
    const auto snapshot = SQLiteSnapshot::copying(file, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());

    QHash<std::int64_t, Bitmap> bitmaps;
    QHash<QString, Candidate> iconsOfHosts;
    // Drawings (SVG) stand there with the largest width; they are foreign programs to whoever draws them.
    const auto readIcons = snapshot->query(
        u"SELECT id, icon_url, width, root, data FROM moz_icons WHERE width <> 65535"_s, {},
        [&](const SQLiteSnapshot::Row &row) {
            enum Column { Id, IconUrl, Width, Root, Data };
            const QByteArrayView bytes = row.blob(Data);
            if (bytes.isEmpty())
                return;
            const Candidate icon{row.integer(Id), row.integer(Width)};
            bitmaps.insert(icon.icon, {icon.width, bytes.toByteArray()});
            const std::optional<QString> site =
                row.integer(Root) == 1 ? Site::name(row.text(IconUrl).value_or(QString())) : std::nullopt;
            if (site)
                choose(iconsOfHosts, *site, icon);
        });
    if (!readIcons)
        return std::unexpected(readIcons.error());

    QHash<std::int64_t, Candidate> iconsOfPages;
    const auto readMappings = snapshot->query(
        u"SELECT page_id, icon_id FROM moz_icons_to_pages"_s, {}, [&](const SQLiteSnapshot::Row &row) {
            enum Column { PageId, IconId };
            const std::int64_t icon = row.integer(IconId);
            const auto bitmap = bitmaps.constFind(icon);
            if (bitmap != bitmaps.cend())
                choose(iconsOfPages, row.integer(PageId), {icon, bitmap->width});
        });
    if (!readMappings)
        return std::unexpected(readMappings.error());

    Favicons favicons;
    const auto readPages = snapshot->query(
        u"SELECT id, page_url FROM moz_pages_w_icons"_s, {}, [&](const SQLiteSnapshot::Row &row) {
            enum Column { Id, PageUrl };
            const auto icon = iconsOfPages.constFind(row.integer(Id));
            const std::optional<QString> site = icon != iconsOfPages.cend()
                                                    ? Site::name(row.text(PageUrl).value_or(QString()))
                                                    : std::nullopt;
            if (site)
                favicons.insert(*site, FaviconData{bitmaps.value(icon->icon).bytes});
        });
    if (!readPages)
        return std::unexpected(readPages.error());
    for (auto host = iconsOfHosts.cbegin(); host != iconsOfHosts.cend(); ++host) {
        if (!favicons.contains(host.key()))
            favicons.insert(host.key(), FaviconData{bitmaps.value(host->icon).bytes});
    }
    return favicons;
}

std::expected<Favicons, ReadError> safari(const ReadContext &context)
{
    const QString folder = context.folders.safari % u"/Favicon Cache";
    const QString database = folder % u"/favicons.db";
    if (!context.files->exists(database))
        return Favicons();
    const auto snapshot = SQLiteSnapshot::copying(database, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());

    Favicons favicons;
    // Oldest icon first, so that the newest one of a site is the one that stays.
    const auto run = snapshot->query(
        u"SELECT p.url, p.uuid FROM page_url p JOIN icon_info i ON i.uuid = p.uuid\nORDER BY i.timestamp"_s,
        {}, [&](const SQLiteSnapshot::Row &row) {
            enum Column { Url, Uuid };
            const std::optional<QString> url = row.text(Url);
            const std::optional<QString> uuid = row.text(Uuid);
            const std::optional<QString> site = url && uuid ? Site::name(*url) : std::nullopt;
            if (site)
                favicons.insert(*site, FaviconFile{folder % u"/favicons/" % safariFileName(*uuid)});
        });
    if (!run)
        return std::unexpected(run.error());
    return favicons;
}

} // namespace roamlet::FaviconReader
