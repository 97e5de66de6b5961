// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace roamlet
{

class UserDefaults;

/// Which profiles the user wants to see, and in what order. Both stand in the settings, which are read once.
class ProfileChoice
{
public:
    explicit ProfileChoice(UserDefaults &defaults);

    /// The ids of the profiles that are switched off.
    const QSet<QString> &disabled() const { return m_disabled; }
    /// These sources without the ones that are switched off.
    QList<Source> enabled(const QList<Source> &sources) const;
    /// The sources in the user's order; the ones that the order does not know follow in the order given.
    QList<Source> ordered(const QList<Source> &sources) const;

    /// Switches a profile on or off, for good.
    void setEnabled(bool isEnabled, const Source &source);
    /// Moves those of `profiles` that stand at these offsets of the user's order to `destination`, counted
    /// before the move. Profiles that are not among them lose their place.
    void move(const QList<Source> &profiles, const QSet<qsizetype> &offsets, qsizetype destination);

private:
    UserDefaults &m_defaults;
    QStringList m_order;
    QSet<QString> m_disabled;
};

} // namespace roamlet
