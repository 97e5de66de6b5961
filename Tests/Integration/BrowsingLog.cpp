// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowsingLog.h"

#include "DrivenBrowser.h"
#include "Support/Waiting.h"

#include <QDateTime>
#include <QUrl>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

double secondsNow()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000;
}

/// The sites of these tests have plain hosts, for which no rule of the program's own is needed.
QString siteOf(const QString &url)
{
    const QString authority = url.section(u'/', 2, 2);
    const QString host = authority.section(u':', 0, 0);
    return host.startsWith(u"www.") ? host.sliced(4) : host;
}

} // namespace

void BrowsingLog::visit(DrivenBrowser &browser, const LoopbackServer &server, const QString &url,
                        const LoopbackServer::Page &page, const QStringList &redirects)
{
    // The browser writes microseconds; the clock here has milliseconds.
    constexpr double tick = 0.001;
    const double begin = secondsNow() - tick;
    const auto address = browser.open(url);
    ASSERT_TRUE(address) << address.error().toStdString();
    const QStringList chain = QStringList{url} + redirects;
    ASSERT_EQ(*address, chain.last());
    ASSERT_TRUE(waitUntil([&] { return server.hasServedIcon(page.icon); }))
        << "no icon of " << qPrintable(url);

    ++m_steps;
    for (const QString &visited : m_redirects == Redirects::Listed ? chain : QStringList{chain.last()}) {
        Entry &entry = m_entries[visited];
        entry = {.title = page.title.isEmpty() ? visited : page.title,
                 .visitCount = entry.visitCount + 1,
                 .notBefore = begin,
                 .notAfter = secondsNow() + tick,
                 .step = m_steps,
                 .icon = page.icon};
    }
}

QStringList BrowsingLog::urlsOfSite(const QString &site) const
{
    QStringList urls;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (siteOf(entry.key()) == site)
            urls.append(entry.key());
    }
    return urls;
}

QHash<QString, QList<QColor>> BrowsingLog::iconsBySite() const
{
    QHash<QString, QList<QColor>> icons;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry)
        icons[siteOf(entry.key())].append(entry->icon);
    return icons;
}

BrowsingLog::Entry BrowsingLog::latest() const
{
    Entry latest;
    for (const Entry &entry : m_entries) {
        if (entry.step > latest.step)
            latest = entry;
    }
    return latest;
}

} // namespace roamlet::testing
