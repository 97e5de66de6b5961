// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/ReadError.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string_view>

struct sqlite3_stmt;

namespace roamlet
{

class Files;
struct ReadContext;

/// A private, read-only copy of a live database and its sidecar files, removed when this object goes. The
/// database itself is never opened, so a browser's lock means nothing and no read ever waits. One task at a
/// time.
class SQLiteSnapshot
{
public:
    /// The current row of a running statement, columns counted from zero. Only valid while the callback runs.
    class Row
    {
    public:
        enum class Kind { Integer, Real, Text, Blob, Null };

        /// What blobs it gives is taken from `blobBytesLeft`.
        Row(sqlite3_stmt *statement, std::int64_t &blobBytesLeft)
            : m_statement(statement), m_blobBytesLeft(blobBytesLeft)
        {
        }

        std::int64_t integer(int column) const;
        double real(int column) const;
        /// How the value is stored, as it is before it is asked for in another form.
        Kind kind(int column) const;
        /// The bytes of the text, which the statement owns; nothing for NULL.
        std::optional<std::string_view> utf8(int column) const;
        /// The text up to a NUL, broken UTF-8 replaced; nothing for NULL.
        std::optional<QString> text(int column) const;
        /// Bytes that the statement owns; null for NULL and for an empty value.
        QByteArrayView blob(int column) const;

    private:
        sqlite3_stmt *m_statement;
        std::int64_t &m_blobBytesLeft;
    };
    using RowHandler = std::function<void(const Row &)>;

    /// Copies the database at `source`. A copy during which the source changed is made again, at most three
    /// times in all; then the last one is used.
    static std::expected<SQLiteSnapshot, ReadError> copying(const QString &source,
                                                            const ReadContext &context);

    SQLiteSnapshot(SQLiteSnapshot &&) noexcept;
    SQLiteSnapshot &operator=(SQLiteSnapshot &&) noexcept;
    ~SQLiteSnapshot();

    /// Runs one statement with text parameters and hands over every row. After an error the rows so far are
    /// to be discarded. That the rows give more bytes of blobs than the database has room for is one.
    std::expected<void, ReadError> query(const QString &sql, const QStringList &parameters,
                                         const RowHandler &handleRow) const;
    /// Another reader of the same copy, for another thread. This one has to have run a statement: with the
    /// first one SQLite replays the copied log or journal.
    std::expected<SQLiteSnapshot, ReadError> secondReader() const;
    /// The private folder that holds the copy.
    QString folder() const;
    /// The bytes of the database with its logs, or 0 when it is none.
    std::int64_t size() const;

    /// The state of a live database and its logs: equal while nobody has written to them.
    static QString stamp(const Files &files, const QString &database);
    /// Removes the folders in `temporaryFolder` that earlier runs left behind because they died. In a folder
    /// of the user's alone the name decides; in one that others share, only what looks like a copy from the
    /// inside as well is removed.
    static void removeLeftovers(const Files &files, const QString &temporaryFolder);

private:
    class Copy;
    class Connection;

    SQLiteSnapshot(std::shared_ptr<Copy> copy, std::unique_ptr<Connection> connection);

    static std::expected<SQLiteSnapshot, ReadError> opening(std::shared_ptr<Copy> copy, std::stop_token stop);

    // The connection goes first: its files are removed after it is closed, and after that of a second reader.
    std::shared_ptr<Copy> m_copy;
    std::unique_ptr<Connection> m_connection;
};

} // namespace roamlet
