// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/HistoryReading.h"

#include "Kit/Looks.h"
#include "Kit/Target.h"
#include "Readers/BrowserReader.h"
#include "Readers/HistoryText.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

void readHistory(const Source &source, const ReadContext &context)
{
    constexpr size_t mostBytes = size_t{1} << 20U;
    const HistoryQuery recent = HistoryQuery::recent();
    lookAt(BrowserReader::history(source, recent, context), recent);
    const auto search = HistoryQuery::matching(u"a.ex ä"_s, u"a.example"_s, HistoryQuery::Order::MostVisited);
    lookAt(BrowserReader::history(source, search, context), search);
    const auto text = BrowserReader::historyText(source, context, mostBytes);
    if (!text) {
        lookAt(text.error());
        return;
    }
    if (!*text)
        return;
    for (const HistoryQuery &query : {recent, search}) {
        if (const auto answer = (*text)->search(query))
            lookAt(answer->results.items, query);
    }
}

} // namespace roamlet::fuzz
