// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace roamlet
{

/// The words of the windows, and of what desktops show of ours, in the user's language, as long as it lives.
/// The command line has none of these: scripts read it.
class Translations final
{
public:
    /// Takes the first of the user's languages, such as QLocale::uiLanguages gives them, that there is.
    explicit Translations(const QStringList &userLanguages);
    ~Translations();
    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;

    /// The languages that Roamlet is translated to, named as their files are: "de", "pt_BR".
    static QStringList available();
    /// Which of the languages suits, or nothing where that is English, in which the program is written.
    static QString chosen(const QStringList &userLanguages, const QStringList &available);

private:
    /// Of the toolkit's own buttons and dialogs.
    QTranslator m_toolkit;
    QTranslator m_own;
};

} // namespace roamlet
