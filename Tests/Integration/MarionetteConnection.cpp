// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "MarionetteConnection.h"

#include "Support/Waiting.h"

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// What a message from us begins with; the browser's begin with 1.
constexpr int isCommand = 0;

} // namespace

bool MarionetteConnection::connectTo(quint16 port)
{
    m_socket.connectToHost(QHostAddress::LocalHost, port);
    if (!waitUntil([this] { return m_socket.state() == QAbstractSocket::ConnectedState; }))
        return false;
    return nextMessage().toObject().value(u"marionetteProtocol"_s).toInt() == 3;
}

MarionetteConnection::Answer MarionetteConnection::call(const QString &command, const QJsonObject &parameters)
{
    const int id = ++m_lastID;
    const QByteArray bytes =
        QJsonDocument(QJsonArray{isCommand, id, command, parameters}).toJson(QJsonDocument::Compact);
    m_socket.write(QByteArray::number(bytes.size()) + ':' + bytes);

    // Type, number of the command, error, result.
    const QJsonArray answer = nextMessage().toArray();
    if (answer.size() != 4 || answer.at(1).toInt() != id)
        return std::unexpected(QString(command % u": the browser does not answer"));
    if (!answer.at(2).isNull())
        return std::unexpected(
            QString(command % u": " % answer.at(2).toObject().value(u"message"_s).toString()));
    return answer.at(3);
}

QJsonValue MarionetteConnection::nextMessage()
{
    const auto isComplete = [this] {
        m_received += m_socket.readAll();
        const qsizetype colon = m_received.indexOf(':');
        return colon > 0 && m_received.size() > colon + m_received.first(colon).toLongLong();
    };
    const auto isOver = [this] { return m_socket.state() == QAbstractSocket::UnconnectedState; };
    // Longer than the browser itself waits for a page or a script, so that it is who says what went wrong.
    waitUntil([&] { return isComplete() || isOver(); }, 3 * patience, std::chrono::milliseconds(1));
    if (!isComplete())
        return QJsonValue(QJsonValue::Undefined);
    const qsizetype begin = m_received.indexOf(':') + 1;
    const qsizetype size = m_received.first(begin - 1).toLongLong();
    const QJsonDocument message = QJsonDocument::fromJson(m_received.sliced(begin, size));
    m_received.remove(0, begin + size);
    return message.isArray() ? QJsonValue(message.array()) : QJsonValue(message.object());
}

} // namespace roamlet::testing
