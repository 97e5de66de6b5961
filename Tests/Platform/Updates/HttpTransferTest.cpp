// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/HttpTransfer.h"

#include "UpdatesTest.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;

class HttpTransferTest : public UpdatesTest
{
protected:
    void start(const QUrl &address)
    {
        transfer = std::make_unique<HttpTransfer>(network, options, address,
                                                  HttpTransfer::Handlers{
                                                      .begin =
                                                          [this](const HttpTransfer::Head &begun) {
                                                              ++begins;
                                                              head = begun;
                                                              return refusal;
                                                          },
                                                      .receive =
                                                          [this](const QByteArray &piece) {
                                                              received += piece;
                                                              return std::optional<UpdateError>();
                                                          },
                                                      .finish =
                                                          [this](const std::optional<UpdateError> &ended) {
                                                              ++finishes;
                                                              error = ended;
                                                              transfer.reset();
                                                          },
                                                  });
    }

    /// The error that fetching ends in, or nothing.
    std::optional<UpdateError> fetch(const QUrl &address)
    {
        start(address);
        EXPECT_TRUE(settle([this] { return finishes > 0; }));
        EXPECT_EQ(finishes, 1);
        return error;
    }
    std::optional<UpdateError> fetch(const QString &path) { return fetch(server.address(path)); }

    std::unique_ptr<HttpTransfer> transfer;
    std::optional<UpdateError> refusal;
    HttpTransfer::Head head;
    QByteArray received;
    std::optional<UpdateError> error;
    int begins = 0;
    int finishes = 0;
};

TEST_F(HttpTransferTest, anAnswerArrivesWithItsHead)
{
    server.add(u"/x"_s, {.body = "content", .headers = "Content-Type: Text/HTML; charset=utf-8\r\n"});
    EXPECT_EQ(fetch(u"/x"_s), std::nullopt);
    EXPECT_EQ(received, "content");
    EXPECT_EQ(begins, 1);
    EXPECT_EQ(head.length, 7);
    EXPECT_EQ(head.contentType, u"text/html"_s);
    EXPECT_EQ(head.address, server.address(u"/x"_s));
}

TEST_F(HttpTransferTest, aRequestTellsNoMoreThanTheProgram)
{
    server.add(u"/x"_s, {.body = "content", .headers = "Set-Cookie: id=1\r\n"});
    EXPECT_EQ(fetch(u"/x"_s), std::nullopt);
    finishes = 0;
    EXPECT_EQ(fetch(u"/x"_s), std::nullopt);
    EXPECT_THAT(server.lastRequest().toStdString(), ::testing::HasSubstr("User-Agent: Roamlet/1.0\r\n"));
    EXPECT_THAT(server.lastRequest().toStdString(), ::testing::HasSubstr("Accept-Encoding: identity\r\n"));
    EXPECT_THAT(server.lastRequest().toStdString(), ::testing::Not(::testing::HasSubstr("ookie")));
}

TEST_F(HttpTransferTest, anEmptyAnswerIsAnAnswer)
{
    server.add(u"/x"_s, {});
    EXPECT_EQ(fetch(u"/x"_s), std::nullopt);
    EXPECT_EQ(received, "");
    EXPECT_EQ(begins, 1);
}

TEST_F(HttpTransferTest, aStatusThatIsNoSuccessIsAnError)
{
    for (const QByteArray status : {"404 Not Found", "500 Oops", "503 Later", "204 No Content", "206 Partial",
                                    "401 Unauthorized", "304 Not Modified"}) {
        finishes = 0;
        const bool hasBody = !status.startsWith("204") && !status.startsWith("304");
        server.add(u"/x"_s, {.body = hasBody ? "a page" : "", .status = status});
        EXPECT_EQ(fetch(u"/x"_s), (UpdateError{Code::ServerRefused, QString::fromLatin1(status.first(3))}));
        EXPECT_EQ(received, "") << status.constData();
        EXPECT_EQ(begins, 0);
    }
}

TEST_F(HttpTransferTest, nobodyListeningIsAnErrorInTheSystemsWords)
{
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost);
    const QUrl address(u"http://127.0.0.1:"_s % QString::number(closed.serverPort()) % u"/");
    closed.close();
    const auto result = fetch(address);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->code, Code::NetworkFailed);
    EXPECT_FALSE(result->detail.isEmpty());
}

TEST_F(HttpTransferTest, anAnswerThatStopsTooEarlyIsAnError)
{
    server.add(u"/x"_s, {.body = "half", .claimedLength = 8});
    const auto result = fetch(u"/x"_s);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->code, Code::NetworkFailed);
}

TEST_F(HttpTransferTest, onlyEncryptedAddressesAreFetched)
{
    HttpOptions strict;
    EXPECT_TRUE(isAllowed(QUrl(u"https://example.org/feed.xml"_s), strict.loopback));
    for (const QString &address :
         {u"http://example.org/"_s, u"ftp://example.org/"_s, u"file:///etc/passwd"_s, u"https:///x"_s,
          QString(), u"feed.xml"_s, u"data:text/plain,x"_s, u"http://127.0.0.1/"_s, u"qrc:/Info.plist"_s})
        EXPECT_FALSE(isAllowed(QUrl(address), strict.loopback)) << qPrintable(address);
    for (const QString &address : {u"http://example.org/"_s, u"http://127.0.0.1.example.org/"_s,
                                   u"ftp://127.0.0.1/"_s, u"file:///etc/passwd"_s})
        EXPECT_FALSE(isAllowed(QUrl(address), options.loopback)) << qPrintable(address);

    options = strict;
    EXPECT_EQ(fetch(u"/x"_s)->code, Code::InsecureAddress);
    EXPECT_EQ(server.requests(u"/x"_s), 0);
}

TEST_F(HttpTransferTest, aRedirectIsFollowed)
{
    server.redirect(u"/old"_s, u"/new"_s);
    server.add(u"/new"_s, {.body = "content"});
    EXPECT_EQ(fetch(u"/old"_s), std::nullopt);
    EXPECT_EQ(received, "content");
    EXPECT_EQ(head.address, server.address(u"/new"_s));
}

TEST_F(HttpTransferTest, aRedirectInCirclesEnds)
{
    server.redirect(u"/a"_s, u"/b"_s);
    server.redirect(u"/b"_s, u"/a"_s);
    EXPECT_EQ(fetch(u"/a"_s), (UpdateError{Code::TooManyRedirects, {}}));
    EXPECT_LT(server.requests(u"/a"_s) + server.requests(u"/b"_s), 10);
}

TEST_F(HttpTransferTest, aRedirectToAnAddressWithoutEncryptionIsRefused)
{
    for (const QString &target :
         {u"http://updates.example.org/feed.xml"_s, u"ftp://127.0.0.1/x"_s, u"file:///etc/passwd"_s}) {
        finishes = 0;
        server.redirect(u"/x"_s, target);
        EXPECT_EQ(fetch(u"/x"_s), (UpdateError{Code::InsecureAddress, target}));
        EXPECT_EQ(received, "");
    }
}

TEST_F(HttpTransferTest, aServerThatNeverAnswersTimesOut)
{
    options.patience = 50ms;
    server.add(u"/x"_s, {.claimedLength = 10, .end = HttpServer::End::Hang});
    EXPECT_EQ(fetch(u"/x"_s), (UpdateError{Code::TimedOut, {}}));
    EXPECT_EQ(server.requests(u"/x"_s), 1);
}

TEST_F(HttpTransferTest, aServerThatFallsSilentTimesOut)
{
    options.patience = 50ms;
    server.add(u"/x"_s, {.body = "a little", .claimedLength = 100, .end = HttpServer::End::Hang});
    EXPECT_EQ(fetch(u"/x"_s), (UpdateError{Code::TimedOut, {}}));
    EXPECT_EQ(received, "a little");
}

TEST_F(HttpTransferTest, whoeverDoesNotLikeTheHeadEndsIt)
{
    server.add(u"/x"_s, {.body = "content"});
    refusal = UpdateError{Code::FeedTooLarge, {}};
    EXPECT_EQ(fetch(u"/x"_s), refusal);
    EXPECT_EQ(received, "");
}

/// Short texts, in memory.
class DocumentTest : public UpdatesTest
{
protected:
    std::expected<HttpTransfer::Document, UpdateError> fetch(const QString &path)
    {
        std::optional<std::expected<HttpTransfer::Document, UpdateError>> result;
        std::unique_ptr<HttpTransfer> transfer;
        transfer = HttpTransfer::document(network, options, server.address(path), longest,
                                          [&](std::expected<HttpTransfer::Document, UpdateError> finished) {
                                              result = std::move(finished);
                                              transfer.reset();
                                          });
        EXPECT_TRUE(settle([&result] { return result.has_value(); }));
        return *result;
    }

    static constexpr qint64 longest = 1'000'000;
};

TEST_F(DocumentTest, aDocumentArrivesAsItIs)
{
    const QByteArray body("\0\xff\r\n binary", 11);
    server.add(u"/x"_s, {.body = body, .headers = "Content-Type: text/plain\r\n"});
    const auto document = fetch(u"/x"_s);
    ASSERT_TRUE(document);
    EXPECT_EQ(document->content, body);
    EXPECT_EQ(document->head.contentType, u"text/plain"_s);
}

TEST_F(DocumentTest, aDocumentOfTheGreatestLengthArrives)
{
    server.add(u"/x"_s, {.body = QByteArray(1000, 'x'), .repetitions = 1000});
    const auto document = fetch(u"/x"_s);
    ASSERT_TRUE(document);
    EXPECT_EQ(document->content.size(), longest);
}

TEST_F(DocumentTest, anErrorIsHandedOn)
{
    EXPECT_EQ(fetch(u"/missing"_s).error(), (UpdateError{Code::ServerRefused, u"404"_s}));
}

TEST_F(DocumentTest, aHundredMegabytesEndBeforeTheyAreFetched)
{
    constexpr qint64 megabyte = 1'000'000;
    const QByteArray body(megabyte, 'x');
    for (const std::optional<qint64> claimed : {std::optional<qint64>(), std::optional<qint64>(-1)}) {
        const qint64 before = server.sent();
        server.add(u"/x"_s, {.body = body, .claimedLength = claimed, .repetitions = 100});
        EXPECT_EQ(fetch(u"/x"_s).error(), (UpdateError{Code::FeedTooLarge, {}}));
        EXPECT_LT(server.sent() - before, 20 * megabyte);
    }
}

TEST_F(DocumentTest, dripsDoNotKeepItAlive)
{
    options.documentTime = 50ms;
    server.add(u"/x"_s, {.body = "x", .claimedLength = 10, .end = HttpServer::End::Hang});
    EXPECT_EQ(fetch(u"/x"_s).error(), (UpdateError{Code::TimedOut, {}}));
}

TEST_F(HttpTransferTest, aTransferThatIsDestroyedSaysNothingMore)
{
    server.add(u"/x"_s, {.body = "content"});
    start(server.address(u"/x"_s));
    transfer.reset();
    server.add(u"/y"_s, {.body = "other"});
    EXPECT_EQ(fetch(u"/y"_s), std::nullopt);
    EXPECT_EQ(received, "other");
}

} // namespace
} // namespace roamlet::testing
