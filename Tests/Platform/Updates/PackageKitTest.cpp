// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "FeedUpdateDriverTest.h"
#include "Support/SessionBus.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;
using Choice = UpdateUserInterface::Choice;

const QString transactionPath = u"/12_abcdef"_s;
const QString transactionInterface = u"org.freedesktop.PackageKit.Transaction"_s;

/// The system's service for packages, as far as a test lets it work.
class FakePackageKit final : public QDBusVirtualObject
{
public:
    explicit FakePackageKit(const QDBusConnection &ownBus) : bus(ownBus) {}

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection & /*bus*/) override
    {
        calls.append(message.member());
        if (message.member() == u"CreateTransaction" && isWilling) {
            bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(transactionPath))));
        } else if (message.member() == u"SetHints") {
            hints = message.arguments().value(0).toStringList();
            bus.send(message.createReply());
        } else if (message.member() == u"InstallFiles") {
            flags = message.arguments().value(0);
            files = message.arguments().value(1).toStringList();
            mayAsk = message.isInteractiveAuthorizationAllowed();
            if (install)
                install(message);
        }
        return true;
    }

    void tell(const QString &name, const QVariantList &arguments,
              const QString &interface = transactionInterface)
    {
        QDBusMessage signal = QDBusMessage::createSignal(transactionPath, interface, name);
        signal.setArguments(arguments);
        bus.send(signal);
    }
    void tellPercentage(uint value)
    {
        tell(u"PropertiesChanged"_s,
             {transactionInterface, QVariantMap{{u"Percentage"_s, value}}, QStringList()},
             u"org.freedesktop.DBus.Properties"_s);
    }
    void end(uint status) { tell(u"Finished"_s, {status, 1000U}); }
    /// Fails each installation with this.
    void failWith(uint error, const QString &words)
    {
        install = [this, error, words](const QDBusMessage &message) {
            bus.send(message.createReply());
            tell(u"ErrorCode"_s, {error, words});
            end(2);
        };
    }
    void refuseWith(const QString &error)
    {
        install = [this, error](const QDBusMessage &message) {
            bus.send(message.createErrorReply(error, u"no and no"_s));
        };
    }

    QDBusConnection bus;
    bool isWilling = true;
    std::function<void(const QDBusMessage &)> install;
    QStringList calls;
    QStringList hints;
    QVariant flags;
    QStringList files;
    bool mayAsk = false;
};

class PackageKitTest : public FeedUpdateDriverTest
{
protected:
    void SetUp() override
    {
        if (!SessionBus::isAvailable())
            GTEST_SKIP() << "dbus-daemon is not installed";
        FeedUpdateDriverTest::SetUp();
        write(program, "version 1.0");
        ASSERT_TRUE(daemon.start());
        systemBus = QDBusConnection::connectToBus(daemon.address(), u"program"_s);
        service =
            std::make_unique<FakePackageKit>(QDBusConnection::connectToBus(daemon.address(), u"service"_s));
        ASSERT_TRUE(service->bus.registerVirtualObject(u"/"_s, service.get(), QDBusConnection::SubPath));
        ASSERT_TRUE(service->bus.registerService(u"org.freedesktop.PackageKit"_s));
    }
    void TearDown() override
    {
        driver.reset();
        FeedUpdateDriverTest::TearDown();
        QDBusConnection::disconnectFromBus(u"program"_s);
        QDBusConnection::disconnectFromBus(u"service"_s);
    }

    /// What an installation comes to.
    QString install()
    {
        open();
        check(u"attention 2.0"_s);
        events.clear();
        windows.choose(Choice::Install);
        EXPECT_TRUE(settle([this] { return events.size() > 3; })) << qPrintable(events.join(u", "));
        EXPECT_EQ(events.first(3), (QStringList{u"download"_s, u"verifying"_s, u"installing"_s}));
        return events.mid(3).join(u", ");
    }
    /// As dpkg does it.
    void replaceProgram() const
    {
        write(program % u".dpkg-new", "version 2.0");
        ASSERT_EQ(std::rename(QFile::encodeName(program % u".dpkg-new").constData(),
                              QFile::encodeName(program).constData()),
                  0);
    }
    bool isPackageKept() const { return QFile::exists(folder.filePath(u"packages/Roamlet.deb"_s)); }

    SessionBus daemon;
    std::unique_ptr<FakePackageKit> service;
};

TEST_F(PackageKitTest, theSystemInstallsTheUpdate)
{
    QByteArray seen;
    service->install = [&](const QDBusMessage &message) {
        seen = contentOf(service->files.value(0));
        service->bus.send(message.createReply());
        service->tellPercentage(40);
        service->tellPercentage(101);
        replaceProgram();
        service->end(1);
    };
    EXPECT_EQ(install(), u"installed"_s);
    EXPECT_EQ(seen, package);
    EXPECT_EQ(service->calls, (QStringList{u"CreateTransaction"_s, u"SetHints"_s, u"InstallFiles"_s}));
    EXPECT_EQ(service->flags, QVariant::fromValue(qulonglong{0}));
    EXPECT_TRUE(service->hints.contains(u"interactive=true"_s));
    EXPECT_TRUE(service->mayAsk) << "for the password";
    EXPECT_EQ(windows.installProgress, (QList<std::optional<int>>{40, std::nullopt}));
    EXPECT_EQ(opened, QByteArray()) << "nobody else is asked";
    EXPECT_FALSE(isPackageKept());
    windows.acknowledge();
    EXPECT_EQ(events.mid(4), (QStringList{u"close"_s, u"finish"_s}));
}

TEST_F(PackageKitTest, aServiceThatDidNothingIsNoSuccess)
{
    service->install = [this](const QDBusMessage &message) {
        service->bus.send(message.createReply());
        service->end(1);
    };
    EXPECT_EQ(install(), u"error"_s);
    EXPECT_EQ(windows.error, (UpdateError{Code::CannotInstall, {}}));
}

TEST_F(PackageKitTest, aProgramThatWasReplacedDuringTheDownloadIsNotReplacedAgain)
{
    open();
    check(u"attention 2.0"_s);
    windows.onProgress = [this, isReplaced = false]() mutable {
        if (!std::exchange(isReplaced, true))
            replaceProgram();
    };
    windows.choose(Choice::Install);
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::RestartNeeded, {}}));
    EXPECT_EQ(service->calls, QStringList());
}

TEST_F(PackageKitTest, aPermissionThatIsNotGivenIsNoSuccess)
{
    service->failWith(48, u"Failed to obtain authentication."_s);
    EXPECT_EQ(install(), u"error"_s);
    EXPECT_EQ(windows.error, (UpdateError{Code::InstallRefused, {}}));
    EXPECT_EQ(opened, QByteArray()) << "nobody is asked twice";
}

TEST_F(PackageKitTest, aQuestionThatIsCancelledIsNoSuccess)
{
    service->install = [this](const QDBusMessage &message) {
        service->bus.send(message.createReply());
        service->end(3);
    };
    EXPECT_EQ(install(), u"error"_s);
    EXPECT_EQ(windows.error, (UpdateError{Code::InstallRefused, {}}));
}

TEST_F(PackageKitTest, whatThePolicyForbidsIsNoSuccess)
{
    service->refuseWith(u"org.freedesktop.PackageKit.Transaction.RefusedByPolicy"_s);
    EXPECT_EQ(install(), u"error"_s);
    EXPECT_EQ(windows.error, (UpdateError{Code::InstallRefused, {}}));
}

TEST_F(PackageKitTest, aFailureIsToldInTheServicesWords)
{
    service->failWith(29, u"dpkg says no"_s);
    EXPECT_EQ(install(), u"error"_s);
    EXPECT_EQ(windows.error, (UpdateError{Code::CannotInstall, u"dpkg says no"_s}));
    EXPECT_EQ(opened, QByteArray());
}

TEST_F(PackageKitTest, aCallThatFailsIsToldInTheServicesWords)
{
    service->refuseWith(u"org.freedesktop.PackageKit.Transaction.PackInvalid"_s);
    EXPECT_EQ(install(), u"error"_s);
    EXPECT_EQ(windows.error, (UpdateError{Code::CannotInstall, u"no and no"_s}));
}

TEST_F(PackageKitTest, aServiceThatTakesNoFilesLeavesThemToTheDesktop)
{
    service->refuseWith(u"org.freedesktop.PackageKit.Transaction.MimeTypeNotSupported"_s);
    EXPECT_EQ(install(), u"open Roamlet.deb, handed over"_s);
    windows.acknowledge();
    service->failWith(3, u"not here"_s);
    EXPECT_EQ(install(), u"open Roamlet.deb, handed over"_s);
    EXPECT_TRUE(isPackageKept());
}

TEST_F(PackageKitTest, aSystemWithoutTheServiceLeavesItToTheDesktop)
{
    service->bus.unregisterService(u"org.freedesktop.PackageKit"_s);
    EXPECT_EQ(install(), u"open Roamlet.deb, handed over"_s);
}

TEST_F(PackageKitTest, aServiceThatNeverAnswersLeavesItToTheDesktop)
{
    service->isWilling = false;
    servicePatience = 50ms;
    EXPECT_EQ(install(), u"open Roamlet.deb, handed over"_s);
}

TEST_F(PackageKitTest, whileTheServiceIsSilentTheUserCanCancel)
{
    open();
    check(u"attention 2.0"_s);
    windows.choose(Choice::Install);
    ASSERT_TRUE(settle([this] { return service->calls.contains(u"InstallFiles"_s); }));
    windows.cancel();
    EXPECT_EQ(events.last(2), (QStringList{u"close"_s, u"finish"_s}));
    ASSERT_TRUE(settle([this] { return service->calls.last() == u"Cancel"; }));
    service->end(3);
    EXPECT_EQ(events.last(), u"finish"_s);
}

TEST_F(PackageKitTest, aServiceThatGoesAwayIsAFailure)
{
    service->install = [this](const QDBusMessage &message) {
        service->bus.send(message.createReply());
        QDBusConnection::disconnectFromBus(u"service"_s);
        service->bus = QDBusConnection(u"no bus"_s);
    };
    EXPECT_EQ(install(), u"error"_s);
    EXPECT_EQ(windows.error.code, Code::CannotInstall);
}

} // namespace
} // namespace roamlet::testing
