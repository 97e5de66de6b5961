// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/HttpTransfer.h"

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

} // namespace

bool HttpOptions::allows(const QUrl &address) const
{
    if (!address.isValid() || address.host().isEmpty())
        return false;
    if (address.scheme() == u"https")
        return true;
    return loopback == Loopback::Allowed && address.scheme() == u"http" &&
           QHostAddress(address.host()).isLoopback();
}

HttpTransfer::HttpTransfer(QNetworkAccessManager &network, const Clock &clock, HttpOptions options,
                           const QUrl &address, Handlers handlers, std::optional<Clock::Duration> limit)
    : m_clock(clock), m_options(std::move(options)), m_handlers(std::move(handlers))
{
    if (!m_options.allows(address)) {
        m_clock.after(Clock::Duration::zero(), this, [this, address] {
            finish(UpdateError{UpdateError::Code::InsecureAddress, address.toDisplayString()});
        });
        return;
    }
    send(network, address);
    watch();
    if (limit)
        m_clock.after(*limit, this, [this] { finish(UpdateError{UpdateError::Code::TimedOut, {}}); });
}

HttpTransfer::~HttpTransfer()
{
    letGo();
}

void HttpTransfer::send(QNetworkAccessManager &network, const QUrl &address)
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
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);

    m_reply = network.get(request);
    // What nobody has read yet stays with the server.
    m_reply->setReadBufferSize(4 * bytesPerPiece);
    connect(m_reply, &QNetworkReply::redirected, this, &HttpTransfer::follow);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpTransfer::readPieces);
    connect(m_reply, &QNetworkReply::finished, this, &HttpTransfer::complete);
}

void HttpTransfer::watch()
{
    m_hasHeardSomething = false;
    m_clock.after(m_options.patience, this, [this] {
        if (!m_reply)
            return;
        if (m_hasHeardSomething)
            watch();
        else
            finish(UpdateError{UpdateError::Code::TimedOut, {}});
    });
}

void HttpTransfer::follow(const QUrl &address)
{
    m_hasHeardSomething = true;
    if (m_options.allows(address))
        Q_EMIT m_reply->redirectAllowed();
    else
        finish(UpdateError{UpdateError::Code::InsecureAddress, address.toDisplayString()});
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
    while (m_reply && m_reply->bytesAvailable() > 0) {
        std::optional<UpdateError> error = begin();
        if (!error)
            error = m_handlers.receive(m_reply->read(bytesPerPiece));
        if (error)
            return finish(error);
    }
}

void HttpTransfer::complete()
{
    if (m_reply->error() != QNetworkReply::NoError)
        return finish(replyError());
    readPieces();
    // Reading may have ended it with an error.
    if (!m_reply)
        return;
    finish(begin());
}

UpdateError HttpTransfer::replyError() const
{
    switch (m_reply->error()) {
    case QNetworkReply::TooManyRedirectsError:
        return {UpdateError::Code::TooManyRedirects, {}};
    case QNetworkReply::InsecureRedirectError:
        return {UpdateError::Code::InsecureAddress, {}};
    default:
        if (const int status = statusOf(*m_reply); status >= firstRefusal)
            return {UpdateError::Code::ServerRefused, QString::number(status)};
        return {UpdateError::Code::NetworkFailed, m_reply->errorString()};
    }
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
    if (!m_reply)
        return;
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

} // namespace roamlet
