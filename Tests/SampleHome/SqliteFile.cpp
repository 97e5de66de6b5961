// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/SqliteFile.h"

#include "SampleHome/PlainFiles.h"

#include <QFile>

#include <sqlite3.h>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

void check(int result, sqlite3 *database)
{
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
        throw Failure(QString::fromUtf8(sqlite3_errmsg(database)));
}

void removeDatabase(const QString &path)
{
    for (const QString &suffix : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
        QFile::remove(path % suffix);
}

void move(const QString &from, const QString &to)
{
    QFile::remove(to);
    if (!QFile::rename(from, to))
        throw Failure(from % u": cannot be renamed");
}

void copy(const QString &from, const QString &to)
{
    QFile::remove(to);
    if (!QFile::copy(from, to))
        throw Failure(from % u": cannot be copied");
}

void inTransaction(Database &database, const std::function<void()> &work)
{
    database.execute("BEGIN");
    work();
    database.execute("COMMIT");
}

void writeAllRows(Database &database, const DatabaseContents &contents, Share::Which which)
{
    inTransaction(database, [&] {
        database.execute(contents.tables);
        contents.fill(database, {which});
        database.execute(contents.indexes);
    });
}

/// From here on, changes stay in the log.
void startLog(Database &database, const DatabaseContents &contents)
{
    if (!contents.hasSharedMemory)
        database.execute("PRAGMA locking_mode = EXCLUSIVE");
    database.execute("PRAGMA synchronous = OFF; PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0");
}

/// Both files are copied while the change is half way into the main file: what a browser leaves that is
/// killed then.
void leaveHotJournal(const QString &path, const DatabaseContents &contents)
{
    const QString mainCopy = path % u".interrupted";
    const QString journalCopy = path % u".interrupted-journal";
    {
        Database database(path);
        database.execute("PRAGMA cache_size = 10; PRAGMA synchronous = OFF; BEGIN");
        database.execute(contents.unfinishedChange);
        database.execute(contents.unfinishedBulk);
        copy(path, mainCopy);
        copy(path % u"-journal", journalCopy);
        database.execute("ROLLBACK");
    }
    move(mainCopy, path);
    move(journalCopy, path % u"-journal");
}

} // namespace

Statement::Statement(sqlite3 *database, const char *sql) : m_statement(nullptr, sqlite3_finalize)
{
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr), database);
    m_statement.reset(statement);
}

void Statement::bind(int index, qint64 value)
{
    sqlite3_bind_int64(m_statement.get(), index, value);
}

void Statement::bind(int index, double value)
{
    sqlite3_bind_double(m_statement.get(), index, value);
}

void Statement::bind(int index, const Text &text)
{
    // Not copied by SQLite: the values outlive the step that follows.
    if (const auto &bytes = text.bytes())
        sqlite3_bind_text(m_statement.get(), index, bytes->constData(), int(bytes->size()), nullptr);
    else
        sqlite3_bind_null(m_statement.get(), index);
}

void Statement::bind(int index, const std::optional<QByteArray> &bytes)
{
    if (bytes)
        sqlite3_bind_blob(m_statement.get(), index, bytes->constData(), int(bytes->size()), nullptr);
    else
        sqlite3_bind_null(m_statement.get(), index);
}

void Statement::bind(int index, const std::optional<qint64> &value)
{
    if (value)
        sqlite3_bind_int64(m_statement.get(), index, *value);
    else
        sqlite3_bind_null(m_statement.get(), index);
}

void Statement::finish()
{
    int result = SQLITE_ROW;
    while (result == SQLITE_ROW)
        result = sqlite3_step(m_statement.get());
    check(result, sqlite3_db_handle(m_statement.get()));
    sqlite3_reset(m_statement.get());
}

Database::Database(const QString &path) : m_handle(nullptr, sqlite3_close)
{
    sqlite3 *handle = nullptr;
    const int result = sqlite3_open(QFile::encodeName(path).constData(), &handle);
    m_handle.reset(handle);
    if (result != SQLITE_OK)
        throw Failure(path % u": " % QString::fromUtf8(sqlite3_errmsg(handle)));
}

void Database::execute(const char *sql)
{
    check(sqlite3_exec(m_handle.get(), sql, nullptr, nullptr, nullptr), m_handle.get());
}

qint64 Database::lastKey() const
{
    return sqlite3_last_insert_rowid(m_handle.get());
}

void Database::keepLog()
{
    check(sqlite3_db_config(m_handle.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr), m_handle.get());
}

std::pair<qsizetype, qsizetype> Share::of(qsizetype count) const
{
    const qsizetype middle = count / 2;
    return {which == Which::Later ? middle : 0, which == Which::Earlier ? middle : count};
}

void writeDatabase(const QString &path, const DatabaseContents &contents, Journal journal)
{
    makeFolderOf(path);
    removeDatabase(path);
    {
        Database database(path);
        const QByteArray pageSize = "PRAGMA page_size = " + QByteArray::number(contents.pageSize);
        database.execute(pageSize.constData());
        if (journal == Journal::WalAlone) {
            startLog(database, contents);
            database.keepLog();
            writeAllRows(database, contents, Share::Which::All);
            return;
        }
        // Nothing to lose here, and nobody else looks on.
        database.execute(
            "PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = MEMORY;"
            "PRAGMA cache_size = -65536; PRAGMA temp_store = MEMORY");
        const bool hasLog = journal == Journal::UnmergedWal;
        writeAllRows(database, contents, hasLog ? Share::Which::Earlier : Share::Which::All);
        // A log needs its index in shared memory, as most browsers have it, and that excludes an exclusive
        // lock.
        database.execute("PRAGMA locking_mode = NORMAL; SELECT count(*) FROM sqlite_master");
    }
    if (journal == Journal::HotJournal) {
        leaveHotJournal(path, contents);
        return;
    }
    if (journal == Journal::UnmergedWal || contents.isWalDatabase) {
        Database database(path);
        startLog(database, contents);
        if (journal == Journal::UnmergedWal) {
            database.keepLog();
            inTransaction(database, [&] { contents.fill(database, {Share::Which::Later}); });
        }
    }
}

} // namespace roamlet::sample
