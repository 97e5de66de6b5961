// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/DocumentDownload.h"

#include "UpdatesTest.h"

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;

class DocumentDownloadTest : public UpdatesTest
{
protected:
    void start(const QString &path)
    {
        result.reset();
        download = std::make_unique<DocumentDownload>(
            network, clock, options, server.address(path), longest,
            [this](std::expected<DocumentDownload::Document, UpdateError> finished) {
                result = std::move(finished);
                download.reset();
            });
    }

    void fetch(const QString &path)
    {
        start(path);
        ASSERT_TRUE(settle([this] { return result.has_value(); }));
    }

    static constexpr qint64 longest = 1'000'000;
    std::unique_ptr<DocumentDownload> download;
    std::optional<std::expected<DocumentDownload::Document, UpdateError>> result;
};

TEST_F(DocumentDownloadTest, aDocumentArrivesAsItIs)
{
    const QByteArray body("\0\xff\r\n binary", 11);
    server.add(u"/x"_s, {.body = body, .headers = "Content-Type: text/plain\r\n"});
    fetch(u"/x"_s);
    ASSERT_TRUE(*result);
    EXPECT_EQ((*result)->content, body);
    EXPECT_EQ((*result)->head.contentType, u"text/plain"_s);
}

TEST_F(DocumentDownloadTest, aDocumentOfTheGreatestLengthArrives)
{
    server.add(u"/x"_s, {.body = QByteArray(1000, 'x'), .repetitions = 1000});
    fetch(u"/x"_s);
    ASSERT_TRUE(*result);
    EXPECT_EQ((*result)->content.size(), longest);
}

TEST_F(DocumentDownloadTest, anErrorIsHandedOn)
{
    fetch(u"/missing"_s);
    EXPECT_EQ(result->error(), (UpdateError{Code::ServerRefused, u"404"_s}));
}

TEST_F(DocumentDownloadTest, aHundredMegabytesEndBeforeTheyAreFetched)
{
    constexpr qint64 megabyte = 1'000'000;
    const QByteArray body(megabyte, 'x');
    for (const std::optional<qint64> claimed : {std::optional<qint64>(), std::optional<qint64>(-1)}) {
        const qint64 before = server.sent();
        server.add(u"/x"_s, {.body = body, .claimedLength = claimed, .repetitions = 100});
        fetch(u"/x"_s);
        EXPECT_EQ(result->error(), (UpdateError{Code::FeedTooLarge, {}}));
        EXPECT_LT(server.sent() - before, 20 * megabyte);
    }
}

TEST_F(DocumentDownloadTest, aServerThatDripsIsGivenUp)
{
    server.add(u"/x"_s, {.body = "x", .claimedLength = 10, .end = HttpServer::End::Hang});
    start(u"/x"_s);
    options.patience = 24h;
    ASSERT_TRUE(settle([this] { return server.requests(u"/x"_s) == 1; }));
    clock.advance(5min);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->error(), (UpdateError{Code::TimedOut, {}}));
}

} // namespace
} // namespace roamlet::testing
