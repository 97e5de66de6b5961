// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace roamlet
{

/// What the user answers to notices.
class NoticeAnswers final : public QObject
{
    Q_OBJECT

public:
    using SetClipboard = std::function<void(const QString &text)>;

    NoticeAnswers(QDBusConnection bus, SetClipboard setClipboard);

    /// From now on, the notice with this number can put this address on the clipboard.
    void expect(uint notice, const QString &page) { m_pages.insert(notice, page); }

public Q_SLOTS:
    void answered(uint notice, const QString &action);
    void closed(uint notice, uint reason);

private:
    SetClipboard m_setClipboard;
    QHash<uint, QString> m_pages;
};

/// Tells the user to paste an address, where nobody else can put it into the browser.
class PasteNotice final
{
public:
    /// What the notice says about a page, in the user's language.
    struct Words {
        QString title;
        QString text;
        /// On the button that puts the address on the clipboard.
        QString copy;
    };
    using Wording = std::function<Words(const QString &page)>;
    using SetClipboard = NoticeAnswers::SetClipboard;

    PasteNotice(const QDBusConnection &bus, SetClipboard setClipboard, Wording wording);

    /// Says which address it is, and offers to put it on the clipboard. What the user has there stays until
    /// then. Without a session bus it says nothing.
    void show(const QString &page);

private:
    QDBusConnection m_bus;
    Wording m_wording;
    std::unique_ptr<NoticeAnswers> m_answers;
};

} // namespace roamlet
