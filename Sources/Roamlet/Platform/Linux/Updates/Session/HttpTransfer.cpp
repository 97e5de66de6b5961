// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/HttpTransfer.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int mostRedirects = 5;
constexpr int statusOk = 200;
constexpr int firstRefusal = 400;
constexpr qint64 bytesPerPiece = qint64{256} << 10U;

int statusOf(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Where the answer sends us, when it does.
std::optional<QUrl> redirection(const QNetworkReply &reply)
{
    const QVariant target = reply.attribute(QNetworkRequest::RedirectionTargetAttribute);
    if (!target.isValid())
        return {};
    return reply.url().resolved(target.toUrl());
}

} // namespace

bool isAllowed(const QUrl &address, HttpOptions::Loopback loopback)
{
    if (!address.isValid() || address.host().isEmpty())
        return false;
    if (address.scheme() == u"https")
        return true;
    return loopback == HttpOptions::Loopback::Allowed && address.scheme() == u"http" &&
           QHostAddress(address.host()).isLoopback();
}

HttpTransfer::HttpTransfer(QNetworkAccessManager &network, const Clock &clock, HttpOptions options,
                           const QUrl &address, Handlers handlers, std::optional<Clock::Duration> limit)
    : m_network(network), m_clock(clock), m_options(std::move(options)), m_handlers(std::move(handlers))
{
    if (!isAllowed(address, m_options.loopback)) {
        m_clock.after(Clock::Duration::zero(), this, [this, address] {
            finish(UpdateError{UpdateError::Code::InsecureAddress, address.toDisplayString()});
        });
        return;
    }
    send(address);
    watch();
    if (limit)
        m_clock.after(*limit, this, [this] { finish(UpdateError{UpdateError::Code::TimedOut, {}}); });
}

HttpTransfer::~HttpTransfer()
{
    letGo();
}

void HttpTransfer::send(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader, m_options.userAgent);
    // Packed, a small answer could unfold to any size, and its length would say nothing.
    request.setRawHeader("Accept-Encoding", "identity");
    // Nobody needs to recognise us.
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // Each redirect is looked at here: Qt itself would follow one to anything that is no worse.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);

    m_reply = m_network.get(request);
    // What nobody has read yet stays with the server.
    m_reply->setReadBufferSize(4 * bytesPerPiece);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpTransfer::readPieces);
    connect(m_reply, &QNetworkReply::finished, this, &HttpTransfer::complete);
}

void HttpTransfer::watch()
{
    m_hasHeardSomething = false;
    m_clock.after(m_options.patience, this, [this] {
        if (m_reply == nullptr)
            return;
        if (m_hasHeardSomething)
            watch();
        else
            finish(UpdateError{UpdateError::Code::TimedOut, {}});
    });
}

void HttpTransfer::follow(const QUrl &address)
{
    if (++m_redirects > mostRedirects) {
        finish(UpdateError{UpdateError::Code::TooManyRedirects, {}});
        return;
    }
    if (!isAllowed(address, m_options.loopback)) {
        finish(UpdateError{UpdateError::Code::InsecureAddress, address.toDisplayString()});
        return;
    }
    letGo();
    send(address);
}

std::optional<UpdateError> HttpTransfer::begin()
{
    if (std::exchange(m_hasBegun, true))
        return {};
    const int status = statusOf(*m_reply);
    if (status != statusOk)
        return UpdateError{UpdateError::Code::ServerRefused, QString::number(status)};
    Head head;
    bool isNumber = false;
    const qint64 length = m_reply->rawHeader("Content-Length").trimmed().toLongLong(&isNumber);
    if (isNumber && length >= 0)
        head.length = length;
    m_length = head.length;
    head.contentType = m_reply->header(QNetworkRequest::ContentTypeHeader)
                           .toString()
                           .section(u';', 0, 0)
                           .trimmed()
                           .toLower();
    head.address = m_reply->url();
    return m_handlers.begin ? m_handlers.begin(head) : std::nullopt;
}

void HttpTransfer::readPieces()
{
    m_hasHeardSomething = true;
    // The page that a redirect brings with it is for browsers.
    if (redirection(*m_reply))
        return;
    while (m_reply != nullptr && m_reply->bytesAvailable() > 0) {
        std::optional<UpdateError> error = begin();
        if (!error) {
            const QByteArray piece = m_reply->read(bytesPerPiece);
            m_received += piece.size();
            error = m_handlers.receive(piece);
        }
        if (error) {
            finish(error);
            return;
        }
    }
}

void HttpTransfer::complete()
{
    if (m_reply->error() != QNetworkReply::NoError) {
        finish(replyError());
        return;
    }
    if (const auto address = redirection(*m_reply)) {
        follow(*address);
        return;
    }
    readPieces();
    // Reading may have ended it with an error.
    if (m_reply == nullptr)
        return;
    std::optional<UpdateError> error = begin();
    // Qt does not always notice that a connection was cut.
    if (!error && m_length && m_received != *m_length)
        error = UpdateError{UpdateError::Code::NetworkFailed, {}};
    finish(error);
}

UpdateError HttpTransfer::replyError() const
{
    if (const int status = statusOf(*m_reply); status >= firstRefusal)
        return {UpdateError::Code::ServerRefused, QString::number(status)};
    return {UpdateError::Code::NetworkFailed, m_reply->errorString()};
}

void HttpTransfer::finish(const std::optional<UpdateError> &error)
{
    if (!m_handlers.finish)
        return;
    letGo();
    // The handler may destroy this.
    const auto handler = std::exchange(m_handlers.finish, nullptr);
    handler(error);
}

void HttpTransfer::letGo()
{
    if (m_reply == nullptr)
        return;
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    reply->disconnect(this);
    // Its end cancels it. To abort it now would cut it off in the middle of its own signal.
    reply->deleteLater();
}

} // namespace roamlet
