// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/DatabaseMoment.h"

#include "Platform/Files.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

QByteArray beginning(const Files &files, const QString &path, qsizetype size)
{
    return files.readBeginning(path, size).value_or(QByteArray());
}

} // namespace

DatabaseMoment DatabaseMoment::before(const Files &files, const QString &database)
{
    DatabaseMoment moment;
    moment.m_stamp = files.fileStamp(database);
    moment.lookAtDatabase(files, database);
    moment.lookAtJournal(files, database);
    return moment;
}

DatabaseMoment DatabaseMoment::after(const Files &files, const QString &database)
{
    DatabaseMoment moment;
    moment.lookAtJournal(files, database);
    moment.lookAtDatabase(files, database);
    moment.m_stamp = files.fileStamp(database);
    return moment;
}

bool DatabaseMoment::hasContentOf(const DatabaseMoment &other) const
{
    return m_stamp == other.m_stamp && m_counter == other.m_counter && m_log == other.m_log;
}

void DatabaseMoment::lookAtDatabase(const Files &files, const QString &database)
{
    constexpr qsizetype headerSize = 100;
    constexpr qsizetype counterPlace = 24;
    constexpr qsizetype counterSize = 4;
    constexpr qsizetype logHeaderSize = 32;
    m_counter = beginning(files, database, headerSize).mid(counterPlace, counterSize);
    m_log = beginning(files, database % u"-wal", logHeaderSize);
}

void DatabaseMoment::lookAtJournal(const Files &files, const QString &database)
{
    constexpr qsizetype headerSize = 28;
    const QByteArrayView magic("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);
    // How many pages the journal has stands in between, and grows.
    constexpr qsizetype numberPlace = 12;
    const QByteArray header = beginning(files, database % u"-journal", headerSize);
    // One that is empty, or whose header was wiped, belongs to a change that has ended.
    if (header.startsWith(magic))
        m_journal = header.sliced(0, magic.size()) % header.mid(numberPlace);
}

} // namespace roamlet
