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

DatabaseMoment::DatabaseMoment(const Files &files, const QString &database)
    : m_stamp(files.fileStamp(database))
{
    constexpr qsizetype headerSize = 100;
    constexpr qsizetype counterPlace = 24;
    constexpr qsizetype counterSize = 4;
    constexpr qsizetype logHeaderSize = 32;
    m_counter = beginning(files, database, headerSize).mid(counterPlace, counterSize);
    m_log = beginning(files, database % u"-wal", logHeaderSize);
}

} // namespace roamlet
