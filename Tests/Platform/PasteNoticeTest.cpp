// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/PasteNotice.h"

#include "Support/SessionBus.h"
#include "Support/Waiting.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// The desktop's service for notices.
class NoticeService final : public QDBusVirtualObject
{
public:
    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        messages.append(message);
        bus.send(message.createReply(1U));
        return true;
    }

    QList<QDBusMessage> messages;
};

PasteNotice::Words wording(const QString &page)
{
    return {.title = u"Paste it"_s, .text = page % u" is on the clipboard"};
}

TEST(PasteNoticeTest, theAddressIsOnTheClipboardAndTheDesktopSaysSo)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    SessionBus bus;
    ASSERT_TRUE(bus.start());
    const QString address = bus.address();
    {
        NoticeService service;
        QDBusConnection desktop = QDBusConnection::connectToBus(address, u"desktop of notices"_s);
        ASSERT_TRUE(desktop.registerVirtualObject(u"/org/freedesktop/Notifications"_s, &service));
        ASSERT_TRUE(desktop.registerService(u"org.freedesktop.Notifications"_s));

        QString clipboard;
        PasteNotice notice(
            QDBusConnection::connectToBus(address, u"giver of notices"_s),
            [&clipboard](const QString &text) { clipboard = text; }, wording);
        notice.show(u"chrome://history/"_s);
        EXPECT_EQ(clipboard, u"chrome://history/");
        ASSERT_TRUE(waitUntil([&service] { return !service.messages.isEmpty(); }));
        const QDBusMessage message = service.messages.first();
        EXPECT_EQ(message.interface(), u"org.freedesktop.Notifications");
        EXPECT_EQ(message.member(), u"Notify");
        EXPECT_EQ(message.signature(), u"susssasa{sv}i");
        EXPECT_EQ(message.arguments().value(3), u"Paste it"_s);
        EXPECT_EQ(message.arguments().value(4), u"chrome://history/ is on the clipboard"_s);
    }
    QDBusConnection::disconnectFromBus(u"desktop of notices"_s);
    QDBusConnection::disconnectFromBus(u"giver of notices"_s);
}

TEST(PasteNoticeTest, withoutASessionBusTheAddressIsOnTheClipboard)
{
    QString clipboard;
    PasteNotice notice(
        QDBusConnection::connectToBus(u"unix:path=/nonexistent/bus"_s, u"no notices"_s),
        [&clipboard](const QString &text) { clipboard = text; }, wording);
    notice.show(u"chrome://history/"_s);
    EXPECT_EQ(clipboard, u"chrome://history/");
    QDBusConnection::disconnectFromBus(u"no notices"_s);
}

} // namespace
} // namespace roamlet::testing
