// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/UpdateInstaller.h"

#include "UpdatesTest.h"

#include <QDateTime>

#include <sys/stat.h>

#include <cstdio>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;

class UpdateInstallerTest : public UpdatesTest
{
protected:
    UpdateInstaller installer()
    {
        return UpdateInstaller({.program = folder.filePath(u"roamlet"_s),
                                .packageFolder = folder.filePath(u"cache/Roamlet/Updates"_s),
                                .openPackage =
                                    [this](const QString &path) {
                                        opened.append(path);
                                        return hasInstaller;
                                    },
                                .systemBus = {}});
    }

    static mode_t modeOf(const QString &path)
    {
        struct stat attributes = {};
        EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &attributes), 0);
        return attributes.st_mode & 07777U;
    }

    bool hasInstaller = true;
    QStringList opened;
};

TEST_F(UpdateInstallerTest, aPackageIsHandedToTheDesktop)
{
    const auto path = installer().packagePath();
    ASSERT_TRUE(path);
    EXPECT_EQ(*path, folder.filePath(u"cache/Roamlet/Updates/Roamlet.deb"_s));
    write(*path, "package");
    EXPECT_EQ(installer().handOver(), std::nullopt);
    EXPECT_EQ(opened, QStringList{*path});
    EXPECT_EQ(contentOf(*path), "package") << "the desktop reads it when it gets to it";
}

TEST_F(UpdateInstallerTest, aPackageIsKeptForADayAndThenRemoved)
{
    const QString path = installer().packagePath().value();
    write(path, "package");
    QFile package(path);
    ASSERT_TRUE(package.open(QIODevice::ReadWrite));
    const auto now = clock.now();
    const qint64 milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count();
    ASSERT_TRUE(
        package.setFileTime(QDateTime::fromMSecsSinceEpoch(milliseconds), QFile::FileModificationTime));
    package.close();
    installer().removeLeftovers(now - 1000h);
    installer().removeLeftovers(now + 24h - 1ms);
    EXPECT_EQ(contentOf(path), "package");
    installer().removeLeftovers(now + 24h);
    EXPECT_FALSE(QFile::exists(path));
    installer().removeLeftovers(now + 24h);
}

TEST_F(UpdateInstallerTest, onlyTheUserEntersTheFolderOfPackages)
{
    const QString packages = folder.filePath(u"cache/Roamlet/Updates"_s);
    ASSERT_TRUE(QDir().mkpath(packages));
    ASSERT_EQ(::chmod(QFile::encodeName(packages).constData(), 0777), 0);
    ASSERT_TRUE(installer().packagePath());
    EXPECT_EQ(modeOf(packages), 0700U);
}

TEST_F(UpdateInstallerTest, aProgramIsReplacedOnceItsNameIsAnotherFiles)
{
    const QString program = folder.filePath(u"roamlet"_s);
    const QString next = folder.filePath(u"roamlet.dpkg-new"_s);
    write(program, "old program");
    const UpdateInstaller running = installer();
    EXPECT_FALSE(running.isProgramReplaced());
    write(next, "new program");
    EXPECT_FALSE(running.isProgramReplaced());
    ASSERT_EQ(std::rename(QFile::encodeName(next).constData(), QFile::encodeName(program).constData()), 0);
    EXPECT_TRUE(running.isProgramReplaced());
    EXPECT_FALSE(installer().isProgramReplaced()) << "a later start runs the new one";
    ASSERT_TRUE(QFile::remove(program));
    EXPECT_FALSE(running.isProgramReplaced()) << "nothing is there to be started";
}

TEST_F(UpdateInstallerTest, aDesktopWithoutAnInstallerIsAnErrorThatTellsWhereThePackageIs)
{
    hasInstaller = false;
    const QString path = installer().packagePath().value();
    EXPECT_EQ(installer().handOver(), (UpdateError{Code::NoInstaller, path}));
}

TEST_F(UpdateInstallerTest, aFolderThatCannotBeMadeIsAnErrorInTheSystemsWords)
{
    write(folder.filePath(u"cache"_s), "a file");
    const auto path = installer().packagePath();
    ASSERT_FALSE(path);
    EXPECT_EQ(path.error().code, Code::CannotWrite);
    EXPECT_FALSE(path.error().detail.isEmpty());
}

TEST_F(UpdateInstallerTest, thisProcessKeepsPackagesAmongItsCaches)
{
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", "/home/anna/cache");
    const auto here = UpdateInstaller::Environment::ofThisProcess();
    EXPECT_EQ(here.packageFolder, u"/home/anna/cache/Roamlet/Updates"_s);
    qputenv("XDG_CACHE_HOME", before);
}

} // namespace
} // namespace roamlet::testing
