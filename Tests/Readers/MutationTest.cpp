// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/EveryReader.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleText.h"

#include <QFile>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using sample::Journal;
using sample::PropertyListFormat;
using sample::Random;

/// Damages bytes as bad disks, crashes and other programs do. The same seed does the same damage everywhere.
QByteArray damaged(QByteArray bytes, quint64 seed)
{
    Random random(seed);
    if (bytes.isEmpty())
        return bytes;
    // Most of what decides how a file is read stands at its beginning or its end.
    const auto place = [&]() -> qsizetype {
        const qsizetype edge = std::min<qsizetype>(bytes.size(), 200);
        switch (random.below(4)) {
        case 0:
            return random.below(edge);
        case 1:
            return bytes.size() - 1 - random.below(edge);
        default:
            return random.below(bytes.size());
        }
    };
    const auto byte = [&random] { return static_cast<char>(random.below(256)); };
    switch (random.below(6)) {
    case 0:
        return bytes.first(random.below(bytes.size()));
    case 1: {
        const qsizetype at = place();
        const qsizetype length = std::min<qsizetype>(bytes.size() - at, 1 + random.below(64));
        return bytes.replace(at, length, QByteArray(length, random.below(2) == 0 ? '\0' : '\xFF'));
    }
    case 2:
        return bytes.remove(place(), 1 + random.below(32));
    case 3: {
        const qsizetype from = place();
        return bytes.insert(place(), bytes.mid(from, 1 + random.below(512)));
    }
    case 4:
        for (qint64 count = 1 + random.below(16); count > 0; --count)
            bytes[place()] = byte();
        return bytes;
    default:
        for (qint64 count = 1 + random.below(4); count > 0; --count) {
            const qsizetype at = place();
            bytes[at] = static_cast<char>(
                bytes[at] ^ static_cast<char>(1U << static_cast<unsigned int>(random.below(8))));
        }
        return bytes;
    }
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// However a file is damaged, its reader answers with rows or with an error that says where and why.
class Mutations : public EveryReader
{
protected:
    /// Writes the files of one reading only: everything is compared after every mutation.
    void writeOnly(const Reading &reading, Journal journal = Journal::Clean,
                   PropertyListFormat format = PropertyListFormat::Binary)
    {
        change([&] {
            writeHome(journal, format);
            for (const Reading &other : readings) {
                if (other.path == reading.path)
                    continue;
                for (const QString &suffix : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
                    QFile::remove(other.path + suffix);
            }
        });
    }

    /// Damages this file of one reading again and again.
    void damage(const Reading &reading, const QString &path, int times)
    {
        const QByteArray good = contentOf(path);
        ASSERT_FALSE(good.isEmpty());
        for (int seed = 1; seed <= times && !HasFailure(); ++seed) {
            SCOPED_TRACE(QString(path % u", seed " % QString::number(seed)).toStdString());
            change([&] { sample::writeFile(path, damaged(good, static_cast<quint64>(seed))); });
            const std::optional<ReadError> error = reading.read(context());
            ASSERT_EQ(home.leftovers(), QStringList());
            if (!error)
                continue;
            EXPECT_EQ(error->kind(), ReadError::Kind::Unreadable);
            EXPECT_TRUE(error->path() == reading.path || (reading.isDatabase && error->path() == u"query"))
                << error->path().toStdString();
            EXPECT_FALSE(error->reason().isEmpty());
        }
        change([&] { sample::writeFile(path, good); });
        EXPECT_EQ(reading.read(context()), std::nullopt);
    }
};

constexpr int mutationsOfFile = 300;
constexpr int mutationsOfLog = 100;
/// Each is rolled back, which is slow.
constexpr int mutationsOfJournal = 40;

} // namespace

TEST_F(Mutations, doDamage)
{
    const Reading &bookmarks = readings[5];
    writeOnly(bookmarks);
    const QByteArray good = contentOf(bookmarks.path);
    int errors = 0;
    for (quint64 seed = 1; seed <= 100; ++seed) {
        EXPECT_EQ(damaged(good, seed), damaged(good, seed));
        change([&] { sample::writeFile(bookmarks.path, damaged(good, seed)); });
        errors += bookmarks.read(context()).has_value() ? 1 : 0;
    }
    EXPECT_GT(errors, 20);
    EXPECT_LT(errors, 100);
}

TEST_F(Mutations, ofDatabases)
{
    for (const Reading &reading : readings) {
        if (!reading.isDatabase)
            continue;
        writeOnly(reading);
        damage(reading, reading.path, mutationsOfFile);
    }
}

TEST_F(Mutations, ofDatabasesWithAWriteAheadLog)
{
    for (const Reading &reading : readings) {
        if (!reading.isDatabase)
            continue;
        writeOnly(reading, Journal::UnmergedWal);
        damage(reading, reading.path, mutationsOfLog);
        damage(reading, reading.path % u"-wal", mutationsOfLog);
    }
}

TEST_F(Mutations, ofDatabasesWithAHotJournal)
{
    for (const Reading &reading : readings) {
        if (!reading.isDatabase)
            continue;
        writeOnly(reading, Journal::HotJournal);
        damage(reading, reading.path, mutationsOfJournal);
        damage(reading, reading.path % u"-journal", mutationsOfJournal);
    }
}

TEST_F(Mutations, ofTextFiles)
{
    for (const Reading &reading : readings) {
        if (reading.isDatabase)
            continue;
        writeOnly(reading);
        damage(reading, reading.path, mutationsOfFile);
    }
}

TEST_F(Mutations, ofXmlPropertyLists)
{
    const Reading &bookmarks = readings.back();
    writeOnly(bookmarks, Journal::Clean, PropertyListFormat::Xml);
    damage(bookmarks, bookmarks.path, mutationsOfFile);
}

TEST_F(Mutations, truncationsAtEveryPlaceOfTextFiles)
{
    for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml}) {
        for (const Reading &reading : readings) {
            if (reading.isDatabase || !reading.reportsErrors)
                continue;
            writeOnly(reading, Journal::Clean, format);
            const QByteArray good = contentOf(reading.path);
            // Behind the last closing bracket or tag of the root, only the end of the file is missing.
            qsizetype end = good.size();
            if (format == PropertyListFormat::Xml || reading.path.endsWith(u"Bookmarks"))
                end = std::max(good.lastIndexOf("</dict>"), good.lastIndexOf('}'));
            for (qsizetype length = 0; length < end; length += 1 + length / 50) {
                change([&] { sample::writeFile(reading.path, good.first(length)); });
                const auto error = reading.read(context());
                ASSERT_TRUE(error.has_value()) << reading.name << ' ' << length;
                EXPECT_EQ(error->path(), reading.path);
            }
        }
    }
}

} // namespace roamlet::testing
