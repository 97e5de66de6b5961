// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/HomeParts.h"

#include "SampleHome/SampleText.h"

#include <cmath>

namespace roamlet::sample
{

namespace
{

constexpr double spanInSeconds = 2 * 365 * 86'400.0;

} // namespace

quint64 HomeParts::profileSeed(const QString &profileKey) const
{
    quint64 seed = options.seed;
    for (const QChar character : profileKey)
        seed = seed * 31 + character.unicode();
    return Random(seed).next();
}

double HomeParts::visitTime(quint64 seed, qsizetype row) const
{
    const double age = 1 - double(row + 1) / double(options.rowsPerProfile);
    // Otherwise all profiles would share their times.
    const qint64 jitter = age > 0 ? Random(seed - quint64(row)).below(3'600'000'000) : 0;
    return double(newest()) - spanInSeconds * std::pow(age, 1.5) - double(jitter) * 1e-6;
}

qint64 HomeParts::visitCount(quint64 seed, qsizetype row)
{
    Random random(seed + quint64(row));
    const qint64 kind = random.below(100);
    return kind < 70 ? 1 : kind < 97 ? 2 + random.below(9) : 11 + random.below(400);
}

QList<BookmarkEntry> HomeParts::someBookmarks(quint64 seed)
{
    contents.bookmarks += options.bookmarksPerProfile;
    return bookmarkEntries(seed, options.bookmarksPerProfile, newest());
}

} // namespace roamlet::sample
