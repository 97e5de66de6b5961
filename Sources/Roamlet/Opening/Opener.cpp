// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Opening/Opener.h"

#include "Model/Browser.h"
#include "Platform/Workspace.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

using Family = Browser::Family;

/// Whether a browser could take this text for one of its options: it trims its arguments before it looks.
bool looksLikeOption(const QString &url)
{
    return url.trimmed().startsWith(u'-');
}

/// Whether the text has a scheme, and a host and a port where it has places for them. There are hosts whose
/// names keep no rule, such as "foo-.example.com", so that any name will do.
bool isURL(const QString &text)
{
    static const QRegularExpression url(uR"(\A[A-Za-z][A-Za-z0-9+.-]*:((?!//)|//([^@/?#\s]*@)?)"
                                        uR"((\[[^\]\s]+\]|[^@/?#:\[\]\s]*)(:[0-9]*)?([/?#]|\z)))"_s);
    return url.match(text).hasMatch();
}

/// Whether Firefox opens the text itself. It takes one without a scheme for a file, sends one with a scheme
/// that it does not know to a web search, and shows an empty tab for scripts and data. The same goes for what
/// it is to show the source of.
bool isFirefoxURL(const QString &text)
{
    static const QStringList schemes{u"http"_s, u"https"_s, u"file"_s,
                                     u"ftp"_s,  u"about"_s, u"moz-extension"_s};
    constexpr QStringView viewSource = u"view-source:";
    const QString page =
        text.startsWith(viewSource, Qt::CaseInsensitive) ? text.sliced(viewSource.size()) : text;
    const QString scheme = page.section(u':', 0, 0).toLower();
    return page.contains(u':') && schemes.contains(scheme) && isURL(page);
}

bool isNumber(const QString &text)
{
    const QList<uint> characters = text.toUcs4();
    return std::ranges::all_of(characters, [](uint character) { return QChar::isNumber(character); });
}

/// What the address of a bookmark manager ends in to show a folder. The ids of folders end in the browser's
/// own number.
QString folderPart(const QString &query, const std::optional<QString> &folderID)
{
    const QStringList pieces = folderID.value_or(QString()).split(u'/', Qt::SkipEmptyParts);
    if (query.isEmpty() || pieces.isEmpty() || !isNumber(pieces.last()))
        return {};
    return query % pieces.last();
}

/// Whether a browser of Chromium's family can be given the text as an argument.
bool isChromiumArgument(const QString &text)
{
    return !text.isEmpty() && !looksLikeOption(text);
}

QStringList filtered(const QStringList &urls, bool (*isWanted)(const QString &))
{
    QStringList result;
    std::ranges::copy_if(urls, std::back_inserter(result), isWanted);
    return result;
}

} // namespace

bool Opener::canOpen(const Link &link)
{
    switch (Browser::of(link.source.kind).family) {
    case Family::Firefox:
        return isFirefoxURL(link.url);
    case Family::Chromium:
        return link.source.profile ? isChromiumArgument(link.url) : isURL(link.url);
    case Family::Safari:
        break;
    }
    return isURL(link.url);
}

bool Opener::openLinks(const QList<Link> &links)
{
    bool areOpened = true;
    // A profile of Firefox's that rests takes seconds to start, and further starts meanwhile would be
    // refused.
    std::vector<std::pair<Source, QStringList>> ofFirefox;
    for (const auto &[url, source] : links) {
        switch (Browser::of(source.kind).family) {
        case Family::Safari:
            areOpened = open({url}, source.kind) && areOpened;
            break;
        case Family::Chromium:
            areOpened = openInChromium({url}, source) && areOpened;
            break;
        case Family::Firefox:
            if (const auto known =
                    std::ranges::find(ofFirefox, source, &std::pair<Source, QStringList>::first);
                known != ofFirefox.end())
                known->second.append(url);
            else
                ofFirefox.emplace_back(source, QStringList(url));
            break;
        }
    }
    for (const auto &[source, urls] : ofFirefox)
        areOpened = openInFirefox(urls, source) && areOpened;
    return areOpened;
}

bool Opener::open(const QStringList &urls, Source::Kind kind)
{
    const bool isFirefox = Browser::of(kind).family == Family::Firefox;
    const QStringList valid = filtered(urls, isFirefox ? isFirefoxURL : isURL);
    return !valid.isEmpty() && m_workspace.open(valid, kind);
}

bool Opener::openInChromium(const QStringList &urls, const Source &source)
{
    if (!source.profile)
        return open(urls, source.kind);
    const QStringList safe = filtered(urls, isChromiumArgument);
    return !safe.isEmpty() && m_workspace.openInProfile(safe, source);
}

bool Opener::openInFirefox(const QStringList &urls, const Source &source)
{
    const QStringList known = filtered(urls, isFirefoxURL);
    return !known.isEmpty() && m_workspace.openInProfile(known, source);
}

void Opener::showPage(const QString &page, const Source &source)
{
    if (Browser::of(source.kind).family == Family::Safari)
        open({page}, source.kind);
    else
        m_workspace.showPage(page, source);
}

void Opener::showHistory(const Source &source)
{
    showPage(Browser::of(source.kind).historyPage, source);
}

void Opener::editBookmarks(const Source &source, const std::optional<QString> &folderID)
{
    const Browser &browser = Browser::of(source.kind);
    showPage(browser.bookmarksPage % folderPart(browser.folderQuery, folderID), source);
}

bool Opener::canShowPages(Source::Kind kind) const
{
    return m_workspace.canShowPages(kind);
}

QList<Source::Kind> Opener::installedBrowsers() const
{
    return m_workspace.installedBrowsers();
}

std::optional<QImage> Opener::icon(Source::Kind kind, qreal devicePixelRatio)
{
    constexpr int side = 16; // points
    const std::pair key(kind, devicePixelRatio);
    if (const auto known = m_icons.constFind(key); known != m_icons.constEnd())
        return *known;
    const std::optional<QImage> icon = m_workspace.icon(kind, side, devicePixelRatio);
    if (icon)
        m_icons.insert(key, *icon);
    return icon;
}

} // namespace roamlet
