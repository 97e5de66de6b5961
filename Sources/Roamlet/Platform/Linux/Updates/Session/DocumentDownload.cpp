// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/DocumentDownload.h"

#include <utility>

namespace roamlet
{

namespace
{

/// A server that lets its bytes drip must not hold a check up for ever.
constexpr Clock::Duration longestTime = std::chrono::minutes(5);

std::optional<UpdateError> tooLargeBeyond(qint64 longest, qint64 length)
{
    if (length <= longest)
        return {};
    return UpdateError{UpdateError::Code::FeedTooLarge, {}};
}

} // namespace

DocumentDownload::DocumentDownload(QNetworkAccessManager &network, const Clock &clock,
                                   const HttpOptions &options, const QUrl &address, qint64 longest,
                                   Finish finish)
    : m_transfer(network, clock, options, address,
                 {.begin =
                      [this, longest](const HttpTransfer::Head &head) {
                          m_document.head = head;
                          return tooLargeBeyond(longest, head.length.value_or(0));
                      },
                  .receive =
                      [this, longest](const QByteArray &piece) {
                          m_document.content += piece;
                          return tooLargeBeyond(longest, m_document.content.size());
                      },
                  .finish =
                      [this, finish = std::move(finish)](const std::optional<UpdateError> &error) {
                          // Calling it destroys what this lambda holds.
                          const Finish report = finish;
                          if (error)
                              report(std::unexpected(*error));
                          else
                              report(std::move(m_document));
                      }},
                 longestTime)
{
}

} // namespace roamlet
