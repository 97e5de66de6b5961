// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QTcpServer>
#include <QUrl>

#include <memory>
#include <optional>

class QTcpSocket;

namespace roamlet::testing
{

/// A web server on this machine's own address that answers as well or as badly as a test wants.
class HttpServer final : public QObject
{
public:
    enum class End {
        Close, ///< the connection ends with the answer
        Hang,  ///< it stays open, and nothing more comes
    };
    struct Answer {
        QByteArray body = "";
        QByteArray status = "200 OK";
        /// Whole header lines.
        QByteArray headers = "";
        /// The length that the answer claims to have; its own when nothing is said, no header when negative.
        std::optional<qint64> claimedLength = std::nullopt;
        /// How often the body is sent.
        qint64 repetitions = 1;
        End end = End::Close;
    };

    /// With a server of the test's own kind, such as one with encryption.
    explicit HttpServer(std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>());

    /// From now on, this is the answer to a request for `path`. Anything else is not found.
    void add(const QString &path, const Answer &answer) { m_answers.insert(path, answer); }
    void redirect(const QString &path, const QString &target);
    QUrl address(const QString &path) const;
    /// How often `path` was asked for.
    int requests(const QString &path) const { return m_requests.value(path); }
    /// What was asked last, with its headers.
    QByteArray lastRequest() const { return m_lastRequest; }
    /// All the bytes of bodies that were sent so far.
    qint64 sent() const { return m_sent; }

private:
    void serve(QTcpSocket *socket);
    void send(QTcpSocket *socket, const Answer &answer);

    std::unique_ptr<QTcpServer> m_server;
    QHash<QString, Answer> m_answers;
    QHash<QString, int> m_requests;
    QByteArray m_lastRequest;
    qint64 m_sent = 0;
};

} // namespace roamlet::testing
