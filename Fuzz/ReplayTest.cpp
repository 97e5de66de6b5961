// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// Lets the honest inputs of every target in once, some damage of them, and everything that ever failed.

#include "Kit/DatabaseInput.h"
#include "Kit/DatabaseMutator.h"
#include "Kit/Target.h"
#include "SampleHome/SampleText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

#include <ostream>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

/// Lets tests be named after their target.
void PrintTo(const Target &target, std::ostream *stream)
{
    *stream << target.name;
}

namespace
{

class EveryTarget : public ::testing::TestWithParam<Target>
{
};

INSTANTIATE_TEST_SUITE_P(Of, EveryTarget, ::testing::ValuesIn(allTargets()),
                         [](const auto &target) { return std::string(target.param.name); });

} // namespace

TEST_P(EveryTarget, withstandsHonestInputs)
{
    const QList<QByteArray> seeds = GetParam().seeds();
    ASSERT_FALSE(seeds.isEmpty());
    for (const QByteArray &seed : seeds) {
        EXPECT_LE(seed.size(), GetParam().longest);
        EXPECT_NO_THROW(GetParam().attack(seed));
    }
    EXPECT_NO_THROW(GetParam().attack({}));
}

TEST_P(EveryTarget, withstandsWhatOnceFailed)
{
    const QDir folder(QStringLiteral(ROAMLET_REGRESSIONS "/") + QString::fromLatin1(GetParam().name));
    for (const QString &name : folder.entryList(QDir::Files)) {
        SCOPED_TRACE(name.toStdString());
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_NO_THROW(GetParam().attack(bytes));
    }
}

TEST(FuzzRegressions, areThoseOfTargets)
{
    QStringList names;
    for (const Target &target : allTargets())
        names.append(QString::fromLatin1(target.name));
    for (const QString &folder :
         QDir(QStringLiteral(ROAMLET_REGRESSIONS)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        EXPECT_TRUE(names.contains(folder)) << folder.toStdString();
}

TEST(FuzzRequirement, endsTheInputWhenItDoesNotHold)
{
    EXPECT_NO_THROW(require(true, "holds"));
    EXPECT_THROW(require(false, "does not hold"), Finding);
}

TEST(FuzzDatabaseInput, comesBackAsItWas)
{
    const DatabaseInput input{.database = "database", .log = "log", .journal = "journal"};
    const DatabaseInput read = DatabaseInput::of(input.bytes());
    EXPECT_EQ(read.database, "database");
    EXPECT_EQ(read.log, "log");
    EXPECT_EQ(read.journal, "journal");
    EXPECT_EQ(DatabaseInput::of("short").database, "");
    EXPECT_EQ(DatabaseInput::of("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"
                                "all")
                  .database,
              "all");
}

TEST(FuzzDatabaseInput, repairsChecksumsToWhatTheLibraryWrote)
{
    const QList<QByteArray> seeds = databaseSeeds({.tables = "CREATE TABLE t(a)",
                                                   .earlier = "INSERT INTO t VALUES('one')",
                                                   .later = "INSERT INTO t VALUES('two')",
                                                   .change = "UPDATE t SET a = 'wrong'"});
    ASSERT_EQ(seeds.size(), 4);
    for (const QByteArray &seed : seeds) {
        DatabaseInput input = DatabaseInput::of(seed);
        EXPECT_EQ(input.bytes(), seed);
        input.repairChecksums();
        EXPECT_EQ(input.bytes(), seed) << "all is right already";
        // The last byte of a page in the log, and of a page in the journal.
        if (!input.log.isEmpty()) {
            input.log.back() = '!';
            const QByteArray damaged = input.bytes();
            input.repairChecksums();
            EXPECT_NE(input.bytes(), damaged);
        }
    }
    EXPECT_FALSE(DatabaseInput::of(seeds[1]).log.isEmpty());
    EXPECT_FALSE(DatabaseInput::of(seeds[3]).journal.isEmpty());
}

TEST(FuzzDatabaseMutator, makesManyInputsThatFit)
{
    const QByteArray seed =
        DatabaseInput{.database = QByteArray(2048, 'd'), .log = QByteArray(600, 'l'), .journal = {}}.bytes();
    sample::Random random(1);
    const Mutate mutate = [&random](char *bytes, qsizetype size, qsizetype most) {
        for (qsizetype i = 0; i < most; ++i)
            bytes[i] = static_cast<char>(random.below(256));
        return std::min(most, size + 1);
    };
    constexpr qsizetype most = 3000;
    QSet<QByteArray> inputs;
    for (quint64 i = 0; i < 100; ++i) {
        const QByteArray mutated = mutatedDatabase(seed, most, i, mutate);
        EXPECT_LE(mutated.size(), most);
        inputs.insert(mutated);
        EXPECT_LE(mutatedDatabase({}, most, i, mutate).size(), most);
        EXPECT_LE(mutatedDatabase(seed, 20, i, mutate).size(), 20);
    }
    EXPECT_GT(inputs.size(), 90);
}

} // namespace roamlet::fuzz

int main(int argc, char **argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
