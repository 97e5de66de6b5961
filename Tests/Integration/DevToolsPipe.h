// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QString>

#include <expected>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace roamlet::testing
{

/// The browser's remote control: JSON messages, each ended by a NUL, over a pair of pipes.
class DevToolsPipe final
{
public:
    using Answer = std::expected<QJsonObject, QString>;

    DevToolsPipe();
    DevToolsPipe(const DevToolsPipe &) = delete;
    DevToolsPipe &operator=(const DevToolsPipe &) = delete;
    ~DevToolsPipe();

    /// The ends that the browser inherits; closed on this side once it has them.
    int browserReadEnd() const { return m_toBrowser[0]; }
    int browserWriteEnd() const { return m_fromBrowser[1]; }
    void closeBrowserEnds();

    /// Sends one command and waits for its result. `session` is the page that it is for, if any.
    Answer call(const QString &method, const QJsonObject &parameters = {}, const QString &session = {});
    /// Called with every event: its name, its parameters and the page that it comes from.
    std::function<void(const QString &method, const QJsonObject &parameters, const QString &session)> onEvent;

private:
    void readMessages();
    void handle(const QJsonObject &message);

    // Reading end and writing end.
    int m_toBrowser[2] = {-1, -1};
    int m_fromBrowser[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
    QByteArray m_received;
    bool m_isClosed = false;
    int m_lastID = 0;
    QHash<int, QJsonObject> m_answers;
};

} // namespace roamlet::testing
