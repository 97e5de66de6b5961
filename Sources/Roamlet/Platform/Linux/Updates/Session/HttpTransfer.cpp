// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/HttpTransfer.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

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

UpdateError insecure(const QUrl &address)
{
    return {UpdateError::Code::InsecureAddress, address.toDisplayString()};
}

QNetworkRequest requestFor(const QUrl &address, const HttpOptions &options)
{
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader, options.userAgent);
    // Packed, a small answer could unfold to any size, and its length would say nothing.
    request.setRawHeader("Accept-Encoding", "identity");
    // Nobody needs to recognise us.
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // From encryption to none it never goes. The policy that asks for each redirect loses its way at the
    // second one (Qt 6.4).
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setTransferTimeout(static_cast<int>(options.patience.count()));
    return request;
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

HttpTransfer::HttpTransfer(QNetworkAccessManager &network, const HttpOptions &options, const QUrl &address,
                           Handlers handlers)
    : m_loopback(options.loopback), m_handlers(std::move(handlers))
{
    if (!isAllowed(address, m_loopback)) {
        QMetaObject::invokeMethod(this, [this, address] { finish(insecure(address)); }, Qt::QueuedConnection);
        return;
    }
    m_reply = network.get(requestFor(address, options));
    // What nobody has read yet stays with the server.
    m_reply->setReadBufferSize(4 * bytesPerPiece);
    connect(m_reply, &QNetworkReply::redirected, this, [this](const QUrl &target) {
        if (!isAllowed(target, m_loopback))
            finish(insecure(target));
    });
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpTransfer::readPieces);
    connect(m_reply, &QNetworkReply::finished, this, &HttpTransfer::complete);
}

HttpTransfer::~HttpTransfer()
{
    letGo();
}

std::unique_ptr<HttpTransfer>
HttpTransfer::document(QNetworkAccessManager &network, const HttpOptions &options, const QUrl &address,
                       qint64 longest, std::function<void(std::expected<Document, UpdateError>)> finish)
{
    const auto document = std::make_shared<Document>();
    const auto tooLarge = [longest](qint64 length) {
        return length > longest ? std::optional<UpdateError>({UpdateError::Code::FeedTooLarge, {}})
                                : std::nullopt;
    };
    auto transfer = std::make_unique<HttpTransfer>(
        network, options, address,
        Handlers{.begin =
                     [document, tooLarge](const Head &head) {
                         document->head = head;
                         return tooLarge(head.length.value_or(0));
                     },
                 .receive =
                     [document, tooLarge](const QByteArray &piece) {
                         document->content += piece;
                         return tooLarge(document->content.size());
                     },
                 .finish =
                     [document, finish = std::move(finish)](const std::optional<UpdateError> &error) {
                         if (error)
                             finish(std::unexpected(*error));
                         else
                             finish(std::move(*document));
                     }});
    QTimer::singleShot(options.documentTime, transfer.get(), [transfer = transfer.get()] {
        transfer->finish(UpdateError{UpdateError::Code::TimedOut, {}});
    });
    return transfer;
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
    const QString type = m_reply->header(QNetworkRequest::ContentTypeHeader).toString();
    head.contentType = type.section(u';', 0, 0).trimmed().toLower();
    head.address = m_reply->url();
    return m_handlers.begin(head);
}

void HttpTransfer::readPieces()
{
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
    switch (m_reply->error()) {
    case QNetworkReply::TooManyRedirectsError:
        return {UpdateError::Code::TooManyRedirects, {}};
    case QNetworkReply::ProtocolUnknownError:
    case QNetworkReply::InsecureRedirectError:
        // Qt itself refuses a redirect to what is no web page at all.
        return insecure(m_reply->header(QNetworkRequest::LocationHeader).toUrl());
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        // What we cancel is not heard any more, so this is Qt's own limit.
        return {UpdateError::Code::TimedOut, {}};
    default:
        break;
    }
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
