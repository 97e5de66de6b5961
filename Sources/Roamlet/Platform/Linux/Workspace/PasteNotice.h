// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QString>

#include <functional>

namespace roamlet
{

/// Tells the user to paste an address, where nobody else can put it into the browser.
class PasteNotice final
{
public:
    /// What the notice says about a page, in the user's language.
    struct Words {
        QString title;
        QString text;
    };
    using Wording = std::function<Words(const QString &page)>;
    using SetClipboard = std::function<void(const QString &text)>;

    PasteNotice(const QDBusConnection &bus, SetClipboard setClipboard, Wording wording);

    /// Puts the address on the clipboard and says so. Without a session bus it says nothing.
    void show(const QString &page);

private:
    QDBusConnection m_bus;
    SetClipboard m_setClipboard;
    Wording m_wording;
};

} // namespace roamlet
