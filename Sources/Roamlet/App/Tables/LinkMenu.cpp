// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/LinkMenu.h"

#include <QCoreApplication>
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

/// The words of the menu in the user's language.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(roamlet::LinkMenu)
};

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
    return {.action = Entry::Action::ShowOnlySite,
            //: %1 is a web site, such as "example.org".
            .title = Words::tr("Show Only %1").arg(site),
            .browser = Kind::Safari};
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
            //: %1 is a browser.
            Words::tr("Edit %1 Bookmarks").arg(Source::displayName(subject.editTarget->source.kind)));
        separate();
    }
    if (subject.historySource) {
        add(Entry::Action::ShowHistory,
            //: %1 is a browser.
            Words::tr("Show %1 History").arg(Source::displayName(subject.historySource->kind)));
        separate();
    }
    if (!subject.items.isEmpty()) {
        const qsizetype count = subject.items.size();
        const std::optional ownBrowser =
            common(subject.items, [](const Opener::Link &link) { return link.source.kind; });
        add(Entry::Action::OpenInOriginalBrowsers,
            //: Each link in the browser that it came from.
            count > 1 ? Words::tr("Open in Original Browsers")
                      //: %1 is a browser.
                      : Words::tr("Open in %1").arg(Source::displayName(subject.items.first().source.kind)));
        for (const Kind kind : installed) {
            if (kind != ownBrowser)
                add(Entry::Action::OpenInBrowser, Words::tr("Open in %1").arg(Source::displayName(kind)),
                    kind);
        }
        separate();
        add(Entry::Action::CopyURLs,
            //: %1 is a number.
            count > 1 ? Words::tr("Copy %1 URLs", nullptr, static_cast<int>(count)).arg(count)
                      : Words::tr("Copy URL"));
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
