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

/// The text of one source's history.
struct SearchText {
    /// Null where it takes too much memory, or only the database can answer.
    std::shared_ptr<const HistoryText> text;
    /// What it was read from, and in what state that was; see SourceRead::stateOfHistory.
    QString state;
    /// Where there is no text: with more bytes than these there may be one.
    size_t refusedBytes = std::numeric_limits<size_t>::max();
};

/// By source id.
using SearchTexts = QHash<QString, SearchText>;

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
