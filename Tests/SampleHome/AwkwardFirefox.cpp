// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/AwkwardFirefox.h"

#include "SampleHome/AwkwardValues.h"
#include "SampleHome/SampleText.h"

#include <limits>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();

/// Rows that are numbered from here on and count their places in one folder.
class NumberedRows final
{
public:
    explicit NumberedRows(qint64 firstID) : m_nextID(firstID) {}

    qint64 append(FirefoxBookmarkRow row)
    {
        row.id = m_nextID++;
        m_rows.append(row);
        return *row.id;
    }
    qint64 nextID() const { return m_nextID; }
    const QList<FirefoxBookmarkRow> &rows() const { return m_rows; }

private:
    qint64 m_nextID;
    QList<FirefoxBookmarkRow> m_rows;
};

Text addressOf(const QString &name)
{
    return u"https://awkward.example/bookmark/" % name;
}

} // namespace

QList<FirefoxPage> awkwardFirefoxPages(qint64 newest)
{
    QList<FirefoxPage> pages;
    for (const AwkwardPage &page : awkwardPages()) {
        // All in one second, some of them in one microsecond.
        pages.append(
            {.url = page.url, .title = page.title, .lastVisitDate = firefoxTime(newest) - pages.size() / 2});
    }
    for (const qint64 time : {qint64(0), qint64(-1), qint64(1), qint64(-11'644'473'600'000'000), lowest,
                              highest, qint64(253'402'300'799'000'000)}) {
        pages.append({.url = u"https://awkward.example/time/%1"_s.arg(time),
                      .title = u"Visited at %1"_s.arg(time),
                      .lastVisitDate = time});
    }
    for (const qint64 count : {qint64(0), qint64(-1), lowest, highest}) {
        pages.append({.url = u"https://awkward.example/count/%1"_s.arg(count),
                      .title = u"Visited %1 times"_s.arg(count),
                      .visitCount = count,
                      .lastVisitDate = firefoxTime(newest)});
    }
    pages.append({.url = u"https://never-visited.example/"_s, .title = u"Never visited"_s, .visitCount = 0});
    pages.append({.url = u"https://hidden.example/"_s,
                  .title = u"Hidden"_s,
                  .lastVisitDate = firefoxTime(newest),
                  .hidden = true});
    pages.append({.id = -7,
                  .url = u"https://awkward.example/id"_s,
                  .title = u"A negative key"_s,
                  .lastVisitDate = firefoxTime(newest)});
    pages.append(
        {.id = pageWithoutAddress, .title = u"Without an address"_s, .lastVisitDate = firefoxTime(newest)});
    return pages;
}

QList<FirefoxBookmarkRow> awkwardFirefoxBookmarks(qint64 firstID)
{
    NumberedRows rows(firstID);
    const qint64 folder = rows.append(
        {.type = FirefoxBookmarkRow::folder, .parent = firefox_folder::menu, .title = u"Awkward"_s});
    const auto add = [&](FirefoxBookmarkRow row) {
        row.parent = folder;
        rows.append(row);
    };
    add({.position = 2, .title = u"Third by its place"_s, .url = addressOf(u"third"_s)});
    add({.position = 1, .title = u"Second by its place"_s, .url = addressOf(u"second"_s)});
    add({.position = 1, .title = u"In the same place"_s, .url = addressOf(u"same-place"_s)});
    add({.position = {}, .title = u"Without a place"_s, .url = addressOf(u"no-place"_s)});
    add({.position = lowest, .title = u"The lowest place"_s, .url = addressOf(u"lowest"_s)});
    add({.position = 9, .url = addressOf(u"no-title"_s)});
    add({.position = 9, .title = u""_s, .url = addressOf(u"empty-title"_s)});
    add({.position = 9, .title = u"Page without an address"_s, .page = pageWithoutAddress});
    add({.position = 9, .title = u"Missing page"_s, .page = 1'000'000'000});
    add({.position = 9, .title = u"No page at all"_s});
    add({.position = 9, .title = u"Recent tags"_s, .url = u"place:type=6&sort=14&maxResults=10"_s});
    add({.position = 9, .title = u"Capital place"_s, .url = u"PLACE:parent=toolbar_____"_s});
    add({.position = 9, .title = u"Without a GUID"_s, .url = addressOf(u"no-guid"_s), .guid = Text()});
    add({.position = 9, .title = u"Empty GUID"_s, .url = addressOf(u"empty-guid"_s), .guid = u""_s});
    add({.type = FirefoxBookmarkRow::separator, .position = 9, .title = u"A separator with a title"_s});
    add({.type = FirefoxBookmarkRow::separator,
         .position = 9,
         .title = u"A separator with a page"_s,
         .url = addressOf(u"separator"_s)});
    add({.type = 0, .position = 9, .title = u"Unknown type"_s, .url = addressOf(u"type-0"_s)});
    add({.type = 4, .position = 9, .title = u"Forgotten type"_s, .url = addressOf(u"type-4"_s)});
    add({.type = FirefoxBookmarkRow::folder,
         .position = 9,
         .title = u"A folder with a page"_s,
         .url = addressOf(u"folder"_s)});
    add({.type = FirefoxBookmarkRow::folder, .position = 9});
    for (const qint64 date : {qint64(0), qint64(-1), qint64(1), lowest, highest}) {
        add({.position = 10,
             .title = u"Added at %1"_s.arg(date),
             .url = addressOf(u"date/%1"_s.arg(date)),
             .dateAdded = date});
    }
    for (const AwkwardPage &page : awkwardPages())
        add({.position = 11, .title = page.title, .url = page.url, .dateAdded = 1});
    const qint64 tag = rows.append(
        {.type = FirefoxBookmarkRow::folder, .parent = firefox_folder::tags, .title = u"awkward tag"_s});
    rows.append({.parent = tag, .url = addressOf(u"second"_s)});
    rows.append({.parent = firefox_folder::tags, .title = u"No tag"_s, .url = addressOf(u"in-tags"_s)});
    rows.append({.parent = firefox_folder::root, .title = u"In the root"_s, .url = addressOf(u"in-root"_s)});
    return rows.rows();
}

QList<FirefoxBookmarkRow> circlingFirefoxFolders(qint64 firstID)
{
    NumberedRows rows(firstID);
    const qint64 other = firstID + 1;
    rows.append({.type = FirefoxBookmarkRow::folder, .parent = other, .title = u"In the other"_s});
    rows.append({.type = FirefoxBookmarkRow::folder, .parent = firstID, .title = u"In the first"_s});
    const qint64 own = rows.nextID();
    rows.append({.type = FirefoxBookmarkRow::folder, .parent = own, .title = u"In itself"_s});
    for (const qint64 parent : {firstID, other, own})
        rows.append({.parent = parent,
                     .title = u"In a circle"_s,
                     .url = addressOf(u"circle/%1"_s.arg(parent - firstID))});
    return rows.rows();
}

QList<FirefoxBookmarkRow> firefoxRootBelowItself(qint64 root, const QString &guid, qint64 firstID)
{
    return {{.id = root, .type = FirefoxBookmarkRow::folder, .parent = root, .title = guid, .guid = guid},
            {.id = firstID,
             .parent = root,
             .position = 1,
             .title = u"Beside its root"_s,
             .url = addressOf(u"beside-root"_s)}};
}

QList<FirefoxBookmarkRow> orphanedFirefoxBookmarks(qint64 firstID)
{
    NumberedRows rows(firstID);
    const qint64 bookmark =
        rows.append({.title = u"Parent that is a bookmark"_s, .url = addressOf(u"parent"_s)});
    const qint64 separator = rows.append({.type = FirefoxBookmarkRow::separator});
    for (const std::optional<qint64> parent :
         {std::optional<qint64>(), std::optional<qint64>(1'000'000'000), std::optional<qint64>(0),
          std::optional<qint64>(-1), std::optional<qint64>(bookmark), std::optional<qint64>(separator)})
        rows.append({.parent = parent,
                     .title = u"Orphan"_s,
                     .url = addressOf(u"orphan/%1"_s.arg(rows.nextID() - firstID))});
    return rows.rows();
}

Rows<FirefoxBookmarkRow> deepFirefoxFolders(qint64 firstID, qsizetype levels)
{
    return Rows<FirefoxBookmarkRow>::generated(levels + 1, [=](qsizetype index) {
        FirefoxBookmarkRow row{.id = firstID + index,
                               .type = FirefoxBookmarkRow::folder,
                               .parent = index == 0 ? firefox_folder::toolbar : firstID + index - 1,
                               .title = u"Level %1"_s.arg(index + 1)};
        if (index == levels) {
            row.type = FirefoxBookmarkRow::bookmark;
            row.title = u"At the bottom"_s;
            row.url = addressOf(u"bottom"_s);
        }
        return row;
    });
}

QList<FirefoxIcon> awkwardFirefoxIcons(qint64 firstID)
{
    const QByteArray whole = siteIcon(1, 32);
    const QByteArray drawing("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    qint64 next = firstID;
    const auto numbered = [&](const QString &url, qint64 width, std::optional<QByteArray> data) {
        return FirefoxIcon{.id = next++, .url = url, .width = width, .data = std::move(data)};
    };
    const auto ofHost = [&](const QString &url, qint64 width, const QByteArray &data) {
        FirefoxIcon icon = numbered(url, width, data);
        icon.root = true;
        return icon;
    };
    return {
        numbered(u"fake-favicon-uri:https://no-bytes.example/"_s, 16, {}),
        numbered(u"https://no-bytes.example/empty.png"_s, 32, QByteArray("")),
        numbered(u"https://broken.example/half.png"_s, 32, whole.first(whole.size() / 2)),
        numbered(u"https://drawing.example/icon.svg"_s, FirefoxIcon::drawing, drawing),
        numbered(u"https://many.example/16.png"_s, 16, siteIcon(2, 16)),
        numbered(u"https://many.example/32.png"_s, 32, siteIcon(2, 32)),
        numbered(u"https://many.example/64.png"_s, 64, siteIcon(2, 64)),
        numbered(u"https://many.example/icon.svg"_s, FirefoxIcon::drawing, drawing),
        numbered(u"https://wrong-width.example/negative.png"_s, -24, siteIcon(3, 24)),
        numbered(u"https://wrong-width.example/zero.png"_s, 0, siteIcon(3, 16)),
        numbered(u"https://wrong-width.example/huge.png"_s, 1'000'000, siteIcon(4, 16)),
        numbered(u"fake-favicon-uri:https://fake.example/"_s, 16, siteIcon(5, 16)),
        numbered(u"data:image/png;base64,iVBORw0KGgo="_s, 16, siteIcon(6, 16)),
        ofHost(u"https://root.example/favicon.ico"_s, 16, siteIcon(7, 16)),
        ofHost(u"https://root.example/favicon.ico"_s, 32, siteIcon(7, 32)),
        ofHost(u"https://many.example/favicon.ico"_s, 32, siteIcon(8, 32)),
        ofHost(u"https://root-drawing.example/favicon.ico"_s, FirefoxIcon::drawing, drawing),
        ofHost(u"https://[2001:db8::1]:8443/favicon.ico"_s, 16, siteIcon(9, 16)),
        ofHost(u"/favicon.ico"_s, 16, siteIcon(10, 16)),
    };
}

QList<FirefoxIconPage> awkwardFirefoxIconPages(qint64 firstID)
{
    return {
        {.url = u"https://no-bytes.example/"_s, .icons = {firstID, firstID + 1}},
        {.url = u"https://broken.example/"_s, .icons = {firstID + 2}},
        {.url = u"https://drawing.example/"_s, .icons = {firstID + 3}},
        {.url = u"https://many.example/"_s, .icons = {firstID + 7, firstID + 6, firstID + 4, firstID + 5}},
        {.url = u"HTTPS://WWW.Upper.example/a"_s, .icons = {firstID + 4}},
        {.url = u"https://upper.example/b"_s, .icons = {firstID + 5}},
        {.url = u"https://wrong-width.example/"_s, .icons = {firstID + 8, firstID + 9, firstID + 10}},
        {.url = u"https://fake.example/"_s, .icons = {firstID + 11}},
        {.url = u"https://unknown-icon.example/"_s, .icons = {1'000'000'000}},
        {.url = u"https://no-icon.example/"_s},
        {.url = u"https://www./"_s, .icons = {firstID + 4}},
        {.url = u"about:blank"_s, .icons = {firstID + 12}},
        {.url = u""_s, .icons = {firstID + 4}},
        {.url = Text::raw("https://broken.example/\xff"), .icons = {firstID + 4}}};
}

QStringList awkwardFirefoxProfileNames()
{
    return {u"name=with=signs"_s, u"; no comment"_s,
            u"# no comment"_s,    u"[Profile0]"_s,
            u"\"quotes\""_s,      u""_s,
            u"\uFEFFmarked"_s,    u"\U0001F469\u200D\U0001F467 漢字 עברית"_s,
            u"back\\slash\\n"_s};
}

} // namespace roamlet::sample
