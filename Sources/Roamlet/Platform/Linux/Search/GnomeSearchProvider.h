// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/DesktopQuestions.h"

#include <QDBusContext>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace roamlet
{

/// What the overview of GNOME's Shell asks while its user types.
// The methods' names are the interface's.
// NOLINTBEGIN(readability-identifier-naming)
class GnomeSearchProvider final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell.SearchProvider2")

public:
    explicit GnomeSearchProvider(DesktopQuestions &questions) : m_questions(questions) {}

public Q_SLOTS:
    QStringList GetInitialResultSet(const QStringList &terms);
    /// A search of its own: what the Shell had found before may be no longer there, and there is nothing to
    /// gain by it.
    QStringList GetSubsearchResultSet(const QStringList &previous, const QStringList &terms);
    QList<QVariantMap> GetResultMetas(const QStringList &identifiers);
    void ActivateResult(const QString &identifier, const QStringList &terms, uint timestamp);
    /// Opens the main window with these words in its search field.
    void LaunchSearch(const QStringList &terms, uint timestamp);

private:
    DesktopQuestions &m_questions;
};
// NOLINTEND(readability-identifier-naming)

} // namespace roamlet
