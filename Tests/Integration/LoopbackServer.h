// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTcpServer>

#include <memory>
#include <vector>

class QTcpSocket;

namespace roamlet::testing
{

/// Web sites on the loopback address: as many hosts as the browser is told to look for there, on several
/// ports, each page with a title and an icon of its own.
class LoopbackServer final : public QObject
{
public:
    struct Page {
        QString title;
        /// The colour that fills the page's icon. Without one, the page names no icon, and what stands at
        /// "/favicon.ico" of its host is its icon.
        QColor icon;
        /// When not empty, the page is not shown: the browser is sent on to this URL.
        QString movedTo;
        /// When not empty, the page is answered with this instead of "200 OK" or "302 Found".
        QByteArray status = {};
    };

    explicit LoopbackServer(int ports);

    /// Whether all the ports could be opened.
    bool isListening() const;
    /// Serves `page` and returns its URL. `path` is what the browser asks for, percent-encoded as it does.
    QString add(const QString &host, int port, const QString &path, const Page &page);
    /// Whether the page with this URL was sent to somebody.
    bool hasServed(const QString &url) const { return m_servedPages.contains(url); }
    /// Whether the icon of this colour was sent to somebody.
    bool hasServedIcon(const QColor &icon) const { return m_servedIcons.contains(icon.name()); }

private:
    void answer(QTcpSocket *socket);
    QByteArray response(const QString &host, const QString &path);
    QByteArray iconResponse(const QColor &color);

    std::vector<std::unique_ptr<QTcpServer>> m_servers;
    QHash<QString, Page> m_pages;
    QSet<QString> m_servedPages;
    QSet<QString> m_servedIcons;
};

} // namespace roamlet::testing
