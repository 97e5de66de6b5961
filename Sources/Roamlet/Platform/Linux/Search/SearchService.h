// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Search/GnomeSearchProvider.h"
#include "Platform/Linux/Search/KRunnerPages.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <functional>

namespace roamlet
{

/// The name on the session's bus under which desktops find pages.
class SearchService final : public QObject
{
    Q_OBJECT

public:
    enum class Start {
        Answering, ///< from now on questions come in
        Taken,     ///< another process answers already
        NoBus,     ///< there is nobody who could ask
    };

    inline static const QString serviceName = QStringLiteral("org.roamlet.Roamlet.Search");
    inline static const QString gnomePath = QStringLiteral("/org/roamlet/Roamlet/Search/Gnome");
    inline static const QString kRunnerPath = QStringLiteral("/org/roamlet/Roamlet/Search/KRunner");

    /// `showAll`: see KRunnerPages. `busGone` is called when the session's bus has ended.
    SearchService(const QDBusConnection &bus, DesktopQuestions &questions, const QString &showAll,
                  std::function<void()> busGone);
    ~SearchService() override;

    Start start();
    /// Whoever asks from now on starts another process. Questions that have been sent are still answered.
    void release();

private Q_SLOTS:
    void busHasGone();

private:
    QDBusConnection m_bus;
    GnomeSearchProvider m_gnome;
    KRunnerPages m_kRunner;
    std::function<void()> m_busGone;
};

} // namespace roamlet
