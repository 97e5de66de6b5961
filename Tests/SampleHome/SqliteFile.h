// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <concepts>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>

struct sqlite3;
struct sqlite3_stmt;

namespace roamlet::sample
{

/// A text value of a database, byte for byte: also what no QString can hold, and NULL.
class Text
{
public:
    /// NULL.
    Text() = default;
    template<std::convertible_to<QString> T>
    Text(const T &text) : m_bytes(QString(text).toUtf8()) // NOLINT(google-explicit-constructor)
    {
    }
    /// Bytes that are stored as text although they may hold a NUL or be no UTF-8.
    static Text raw(QByteArray bytes)
    {
        Text text;
        text.m_bytes = std::move(bytes);
        return text;
    }

    const std::optional<QByteArray> &bytes() const { return m_bytes; }

private:
    std::optional<QByteArray> m_bytes;
};

/// The rows of a table: a list of them, or a count and a way to make each one, so that a million need no
/// memory.
template<typename Row>
class Rows
{
public:
    Rows() = default;
    Rows(std::initializer_list<Row> rows) : Rows(QList<Row>(rows)) {}
    Rows(const QList<Row> &rows) // NOLINT(google-explicit-constructor)
        : m_count(rows.size()), m_make([rows](qsizetype index) { return rows.at(index); })
    {
    }
    static Rows generated(qsizetype count, std::function<Row(qsizetype)> make)
    {
        Rows rows;
        rows.m_count = count;
        rows.m_make = std::move(make);
        return rows;
    }

    /// These rows and then those.
    Rows operator+(const QList<Row> &more) const
    {
        return generated(m_count + more.size(), [first = *this, more](qsizetype index) {
            return index < first.m_count ? first.at(index) : more.at(index - first.m_count);
        });
    }

    qsizetype count() const { return m_count; }
    Row at(qsizetype index) const { return m_make(index); }

private:
    qsizetype m_count = 0;
    std::function<Row(qsizetype)> m_make;
};

/// How a browser leaves a database behind.
enum class Journal {
    /// Everything in the main file, no other file beside it.
    Clean,
    /// The later half of the rows (all of them, when there is one) only in a "-wal", with its "-shm" where
    /// the
    /// browser has one.
    UnmergedWal,
    /// Nothing but a header in the main file: tables and rows are only in a "-wal".
    WalAlone,
    /// The main file holds half of a change that was never committed; only a "-journal" leads back to the
    /// rows.
    HotJournal
};

/// A prepared statement that is run again and again with other values.
class Statement
{
public:
    Statement(sqlite3 *database, const char *sql);

    /// Binds the values to the parameters in order and runs to the end.
    template<typename... Values>
    void run(const Values &...values)
    {
        int index = 0;
        (bind(++index, values), ...);
        finish();
    }

private:
    void bind(int index, qint64 value);
    void bind(int index, int value) { bind(index, qint64(value)); }
    void bind(int index, double value);
    void bind(int index, const Text &text);
    /// The converted bytes would be gone before the statement runs.
    void bind(int index, const QString &text) = delete;
    /// As a blob, or NULL.
    void bind(int index, const std::optional<QByteArray> &bytes);
    void bind(int index, const std::optional<qint64> &value);
    void finish();

    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> m_statement;
};

/// A database that is being written.
class Database
{
public:
    /// Opens an existing file, or makes a new one.
    explicit Database(const QString &path);

    /// Runs any number of statements that need no values.
    void execute(const char *sql);
    Statement prepare(const char *sql) { return {m_handle.get(), sql}; }
    /// The key of the row that was inserted last.
    qint64 lastKey() const;
    /// Leaves the write-ahead log as it is when this connection closes.
    void keepLog();

private:
    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle;
};

/// The part of a list of rows that one transaction writes.
struct Share {
    /// Half-open range of indexes for a list of this length.
    std::pair<qsizetype, qsizetype> of(qsizetype count) const;

    enum class Which { All, Earlier, Later } which = Which::All;
};

/// What a database file consists of.
struct DatabaseContents {
    /// Tables, and the rows that are always there.
    const char *tables = "";
    /// Built after the rows, which is several times quicker.
    const char *indexes = "";
    std::function<void(Database &, Share)> fill;
    /// A change of a few rows that keeps their sizes: what is in the main file when only the journal knows
    /// better.
    const char *unfinishedChange = "";
    /// An insertion of many rows into a table that no reader looks at; it pushes that change out of SQLite's
    /// cache.
    const char *unfinishedBulk = "";
    int pageSize = 4096;
    /// Whether the browser uses a write-ahead log for this file.
    bool isWalDatabase = false;
    /// Whether the log's index is in a "-shm"; a browser that holds the file alone keeps it in its memory.
    bool hasSharedMemory = true;
};

/// Writes a database file and leaves it in this state.
void writeDatabase(const QString &path, const DatabaseContents &contents, Journal journal);

} // namespace roamlet::sample
