// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/BrowserReader.h"

#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/FaviconReader.h"
#include "Readers/Firefox/FirefoxProfiles.h"
#include "Readers/Firefox/FirefoxReader.h"
#include "Readers/Safari/SafariReader.h"

#include <algorithm>
#include <new>
#include <utility>

namespace roamlet::BrowserReader
{

namespace
{

/// What a family of browsers answers.
struct FamilyReader {
    QList<Source> (*profiles)(Source::Kind browser, const ReadContext &context, const QList<Source> &known);
    QString (*historyFile)(const Source &source, const ReadContext &context);
    decltype(&SafariReader::history) history;
    decltype(&SafariReader::historyText) historyText;
    decltype(&SafariReader::bookmarks) bookmarks;
    Content (*content)(const Source &source, const ReadContext &context);
    QStringList (*readFiles)();
};

QList<Source> safariProfiles(Source::Kind /*browser*/, const ReadContext &context,
                             const QList<Source> & /*known*/)
{
    return context.folders.hasSafari ? SafariReader::profiles(context) : QList<Source>();
}

/// What `read` finds in every installation that has profiles.
template<typename Read>
QList<Source> installedProfiles(Source::Kind browser, const ReadContext &context, Read read)
{
    QList<Source> result;
    for (const BrowserFolders::Installation &installation : context.folders.installations) {
        if (installation.browser == browser && installation.hasProfiles)
            result += read(installation);
    }
    return result;
}

QList<Source> chromiumProfiles(Source::Kind browser, const ReadContext &context,
                               const QList<Source> & /*known*/)
{
    return installedProfiles(browser, context, [&context](const BrowserFolders::Installation &installation) {
        return ChromiumReader::profiles(installation, context);
    });
}

QList<Source> firefoxProfiles(Source::Kind browser, const ReadContext &context, const QList<Source> &known)
{
    return installedProfiles(browser, context, [&](const BrowserFolders::Installation &installation) {
        return FirefoxProfiles::read(installation, context, known);
    });
}

Content safariContent(const Source &source, const ReadContext &context)
{
    Content content;
    content.isHistoryFirst = true;
    content.history = SafariReader::history(source, HistoryQuery::recent(), context);
    content.bookmarks = SafariReader::bookmarks(source, context);
    // There is one store for all profiles; the default one stands for them.
    if (!source.profile)
        content.favicons = FaviconReader::safari(context);
    return content;
}

Content chromiumContent(const Source &source, const ReadContext &context)
{
    Content content;
    content.bookmarks = ChromiumReader::bookmarks(source, context);
    content.history = ChromiumReader::history(source, HistoryQuery::recent(), context);
    content.favicons = FaviconReader::chromium(source, context);
    return content;
}

Content firefoxContent(const Source &source, const ReadContext &context)
{
    auto [bookmarks, history] = FirefoxReader::content(source, HistoryQuery::recent(), context);
    return {.bookmarks = std::move(bookmarks),
            .history = std::move(history),
            .favicons = FaviconReader::firefox(source, context)};
}

const FamilyReader &readerOf(Browser::Family family)
{
    static constexpr FamilyReader safari{safariProfiles,          SafariReader::historyFile,
                                         SafariReader::history,   SafariReader::historyText,
                                         SafariReader::bookmarks, safariContent,
                                         SafariReader::readFiles};
    static constexpr FamilyReader chromium{chromiumProfiles,          ChromiumReader::historyFile,
                                           ChromiumReader::history,   ChromiumReader::historyText,
                                           ChromiumReader::bookmarks, chromiumContent,
                                           ChromiumReader::readFiles};
    static constexpr FamilyReader firefox{firefoxProfiles,          FirefoxReader::historyFile,
                                          FirefoxReader::history,   FirefoxReader::historyText,
                                          FirefoxReader::bookmarks, firefoxContent,
                                          FirefoxReader::readFiles};
    switch (family) {
    case Browser::Family::Safari:
        return safari;
    case Browser::Family::Firefox:
        return firefox;
    case Browser::Family::Chromium:
        break;
    }
    return chromium;
}

const FamilyReader &readerOf(Source::Kind browser)
{
    return readerOf(Browser::of(browser).family);
}

} // namespace

QList<Source> profiles(Source::Kind browser, const ReadContext &context, const QList<Source> &known)
{
    try {
        return readerOf(browser).profiles(browser, context, known);
    } catch (const std::bad_alloc &) {
        context.reportList(ReadError::wrap(std::make_error_code(std::errc::not_enough_memory),
                                           Browser::of(browser).displayName));
        return {};
    }
}

QString historyFile(const Source &source, const ReadContext &context)
{
    return readerOf(source.kind).historyFile(source, context);
}

ReadError noMemory(const Source &source, const ReadContext &context)
{
    return ReadError::wrap(std::make_error_code(std::errc::not_enough_memory), historyFile(source, context));
}

std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context)
{
    try {
        return readerOf(source.kind).history(source, query, context);
    } catch (const std::bad_alloc &) {
        return std::unexpected(noMemory(source, context));
    }
}

std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const Source &source, const ReadContext &context, size_t mostBytes)
{
    try {
        return readerOf(source.kind).historyText(source, context, mostBytes);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source &source, const ReadContext &context)
{
    try {
        return readerOf(source.kind).bookmarks(source, context);
    } catch (const std::bad_alloc &) {
        return std::unexpected(ReadErrors{noMemory(source, context)});
    }
}

Content content(const Source &source, const ReadContext &context)
{
    try {
        return readerOf(source.kind).content(source, context);
    } catch (const std::bad_alloc &) {
        const ReadError error = noMemory(source, context);
        return {.bookmarks = std::unexpected(ReadErrors{error}),
                .history = std::unexpected(error),
                .favicons = std::unexpected(error)};
    }
}

bool isRead(QStringView fileName, Browser::Family family)
{
    const QStringList names = readerOf(family).readFiles();
    return std::ranges::any_of(names, [fileName](const QString &name) { return name == fileName; });
}

} // namespace roamlet::BrowserReader
