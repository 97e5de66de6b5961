// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QTcpSocket>

#include <expected>

namespace roamlet::testing
{

/// Firefox's remote control: JSON messages, each behind its length, over a connection to this machine.
class MarionetteConnection final
{
public:
    using Answer = std::expected<QJsonValue, QString>;

    /// Whether the browser that listens on this port answers as one.
    bool connectTo(quint16 port);
    /// Sends one command and waits for its result.
    Answer call(const QString &command, const QJsonObject &parameters = {});

private:
    /// The next message that the browser sends, or undefined when none comes.
    QJsonValue nextMessage();

    QTcpSocket m_socket;
    QByteArray m_received;
    int m_lastID = 0;
};

} // namespace roamlet::testing
