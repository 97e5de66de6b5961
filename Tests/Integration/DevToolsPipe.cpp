// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DevToolsPipe.h"

#include "Support/Waiting.h"

#include <QJsonDocument>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

void closeDescriptor(int &descriptor)
{
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

} // namespace

DevToolsPipe::DevToolsPipe()
{
    if (::pipe2(m_toBrowser, O_CLOEXEC) != 0 || ::pipe2(m_fromBrowser, O_CLOEXEC) != 0)
        qFatal("no pipe can be made");
    m_notifier = std::make_unique<QSocketNotifier>(m_fromBrowser[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { readMessages(); });
}

DevToolsPipe::~DevToolsPipe()
{
    m_notifier.reset();
    closeBrowserEnds();
    closeDescriptor(m_toBrowser[1]);
    closeDescriptor(m_fromBrowser[0]);
}

void DevToolsPipe::closeBrowserEnds()
{
    closeDescriptor(m_toBrowser[0]);
    closeDescriptor(m_fromBrowser[1]);
}

DevToolsPipe::Answer DevToolsPipe::call(const QString &method, const QJsonObject &parameters,
                                        const QString &session)
{
    const int id = ++m_lastID;
    QJsonObject command{{u"id"_s, id}, {u"method"_s, method}, {u"params"_s, parameters}};
    if (!session.isEmpty())
        command.insert(u"sessionId"_s, session);
    const QByteArray bytes = QJsonDocument(command).toJson(QJsonDocument::Compact) + '\0';
    if (::write(m_toBrowser[1], bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
        return std::unexpected(QString(method % u": the browser does not listen"));

    waitUntil([this, id] { return m_answers.contains(id) || m_isClosed; }, patience,
              std::chrono::milliseconds(1));
    if (!m_answers.contains(id))
        return std::unexpected(QString(method % u": the browser does not answer"));
    const QJsonObject answer = m_answers.take(id);
    if (answer.contains(u"error"_s)) {
        const QString reason = answer.value(u"error"_s).toObject().value(u"message"_s).toString();
        return std::unexpected(QString(method % u": " % reason));
    }
    return answer.value(u"result"_s).toObject();
}

void DevToolsPipe::readMessages()
{
    std::array<char, 65536> buffer{};
    const ssize_t size = ::read(m_fromBrowser[0], buffer.data(), buffer.size());
    if (size <= 0) {
        m_isClosed = true;
        m_notifier->setEnabled(false);
        return;
    }
    m_received.append(buffer.data(), size);
    qsizetype begin = 0;
    for (qsizetype end = m_received.indexOf('\0'); end >= 0; end = m_received.indexOf('\0', begin)) {
        handle(QJsonDocument::fromJson(m_received.mid(begin, end - begin)).object());
        begin = end + 1;
    }
    m_received.remove(0, begin);
}

void DevToolsPipe::handle(const QJsonObject &message)
{
    if (message.contains(u"id"_s)) {
        m_answers.insert(message.value(u"id"_s).toInt(), message);
    } else if (onEvent) {
        onEvent(message.value(u"method"_s).toString(), message.value(u"params"_s).toObject(),
                message.value(u"sessionId"_s).toString());
    }
}

} // namespace roamlet::testing
