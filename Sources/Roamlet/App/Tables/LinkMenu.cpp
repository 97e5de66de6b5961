// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/LinkMenu.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <type_traits>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

using Entry = LinkMenuEntry;
using Kind = Source::Kind;

/// What `value` gives for each of the rows, when it is the same for all.
template<typename Rows, typename Value>
auto common(const Rows &rows, const Value &value)
    -> std::optional<std::decay_t<std::invoke_result_t<Value, decltype(rows.first())>>>
{
    if (rows.isEmpty())
        return {};
    const auto &first = std::invoke(value, rows.first());
    const bool isSame =
        std::ranges::all_of(rows, [&](const auto &row) { return std::invoke(value, row) == first; });
    return isSame ? std::optional(first) : std::nullopt;
}

/// The folder as its browser knows it. The ones that hold a whole source in the tree of all are our own.
std::optional<QString> browsersFolder(const std::optional<QString> &folderID, const Source &source)
{
    return folderID == BookmarkNode::idOfSource(source) ? std::nullopt : folderID;
}

LinkMenuSubject ofLinks(const QList<TableRow> &rows)
{
    LinkMenuSubject subject;
    QList<TableRow> links = rows;
    links.removeIf([](const TableRow &row) { return row.kind != TableRow::Kind::Link; });
    for (const TableRow &row : links)
        subject.items.append({row.url, row.source});
    subject.site = common(links, &TableRow::site);
    if (subject.site && subject.site->isEmpty())
        subject.site.reset();
    return subject;
}

} // namespace

LinkMenuSubject LinkMenuSubject::ofHistory(const QList<TableRow> &rows)
{
    LinkMenuSubject subject = ofLinks(rows);
    subject.historySource = common(rows, &TableRow::source);
    return subject;
}

LinkMenuSubject LinkMenuSubject::ofBookmarks(const QList<TableRow> &rows)
{
    LinkMenuSubject subject = ofLinks(rows);
    if (const std::optional source = common(rows, &TableRow::source)) {
        const bool isOneFolder = rows.size() == 1 && rows.first().kind == TableRow::Kind::Folder;
        const std::optional<QString> folder =
            isOneFolder ? rows.first().id : common(rows, &TableRow::folderID).value_or(std::nullopt);
        subject.editTarget = EditTarget{*source, browsersFolder(folder, *source)};
    }
    return subject;
}

LinkMenuEntry onlySiteEntry(const QString &site)
{
    return {.action = Entry::Action::ShowOnlySite, .title = u"Show Only " % site, .browser = Kind::Safari};
}

QList<LinkMenuEntry> linkMenuEntries(const LinkMenuSubject &subject, const QList<Source::Kind> &installed)
{
    QList<Entry> entries;
    const auto separate = [&entries] { entries.append(Entry{}); };
    const auto add = [&entries](Entry::Action action, const QString &title, Kind browser = Kind::Safari) {
        entries.append({action, title, browser});
    };

    if (subject.editTarget) {
        add(Entry::Action::EditBookmarks,
            u"Edit " % Source::displayName(subject.editTarget->source.kind) % u" Bookmarks");
        separate();
    }
    if (subject.historySource) {
        add(Entry::Action::ShowHistory,
            u"Show " % Source::displayName(subject.historySource->kind) % u" History");
        separate();
    }
    if (!subject.items.isEmpty()) {
        const qsizetype count = subject.items.size();
        const std::optional ownBrowser =
            common(subject.items, [](const Opener::Link &link) { return link.source.kind; });
        add(Entry::Action::OpenInOriginalBrowsers,
            count > 1 ? u"Open in Original Browsers"_s
                      : QString(u"Open in " % Source::displayName(subject.items.first().source.kind)));
        for (const Kind kind : installed) {
            if (kind != ownBrowser)
                add(Entry::Action::OpenInBrowser, u"Open in " % Source::displayName(kind), kind);
        }
        separate();
        add(Entry::Action::CopyURLs,
            count > 1 ? QString(u"Copy " % QString::number(count) % u" URLs") : u"Copy URL"_s);
        separate();
        if (subject.site)
            entries.append(onlySiteEntry(*subject.site));
    }
    if (!entries.isEmpty() && entries.last().action == Entry::Action::Separator)
        entries.removeLast();
    return entries;
}

QString clipboardText(const QList<Opener::Link> &links)
{
    QStringList urls;
    for (const Opener::Link &link : links)
        urls.append(link.url);
    return urls.join(u'\n');
}

} // namespace roamlet
