// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "LoopbackServer.h"

#include <QBuffer>
#include <QHostAddress>
#include <QImage>
#include <QTcpSocket>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int iconSide = 32;

QString iconPath(const QColor &color)
{
    return u"/icon-" % color.name().sliced(1) % u".png";
}

QByteArray iconBytes(const QColor &color)
{
    QImage image(iconSide, iconSide, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray message(const QByteArray &status, const QByteArray &headers, const QByteArray &body)
{
    return "HTTP/1.1 " + status + "\r\n" + headers + "Content-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

} // namespace

LoopbackServer::LoopbackServer(int ports)
{
    for (int i = 0; i < ports; ++i) {
        auto server = std::make_unique<QTcpServer>();
        connect(server.get(), &QTcpServer::newConnection, this, [this, listener = server.get()] {
            while (QTcpSocket *socket = listener->nextPendingConnection()) {
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(socket); });
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            }
        });
        server->listen(QHostAddress::LocalHost);
        m_servers.push_back(std::move(server));
    }
}

bool LoopbackServer::isListening() const
{
    return std::ranges::all_of(m_servers, [](const auto &server) { return server->isListening(); });
}

QString LoopbackServer::add(const QString &host, int port, const QString &path, const Page &page)
{
    const quint16 number = m_servers.at(static_cast<std::size_t>(port))->serverPort();
    const QString address = host % u':' % QString::number(number);
    m_pages.insert(address % path, page);
    return u"http://" % address % path;
}

void LoopbackServer::answer(QTcpSocket *socket)
{
    // A request has no body, so it is complete at the first empty line.
    const QByteArray request = socket->peek(socket->bytesAvailable());
    if (!request.contains("\r\n\r\n"))
        return;
    socket->readAll();
    const QList<QByteArray> lines = request.split('\n');
    const QString path = QString::fromLatin1(lines.first().split(' ').value(1));
    QString host;
    for (const QByteArray &line : lines) {
        if (line.toLower().startsWith("host:"))
            host = QString::fromLatin1(line.mid(5).trimmed());
    }
    socket->write(response(host, path));
    socket->disconnectFromHost();
}

QByteArray LoopbackServer::response(const QString &host, const QString &path)
{
    if (path.startsWith(u"/icon-")) {
        const QStringView name = QStringView(path).sliced(QStringView(u"/icon-").size());
        return iconResponse(QColor(u'#' % name.chopped(QStringView(u".png").size())));
    }
    const auto page = m_pages.constFind(host % path);
    if (page == m_pages.cend())
        return message("404 Not Found", {}, {});
    m_servedPages.insert(u"http://" % host % path);
    const auto status = [&page](const QByteArray &usual) {
        return page->status.isEmpty() ? usual : page->status;
    };
    if (!page->movedTo.isEmpty())
        return message(status("302 Found"), "Location: " + page->movedTo.toUtf8() + "\r\n", {});
    if (path == u"/favicon.ico")
        return iconResponse(page->icon);
    const QString title =
        page->title.isEmpty() ? QString() : QString(u"<title>" % page->title.toHtmlEscaped() % u"</title>");
    const QString icon =
        page->icon.isValid()
            ? QString(u"<link rel=\"icon\" type=\"image/png\" href=\"" % iconPath(page->icon) % u"\">")
            : QString();
    const QString html = u"<!DOCTYPE html><html><head><meta charset=\"utf-8\">" % title % icon %
                         u"</head><body><p>Hello</p></body></html>";
    return message(status("200 OK"), "Content-Type: text/html; charset=utf-8\r\n", html.toUtf8());
}

QByteArray LoopbackServer::iconResponse(const QColor &color)
{
    m_servedIcons.insert(color.name());
    return message("200 OK", "Content-Type: image/png\r\n", iconBytes(color));
}

} // namespace roamlet::testing
