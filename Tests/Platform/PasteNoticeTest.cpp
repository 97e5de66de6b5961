// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/PasteNotice.h"

#include "Support/SessionBus.h"
#include "Support/Waiting.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <optional>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// The desktop's service for notices.
class NoticeService final : public QDBusVirtualObject
{
public:
    static constexpr uint number = 7;

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        messages.append(message);
        bus.send(message.createReply(number));
        return true;
    }

    QList<QDBusMessage> messages;
};

class PasteNoticeTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!SessionBus::isAvailable())
            GTEST_SKIP() << "dbus-daemon is not installed";
        ASSERT_TRUE(bus.start());
        desktop.emplace(QDBusConnection::connectToBus(bus.address(), u"desktop of notices"_s));
        ASSERT_TRUE(desktop->registerVirtualObject(path, &service));
        ASSERT_TRUE(desktop->registerService(name));
        notice.emplace(
            QDBusConnection::connectToBus(bus.address(), u"giver of notices"_s),
            [this](const QString &text) { copied.append(text); },
            [](const QString &page) {
                return PasteNotice::Words{
                    .title = u"Paste it"_s, .text = page % u" is to be pasted", .copy = u"Copy"_s};
            });
    }
    void TearDown() override
    {
        notice.reset();
        desktop.reset();
        QDBusConnection::disconnectFromBus(u"desktop of notices"_s);
        QDBusConnection::disconnectFromBus(u"giver of notices"_s);
    }

    bool show(const QString &page)
    {
        notice->show(page);
        return waitUntil([this] { return !service.messages.isEmpty(); });
    }
    /// The user clicks on a button of the notice with this number.
    void click(uint number, const QString &action) { send(u"ActionInvoked"_s, {number, action}); }
    void send(const QString &signal, const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createSignal(path, name, signal);
        message.setArguments(arguments);
        ASSERT_TRUE(desktop->send(message));
    }

    const QString name = u"org.freedesktop.Notifications"_s;
    const QString path = u"/org/freedesktop/Notifications"_s;
    SessionBus bus;
    NoticeService service;
    std::optional<QDBusConnection> desktop;
    std::optional<PasteNotice> notice;
    QStringList copied;
};

TEST_F(PasteNoticeTest, theDesktopNamesTheAddressAndOffersToCopyIt)
{
    ASSERT_TRUE(show(u"chrome://history/"_s));
    const QDBusMessage message = service.messages.first();
    EXPECT_EQ(message.interface(), name);
    EXPECT_EQ(message.member(), u"Notify");
    EXPECT_EQ(message.signature(), u"susssasa{sv}i");
    EXPECT_EQ(message.arguments().value(3), u"Paste it"_s);
    EXPECT_EQ(message.arguments().value(4), u"chrome://history/ is to be pasted"_s);
    EXPECT_EQ(message.arguments().value(5).toStringList(), (QStringList{u"copy"_s, u"Copy"_s}));
    EXPECT_EQ(copied, QStringList()) << "nobody has asked for it";
}

TEST_F(PasteNoticeTest, onlyItsOwnButtonPutsTheAddressOnTheClipboard)
{
    ASSERT_TRUE(show(u"chrome://history/"_s));
    click(NoticeService::number + 1, u"copy"_s);
    click(NoticeService::number, u"default"_s);
    click(NoticeService::number, u"copy"_s);
    ASSERT_TRUE(waitUntil([this] { return !copied.isEmpty(); }));
    EXPECT_EQ(copied, QStringList{u"chrome://history/"_s});
}

TEST_F(PasteNoticeTest, aNoticeThatIsGoneCopiesNothing)
{
    ASSERT_TRUE(show(u"chrome://history/"_s));
    click(NoticeService::number, u"copy"_s);
    send(u"NotificationClosed"_s, {NoticeService::number, 2U});
    click(NoticeService::number, u"copy"_s);
    service.messages.clear();
    ASSERT_TRUE(show(u"chrome://settings/"_s));
    click(NoticeService::number, u"copy"_s);
    ASSERT_TRUE(waitUntil([this] { return copied.contains(u"chrome://settings/"); }));
    EXPECT_EQ(copied, (QStringList{u"chrome://history/"_s, u"chrome://settings/"_s}));
}

TEST(PasteNotice, withoutASessionBusNothingHappens)
{
    QStringList copied;
    PasteNotice notice(
        QDBusConnection::connectToBus(u"unix:path=/nonexistent/bus"_s, u"no notices"_s),
        [&copied](const QString &text) { copied.append(text); },
        [](const QString &page) { return PasteNotice::Words{.title = page, .text = page, .copy = page}; });
    notice.show(u"chrome://history/"_s);
    EXPECT_EQ(copied, QStringList());
    QDBusConnection::disconnectFromBus(u"no notices"_s);
}

} // namespace
} // namespace roamlet::testing
