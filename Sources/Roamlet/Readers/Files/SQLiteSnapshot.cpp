// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshot.h"

#include "Model/Utf8.h"
#include "Platform/Files.h"
#include "Platform/Processes.h"
#include "Readers/Files/ConfinedFiles.h"
#include "Readers/Files/DatabaseMoment.h"
#include "Readers/Files/LiteralLike.h"
#include "Readers/ReadContext.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUuid>

#include <sqlite3.h>

#include <array>
#include <chrono>
#include <functional>
#include <stop_token>
#include <thread>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int attempts = 3;
/// Before all but the first of them. Whoever writes may be done by then.
constexpr std::array pauses{std::chrono::milliseconds(2), std::chrono::milliseconds(8)};
/// What SQLite keeps beside a database, by what it appends to the name.
constexpr std::array sidecars{"-wal"_L1, "-shm"_L1, "-journal"_L1};
const QString folderPrefix = QString::fromLatin1(ConfinedFiles::folderPrefix);

struct Finalize {
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

/// The library's own words. Those that people meet are translated, the others are shown as they are.
QString translated(const char *message)
{
    //: Words of the SQLite library.
    [[maybe_unused]] static constexpr std::array known{
        QT_TRANSLATE_NOOP("roamlet::SQLite", "file is not a database"),
        QT_TRANSLATE_NOOP("roamlet::SQLite", "database disk image is malformed"),
        QT_TRANSLATE_NOOP("roamlet::SQLite", "unable to open database file"),
        QT_TRANSLATE_NOOP("roamlet::SQLite", "disk I/O error"),
        QT_TRANSLATE_NOOP("roamlet::SQLite", "database or disk is full")};
    return QCoreApplication::translate("roamlet::SQLite", message);
}

QString messageOf(sqlite3 *connection)
{
    return translated(sqlite3_errmsg(connection));
}

ReadError queryError(sqlite3 *connection)
{
    return ReadError::unreadable(u"query"_s, messageOf(connection));
}

/// The database that a file of a copy belongs to: itself, or the one that it stands beside.
QString databaseOf(const QString &file)
{
    for (const QLatin1StringView suffix : sidecars) {
        if (file.endsWith(suffix))
            return file.chopped(suffix.size());
    }
    return file;
}

/// Whether this can be the folder of a private copy: ours, closed to others, with one database at most.
bool canHoldCopy(const Files &files, const QString &folder)
{
    if (!files.isPrivateFolder(folder))
        return false;
    QSet<QString> databases;
    for (const QString &name : files.names(folder)) {
        if (!files.isPlainFile(folder % u'/' % name))
            return false;
        databases.insert(databaseOf(name));
    }
    return databases.size() <= 1;
}

} // namespace

std::int64_t SQLiteSnapshot::Row::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

double SQLiteSnapshot::Row::real(int column) const
{
    return sqlite3_column_double(m_statement, column);
}

SQLiteSnapshot::Row::Kind SQLiteSnapshot::Row::kind(int column) const
{
    switch (sqlite3_column_type(m_statement, column)) {
    case SQLITE_INTEGER:
        return Kind::Integer;
    case SQLITE_FLOAT:
        return Kind::Real;
    case SQLITE_TEXT:
        return Kind::Text;
    case SQLITE_BLOB:
        return Kind::Blob;
    default:
        return Kind::Null;
    }
}

std::optional<std::string_view> SQLiteSnapshot::Row::utf8(int column) const
{
    const unsigned char *text = sqlite3_column_text(m_statement, column);
    if (text == nullptr)
        return {};
    return std::string_view(reinterpret_cast<const char *>(text),
                            static_cast<size_t>(sqlite3_column_bytes(m_statement, column)));
}

std::optional<QString> SQLiteSnapshot::Row::text(int column) const
{
    const unsigned char *text = sqlite3_column_text(m_statement, column);
    if (text == nullptr)
        return {};
    return utf8Text(reinterpret_cast<const char *>(text));
}

QByteArrayView SQLiteSnapshot::Row::blob(int column) const
{
    const void *bytes = sqlite3_column_blob(m_statement, column);
    const int size = sqlite3_column_bytes(m_statement, column);
    m_blobBytesLeft -= size;
    return {static_cast<const char *>(bytes), size};
}

/// Whether this is much of something, and no database. SQLite could only say so of a copy, which would have
/// taken long and filled what others need, too. Of little files, and of those that a journal may make whole
/// again, it is asked.
bool isLargeAndForeign(const Files &files, const QString &path)
{
    constexpr QByteArrayView magic("SQLite format 3\0", 16);
    constexpr qsizetype headerSize = 100;
    constexpr qsizetype large = qsizetype{1} << 20U;
    const auto header = files.readBeginning(path, headerSize);
    return header && !header->startsWith(magic) &&
           files.readBeginning(path, large).value_or(QByteArray()).size() == large &&
           files.readBeginning(path % u"-journal", 1).value_or(QByteArray()).isEmpty();
}

/// The private folder and the files in it.
class SQLiteSnapshot::Copy
{
public:
    Copy(const Files &files, const QString &temporaryFolder, const QString &source)
        : m_files(files),
          m_source(source),
          m_folder(temporaryFolder % u'/' % folderPrefix % QString::number(Processes::ownID()) % u'-' %
                   QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper())
    {
    }
    Copy(const Copy &) = delete;
    Copy &operator=(const Copy &) = delete;
    ~Copy() { remove(); }

    QString source() const { return m_source; }
    QString folder() const { return m_folder; }
    QString path() const { return m_folder % u'/' % QFileInfo(m_source).fileName(); }

    std::expected<void, ReadError> make(const std::stop_token &stop)
    {
        if (isLargeAndForeign(m_files, m_source))
            return std::unexpected(
                ReadError::unreadable(m_source, translated(sqlite3_errstr(SQLITE_NOTADB))));
        for (int attempt = 1; attempt <= attempts; ++attempt) {
            if (attempt > 1)
                std::this_thread::sleep_for(pauses.at(static_cast<std::size_t>(attempt - 2)));
            remove();
            if (const std::error_code error = m_files.makePrivateFolder(m_folder))
                return std::unexpected(noRoom(error));
            const bool isLast = attempt == attempts;
            const QString before = isLast ? QString() : stamp(m_files, m_source);
            const DatabaseMoment moment(m_files, m_source);
            if (const auto copied = isLast ? copyWhatNeverRests(stop) : copyAll(stop, {}); !copied)
                return std::unexpected(errorOf(copied.error()));
            if (stop.stop_requested())
                return std::unexpected(
                    ReadError::wrap(std::make_error_code(std::errc::operation_canceled), m_source));
            // Of a file that is written to without rest, equal stamps alone say too little.
            if (!isLast && stamp(m_files, m_source) == before && DatabaseMoment(m_files, m_source) == moment)
                break;
        }
        return {};
    }

private:
    using Copied = std::expected<void, CopyError>;

    /// By name, which takes no descriptor: there may be no more.
    void remove() const
    {
        m_files.removeFile(path());
        for (const QLatin1StringView suffix : sidecars)
            m_files.removeFile(path() + suffix);
        m_files.removeFolder(m_folder);
    }

    Copied copyAll(const std::stop_token &stop, const std::function<bool()> &isGood) const
    {
        QStringList suffixes;
        for (const QLatin1StringView suffix : sidecars)
            suffixes.append(suffix);
        return m_files.copy(m_source, path(), suffixes, stop, isGood);
    }

    /// For the last copy, which is used whatever it is: while somebody writes without rest, the files are
    /// copied again until nothing was written while they were, but not for ever.
    Copied copyWhatNeverRests(const std::stop_token &stop) const
    {
        constexpr int fewestLooks = 5;
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
        DatabaseMoment before(m_files, m_source);
        int looks = 0;
        return copyAll(stop, [&] {
            const DatabaseMoment after(m_files, m_source);
            if (after == before && (after.hasLog() || isWhatIsThere()))
                return true;
            before = DatabaseMoment(m_files, m_source);
            return ++looks >= fewestLooks && std::chrono::steady_clock::now() >= end;
        });
    }

    /// Whether the source's files hold the very bytes that were copied. Then they held them all at once, when
    /// the copy was done: no header, time or lock can say so of a change in the middle of which they are.
    bool isWhatIsThere() const
    {
        return m_files.haveSameBytes(m_source, path()) &&
               m_files.haveSameBytes(m_source % u"-journal", path() % u"-journal") &&
               m_files.haveSameBytes(m_source % u"-wal", path() % u"-wal");
    }

    ReadError errorOf(const CopyError &error) const
    {
        return error.side == CopyError::Side::Target ? noRoom(error.code)
                                                     : ReadError::wrap(error.code, m_source);
    }

    /// The browser's file may be as it should: whatever kind of failure this is, it is none of the browser's.
    ReadError noRoom(std::error_code error) const
    {
        return ReadError::unreadable(
            m_source,
            //: %1 is a folder, %2 says why.
            QCoreApplication::translate("roamlet::ReadError", "cannot make a copy in %1: %2")
                .arg(QFileInfo(m_folder).path(), QString::fromStdString(error.message())));
    }

    const Files &m_files;
    QString m_source;
    QString m_folder;
};

/// An open handle, with a limit on how long a statement may run.
class SQLiteSnapshot::Connection
{
public:
    explicit Connection(std::stop_token stop) : m_stop(std::move(stop)) {}
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection() { sqlite3_close(m_handle); }

    /// The message when it fails.
    std::expected<void, QString> open(const QString &path)
    {
        prepareLibrary();
        // Read-write, so that SQLite can replay the copied logs into the copy. Each connection has one
        // thread: a lock for each value of each row would be for nothing.
        const int result =
            sqlite3_open_v2(QFile::encodeName(path).constData(), &m_handle,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, ConfinedFiles::name());
        if (result != SQLITE_OK)
            return std::unexpected(m_handle != nullptr ? messageOf(m_handle) : u"open failed"_s);
        // The file is a stranger's: its schema may hold data and nothing that runs.
        sqlite3_db_config(m_handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
        sqlite3_db_config(m_handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
        sqlite3_db_config(m_handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        // The copy is thrown away: nothing has to be merged into it at the end, or to survive a power cut.
        sqlite3_db_config(m_handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
        sqlite3_exec(m_handle, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
        LiteralLike::install(m_handle);
        sqlite3_progress_handler(m_handle, stepsPerCheck, &Connection::shallEnd, this);
        return {};
    }

    std::int64_t blobBytesLeft = 0;

    sqlite3 *handle() const { return m_handle; }
    const std::stop_token &stop() const { return m_stop; }

    /// Gives the next statement as many steps as any honest file of this size could need. A damaged file can
    /// lead SQLite through the same pages again and again.
    void allowStepsFor(qsizetype parameters)
    {
        constexpr std::int64_t always = 20'000'000;
        constexpr std::int64_t perByte = 20;
        // Asking for the size takes steps as well.
        m_checksLeft = always / stepsPerCheck;
        const std::int64_t bytes = size();
        m_checksLeft = (always + perByte * bytes) / stepsPerCheck * (1 + parameters);
        // No honest row shares its bytes with another one. What is computed has no room in the file.
        constexpr std::int64_t computed = std::int64_t{1} << 20U;
        blobBytesLeft = bytes + computed;
    }

    /// The bytes of the database with its logs, or 0 when it is none.
    std::int64_t size() const
    {
        const auto number = [this](const char *pragma) -> std::int64_t {
            sqlite3_stmt *prepared = nullptr;
            sqlite3_prepare_v2(m_handle, pragma, -1, &prepared, nullptr);
            const Statement statement(prepared);
            return statement && sqlite3_step(prepared) == SQLITE_ROW ? sqlite3_column_int64(prepared, 0) : 0;
        };
        return number("PRAGMA page_count") * number("PRAGMA page_size");
    }

private:
    static constexpr int stepsPerCheck = 10'000;

    /// Once in the process. SQLite's count of its memory costs a lock for each allocation, of which a search
    /// makes several for each row.
    static void prepareLibrary()
    {
        [[maybe_unused]] static const int result = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    }

    static int shallEnd(void *connection)
    {
        auto *self = static_cast<Connection *>(connection);
        return self->m_stop.stop_requested() || --self->m_checksLeft < 0 ? 1 : 0;
    }

    sqlite3 *m_handle = nullptr;
    std::stop_token m_stop;
    std::int64_t m_checksLeft = 0;
};

SQLiteSnapshot::SQLiteSnapshot(std::shared_ptr<Copy> copy, std::unique_ptr<Connection> connection)
    : m_copy(std::move(copy)), m_connection(std::move(connection))
{
}

SQLiteSnapshot::SQLiteSnapshot(SQLiteSnapshot &&) noexcept = default;
SQLiteSnapshot &SQLiteSnapshot::operator=(SQLiteSnapshot &&) noexcept = default;
SQLiteSnapshot::~SQLiteSnapshot() = default;

std::expected<SQLiteSnapshot, ReadError> SQLiteSnapshot::copying(const QString &source,
                                                                 const ReadContext &context)
{
    auto copy = std::make_shared<Copy>(*context.files, context.folders.temporary, source);
    if (const auto made = copy->make(context.stop); !made)
        return std::unexpected(made.error());
    return opening(std::move(copy), context.stop);
}

std::expected<SQLiteSnapshot, ReadError> SQLiteSnapshot::opening(std::shared_ptr<Copy> copy,
                                                                 std::stop_token stop)
{
    auto connection = std::make_unique<Connection>(std::move(stop));
    if (const auto opened = connection->open(copy->path()); !opened)
        return std::unexpected(ReadError::unreadable(copy->source(), opened.error()));
    return SQLiteSnapshot(std::move(copy), std::move(connection));
}

std::expected<SQLiteSnapshot, ReadError> SQLiteSnapshot::secondReader() const
{
    return opening(m_copy, m_connection->stop());
}

std::expected<void, ReadError> SQLiteSnapshot::query(const QString &sql, const QStringList &parameters,
                                                     const RowHandler &handleRow) const
{
    sqlite3 *connection = m_connection->handle();
    m_connection->allowStepsFor(parameters.size());
    sqlite3_stmt *prepared = nullptr;
    const int result = sqlite3_prepare_v2(connection, sql.toUtf8().constData(), -1, &prepared, nullptr);
    const Statement statement(prepared);
    if (result != SQLITE_OK || !statement)
        return std::unexpected(queryError(connection));
    for (int i = 0; i < parameters.size(); ++i)
        sqlite3_bind_text(prepared, i + 1, parameters[i].toUtf8().constData(), -1, SQLITE_TRANSIENT);
    int step = sqlite3_step(prepared);
    for (; step == SQLITE_ROW; step = sqlite3_step(prepared)) {
        handleRow(Row(prepared, m_connection->blobBytesLeft));
        if (m_connection->blobBytesLeft < 0)
            return std::unexpected(
                ReadError::unreadable(u"query"_s, QString::fromUtf8(sqlite3_errstr(SQLITE_CORRUPT))));
    }
    if (step != SQLITE_DONE)
        return std::unexpected(queryError(connection));
    return {};
}

QString SQLiteSnapshot::folder() const
{
    return m_copy->folder();
}

std::int64_t SQLiteSnapshot::size() const
{
    m_connection->allowStepsFor(0);
    return m_connection->size();
}

QString SQLiteSnapshot::stamp(const Files &files, const QString &database)
{
    // The "-shm" file says nothing about the content.
    return files.lastingStamp(database) % u'|' % files.lastingStamp(database % u"-wal") % u'|' %
           files.lastingStamp(database % u"-journal");
}

void SQLiteSnapshot::removeLeftovers(const Files &files, const QString &temporaryFolder)
{
    // Where everybody may put something, a name alone says little: what is no copy is left alone.
    const bool isShared = !files.isUsersAlone(temporaryFolder);
    for (const QString &name : files.names(temporaryFolder)) {
        if (!name.startsWith(folderPrefix))
            continue;
        const QStringList pieces = name.sliced(folderPrefix.size()).split(u'-', Qt::SkipEmptyParts);
        const QString id = pieces.value(0);
        bool isNumber = false;
        const std::int32_t process = id.toInt(&isNumber);
        isNumber = isNumber && id == id.trimmed();
        // Never the copies of a run that is still alive, whoever's it is.
        if (isNumber && Processes::exists(process))
            continue;
        const QString path = temporaryFolder % u'/' % name;
        if (!isShared || (isNumber && canHoldCopy(files, path)))
            files.removeFolder(path);
    }
}

} // namespace roamlet
