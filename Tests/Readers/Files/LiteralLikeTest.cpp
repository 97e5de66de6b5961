// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/LiteralLike.h"

#include "SampleHome/SampleText.h"

#include <QByteArray>
#include <QList>

#include <sqlite3.h>

#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <variant>

namespace roamlet::testing
{

namespace
{

using sample::Random;

/// A value of a database; texts and blobs byte for byte.
struct Blob {
    QByteArray bytes;
};
using Value = std::variant<std::nullptr_t, qint64, double, QByteArray, Blob>;

/// What a statement answered: the first column of each row, or the message of the error that ended it.
using Answer = std::string;

class Connection
{
public:
    enum class Like { BuiltIn, Ours };

    explicit Connection(Like like, const char *encoding = "UTF-8") : m_handle(nullptr, sqlite3_close)
    {
        sqlite3 *handle = nullptr;
        sqlite3_open(":memory:", &handle);
        m_handle.reset(handle);
        execute(("PRAGMA encoding = '" + std::string(encoding) + '\'').c_str());
        if (like == Like::Ours)
            LiteralLike::install(handle);
    }

    sqlite3 *handle() { return m_handle.get(); }
    void execute(const char *sql)
    {
        EXPECT_EQ(sqlite3_exec(m_handle.get(), sql, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(m_handle.get());
    }
    /// Replaces the table "texts".
    void setTexts(const QList<Value> &texts)
    {
        execute("DROP TABLE IF EXISTS texts; CREATE TABLE texts (text); BEGIN");
        for (const Value &text : texts)
            ask("INSERT INTO texts VALUES (?)", {text});
        execute("COMMIT");
    }
    /// The answer to a statement, which is kept and run again when it is asked again.
    Answer ask(const std::string &sql, const QList<Value> &parameters)
    {
        if (sql != m_sql) {
            sqlite3_stmt *prepared = nullptr;
            EXPECT_EQ(sqlite3_prepare_v2(m_handle.get(), sql.c_str(), -1, &prepared, nullptr), SQLITE_OK)
                << sqlite3_errmsg(m_handle.get());
            m_statement.reset(prepared);
            m_sql = sql;
        }
        sqlite3_stmt *statement = m_statement.get();
        for (int i = 0; i < parameters.size(); ++i)
            bind(statement, i + 1, parameters[i]);
        Answer answer;
        int step = sqlite3_step(statement);
        for (; step == SQLITE_ROW; step = sqlite3_step(statement)) {
            const unsigned char *text = sqlite3_column_text(statement, 0);
            answer += text != nullptr ? reinterpret_cast<const char *>(text) : "NULL";
            answer += ' ';
        }
        if (step != SQLITE_DONE)
            answer = sqlite3_errmsg(m_handle.get());
        sqlite3_reset(statement);
        return answer;
    }

private:
    static void bind(sqlite3_stmt *statement, int index, const Value &value)
    {
        if (std::holds_alternative<std::nullptr_t>(value)) {
            sqlite3_bind_null(statement, index);
        } else if (const auto *integer = std::get_if<qint64>(&value)) {
            sqlite3_bind_int64(statement, index, *integer);
        } else if (const auto *real = std::get_if<double>(&value)) {
            sqlite3_bind_double(statement, index, *real);
        } else if (const auto *text = std::get_if<QByteArray>(&value)) {
            sqlite3_bind_text(statement, index, text->constData(), static_cast<int>(text->size()),
                              SQLITE_TRANSIENT);
        } else {
            const QByteArray &bytes = std::get<Blob>(value).bytes;
            sqlite3_bind_blob(statement, index, bytes.constData(), static_cast<int>(bytes.size()),
                              SQLITE_TRANSIENT);
        }
    }

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle;
    std::string m_sql;
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> m_statement{nullptr, sqlite3_finalize};
};

const std::string oneText = "SELECT ?1 LIKE ?2 ESCAPE '\\'";
const std::string allTexts = "SELECT text LIKE ?1 ESCAPE '\\' FROM texts";

/// Bytes as they can be read in a failed expectation.
std::string readable(const QByteArray &bytes)
{
    return bytes.size() > 200 ? std::to_string(bytes.size()) + " bytes"
                              : bytes.toPercentEncoding(" abcdefghijklmnopqrstuvwxyz").toStdString();
}

/// The same questions to both.
class LiteralLikeTest : public ::testing::Test
{
protected:
    void expectSame(const std::string &sql, const QList<Value> &parameters)
    {
        ASSERT_EQ(ours.ask(sql, parameters), builtIn.ask(sql, parameters));
    }
    void expectSameForAllTexts(const QByteArray &pattern)
    {
        SCOPED_TRACE("pattern " + readable(pattern));
        expectSame(allTexts, {pattern});
    }
    void expectSameWithEscapes(const QList<Value> &escapes)
    {
        setTexts({QByteArray("abc"), QByteArray("a%c"), QByteArray("a_c"), QByteArray("xa%cx"),
                  QByteArray("axbx"), QByteArray("aéc"), QByteArray("7%"), QByteArray("")});
        for (const Value &escape : escapes) {
            SCOPED_TRACE("escape " + builtIn.ask("SELECT quote(?1)", {escape}));
            for (const char *pattern : {"%b%", "%!%%", "%x%%", "%X%%", "%%%", "%a%", "%_%", "%a__c%", "%é%%",
                                        "a%c", "%axbx%", "%7%%", "_%", "%"}) {
                SCOPED_TRACE(pattern);
                expectSame("SELECT text LIKE ?1 ESCAPE ?2 FROM texts", {QByteArray(pattern), escape});
            }
        }
    }
    void setTexts(const QList<Value> &texts)
    {
        ours.setTexts(texts);
        builtIn.setTexts(texts);
    }

    Connection ours{Connection::Like::Ours};
    Connection builtIn{Connection::Like::BuiltIn};
};

/// Text of few different pieces, so that patterns often match, nearly or wholly.
class RandomText
{
public:
    explicit RandomText(quint64 seed) : m_random(seed) {}

    QByteArray of(const QList<QByteArray> &pieces, qint64 longest)
    {
        QByteArray text;
        for (qint64 count = m_random.below(longest + 1); count > 0; --count)
            text += pieces.at(m_random.below(pieces.size()));
        return text;
    }
    /// The same letters, some of them in the other case.
    QByteArray recased(QByteArray text)
    {
        for (char &character : text) {
            const bool isLetter =
                (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
            if (isLetter && m_random.below(2) == 0)
                character = static_cast<char>(character ^ 0x20);
        }
        return text;
    }

private:
    Random m_random;
};

QByteArray escaped(QByteArray text)
{
    return text.replace('\\', "\\\\").replace('%', "\\%").replace('_', "\\_");
}

const QList<QByteArray> letters{"a", "A", "b", "B", "z", "Z", "@", "[", "`", "{"};
const QList<QByteArray> wildcards{"%", "_", "\\", "\\%", "\\_", "\\\\"};
const QList<QByteArray> foreignLetters{"é", "É", "ß", "İ", "ı", "ſ", "\u212A", "東", "😀"};
/// A lone continuation, starts without one, an overlong "A", a surrogate, a number that is too large.
const QList<QByteArray> brokenLetters{"\x80",     "\xC3",         "\xE6\x9D",         "\xF0",
                                      "\xC1\x81", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xFF"};
const QByteArray nul(1, '\0');

} // namespace

TEST_F(LiteralLikeTest, isCalledInThePlaceOfTheBuiltInOne)
{
    // Otherwise all the comparisons here would compare the built-in one with itself.
    Connection connection(Connection::Like::Ours);
    const std::string own = connection.ask(
        "SELECT count(*) FROM pragma_function_list WHERE name = 'like' AND narg = 3 AND builtin = 0", {});
    EXPECT_EQ(own, "1 ");
}

TEST_F(LiteralLikeTest, findsLiteralTextsAsTheBuiltInOneDoes)
{
    const QList<QByteArray> pieces = letters + foreignLetters + wildcards + brokenLetters;
    RandomText random(1);
    for (int round = 0; round < 150; ++round) {
        SCOPED_TRACE(round);
        const QByteArray word = random.of(round % 3 == 0 ? letters.first(4) : pieces, 4);
        QList<Value> texts;
        for (int i = 0; i < 40; ++i) {
            QByteArray text = random.of(round % 3 == 0 ? letters.first(4) : pieces, 60);
            if (i % 3 == 0)
                text = text + random.recased(word) + random.of(pieces, 40);
            texts.append(text);
        }
        setTexts(texts);
        expectSameForAllTexts('%' + escaped(word) + '%');
        expectSameForAllTexts('%' + escaped(random.recased(word)) + '%');
    }
}

TEST_F(LiteralLikeTest, treatsEveryOtherPatternAsTheBuiltInOneDoes)
{
    const QList<QByteArray> pieces = letters.first(4) + wildcards + wildcards + foreignLetters.first(3);
    RandomText random(2);
    QList<Value> texts;
    for (int i = 0; i < 60; ++i)
        texts.append(
            random.of(letters.first(4) + QList<QByteArray>{"%", "_", "\\"} + foreignLetters.first(3), 8));
    setTexts(texts);
    for (int round = 0; round < 3000; ++round)
        expectSameForAllTexts(random.of(pieces, 7));
}

TEST_F(LiteralLikeTest, treatsBrokenTextsAndPatternsAsTheBuiltInOneDoes)
{
    const QList<QByteArray> pieces = brokenLetters + letters.first(2) + QList<QByteArray>{"%"};
    RandomText random(3);
    QList<Value> texts;
    for (int i = 0; i < 60; ++i)
        texts.append(random.of(brokenLetters + letters.first(2), 10));
    setTexts(texts);
    for (int round = 0; round < 1000; ++round) {
        expectSameForAllTexts('%' + random.of(letters.first(2) + brokenLetters, 3) + '%');
        expectSameForAllTexts(random.of(pieces, 5));
    }
}

TEST_F(LiteralLikeTest, aTextEndsAtANul)
{
    RandomText random(4);
    QList<Value> texts{nul,
                       "ab" + nul + "cd",
                       nul + "ab",
                       "ab" + nul,
                       QByteArray(40, 'x') + nul + "ab",
                       "ab" + QByteArray(40, 'x') + nul,
                       "a" + nul + "b"};
    for (int i = 0; i < 100; ++i)
        texts.append(random.of({"a", "b", "x", "xxxxxxxx", nul}, 40));
    setTexts(texts);
    for (const char *word : {"ab", "cd", "a", "b", "x", "bx", "xxxxxxxxa"})
        expectSameForAllTexts('%' + QByteArray(word) + '%');
}

TEST_F(LiteralLikeTest, aPatternEndsAtANul)
{
    setTexts({QByteArray("ab"), QByteArray("xabx"), "ab" + nul + "cd", QByteArray(), QByteArray("%ab")});
    const QList<QByteArray> patterns{
        "%ab%" + nul,    "%ab" + nul + "%",   "%a" + nul + "b%",    nul,
        "%" + nul + "%", "%ab\\" + nul + "%", "%ab%" + nul + "cd%", nul + "%ab%"};
    for (const QByteArray &pattern : patterns)
        expectSameForAllTexts(pattern);
}

TEST_F(LiteralLikeTest, findsAWordAtEveryPlaceOfAText)
{
    // Texts are compared in blocks; words and texts around one and two blocks are where that could go wrong.
    for (const qsizetype wordLength : {1, 2, 3, 15, 30, 31, 32, 33, 34, 63, 64, 65}) {
        const QByteArray word = 'q' + QByteArray(wordLength - 1, 'W');
        const QByteArray pattern = '%' + word.toLower() + '%';
        for (qsizetype length = wordLength - 1; length <= wordLength + 66; ++length) {
            for (qsizetype place = 0; place + wordLength <= length; ++place) {
                QByteArray text(length, '-');
                text.replace(place, wordLength, word);
                SCOPED_TRACE(readable(pattern) + " in " + readable(text));
                ASSERT_EQ(ours.ask(oneText, {text, pattern}), "1 ");
                // Nearly there: the ends are right and a letter between them is not.
                if (wordLength > 2) {
                    text[place + wordLength / 2] = '-';
                    ASSERT_EQ(ours.ask(oneText, {text, pattern}), "0 ");
                }
            }
            ASSERT_EQ(ours.ask(oneText, {QByteArray(length, '-'), pattern}), "0 ");
        }
    }
}

TEST_F(LiteralLikeTest, findsWordsOfTwoLettersAsTheBuiltInOneDoes)
{
    // Many places where the first and the last letter fit.
    RandomText random(5);
    for (int round = 0; round < 60; ++round) {
        const QByteArray text = random.of({"a", "B"}, 100);
        for (int i = 0; i < 40; ++i) {
            const QByteArray pattern = '%' + random.of({"A", "b"}, 7) + '%';
            SCOPED_TRACE(readable(pattern) + " in " + readable(text));
            expectSame(oneText, {text, pattern});
        }
    }
}

TEST_F(LiteralLikeTest, everyByteEqualsTheSameBytesAsWithTheBuiltInOne)
{
    QList<Value> texts;
    for (int byte = 1; byte < 256; ++byte)
        texts.append(QByteArray(1, static_cast<char>(byte)));
    setTexts(texts);
    for (int byte = 1; byte < 256; ++byte)
        expectSameForAllTexts('%' + escaped(QByteArray(1, static_cast<char>(byte))) + '%');
}

TEST_F(LiteralLikeTest, onlyAsciiLettersLoseTheirCase)
{
    EXPECT_EQ(ours.ask(oneText, {QByteArray("Big CAT"), QByteArray("%cat%")}), "1 ");
    EXPECT_EQ(ours.ask(oneText, {QByteArray("ÉTÉ"), QByteArray("%été%")}), "0 ");
    EXPECT_EQ(ours.ask(oneText, {QByteArray("\u212Aelvin"), QByteArray("%kelvin%")}), "0 ");
    EXPECT_EQ(ours.ask(oneText, {QByteArray("a[b"), QByteArray("%a{b%")}), "0 ");
}

TEST_F(LiteralLikeTest, valuesThatAreNoTextsAreTreatedAsTheBuiltInOneDoes)
{
    const QList<Value> values{nullptr,
                              qint64{0},
                              qint64{-1234567890123},
                              12.5,
                              1e300,
                              Blob{"abc"},
                              Blob{""},
                              Blob{QByteArray("%b%")},
                              QByteArray(""),
                              QByteArray("abc"),
                              QByteArray("%b%"),
                              QByteArray("%2%"),
                              QByteArray("%12.5%"),
                              QByteArray("%"),
                              QByteArray("%%")};
    for (qsizetype text = 0; text < values.size(); ++text) {
        for (qsizetype pattern = 0; pattern < values.size(); ++pattern) {
            SCOPED_TRACE("value " + std::to_string(text) + " like value " + std::to_string(pattern));
            expectSame(oneText, {values[text], values[pattern]});
        }
    }
    // The pattern is looked at once for all rows, which may be of any kind.
    setTexts(values);
    for (const Value &pattern : values)
        expectSame(allTexts, {pattern});
}

TEST_F(LiteralLikeTest, patternsUpToTheLimitAreUsedAndLongerOnesRefused)
{
    const QByteArray longest(49'998, 'a');
    expectSame(oneText, {QByteArray(60'000, 'A'), '%' + longest + '%'});
    EXPECT_EQ(ours.ask(oneText, {QByteArray(60'000, 'A'), '%' + longest + '%'}), "1 ");
    EXPECT_EQ(ours.ask(oneText, {QByteArray(49'997, 'A'), '%' + longest + '%'}), "0 ");
    const std::string refusal = ours.ask(oneText, {QByteArray("a"), '%' + longest + "a%"});
    EXPECT_EQ(refusal, "LIKE or GLOB pattern too complex");
    expectSame(oneText, {QByteArray("a"), '%' + longest + "a%"});
    expectSame(oneText, {nullptr, '%' + longest + "a%"});
    expectSame(oneText, {QByteArray("a"), QByteArray(50'001, '_')});

    sqlite3_limit(ours.handle(), SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 5);
    sqlite3_limit(builtIn.handle(), SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 5);
    expectSame(oneText, {QByteArray("abcd"), QByteArray("%abc%")});
    expectSame(oneText, {QByteArray("abcd"), QByteArray("%abcd%")});
}

TEST_F(LiteralLikeTest, textsOfMegabytesAreSearchedToTheirEnd)
{
    const QByteArray haystack(3'000'000, 'h');
    EXPECT_EQ(ours.ask(oneText, {haystack + "Needle", QByteArray("%needle%")}), "1 ");
    EXPECT_EQ(ours.ask(oneText, {haystack + "Needl", QByteArray("%needle%")}), "0 ");
}

TEST_F(LiteralLikeTest, patternsOutOfAColumnMayDifferInEachRow)
{
    for (Connection *connection : {&ours, &builtIn}) {
        connection->execute(
            "CREATE TABLE pairs (text, pattern);"
            "INSERT INTO pairs VALUES ('abc', '%b%'), ('abc', '%x%'), ('abc', 'abc'), ('abc', NULL),"
            " ('abc', '%C%'), (NULL, '%c%'), ('a%c', '%\\%%'), ('abc', '%\\%%'), (12, '%2%')");
    }
    expectSame("SELECT text LIKE pattern ESCAPE '\\' FROM pairs", {});
    expectSame("SELECT text NOT LIKE pattern ESCAPE '\\' FROM pairs", {});
}

TEST_F(LiteralLikeTest, aStatementWithSeveralPatternsKeepsThemApart)
{
    setTexts(
        {QByteArray("red bike"), QByteArray("blue bike"), QByteArray("red car"), QByteArray("bike red")});
    const std::string sql =
        "SELECT text FROM texts WHERE text LIKE ?1 ESCAPE '\\' AND text LIKE ?2 ESCAPE '\\' ORDER BY text";
    EXPECT_EQ(ours.ask(sql, {QByteArray("%red%"), QByteArray("%bike%")}), "bike red red bike ");
    EXPECT_EQ(ours.ask(sql, {QByteArray("%blue%"), QByteArray("%bike%")}), "blue bike ");
    EXPECT_EQ(ours.ask(sql, {QByteArray("%red%"), QByteArray("%red%")}), "bike red red bike red car ");
}

TEST_F(LiteralLikeTest, anotherCharacterCanBeTheEscape)
{
    expectSameWithEscapes({QByteArray("!"), QByteArray("x"), QByteArray("X"), QByteArray("\\"), qint64{7}});
}

TEST_F(LiteralLikeTest, aWildcardOrAForeignLetterAsTheEscapeIsRefused)
{
    // The one difference to the built-in one: an error instead of a wrong answer.
    for (const char *escape : {"%", "_", "é"}) {
        EXPECT_EQ(ours.ask("SELECT ?1 LIKE ?2 ESCAPE ?3",
                           {QByteArray("abc"), QByteArray("%b%"), QByteArray(escape)}),
                  "ESCAPE expression must be a single character");
    }
}

TEST_F(LiteralLikeTest, anEscapeThatIsNoSingleCharacterIsRefused)
{
    expectSameWithEscapes({QByteArray(""), QByteArray("ab"), qint64{77}, nullptr});
}

TEST_F(LiteralLikeTest, likeWithoutAnEscapeAndGlobStayTheBuiltInOnes)
{
    setTexts({QByteArray("abc"), QByteArray("a\\c"), QByteArray("a%c")});
    expectSame("SELECT text LIKE ?1 FROM texts", {QByteArray("%\\%")});
    expectSame("SELECT text GLOB ?1 FROM texts", {QByteArray("a*")});
}

TEST(LiteralLikeEncodingTest, aDatabaseInUtf16AnswersTheSame)
{
    for (const char *encoding : {"UTF-16le", "UTF-16be"}) {
        Connection ours(Connection::Like::Ours, encoding);
        Connection builtIn(Connection::Like::BuiltIn, encoding);
        RandomText random(6);
        QList<Value> texts;
        for (int i = 0; i < 80; ++i)
            texts.append(random.of(letters + foreignLetters, 50));
        ours.setTexts(texts);
        builtIn.setTexts(texts);
        for (int round = 0; round < 100; ++round) {
            const QByteArray pattern = '%' + escaped(random.of(letters + foreignLetters, 2)) + '%';
            ASSERT_EQ(ours.ask(allTexts, {pattern}), builtIn.ask(allTexts, {pattern})) << readable(pattern);
        }
    }
}

} // namespace roamlet::testing
