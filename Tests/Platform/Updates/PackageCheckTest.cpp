// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/PackageCheck.h"

#include "DebianPackage.h"
#include "PackageSigner.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using Code = UpdateError::Code;

class PackageCheckTest : public ::testing::Test
{
protected:
    std::optional<UpdateError> problemOf(const QByteArray &package)
    {
        check.signature = *PackageSignature::decodedSignature(signer.signature(package));
        return check.problemOf(package);
    }
    /// The problem of a package that is right but for its control file.
    std::optional<UpdateError> problemOfControl(const QByteArray &text)
    {
        return problemOf(debianPackage(text));
    }
    /// What `program` makes of `content`.
    static QByteArray through(const QString &program, const QByteArray &content)
    {
        QProcess process;
        process.start(program, {u"-9"_s, u"-c"_s});
        process.write(content);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        return process.readAllStandardOutput();
    }
    static QByteArray packed(const QString &program, const QByteArray &ending, const QByteArray &tar)
    {
        return arArchive({{"debian-binary", "2.0\n"}, {"control.tar" + ending, through(program, tar)}});
    }
    static UpdateError wrong(const QString &detail) { return {Code::WrongPackage, detail}; }

    PackageSigner signer;
    PackageCheck check{.key = *PackageSignature::decodedKey(signer.publicKey()),
                       .signature = {},
                       .name = u"roamlet"_s,
                       .version = u"2.0"_s,
                       .installedVersion = u"1.0"_s};
    const QByteArray control = "Package: roamlet\nVersion: 2.0-1\nArchitecture: amd64\n";
};

TEST_F(PackageCheckTest, theAnnouncedPackageIsRight)
{
    EXPECT_EQ(problemOfControl(control), std::nullopt);
    EXPECT_EQ(problemOfControl("package:roamlet\nVERSION:  2.0\n"), std::nullopt) << "without a revision";
    EXPECT_EQ(problemOfControl("Package: roamlet\nVersion: 2.0-12.1\nDescription: a\n Version: 3\n"),
              std::nullopt);
}

TEST_F(PackageCheckTest, theSignatureComesFirst)
{
    check.signature = *PackageSignature::decodedSignature(signer.signature("another"));
    EXPECT_EQ(check.problemOf("no package"), (UpdateError{Code::WrongSignature, {}}));
    EXPECT_EQ(check.problemOf(debianPackage(control)), (UpdateError{Code::WrongSignature, {}}));
}

TEST_F(PackageCheckTest, anOldPackageThatIsOfferedAsNewIsRefused)
{
    EXPECT_EQ(problemOfControl("Package: roamlet\nVersion: 1.0-1\n"), wrong(u"roamlet 1.0-1"_s));
    EXPECT_EQ(problemOfControl("Package: roamlet\nVersion: 1.9-1\n"), wrong(u"roamlet 1.9-1"_s))
        << "newer than ours, but not what was announced";
    EXPECT_EQ(problemOfControl("Package: roamlet\nVersion: 2.0.1-1\n"), wrong(u"roamlet 2.0.1-1"_s));
}

TEST_F(PackageCheckTest, theVersionThatRunsIsNotInstalledAgain)
{
    for (const QString &installed : {u"2.0"_s, u"2.0.0"_s, u"2.1"_s}) {
        check.installedVersion = installed;
        EXPECT_EQ(problemOfControl(control), wrong(u"roamlet 2.0-1"_s)) << qPrintable(installed);
    }
}

TEST_F(PackageCheckTest, thePackageOfAnotherProgramIsRefused)
{
    EXPECT_EQ(problemOfControl("Package: roamlet-extras\nVersion: 2.0-1\n"),
              wrong(u"roamlet-extras 2.0-1"_s));
    EXPECT_EQ(problemOfControl("Version: 2.0-1\n"), wrong(u" 2.0-1"_s));
    EXPECT_EQ(problemOfControl("Package: roamlet\n"), wrong(u"roamlet "_s));
}

TEST_F(PackageCheckTest, aVersionThatOnlyReadsTheSameIsRefused)
{
    for (const QByteArray version : {"1:2.0-1", "2.0-1-1", "2.0~1-1", "2.0.0-1", "2:0-1", "-2.0"})
        EXPECT_EQ(problemOfControl("Package: roamlet\nVersion: " + version + '\n')->code, Code::WrongPackage)
            << version.constData();
}

TEST_F(PackageCheckTest, whatIsNoDebianPackageIsRefused)
{
    const QByteArray tar = tarArchive({{"./control", control}});
    for (const QByteArray &package :
         {QByteArray(), QByteArray("no package"), QByteArray("!<arch>\n"), tar,
          arArchive({{"debian-binary", "2.0\n"}}), arArchive({{"control.tar", tar}}),
          arArchive({{"debian-binary", "2.0\n"}, {"data.tar", tar}, {"control.tar", tar}}),
          arArchive({{"debian-binary", "2.0\n"}, {"control.tar", "no archive"}}),
          arArchive({{"debian-binary", "2.0\n"}, {"control.tar", QByteArray()}}),
          arArchive({{"debian-binary", "2.0\n"}, {"control.tar", tarArchive({{"./md5sums", "x"}})}})}) {
        const auto problem = problemOf(package);
        ASSERT_TRUE(problem);
        EXPECT_EQ(problem->code, Code::WrongPackage);
        EXPECT_FALSE(problem->detail.isEmpty());
    }
}

TEST_F(PackageCheckTest, aControlFileThatIsCutIsRefused)
{
    const QByteArray whole = packed(u"gzip"_s, ".gz", tarArchive({{"./control", control}}));
    ASSERT_EQ(problemOf(whole), std::nullopt);
    for (qsizetype length = 0; length < whole.size() - 30; ++length)
        EXPECT_EQ(problemOf(whole.first(length))->code, Code::WrongPackage) << length;
    const QByteArray gz = through(u"gzip"_s, tarArchive({{"./control", control}}));
    for (const qsizetype length : {qsizetype{1}, qsizetype{20}, gz.size() / 2}) {
        EXPECT_EQ(
            problemOf(arArchive({{"debian-binary", "2.0\n"}, {"control.tar.gz", gz.first(length)}}))->code,
            Code::WrongPackage)
            << length;
    }
}

TEST_F(PackageCheckTest, aControlFileThatUnfoldsWithoutEndIsRefused)
{
    const QByteArray zeros(qsizetype{64} << 20U, ' ');
    // In front of the control file, in its place, and as a member that is too large itself.
    EXPECT_EQ(problemOf(packed(u"gzip"_s, ".gz", tarArchive({{"./x", zeros}, {"./control", control}}))),
              wrong(u"Too much is packed"_s));
    EXPECT_EQ(problemOf(packed(u"gzip"_s, ".gz", tarArchive({{"./control", control + zeros}})))->code,
              Code::WrongPackage);
    EXPECT_EQ(problemOfControl(control + zeros.first(100'000)), wrong(u"A part is too long"_s));
    EXPECT_EQ(problemOf(debianPackage(control, zeros)), std::nullopt) << "what is installed may be large";
    EXPECT_EQ(problemOf(arArchive(
                  {{"debian-binary", "2.0\n"},
                   {"control.tar", tarArchive({{"./x", zeros.first(2'000'000)}, {"./control", control}})}})),
              wrong(u"A part is too long"_s));
}

TEST_F(PackageCheckTest, whatDebianPacksIsReadHoweverItIsPacked)
{
    if (QStandardPaths::findExecutable(u"dpkg-deb"_s).isEmpty())
        GTEST_SKIP() << "dpkg-deb is not installed";
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"tree/DEBIAN"_s));
    QFile file(folder.filePath(u"tree/DEBIAN/control"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(control + "Maintainer: The Roamlet authors <a@b.invalid>\nDescription: test\n");
    file.close();
    for (const QString &kind : {u"none"_s, u"gzip"_s, u"xz"_s, u"zstd"_s}) {
        QProcess builder;
        builder.setWorkingDirectory(folder.path());
        builder.start(u"dpkg-deb"_s, {u"--root-owner-group"_s, u"--uniform-compression"_s,
                                      QString(u"-Z" % kind), u"--build"_s, u"tree"_s, u"package.deb"_s});
        ASSERT_TRUE(builder.waitForFinished());
        ASSERT_EQ(builder.exitCode(), 0) << builder.readAllStandardError().constData();
        QFile package(folder.filePath(u"package.deb"_s));
        ASSERT_TRUE(package.open(QIODevice::ReadOnly));
        EXPECT_EQ(problemOf(package.readAll()), std::nullopt) << qPrintable(kind);
    }
}

} // namespace
} // namespace roamlet::testing
