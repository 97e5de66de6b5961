// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Looks.h"

#include "Export/BookmarkExport.h"
#include "Kit/Target.h"
#include "Model/LowerCase.h"
#include "Model/Site.h"

#include <QSet>

#include <cmath>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

void lookAt(const QList<HistoryItem> &items, const HistoryQuery &query)
{
    require(query.limit < 0 || items.size() <= query.limit, "no more rows than are asked for");
    for (const HistoryItem &item : items) {
        require(item.id.startsWith(item.source.id() + u'/'), "ids begin with their source's");
        require(!item.title.isEmpty() || item.url.isEmpty(), "a title is never empty where the URL is not");
        require(item.site == Site::name(item.url).value_or(QString()), "the site is the URL's");
        require(item.searchKey() == lowerCased(item.title) % u'\n' % lowerCased(item.url),
                "the key is the texts'");
    }
}

void lookAt(const BookmarkTrees &trees)
{
    const QList<Bookmark> flat = BookmarkNode::flattened(trees.roots);
    qint64 count = 0;
    for (const BookmarkNode &node : trees.roots) {
        require(node.bookmarkCount() > 0, "no root is empty");
        count += node.bookmarkCount();
    }
    require(flat.size() == count, "as many bookmarks are listed as are counted");
    for (const Bookmark &bookmark : flat) {
        require(bookmark.site == Site::name(bookmark.url).value_or(QString()), "the site is the URL's");
        require(!bookmark.dateAdded || std::isfinite(secondsSince1970(*bookmark.dateAdded)),
                "a date is a date");
    }
    for (const BookmarkExport::Format format : BookmarkExport::formats) {
        if (!BookmarkExport::isTooDeep(format, trees.roots))
            require(!BookmarkExport::render(format, trees.roots, flat).isEmpty(),
                    "bookmarks can be exported");
    }
}

void lookAt(const Favicons &favicons)
{
    for (auto favicon = favicons.cbegin(); favicon != favicons.cend(); ++favicon) {
        require(!favicon.key().isEmpty(), "sites have names");
        const auto *data = std::get_if<FaviconData>(&favicon.value());
        require(data == nullptr || !data->bytes.isEmpty(), "icons are not empty");
    }
}

void lookAt(const QList<Source> &profiles)
{
    QSet<QString> ids;
    for (const Source &source : profiles) {
        ids.insert(source.id());
        require(!source.label().isEmpty(), "profiles have names");
    }
    require(ids.size() == profiles.size(), "no profile is listed twice");
}

void lookAt(const ReadError &error)
{
    require(!error.path().isEmpty() && !error.reason().isEmpty(), "an error says where and why");
    require(error.kind() == ReadError::Kind::Unreadable, "a file that is there can be accessed");
}

void lookAt(const ReadErrors &errors)
{
    require(!errors.isEmpty(), "what fails has a reason");
    for (const ReadError &error : errors)
        lookAt(error);
}

} // namespace roamlet::fuzz
