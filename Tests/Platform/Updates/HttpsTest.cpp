// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/HttpTransfer.h"
#include "UpdatesTest.h"

#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <QStandardPaths>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using Code = UpdateError::Code;

/// A server with encryption, whose certificate the machine knows only where a test says so.
class HttpsTest : public UpdatesTest
{
protected:
    void SetUp() override
    {
        const QString program = QStandardPaths::findExecutable(u"openssl"_s);
        if (program.isEmpty() || !QSslSocket::supportsSsl())
            GTEST_SKIP() << "OpenSSL is not installed";
        QProcess openssl;
        openssl.setWorkingDirectory(folder.path());
        openssl.start(
            program,
            u"req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=127.0.0.1"
            " -addext subjectAltName=IP:127.0.0.1 -days 2 -keyout key.pem -out certificate.pem"_s.split(
                u' '));
        ASSERT_TRUE(openssl.waitForFinished());
        certificate = QSslCertificate(contentOf(folder.filePath(u"certificate.pem"_s)));
        const QSslKey key(contentOf(folder.filePath(u"key.pem"_s)), QSsl::Ec);
        ASSERT_FALSE(certificate.isNull() || key.isNull()) << openssl.readAllStandardError().constData();

        auto encrypted = std::make_unique<QSslServer>();
        QSslConfiguration configuration = before;
        configuration.setLocalCertificate(certificate);
        configuration.setPrivateKey(key);
        encrypted->setSslConfiguration(configuration);
        secureServer = std::make_unique<HttpServer>(std::move(encrypted));
        secureServer->add(u"/feed.xml"_s, {.body = "content"});
        options.loopback = HttpOptions::Loopback::Refused;
    }

    void TearDown() override
    {
        QSslConfiguration::setDefaultConfiguration(before);
        UpdatesTest::TearDown();
    }

    void trustTheServer() const
    {
        QSslConfiguration trusting = before;
        trusting.addCaCertificate(certificate);
        QSslConfiguration::setDefaultConfiguration(trusting);
    }

    std::expected<HttpTransfer::Document, UpdateError> fetch(const QString &path)
    {
        QUrl address = secureServer->address(path);
        address.setScheme(u"https"_s);
        std::optional<std::expected<HttpTransfer::Document, UpdateError>> result;
        const auto transfer =
            HttpTransfer::document(network, options, address, 1000,
                                   [&result](std::expected<HttpTransfer::Document, UpdateError> finished) {
                                       result = std::move(finished);
                                   });
        EXPECT_TRUE(settle([&] { return result.has_value(); }));
        return *result;
    }

    QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    QSslCertificate certificate;
    std::unique_ptr<HttpServer> secureServer;
};

TEST_F(HttpsTest, aServerThatIsVouchedForIsHeard)
{
    trustTheServer();
    const auto document = fetch(u"/feed.xml"_s);
    ASSERT_TRUE(document) << qPrintable(document.error().detail);
    EXPECT_EQ(document->content, "content");
}

TEST_F(HttpsTest, aServerThatNobodyVouchesForIsNotHeard)
{
    const auto document = fetch(u"/feed.xml"_s);
    ASSERT_FALSE(document);
    EXPECT_EQ(document.error().code, Code::NetworkFailed);
    EXPECT_FALSE(document.error().detail.isEmpty());
    EXPECT_EQ(secureServer->requests(u"/feed.xml"_s), 0);
}

TEST_F(HttpsTest, aRedirectToAnAddressWithoutEncryptionIsRefused)
{
    trustTheServer();
    server.add(u"/feed.xml"_s, {.body = "forged"});
    secureServer->redirect(u"/old.xml"_s, server.address(u"/feed.xml"_s).toString());
    const auto document = fetch(u"/old.xml"_s);
    ASSERT_FALSE(document);
    EXPECT_EQ(document.error().code, Code::InsecureAddress);
    EXPECT_EQ(server.requests(u"/feed.xml"_s), 0);
}

} // namespace
} // namespace roamlet::testing
