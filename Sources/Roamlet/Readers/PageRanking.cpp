// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/PageRanking.h"

#include "Model/LowerCase.h"

#include <QByteArray>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

enum Place { TitleBeginning, WordBeginning, SiteOfPage, Elsewhere };

/// Letters beyond ASCII are not told from signs: words of a script without blanks have no beginnings to find.
bool isOfWord(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 || (value >= '0' && value <= '9') ||
           ((value | 0x20) >= 'a' && (value | 0x20) <= 'z');
}

/// The host as it stands there, without "www.": what comes before it and behind it is the browser's business.
std::string_view hostIn(std::string_view url)
{
    const size_t scheme = url.find("://");
    if (scheme == std::string_view::npos)
        return {};
    std::string_view host = url.substr(scheme + 3);
    const auto *end =
        std::ranges::find_if(host, [](char byte) { return byte == '/' || byte == '?' || byte == '#'; });
    host = {host.begin(), end};
    if (const size_t user = host.rfind('@'); user != std::string_view::npos)
        host.remove_prefix(user + 1);
    constexpr std::string_view usual = "www.";
    if (host.starts_with(usual))
        host.remove_prefix(usual.size());
    return host;
}

Place placeOf(const FoldedNeedle &word, std::string_view host, std::string_view title)
{
    for (size_t place = word.find(title, 0, title.size()); place != FoldedNeedle::nowhere;
         place = word.find(title, place + 1, title.size())) {
        if (place == 0)
            return TitleBeginning;
        if (!isOfWord(title[place - 1]))
            return WordBeginning;
    }
    return word.find(host, 0, host.size()) != FoldedNeedle::nowhere ? SiteOfPage : Elsewhere;
}

} // namespace

std::optional<PageRanking> PageRanking::of(const QStringList &words)
{
    PageRanking ranking;
    for (const QString &word : words) {
        const QByteArray bytes = withPlainSigmas(word).toUtf8();
        if (bytes.isEmpty() || bytes.contains('\0'))
            return {};
        ranking.m_words.emplace_back(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())),
                                     hasSigma(word) ? FoldedNeedle::Sigmas::AsOne
                                                    : FoldedNeedle::Sigmas::Apart);
    }
    return ranking;
}

PageRank PageRanking::rank(std::string_view url, std::string_view title, PointInTime lastVisit,
                           qint64 visitCount) const
{
    // Seen from any moment, the difference between two pages is the same: no clock has to be asked.
    constexpr double month = 30.0 * 24 * 60 * 60;
    PageRank rank{.places = 0,
                  .use = std::log2(1.0 + static_cast<double>(std::max<qint64>(visitCount, 0))) +
                         secondsSince1970(countable(lastVisit)) / month,
                  .lastVisit = lastVisit};
    const std::string_view host = hostIn(url);
    for (const FoldedNeedle &word : m_words)
        rank.places += placeOf(word, host, title);
    return rank;
}

PageRank PageRanking::rank(const HistoryItem &item) const
{
    const QByteArray url = item.url.toUtf8();
    const QByteArray title = item.title == item.url ? QByteArray() : item.title.toUtf8();
    return rank({url.constData(), static_cast<size_t>(url.size())},
                {title.constData(), static_cast<size_t>(title.size())}, item.lastVisit, item.visitCount);
}

} // namespace roamlet
