// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/PageIcons.h"

#include "Model/Browser.h"
#include "Platform/Files.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/FaviconReader.h"
#include "Readers/ReadContext.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// What all addresses of the page's site begin with, "https://example.org/"; empty where it has none.
QString siteBeginning(const QString &url)
{
    const qsizetype scheme = url.indexOf(u"://");
    const qsizetype path = scheme < 0 ? -1 : url.indexOf(u'/', scheme + 3);
    return path < 0 ? QString() : url.first(path + 1);
}

/// What stands behind all texts that begin so.
QString behind(const QString &beginning)
{
    return beginning.chopped(1) % QChar(beginning.back().unicode() + 1);
}

/// The best of the bitmaps that a statement finds: its columns are the bytes and the width.
std::optional<Favicon> bestBitmap(const SQLiteSnapshot &store, const QString &sql,
                                  const QStringList &parameters)
{
    std::optional<Favicon> best;
    std::int64_t bestWidth = 0;
    const auto run = store.query(sql, parameters, [&](const SQLiteSnapshot::Row &row) {
        enum Column { Data, Width };
        const QByteArrayView bytes = row.blob(Data);
        const std::int64_t width = row.integer(Width);
        if (bytes.isEmpty() || (best && !FaviconReader::isBetter(width, bestWidth)))
            return;
        best = FaviconData{bytes.toByteArray()};
        bestWidth = width;
    });
    return run ? best : std::nullopt;
}

std::optional<Favicon> chromiumIcon(const SQLiteSnapshot &store, const QString & /*folder*/,
                                    const QString &url)
{
    const QString bitmaps = u"SELECT image_data, width FROM favicon_bitmaps WHERE icon_id "_s;
    if (auto icon =
            bestBitmap(store, bitmaps % u"IN (SELECT icon_id FROM icon_mapping WHERE page_url = ?)", {url}))
        return icon;
    const QString site = siteBeginning(url);
    if (site.isEmpty())
        return {};
    return bestBitmap(store,
                      bitmaps % u"= (SELECT icon_id FROM icon_mapping WHERE page_url >= ? AND page_url < ? "
                                "LIMIT 1)",
                      {site, behind(site)});
}

quint32 firefoxTextHash(QByteArrayView text)
{
    constexpr quint32 goldenRatio = 0x9E3779B9;
    quint32 hash = 0;
    for (const char byte : text)
        hash = goldenRatio * (std::rotl(hash, 5) ^ static_cast<quint8>(byte));
    return hash;
}

/// The number under which the store's index has an address: the scheme's above the whole one's.
qint64 firefoxHash(const QString &url)
{
    constexpr qsizetype longestHashed = 1500;
    constexpr qsizetype longestScheme = 50;
    const QByteArray bytes = url.toUtf8();
    const QByteArrayView hashed = QByteArrayView(bytes).first(std::min(bytes.size(), longestHashed));
    const qsizetype colon = hashed.first(std::min(hashed.size(), longestScheme)).indexOf(':');
    const qint64 scheme = colon < 0 ? 0 : firefoxTextHash(hashed.first(colon)) & 0xFFFF;
    return (scheme << 32) + firefoxTextHash(hashed);
}

std::optional<Favicon> firefoxIcon(const SQLiteSnapshot &store, const QString & /*folder*/,
                                   const QString &url)
{
    // Drawings (SVG) stand there with the largest width; they are foreign programs to whoever draws them.
    const QString icons = u"SELECT data, width FROM moz_icons WHERE width <> 65535 AND "_s;
    if (auto icon = bestBitmap(store,
                               icons % u"id IN (SELECT icon_id FROM moz_icons_to_pages WHERE page_id IN "
                                       "(SELECT id FROM moz_pages_w_icons WHERE page_url_hash = ? "
                                       "AND page_url = ?))",
                               {QString::number(firefoxHash(url)), url}))
        return icon;
    const QString site = siteBeginning(url);
    if (site.isEmpty())
        return {};
    return bestBitmap(store, icons % u"root = 1 AND icon_url >= ? AND icon_url < ?", {site, behind(site)});
}

std::optional<Favicon> safariIcon(const SQLiteSnapshot &store, const QString &folder, const QString &url)
{
    std::optional<Favicon> icon;
    const QString newest =
        u"SELECT p.uuid FROM page_url p JOIN icon_info i ON i.uuid = p.uuid WHERE p.url "_s;
    const auto look = [&](const QString &condition, const QStringList &parameters) {
        const auto run = store.query(newest % condition % u" ORDER BY i.timestamp DESC LIMIT 1", parameters,
                                     [&](const SQLiteSnapshot::Row &row) {
                                         if (const auto uuid = row.text(0))
                                             icon = FaviconFile{folder % u"/favicons/" %
                                                                FaviconReader::safariFileName(*uuid)};
                                     });
        return run && icon;
    };
    if (look(u"= ?"_s, {url}))
        return icon;
    const QString site = siteBeginning(url);
    if (!site.isEmpty())
        look(u">= ? AND p.url < ?"_s, {site, behind(site)});
    return icon;
}

} // namespace

std::expected<PageIcons, ReadError> PageIcons::of(const Source &source, const ReadContext &context)
{
    PageIcons icons;
    QString name;
    switch (Browser::of(source.kind).family) {
    case Browser::Family::Safari:
        icons.m_folder = context.folders.safari % u"/Favicon Cache";
        name = u"favicons.db"_s;
        icons.m_lookup = safariIcon;
        break;
    case Browser::Family::Firefox:
        icons.m_folder = context.folders.profile(source, *context.files);
        name = u"favicons.sqlite"_s;
        icons.m_lookup = firefoxIcon;
        break;
    case Browser::Family::Chromium:
        icons.m_folder = ChromiumReader::folder(source, context);
        name = u"Favicons"_s;
        icons.m_lookup = chromiumIcon;
        break;
    }
    const QString file = icons.m_folder % u'/' % name;
    if (!context.files->exists(file))
        return icons;
    auto store = SQLiteSnapshot::copying(file, context);
    if (!store)
        return std::unexpected(store.error());
    icons.m_store = std::move(*store);
    return icons;
}

std::optional<Favicon> PageIcons::icon(const QString &url) const
{
    return m_store ? m_lookup(*m_store, m_folder, url) : std::nullopt;
}

} // namespace roamlet
