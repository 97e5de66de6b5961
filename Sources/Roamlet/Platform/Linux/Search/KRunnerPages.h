// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/DesktopQuestions.h"
#include "Platform/Linux/Search/SearchTypes.h"

#include <QDBusContext>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace roamlet
{

/// What KDE's search box asks while its user types.
// The methods' names are the interface's.
// NOLINTBEGIN(readability-identifier-naming)
class KRunnerPages final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.krunner1")

public:
    /// `showAll` is what the user reads on the button that opens the main window.
    KRunnerPages(DesktopQuestions &questions, QString showAll);

public Q_SLOTS:
    QList<roamlet::KRunnerMatch> Match(const QString &query);
    QList<roamlet::KRunnerAction> Actions();
    void Run(const QString &matchId, const QString &actionId);
    QVariantMap Config();
    /// The search box was closed. What was read is kept for as long as somebody may come back.
    void Teardown() {}
    /// Comes right before Run.
    void SetActivationToken(const QString &token);

private:
    DesktopQuestions &m_questions;
    QString m_showAll;
    QString m_lastQuery;
    QString m_token;
};
// NOLINTEND(readability-identifier-naming)

} // namespace roamlet
