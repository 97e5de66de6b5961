// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/PackageDownload.h"

#include "../FileSizeLimit.h"
#include "DebianPackage.h"
#include "UpdatesTest.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <future>
#include <thread>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;

class PackageDownloadTest : public UpdatesTest
{
protected:
    void SetUp() override
    {
        server.add(u"/x.deb"_s, {.body = content});
        package = {.address = server.address(u"/x.deb"_s),
                   .length = content.size(),
                   .signature = signer.signature(content),
                   .system = {}};
    }

    void start()
    {
        result.reset();
        const PackageDownload::Handlers handlers{
            .progress =
                [this](qint64 received, std::optional<qint64> total) {
                    progress.append(received);
                    lastTotal = total;
                },
            .verifying =
                [this] {
                    ++verifications;
                    EXPECT_FALSE(QFile::exists(target)) << "nothing has this name before it is checked";
                    beforeCheck();
                },
            .finish =
                [this](const std::optional<UpdateError> &error) {
                    result = Result{error};
                    download.reset();
                },
        };
        download =
            std::make_unique<PackageDownload>(network, checks, options, package, check, target, handlers);
    }

    /// The error that fetching ends in, or nothing. After an error there is nothing left.
    std::optional<UpdateError> fetch()
    {
        start();
        EXPECT_TRUE(settle([this] { return result.has_value(); }));
        const std::optional<UpdateError> error = result ? result->error : std::nullopt;
        if (error) {
            EXPECT_EQ(names(), QStringList());
        }
        return error;
    }

    struct Result {
        std::optional<UpdateError> error;
    };

    PackageSigner signer;
    QByteArray content =
        debianPackage("Package: roamlet\nVersion: 2.0-1\n", QByteArray("content ").repeated(200'000));
    PackageCheck check{.key = *PackageSignature::decodedKey(signer.publicKey()),
                       .signature = {},
                       .name = u"roamlet"_s,
                       .version = u"2.0"_s,
                       .installedVersion = u"1.0"_s};
    FeedItem::Package package;
    QString target = folder.filePath(u"Roamlet.deb"_s);
    BackgroundTasks checks;
    std::unique_ptr<PackageDownload> download;
    std::optional<Result> result;
    QList<qint64> progress;
    std::optional<qint64> lastTotal;
    int verifications = 0;
    std::function<void()> beforeCheck = [] {};
};

TEST_F(PackageDownloadTest, aRightPackageGetsItsName)
{
    EXPECT_EQ(fetch(), std::nullopt);
    EXPECT_EQ(contentOf(target), content);
    EXPECT_EQ(names(), QStringList{u"Roamlet.deb"_s});
    EXPECT_EQ(verifications, 1);
    EXPECT_EQ(QFile::permissions(target) & (QFile::ReadOther | QFile::WriteOther | QFile::ReadGroup),
              QFile::Permissions());
}

TEST_F(PackageDownloadTest, progressGrowsUpToTheWholePackage)
{
    EXPECT_EQ(fetch(), std::nullopt);
    ASSERT_FALSE(progress.isEmpty());
    EXPECT_TRUE(std::ranges::is_sorted(progress));
    EXPECT_EQ(progress.last(), content.size());
    EXPECT_EQ(lastTotal, content.size());
}

TEST_F(PackageDownloadTest, withoutALengthInTheFeedTheSignatureDecides)
{
    package.length = {};
    EXPECT_EQ(fetch(), std::nullopt);
    EXPECT_EQ(lastTotal, content.size()) << "as the server says";
    server.add(u"/x.deb"_s, {.body = content, .claimedLength = -1});
    EXPECT_EQ(fetch(), std::nullopt);
    EXPECT_EQ(lastTotal, std::nullopt);
    EXPECT_EQ(contentOf(target), content);
}

TEST_F(PackageDownloadTest, aWrongSignatureIsRefusedAndThePackageDeleted)
{
    package.signature = signer.signature("another package");
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongSignature, {}}));
    package.signature = PackageSigner(2).signature(content);
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongSignature, {}}));
}

TEST_F(PackageDownloadTest, oneChangedByteIsRefused)
{
    QByteArray changed = content;
    changed[content.size() - 1] = '!';
    server.add(u"/x.deb"_s, {.body = changed});
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongSignature, {}}));
}

TEST_F(PackageDownloadTest, aSignedPackageThatIsNotTheAnnouncedOneIsRefusedAndDeleted)
{
    content = debianPackage("Package: roamlet\nVersion: 1.5-1\n");
    server.add(u"/x.deb"_s, {.body = content});
    package.length = content.size();
    package.signature = signer.signature(content);
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongPackage, u"roamlet 1.5-1"_s}));
}

TEST_F(PackageDownloadTest, aPackageWithoutASignatureIsNotEvenFetched)
{
    for (const QByteArray &signature : {QByteArray(), QByteArray("no signature"), QByteArray("AAAA")}) {
        package.signature = signature;
        EXPECT_EQ(fetch(), (UpdateError{Code::PackageUnsigned, {}}));
    }
    EXPECT_EQ(server.requests(u"/x.deb"_s), 0);
}

TEST_F(PackageDownloadTest, aWrongLengthIsRefused)
{
    package.length = content.size() + 1;
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongLength, {}}));
    package.length = content.size() - 1;
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongLength, {}}));
    EXPECT_TRUE(progress.isEmpty()) << "the server said so before";
    // Where the server says nothing, it shows while it comes or at the end.
    server.add(u"/x.deb"_s, {.body = content, .claimedLength = -1});
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongLength, {}}));
    package.length = content.size() + 1;
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongLength, {}}));
    EXPECT_EQ(verifications, 0);
}

TEST_F(PackageDownloadTest, aTruncatedPackageIsRefused)
{
    server.add(u"/x.deb"_s, {.body = content.first(1000), .claimedLength = content.size()});
    EXPECT_EQ(fetch()->code, Code::NetworkFailed) << "whatever the length";
    server.add(u"/x.deb"_s, {});
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongLength, {}}));
}

TEST_F(PackageDownloadTest, aPackageWithoutAnEndIsStopped)
{
    const QByteArray megabyte(1'000'000, 'x');
    server.add(u"/x.deb"_s, {.body = megabyte, .claimedLength = -1, .repetitions = 1'000'000});
    EXPECT_EQ(fetch(), (UpdateError{Code::WrongLength, {}}));
    EXPECT_LT(server.sent(), 30 * megabyte.size());
}

TEST_F(PackageDownloadTest, aPackageOfAnAbsurdSizeIsNotFetched)
{
    package.length = qint64{1} << 40U;
    EXPECT_EQ(fetch(), (UpdateError{Code::PackageTooLarge, {}}));
    EXPECT_EQ(server.requests(u"/x.deb"_s), 0);
    package.length = {};
    server.add(u"/x.deb"_s, {.claimedLength = qint64{1} << 40U, .end = HttpServer::End::Hang});
    // Nothing but the head comes.
    server.add(u"/x.deb"_s, {.body = "x", .claimedLength = qint64{1} << 40U, .end = HttpServer::End::Hang});
    EXPECT_EQ(fetch(), (UpdateError{Code::PackageTooLarge, {}}));
}

TEST_F(PackageDownloadTest, aServerThatFallsSilentTimesOut)
{
    server.add(u"/x.deb"_s,
               {.body = content.first(1000), .claimedLength = content.size(), .end = HttpServer::End::Hang});
    options.patience = 50ms;
    EXPECT_EQ(fetch(), (UpdateError{Code::TimedOut, {}}));
    EXPECT_EQ(progress, QList<qint64>{1000});
}

TEST_F(PackageDownloadTest, aDownloadThatIsCancelledLeavesNothing)
{
    server.add(u"/x.deb"_s,
               {.body = content.first(1000), .claimedLength = content.size(), .end = HttpServer::End::Hang});
    start();
    ASSERT_TRUE(settle([this] { return progress.contains(1000); }));
    EXPECT_EQ(names(), QStringList{u"Roamlet.deb.part"_s});
    download.reset();
    EXPECT_EQ(names(), QStringList());
    EXPECT_FALSE(result);
}

TEST_F(PackageDownloadTest, aCheckThatIsCancelledLeavesNothing)
{
    start();
    ASSERT_TRUE(settle([this] { return verifications == 1; }));
    // Its end may be on the way already; it must not be heard any more.
    download.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(result);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(PackageDownloadTest, aCheckThatIsCancelledIsNotWaitedFor)
{
    // A pipe in the package's place holds the check up for as long as nobody opens its other end.
    const QString pipe = folder.filePath(u"pipe"_s);
    const QByteArray pipeName = QFile::encodeName(pipe);
    beforeCheck = [&] {
        ASSERT_EQ(::mkfifo(pipeName.constData(), S_IRUSR | S_IWUSR), 0);
        ASSERT_TRUE(QFile::remove(target % u".part"));
        ASSERT_EQ(::link(pipeName.constData(), QFile::encodeName(target % u".part").constData()), 0);
    };
    start();
    ASSERT_TRUE(settle([this] { return verifications == 1; }));
    std::promise<void> cancelled;
    bool isWaitedFor = false;
    std::jthread end([&, isCancelled = cancelled.get_future()] {
        isWaitedFor = isCancelled.wait_for(patience) == std::future_status::timeout;
        ::close(::open(pipeName.constData(), O_RDWR));
    });
    download.reset();
    cancelled.set_value();
    end.join();
    EXPECT_FALSE(isWaitedFor);
    EXPECT_FALSE(QFile::exists(target % u".part"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(result);
}

TEST_F(PackageDownloadTest, aFolderThatIsNoneIsAnErrorInTheSystemsWords)
{
    target = folder.filePath(u"missing/Roamlet.deb"_s);
    const auto error = fetch();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, Code::CannotWrite);
    EXPECT_FALSE(error->detail.isEmpty());
    EXPECT_EQ(server.requests(u"/x.deb"_s), 0) << "it shows before anything is fetched";
}

TEST_F(PackageDownloadTest, aFullDiskIsAnErrorInTheSystemsWords)
{
    const FileSizeLimit limit(100'000);
    const auto error = fetch();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, Code::CannotWrite);
    EXPECT_FALSE(error->detail.isEmpty());
}

TEST_F(PackageDownloadTest, whatAnEarlierDownloadLeftIsReplaced)
{
    write(target, "an earlier version");
    write(target % u".part", "half of an earlier version");
    EXPECT_EQ(fetch(), std::nullopt);
    EXPECT_EQ(contentOf(target), content);
    EXPECT_EQ(names(), QStringList{u"Roamlet.deb"_s});
}

TEST_F(PackageDownloadTest, aLinkThatSomebodyLaidIsNotFollowed)
{
    const QString precious = folder.filePath(u"precious"_s);
    write(precious, "precious");
    ASSERT_TRUE(QFile::link(precious, target % u".part"));
    EXPECT_EQ(fetch(), std::nullopt);
    EXPECT_EQ(contentOf(precious), "precious");
    EXPECT_EQ(contentOf(target), content);
}

} // namespace
} // namespace roamlet::testing
