// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LoopbackServer.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace roamlet::testing
{

class DrivenBrowser;

/// Browses in one profile and remembers what the profile's history must say afterwards.
class BrowsingLog final
{
public:
    struct Entry {
        QString title;
        qint64 visitCount = 0;
        /// Between these the latest visit took place; in seconds since 1970.
        double notBefore = 0;
        double notAfter = 0;
        /// Counts the visits. The pages of one chain of redirects share their visit and its time.
        int step = 0;
        QColor icon;
    };

    /// Whether the browser lists the addresses that it was only led through, too.
    enum class Redirects { Listed, Hidden };

    explicit BrowsingLog(Redirects redirects = Redirects::Listed) : m_redirects(redirects) {}

    /// Opens `url` and waits until its page and its icon have come. `redirects` are the further addresses
    /// that the browser is led through, the page itself last; `page` is what stands there.
    void visit(DrivenBrowser &browser, const LoopbackServer &server, const QString &url,
               const LoopbackServer::Page &page, const QStringList &redirects = {});

    const QHash<QString, Entry> &entries() const { return m_entries; }
    /// The addresses of a site, however its host is written.
    QStringList urlsOfSite(const QString &site) const;
    /// By site, the colours that its pages' icons have.
    QHash<QString, QList<QColor>> iconsBySite() const;
    /// The latest visit of all.
    Entry latest() const;

private:
    Redirects m_redirects;
    QHash<QString, Entry> m_entries;
    int m_steps = 0;
};

} // namespace roamlet::testing
