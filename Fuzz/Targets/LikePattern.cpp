// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Portions.h"
#include "Kit/Targets.h"
#include "Readers/Files/LiteralLike.h"
#include "SampleHome/PlainFiles.h"

#include <sqlite3.h>

#include <memory>
#include <optional>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

/// A connection with our own LIKE or with SQLite's.
class Connection
{
public:
    enum class Like { BuiltIn, Ours };

    explicit Connection(Like like)
    {
        sqlite3 *handle = nullptr;
        sqlite3_open(":memory:", &handle);
        m_handle.reset(handle);
        if (like == Like::Ours)
            LiteralLike::install(handle);
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(handle, "SELECT ?1 LIKE ?2 ESCAPE ?3", -1, &statement, nullptr) != SQLITE_OK)
            throw sample::Failure(u"no statement"_s);
        m_statement.reset(statement);
    }

    /// Nothing for an error.
    std::optional<int> ask(QByteArrayView text, QByteArrayView pattern, QByteArrayView escape) const
    {
        bind(1, text);
        bind(2, pattern);
        bind(3, escape);
        const std::optional<int> answer = sqlite3_step(m_statement.get()) == SQLITE_ROW
                                              ? std::optional(sqlite3_column_int(m_statement.get(), 0))
                                              : std::nullopt;
        sqlite3_reset(m_statement.get());
        return answer;
    }

private:
    void bind(int index, QByteArrayView text) const
    {
        sqlite3_bind_text(m_statement.get(), index, text.isEmpty() ? "" : text.data(),
                          static_cast<int>(text.size()), SQLITE_TRANSIENT);
    }

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle{nullptr, sqlite3_close};
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> m_statement{nullptr, sqlite3_finalize};
};

void attackLikePattern(QByteArrayView bytes)
{
    static const Connection ours(Connection::Like::Ours);
    static const Connection builtIn(Connection::Like::BuiltIn);
    Portions portions(bytes);
    const auto escape = static_cast<char>(portions.number());
    // The one difference: an escape that is a wildcard, or no ASCII, is an error instead of a wrong answer.
    if (escape == '%' || escape == '_' || escape <= 0)
        return;
    const QByteArrayView word = portions.bytes();
    const QByteArrayView text = portions.rest();
    QByteArray escaped;
    for (const char each : word) {
        if (each == escape || each == '%' || each == '_')
            escaped += escape;
        escaped += each;
    }
    const QByteArrayView escapeText(&escape, 1);
    for (const QByteArray &pattern :
         {word.toByteArray(), QByteArray('%' + escaped + '%'), QByteArray('%' + word + '%')})
        require(ours.ask(text, pattern, escapeText) == builtIn.ask(text, pattern, escapeText),
                "LIKE answers as SQLite's");
}

QList<QByteArray> likePatternSeeds()
{
    const auto seed = [](const QByteArray &pattern, const QByteArray &text) -> QByteArray {
        return PortionWriter().number('\\').text(pattern).bytes() + text;
    };
    return {seed("Word", "one WORD and more"),
            seed("%a\\%b_c%", "xa%bycz"),
            seed("é", "É é"),
            seed("\xC3", "\xC3\xA9 \xE6\x9D \xFF"),
            seed("abcabcd", QByteArray("abcabcabcd").repeated(10)),
            seed(QByteArray("a\0b", 3), QByteArray("a\0b", 3))};
}

} // namespace

Target likePattern()
{
    return {.name = "LikePattern", .attack = attackLikePattern, .seeds = likePatternSeeds, .longest = 512};
}

} // namespace roamlet::fuzz
