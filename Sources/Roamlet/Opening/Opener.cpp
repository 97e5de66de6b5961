// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Opening/Opener.h"

#include "Opening/OpenArguments.h"
#include "Platform/Workspace.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString safariID = u"com.apple.Safari"_s;
const QString blankPage = u"about:blank"_s;

bool isChromium(Source::Kind kind)
{
    return std::ranges::find(Source::chromium, kind) != Source::chromium.end();
}

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

bool isNumber(const QString &text)
{
    const QList<uint> characters = text.toUcs4();
    return std::ranges::all_of(characters, [](uint character) { return QChar::isNumber(character); });
}

/// What the address of a bookmark manager ends in to show a folder. The readers' ids of folders end in the
/// browser's own number.
QString folderPart(const std::optional<QString> &folderID)
{
    const QStringList pieces = folderID.value_or(QString()).split(u'/', Qt::SkipEmptyParts);
    if (pieces.isEmpty() || !isNumber(pieces.last()))
        return {};
    return u"?id=" % pieces.last();
}

void start(const OpenArguments::Command &command, Workspace &workspace)
{
    workspace.start(command.program, command.arguments);
}

} // namespace

QString Opener::bundleID(Source::Kind kind)
{
    switch (kind) {
    case Source::Kind::Safari:
        break;
    case Source::Kind::Chrome:
        return u"com.google.Chrome"_s;
    case Source::Kind::Edge:
        return u"com.microsoft.edgemac"_s;
    }
    return safariID;
}

void Opener::openLinks(const QList<Link> &links)
{
    for (const auto &[url, source] : links) {
        if (isChromium(source.kind))
            openInChromium({url}, source.kind, source.profile);
        else
            open({url}, safariID);
    }
}

void Opener::open(const QStringList &urls, const QString &bundleID)
{
    QStringList valid;
    std::ranges::copy_if(urls, std::back_inserter(valid), isURL);
    if (!valid.isEmpty())
        m_workspace.open(valid, bundleID);
}

void Opener::openInChromium(const QStringList &urls, Source::Kind kind, const std::optional<QString> &profile)
{
    if (!profile) {
        open(urls, bundleID(kind));
        return;
    }
    QStringList safe;
    std::ranges::copy_if(urls, std::back_inserter(safe),
                         [](const QString &url) { return !url.isEmpty() && !looksLikeOption(url); });
    if (safe.isEmpty())
        return;
    const QString id = bundleID(kind);
    if (!m_workspace.openInProfile(safe, id, *profile))
        start(OpenArguments::inProfile(safe, id, *profile), m_workspace);
}

void Opener::openChromiumPage(const QString &page, Source::Kind kind, const std::optional<QString> &profile)
{
    const QString id = bundleID(kind);
    if (m_workspace.showPage(page, id, profile))
        return;
    openInChromium({blankPage}, kind, profile);
    start(OpenArguments::showPage(id, page), m_workspace);
}

void Opener::showHistory(const Source &source)
{
    switch (source.kind) {
    case Source::Kind::Safari:
        open({u"history://"_s}, safariID);
        break;
    case Source::Kind::Chrome:
        openChromiumPage(u"chrome://history/"_s, source.kind, source.profile);
        break;
    case Source::Kind::Edge:
        openChromiumPage(u"edge://history/"_s, source.kind, source.profile);
        break;
    }
}

void Opener::editBookmarks(const Source &source, const std::optional<QString> &folderID)
{
    switch (source.kind) {
    case Source::Kind::Safari:
        open({u"bookmarks://"_s}, safariID);
        break;
    case Source::Kind::Chrome:
        openChromiumPage(u"chrome://bookmarks/" % folderPart(folderID), source.kind, source.profile);
        break;
    case Source::Kind::Edge:
        openChromiumPage(u"edge://favorites/" % folderPart(folderID), source.kind, source.profile);
        break;
    }
}

bool Opener::isInstalled(Source::Kind kind) const
{
    return m_workspace.hasApplication(bundleID(kind));
}

std::optional<QImage> Opener::icon(Source::Kind kind, qreal devicePixelRatio)
{
    constexpr int side = 16; // points
    const std::pair key(kind, devicePixelRatio);
    if (const auto known = m_icons.constFind(key); known != m_icons.constEnd())
        return *known;
    const std::optional<QImage> icon = m_workspace.icon(bundleID(kind), side, devicePixelRatio);
    if (icon)
        m_icons.insert(key, *icon);
    return icon;
}

} // namespace roamlet
