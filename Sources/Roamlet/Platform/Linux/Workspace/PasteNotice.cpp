// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/PasteNotice.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString noticeService = u"org.freedesktop.Notifications"_s;
const QString noticePath = u"/org/freedesktop/Notifications"_s;
const QString copyAction = u"copy"_s;

} // namespace

NoticeAnswers::NoticeAnswers(QDBusConnection bus, SetClipboard setClipboard)
    : m_setClipboard(std::move(setClipboard))
{
    if (!bus.isConnected())
        return;
    bus.connect(noticeService, noticePath, noticeService, u"ActionInvoked"_s, this,
                SLOT(answered(uint, QString)));
    bus.connect(noticeService, noticePath, noticeService, u"NotificationClosed"_s, this,
                SLOT(closed(uint, uint)));
}

void NoticeAnswers::answered(uint notice, const QString &action)
{
    // The desktop tells of the notices of all programs.
    const auto page = m_pages.constFind(notice);
    if (page != m_pages.cend() && action == copyAction)
        m_setClipboard(*page);
}

void NoticeAnswers::closed(uint notice, uint /*reason*/)
{
    m_pages.remove(notice);
}

PasteNotice::PasteNotice(const QDBusConnection &bus, SetClipboard setClipboard, Wording wording)
    : m_bus(bus),
      m_wording(std::move(wording)),
      m_answers(std::make_unique<NoticeAnswers>(bus, std::move(setClipboard)))
{
}

void PasteNotice::show(const QString &page)
{
    const Words words = m_wording(page);
    QDBusMessage message =
        QDBusMessage::createMethodCall(noticeService, noticePath, noticeService, u"Notify"_s);
    constexpr uint newNotice = 0;
    constexpr int untilTheDesktopSaysSo = -1;
    message << u"Roamlet"_s << newNotice << u"org.roamlet.Roamlet"_s << words.title << words.text
            << QStringList{copyAction, words.copy} << QVariantMap() << untilTheDesktopSaysSo;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), m_answers.get());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, m_answers.get(),
                     [answers = m_answers.get(), watcher, page] {
                         const QDBusPendingReply<uint> notice = *watcher;
                         if (notice.isValid())
                             answers->expect(notice.value(), page);
                         watcher->deleteLater();
                     });
}

} // namespace roamlet
