// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/HttpServer.h"

#include <QHostAddress>
#include <QTcpSocket>

#include <memory>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

HttpServer::HttpServer(std::unique_ptr<QTcpServer> server) : m_server(std::move(server))
{
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, [this] {
        while (QTcpSocket *socket = m_server->nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            // It may all be here already.
            serve(socket);
        }
    });
    m_server->listen(QHostAddress::LocalHost);
}

void HttpServer::redirect(const QString &path, const QString &target)
{
    add(path, {.status = "302 Found", .headers = "Location: " + target.toUtf8() + "\r\n"});
}

QUrl HttpServer::address(const QString &path) const
{
    return QUrl(u"http://127.0.0.1:"_s % QString::number(m_server->serverPort()) % path);
}

void HttpServer::serve(QTcpSocket *socket)
{
    // A request has no body, so it is complete at the first empty line.
    const QByteArray request = socket->peek(socket->bytesAvailable());
    if (!request.contains("\r\n\r\n"))
        return;
    m_lastRequest = socket->readAll();
    const QString path = QString::fromUtf8(request.split(' ').value(1));
    ++m_requests[path];
    const auto answer = m_answers.constFind(path);
    send(socket,
         answer != m_answers.cend() ? *answer : Answer{.body = "nothing here", .status = "404 Not Found"});
}

void HttpServer::send(QTcpSocket *socket, const Answer &answer)
{
    const qint64 length = answer.claimedLength.value_or(answer.body.size() * answer.repetitions);
    socket->write("HTTP/1.1 " + answer.status + "\r\n" + answer.headers +
                  (length >= 0 ? "Content-Length: " + QByteArray::number(length) + "\r\n" : QByteArray()) +
                  "Connection: close\r\n\r\n");
    // A large body is sent no faster than it is read, as from any server.
    const auto remaining = std::make_shared<qint64>(answer.repetitions);
    const auto sendMore = [this, socket, answer, remaining] {
        while (*remaining > 0 && socket->bytesToWrite() <= answer.body.size()) {
            --*remaining;
            m_sent += answer.body.size();
            socket->write(answer.body);
        }
        if (*remaining == 0 && answer.end == End::Close)
            socket->disconnectFromHost();
    };
    connect(socket, &QTcpSocket::bytesWritten, socket, sendMore);
    sendMore();
}

} // namespace roamlet::testing
