// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/IconFinder.h"

#include "DesktopSearch/PngIcon.h"
#include "Model/Site.h"
#include "Platform/Files.h"

#include <utility>
#include <variant>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

QByteArray encoded(const Favicon &favicon, const Files &files)
{
    if (const auto *data = std::get_if<FaviconData>(&favicon))
        return data->bytes;
    return files.read(std::get<FaviconFile>(favicon).path).value_or(QByteArray());
}

} // namespace

QString IconFinder::key(const QString &url, const Source &source)
{
    return source.id() % u' ' % Site::name(url).value_or(url);
}

IconFinder::Icons IconFinder::find(const QHash<QString, Wanted> &wanted, const ReadContext &context)
{
    Icons icons;
    for (auto page = wanted.cbegin(); page != wanted.cend(); ++page) {
        const QString id = page->source.id();
        auto store = m_stores.find(id);
        if (store == m_stores.end()) {
            // Icons are an ornament: nobody is told when they cannot be read.
            auto opened = PageIcons::of(page->source, context);
            store = m_stores.emplace(id, std::nullopt).first;
            if (opened)
                store->second = std::move(*opened);
        }
        const std::optional<Favicon> icon = store->second ? store->second->icon(page->url) : std::nullopt;
        icons.insert(page.key(), icon ? PngIcon::decode(encoded(*icon, *context.files)) : std::nullopt);
    }
    return icons;
}

} // namespace roamlet
