// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/SearchTexts.h"
#include "Model/HistoryItem.h"
#include "Model/Source.h"
#include "Platform/DesktopQuestions.h"
#include "Readers/PageIcons.h"
#include "Readers/ReadContext.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <map>
#include <optional>

namespace roamlet
{

class ProfileChoice;

/// Finds pages in the histories of all enabled profiles, which it holds in memory, and the icons of their
/// sites. Any thread, but one at a time.
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

    /// The icon of the page's site, if it is known by now.
    std::optional<IconPixels> knownIcon(const QString &sourceID, const QString &url) const;
    /// Whether findIcon() has already looked for it.
    bool isIconKnown(const QString &sourceID, const QString &url) const;
    void findIcon(const QString &sourceID, const QString &url, const ReadContext &context);

private:
    /// Icons are kept for so many sites.
    static constexpr qsizetype mostIcons = 200;

    static QString iconKey(const QString &sourceID, const QString &url);

    QList<Source> m_profiles;
    QList<Source> m_sources;
    SearchTexts m_texts;
    /// By source id; nothing where the icons cannot be read.
    std::map<QString, std::optional<PageIcons>> m_iconStores;
    /// Nothing for a site that has none.
    QHash<QString, std::optional<IconPixels>> m_icons;
};

} // namespace roamlet
