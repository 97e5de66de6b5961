// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Firefox/FirefoxReader.h"

namespace roamlet::FirefoxReader
{

using namespace Qt::StringLiterals;

QList<Source> profiles(Source::Kind /*kind*/, const ReadContext & /*context*/)
{
    return {};
}

QString historyFile(const Source &source, const ReadContext &context)
{
    return context.folders.profile(source, *context.files) % u"/places.sqlite";
}

std::expected<QList<HistoryItem>, ReadError>
history(const Source & /*source*/, const HistoryQuery & /*query*/, const ReadContext & /*context*/)
{
    return QList<HistoryItem>();
}

std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source & /*source*/, const ReadContext & /*context*/)
{
    return BookmarkTrees();
}

QStringList readFiles()
{
    return {u"places.sqlite"_s, u"places.sqlite-wal"_s};
}

} // namespace roamlet::FirefoxReader
