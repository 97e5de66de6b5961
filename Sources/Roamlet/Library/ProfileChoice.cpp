// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/ProfileChoice.h"

#include "Platform/UserDefaults.h"

#include <algorithm>
#include <limits>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString sourceOrderKey = u"sourceOrder"_s;
/// The ids of the profiles that are switched off,
const QString disabledProfilesKey = u"disabledProfiles"_s;
/// and the older form, which knew Chrome's profiles only, by folder name.
const QString disabledChromeProfilesKey = u"disabledChromeProfiles"_s;

} // namespace

ProfileChoice::ProfileChoice(UserDefaults &defaults)
    : m_defaults(defaults), m_order(defaults.stringList(sourceOrderKey).value_or(QStringList()))
{
    // A file written by hand can name a profile twice: the first place counts.
    m_order.removeDuplicates();
    for (const QString &id : defaults.stringList(disabledProfilesKey).value_or(QStringList()))
        m_disabled.insert(id);
    for (const QString &profile : defaults.stringList(disabledChromeProfilesKey).value_or(QStringList()))
        m_disabled.insert(u"chrome/" % profile);
}

QList<Source> ProfileChoice::enabled(const QList<Source> &sources) const
{
    QList<Source> result = sources;
    result.removeIf([this](const Source &source) { return m_disabled.contains(source.id()); });
    return result;
}

QList<Source> ProfileChoice::ordered(const QList<Source> &sources) const
{
    const auto position = [this](const Source &source) {
        const qsizetype index = m_order.indexOf(source.id());
        return index < 0 ? std::numeric_limits<qsizetype>::max() : index;
    };
    QList<Source> result = sources;
    std::ranges::stable_sort(result, {}, position);
    return result;
}

void ProfileChoice::setEnabled(bool isEnabled, const Source &source)
{
    if (isEnabled)
        m_disabled.remove(source.id());
    else
        m_disabled.insert(source.id());
    QStringList stored = m_disabled.values();
    stored.sort();
    m_defaults.setStringList(disabledProfilesKey, stored);
    m_defaults.remove(disabledChromeProfilesKey);
}

void ProfileChoice::move(const QList<Source> &profiles, const QSet<qsizetype> &offsets, qsizetype destination)
{
    const QList<Source> shown = ordered(profiles);
    QStringList before;
    QStringList moved;
    QStringList after;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        QStringList &stays = i < destination ? before : after;
        (offsets.contains(i) ? moved : stays).append(shown[i].id());
    }
    m_order = before + moved + after;
    m_defaults.setStringList(sourceOrderKey, m_order);
}

} // namespace roamlet
