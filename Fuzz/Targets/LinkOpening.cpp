// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Portions.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Model/Browser.h"
#include "Opening/Opener.h"
#include "Support/FakeWorkspace.h"

#include <algorithm>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

/// Everything that a browser is handed was asked for, and is nothing else to it than an address.
void requireHarmless(const QStringList &request, const QStringList &urls)
{
    constexpr qsizetype beforeUrlsOfBrowser = 2;
    constexpr qsizetype beforeUrlsOfProfile = 3;
    const qsizetype before = request[0] == u"open" ? beforeUrlsOfBrowser : beforeUrlsOfProfile;
    require(request.size() > before, "nobody is started for nothing");
    const bool isFirefox = request[1] == u"firefox";
    for (const QString &url : request.sliced(before)) {
        require(urls.contains(url), "only what was asked for is opened");
        require(!url.isEmpty() && !url.trimmed().startsWith(u'-'), "an address is no option");
        require(!isFirefox || (url.contains(u':') && !url.startsWith(u"javascript:", Qt::CaseInsensitive)),
                "Firefox gets addresses of its own only");
    }
}

void attackLinkOpening(QByteArrayView bytes)
{
    testing::FakeWorkspace workspace;
    Opener opener(workspace);
    Portions portions(bytes);
    const QString folderID = portions.text();
    QList<Opener::Link> links;
    QStringList urls;
    while (!portions.atEnd()) {
        const QList<Source> sources{chrome(), firefox(), Source::safari()};
        const Source source = sources[portions.number() % sources.size()];
        links.append({.url = portions.text(), .source = source});
        urls.append(links.back().url);
    }
    opener.openLinks(links);
    for (const QStringList &request : std::as_const(workspace.requests))
        requireHarmless(request, urls);

    workspace.requests.clear();
    opener.editBookmarks(chrome(), folderID);
    const QString page = workspace.requests.value(0).value(3);
    const Browser &browser = Browser::of(Source::Kind::Chrome);
    require(page.startsWith(browser.bookmarksPage), "bookmarks are edited where the browser does it");
    const QString folder = page.sliced(browser.bookmarksPage.size());
    require(folder.isEmpty() || folder.startsWith(browser.folderQuery), "at a folder, or at none");
    require(std::ranges::none_of(folder, [](QChar c) { return c.isSpace() || c.unicode() < ' '; }),
            "a folder is a number");
}

QList<QByteArray> linkOpeningSeeds()
{
    const auto written = [](const QByteArray &folderID, const QList<QByteArray> &urls) {
        PortionWriter writer;
        writer.text(folderID);
        int source = 0;
        for (const QByteArray &url : urls)
            writer.number(source++).text(url);
        return writer.bytes();
    };
    return {written("chrome/Default/12", {"https://a.example/", "https://b.example/", "https://c.example/"}),
            written("chrome/Default/account/7", {"--incognito", "view-source:file:///x", "about:blank"}),
            written("", {" -x", "javascript:alert(1)", "http://[::1]:80/"}),
            written("chrome/Default/x y", {"", "data:text/html,x", "no address"})};
}

} // namespace

Target linkOpening()
{
    return {.name = "LinkOpening",
            .attack = attackLinkOpening,
            .seeds = linkOpeningSeeds,
            .dictionary = "Address",
            .longest = 1024};
}

} // namespace roamlet::fuzz
