// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryQuery.h"
#include "Readers/HistoryText.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <limits>
#include <memory>

namespace roamlet
{

struct ReadContext;
class UserDefaults;

/// The text of one source's history.
struct SearchText {
    /// Null where it takes too much memory, or only the database can answer.
    std::shared_ptr<const HistoryText> text;
    /// What it was read from, and in what state that was; see SourceRead::stateOfHistory.
    QString state;
    /// Where there is no text: with more bytes than these there may be one.
    size_t refusedBytes = std::numeric_limits<size_t>::max();

    /// Reads the source, for a text of so many bytes at most. What cannot be read is no text, refused for
    /// good; it is for the caller to try again.
    static SearchText of(const Source &source, size_t mostBytes, const ReadContext &context);
};

/// By source id.
using SearchTexts = QHash<QString, SearchText>;

/// In MiB, how much memory the texts of all sources may take: "256" where the setting is absent or no number.
/// With 0 there are none.
inline const QString textLimitKey = QStringLiteral("search.memoryLimit");
inline constexpr qint64 defaultTextLimit = 256;

/// How many bytes further texts may take besides these, as the settings say.
size_t bytesLeft(const SearchTexts &texts, size_t limit);
/// How many bytes all texts may take. On the main thread.
size_t textLimit(const UserDefaults &defaults);

/// What a search has found in texts. A later one that is within it looks at these rows only.
struct SearchFindings {
    struct InText {
        std::weak_ptr<const HistoryText> text;
        HistoryText::RowNumbers rows;
    };

    HistoryQuery query;
    /// By source id.
    QHash<QString, InText> texts;
};

} // namespace roamlet
