// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/SortedRows.h"
#include "Model/LowerCase.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <type_traits>
#include <utility>
#include <vector>

namespace roamlet
{

/// Where a refinement waits and works: on a clock and threads of the caller's choice. Its owner lives on the
/// main thread and takes with it what has not been called yet.
class RefineRunner
{
public:
    RefineRunner() = default;
    RefineRunner(const RefineRunner &) = delete;
    RefineRunner &operator=(const RefineRunner &) = delete;
    virtual ~RefineRunner() = default;

    /// Calls `action` once on the main thread after `duration` by a clock that is never put back.
    virtual void after(std::chrono::milliseconds duration, std::function<void()> action) = 0;
    /// Calls `work` away from the main thread and then `deliver` on it.
    virtual void run(std::function<void()> work, std::function<void()> deliver) = 0;
};

/// How long a typed text has to stand before rows are searched for it.
constexpr std::chrono::milliseconds refineDelay{150};

/// What a typed text asks for: without the spaces and tabs around it, in lower case.
QString refineText(QStringView typed);
/// The words of such a text.
QStringList refineWords(const QString &text);

/// The rows whose `key` holds each of the words somewhere, both kinds of sigma being one letter, in the order
/// of `order`. Nothing when `stop` is requested on the way. Any thread.
template<typename Row, typename Key>
std::optional<QList<Row>> refinedRows(const QList<Row> &rows, const QStringList &words,
                                      const QList<SortComparator<Row>> &order, const Key &key,
                                      const Collation &collation, const std::stop_token &stop = {})
{
    if (words.isEmpty())
        return sortedRows(rows, order, collation, stop);
    const bool hasSigmas = std::ranges::any_of(words, hasSigma);
    QStringList wanted;
    for (const QString &word : words)
        wanted.append(withPlainSigmas(word));
    const auto holdsAll = [&wanted](const QString &text) {
        return std::ranges::all_of(wanted, [&text](const QString &word) { return text.contains(word); });
    };
    std::vector<const Row *> found;
    for (const Row &row : rows) {
        if (stop.stop_requested())
            return {};
        const auto &text = std::invoke(key, row);
        if (hasSigmas ? holdsAll(withPlainSigmas(text)) : holdsAll(text))
            found.push_back(&row);
    }
    QList<Row> kept;
    kept.reserve(static_cast<qsizetype>(found.size()));
    for (const Row *row : found)
        kept.append(*row);
    return sortedRows(std::move(kept), order, collation, stop);
}

/// Takes what became of the rows, or nothing when the refinement was stopped.
template<typename Result>
using RefineDelivery = std::type_identity_t<std::function<void(std::optional<Result>)>>;

/// Refines `rows` in the background, after a short wait when there is something to search for: keys that
/// are typed quickly should not each start a search. What `finish` makes of the refined rows, in the
/// background as well, goes to `deliver`, which is called once on the main thread, with nothing when a stop
/// was requested through the source that is returned; what is shown then stays.
template<typename Row, typename Key, typename Finish = std::identity,
         typename Result = std::decay_t<std::invoke_result_t<Finish, QList<Row>>>>
std::stop_source refine(RefineRunner &runner, QList<Row> rows, const QString &search,
                        QList<SortComparator<Row>> order, Key key, std::shared_ptr<const Collation> collation,
                        RefineDelivery<Result> deliver, Finish finish = {})
{
    std::stop_source source;
    const QString text = refineText(search);
    auto start = [&runner, rows = std::move(rows), words = refineWords(text), order = std::move(order),
                  key = std::move(key), collation = std::move(collation), deliver = std::move(deliver),
                  finish = std::move(finish), stop = source.get_token()] {
        if (stop.stop_requested()) {
            deliver({});
            return;
        }
        auto result = std::make_shared<std::optional<Result>>();
        runner.run(
            [=] {
                if (std::optional refined = refinedRows(rows, words, order, key, *collation, stop))
                    *result = finish(std::move(*refined));
            },
            [=] {
                if (stop.stop_requested())
                    result->reset();
                deliver(std::move(*result));
            });
    };
    if (text.isEmpty())
        start();
    else
        runner.after(refineDelay, std::move(start));
    return source;
}

} // namespace roamlet
