// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"

#include "SampleHome/PlainFiles.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdint>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype sizesLength = 8;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

DatabaseInput inputAt(const QString &path)
{
    return {.database = contentOf(path),
            .log = contentOf(path % u"-wal"),
            .journal = contentOf(path % u"-journal")};
}

quint32 numberAt(const QByteArray &bytes, qsizetype place)
{
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

void putNumber(QByteArray &bytes, qsizetype place, quint32 number)
{
    qToBigEndian(number, bytes.data() + place);
}

bool isPageSize(quint32 size)
{
    return size >= 512 && size <= 65'536 && (size & (size - 1)) == 0;
}

/// The two sums over all that was read of a log so far.
class LogSums
{
public:
    explicit LogSums(bool isBigEndian) : m_isBigEndian(isBigEndian) {}

    void add(QByteArrayView bytes)
    {
        for (qsizetype i = 0; i + 8 <= bytes.size(); i += 8) {
            m_first += number(bytes.data() + i) + m_second;
            m_second += number(bytes.data() + i + 4) + m_first;
        }
    }
    void put(QByteArray &bytes, qsizetype place) const
    {
        putNumber(bytes, place, m_first);
        putNumber(bytes, place + 4, m_second);
    }

private:
    quint32 number(const char *place) const
    {
        return m_isBigEndian ? qFromBigEndian<quint32>(place) : qFromLittleEndian<quint32>(place);
    }

    bool m_isBigEndian;
    quint32 m_first = 0;
    quint32 m_second = 0;
};

void repairLog(QByteArray &log)
{
    constexpr qsizetype headerSize = 32;
    constexpr qsizetype frameHeaderSize = 24;
    if (log.size() < headerSize)
        return;
    const quint32 pageSize = numberAt(log, 8);
    if (!isPageSize(pageSize))
        return;
    LogSums sums((numberAt(log, 0) & 1U) != 0);
    sums.add(QByteArrayView(log).first(headerSize - 8));
    sums.put(log, headerSize - 8);
    const QByteArray salts = log.mid(16, 8);
    const auto frameSize = frameHeaderSize + static_cast<qsizetype>(pageSize);
    for (qsizetype frame = headerSize; frame + frameSize <= log.size(); frame += frameSize) {
        log.replace(frame + 8, salts.size(), salts);
        sums.add(QByteArrayView(log).sliced(frame, 8));
        sums.add(QByteArrayView(log).sliced(frame + frameHeaderSize, pageSize));
        sums.put(log, frame + 16);
    }
}

void repairJournal(QByteArray &journal)
{
    constexpr qsizetype headerSize = 28;
    if (journal.size() < headerSize)
        return;
    const quint32 nonce = numberAt(journal, 12);
    const quint32 sectorSize = numberAt(journal, 20);
    const quint32 pageSize = numberAt(journal, 24);
    if (!isPageSize(pageSize) || sectorSize < 32 || sectorSize > 65'536)
        return;
    const auto recordSize = static_cast<qsizetype>(pageSize) + 8;
    for (qsizetype record = sectorSize; record + recordSize <= journal.size(); record += recordSize) {
        quint32 sum = nonce;
        for (qsizetype place = static_cast<qsizetype>(pageSize) - 200; place > 0; place -= 200)
            sum += static_cast<uchar>(journal.at(record + 4 + place));
        putNumber(journal, record + 4 + static_cast<qsizetype>(pageSize), sum);
    }
}

} // namespace

DatabaseInput DatabaseInput::of(QByteArrayView bytes)
{
    if (bytes.size() < sizesLength)
        return {};
    const QByteArrayView files = bytes.sliced(sizesLength);
    const auto size = [&](qsizetype place, qsizetype most) {
        return std::min<qsizetype>(qFromLittleEndian<quint32>(bytes.data() + place), most);
    };
    const qsizetype databaseSize = size(0, files.size());
    const qsizetype logSize = size(4, files.size() - databaseSize);
    return {.database = files.first(databaseSize).toByteArray(),
            .log = files.sliced(databaseSize, logSize).toByteArray(),
            .journal = files.sliced(databaseSize + logSize).toByteArray()};
}

QByteArray DatabaseInput::bytes() const
{
    std::array<char, sizesLength> sizes{};
    qToLittleEndian(static_cast<quint32>(database.size()), sizes.data());
    qToLittleEndian(static_cast<quint32>(log.size()), sizes.data() + 4);
    return QByteArray(sizes.data(), sizes.size()) + database + log + journal;
}

void DatabaseInput::repairChecksums()
{
    repairLog(log);
    repairJournal(journal);
}

void DatabaseInput::attack(const FuzzHome &home, const std::function<void()> &read) const
{
    home.reading({{QString(), database}, {u"-wal"_s, log}, {u"-journal"_s, journal}}, read);
}

QList<QByteArray> databaseSeeds(const SmallDatabase &contents)
{
    using sample::Journal;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"database"_s);
    // Enough to push the change out of SQLite's cache.
    const QByteArray tables = contents.tables + QByteArray(";CREATE TABLE bulk(bytes)");
    const sample::DatabaseContents description{
        .tables = tables.constData(),
        .fill =
            [&](sample::Database &database, sample::Share share) {
                if (share.which != sample::Share::Which::Later)
                    database.execute(contents.earlier);
                if (share.which != sample::Share::Which::Earlier)
                    database.execute(contents.later);
            },
        .unfinishedChange = contents.change,
        .unfinishedBulk = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 40)"
                          "INSERT INTO bulk SELECT zeroblob(400) FROM n",
        .pageSize = 512};
    QList<QByteArray> seeds;
    for (const Journal journal :
         {Journal::Clean, Journal::UnmergedWal, Journal::WalAlone, Journal::HotJournal}) {
        sample::writeDatabase(path, description, journal);
        const DatabaseInput input = inputAt(path);
        if ((journal == Journal::UnmergedWal || journal == Journal::WalAlone) && input.log.isEmpty())
            throw sample::Failure(u"the log is missing"_s);
        if (journal == Journal::HotJournal && input.journal.isEmpty())
            throw sample::Failure(u"the journal is missing"_s);
        seeds.append(input.bytes());
    }
    return seeds;
}

QByteArray databaseSeed(const std::function<void(const QString &path)> &write)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"database"_s);
    write(path);
    sample::Database(path).execute("PRAGMA journal_mode = DELETE; PRAGMA page_size = 512; VACUUM");
    return inputAt(path).bytes();
}

} // namespace roamlet::fuzz
