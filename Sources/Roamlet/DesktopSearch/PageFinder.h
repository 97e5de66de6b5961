// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/SearchTexts.h"
#include "Model/HistoryItem.h"
#include "Model/Source.h"
#include "Readers/ReadContext.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <optional>

namespace roamlet
{

class ProfileChoice;

/// Finds pages in the histories of all enabled profiles, which it holds in memory. Any thread, but one at a
/// time.
class PageFinder
{
public:
    /// Looks for the profiles anew.
    void findProfiles(const ReadContext &context);
    /// Sees to it that what is in memory is what the files hold now, of the profiles that are enabled, and
    /// takes so many bytes at most. Returns whether anything was read.
    bool renew(const ProfileChoice &choice, size_t mostBytes, const ReadContext &context);
    /// The so many pages that answer the words best, the best first. A profile that is not in memory is asked
    /// where it lies.
    QList<HistoryItem> best(const QStringList &words, size_t most, const ReadContext &context) const;

    /// The profiles that are enabled.
    const QList<Source> &sources() const { return m_sources; }
    std::optional<Source> source(const QString &id) const;

private:
    QList<Source> m_profiles;
    QList<Source> m_sources;
    SearchTexts m_texts;
};

} // namespace roamlet
