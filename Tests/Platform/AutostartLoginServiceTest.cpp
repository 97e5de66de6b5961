// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/AutostartLoginService.h"

#include "Platform/WithoutPrivileges.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>
#include <unistd.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using Status = LoginService::Status;

/// A language of one word.
class OneWordLanguage final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char * /*context*/, const char * /*source*/, const char * /*disambiguation*/,
                      int /*number*/) const override
    {
        return u"Roam"_s;
    }
};

class AutostartLoginServiceTest : public ::testing::Test
{
protected:
    AutostartLoginService service(const QString &program = u"/usr/bin/roamlet"_s) const
    {
        return AutostartLoginService({.configHome = folder.filePath(u"config"_s),
                                      .program = program,
                                      .dataFolders = {folder.filePath(u"usr/share"_s)}});
    }

    QString entry() const
    {
        QFile file(service().entryPath());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    void writeEntry(const QByteArray &content) const
    {
        QDir().mkpath(folder.filePath(u"config/autostart"_s));
        QFile file(service().entryPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder;
};

TEST_F(AutostartLoginServiceTest, nothingIsRegisteredAtFirst)
{
    EXPECT_EQ(service().status(), Status::NotRegistered);
}

TEST_F(AutostartLoginServiceTest, registeringWritesAnEntryThatStartsTheProgramWithTheMarker)
{
    ASSERT_TRUE(service().registerProgram());
    EXPECT_EQ(service().status(), Status::Enabled);
    EXPECT_EQ(service().entryPath(), folder.filePath(u"config/autostart/org.roamlet.Roamlet.desktop"_s));
    EXPECT_TRUE(entry().contains(u"\nExec=\"/usr/bin/roamlet\" --started-at-login\n"_s))
        << qPrintable(entry());
}

TEST_F(AutostartLoginServiceTest, theEntrySaysWhatItStartsInTheUsersLanguage)
{
    OneWordLanguage language;
    ASSERT_TRUE(QCoreApplication::installTranslator(&language));
    ASSERT_TRUE(service().registerProgram());
    EXPECT_TRUE(entry().contains(u"\nName=Roamlet\nComment=Roam\nIcon=org.roamlet.Roamlet\nExec="_s))
        << qPrintable(entry());
}

TEST_F(AutostartLoginServiceTest, unregisteringRemovesTheEntry)
{
    ASSERT_TRUE(service().registerProgram());
    ASSERT_TRUE(service().unregisterProgram());
    EXPECT_EQ(service().status(), Status::NotRegistered);
    EXPECT_FALSE(QFile::exists(service().entryPath()));
    EXPECT_TRUE(service().unregisterProgram()) << "what is not there is off the list";
}

TEST_F(AutostartLoginServiceTest, whatTheDesktopSwitchedOffRequiresApprovalAndStaysOff)
{
    for (const char *line : {"Hidden=true", "X-GNOME-Autostart-enabled=false", "Hidden = true"}) {
        writeEntry("[Desktop Entry]\nType=Application\nName=Roamlet\nExec=/usr/bin/roamlet\n" +
                   QByteArray(line) + "\n");
        EXPECT_EQ(service().status(), Status::RequiresApproval) << line;
        EXPECT_TRUE(service().registerProgram());
        EXPECT_EQ(service().status(), Status::RequiresApproval) << line;
        EXPECT_TRUE(service().unregisterProgram());
        EXPECT_TRUE(service().registerProgram());
        EXPECT_EQ(service().status(), Status::Enabled) << "taken off the list and put on it again";
        EXPECT_TRUE(service().unregisterProgram());
    }
}

TEST_F(AutostartLoginServiceTest, onlyTheMainGroupCounts)
{
    writeEntry("[Desktop Entry]\nExec=/usr/bin/roamlet\n[Desktop Action x]\nHidden=true\n");
    EXPECT_EQ(service().status(), Status::Enabled);
    writeEntry("[Desktop Action x]\nExec=/usr/bin/roamlet\n");
    EXPECT_EQ(service().status(), Status::NotRegistered);
}

TEST_F(AutostartLoginServiceTest, anEntryThatOnlySwitchesOffIsLeftAlone)
{
    writeEntry("[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(service().status(), Status::RequiresApproval);
    EXPECT_TRUE(service().registerProgram());
    EXPECT_EQ(entry(), u"[Desktop Entry]\nHidden=true\n"_s);
}

TEST_F(AutostartLoginServiceTest, anEntryWithoutACommandIsNoRegistration)
{
    for (const QByteArray &content :
         {QByteArray(), QByteArray("[Desktop Entry]\nExec=\n"), QByteArray("\0\xff", 2),
          QByteArray("[Desktop Entry]\nName=Roamlet\n")}) {
        writeEntry(content);
        EXPECT_EQ(service().status(), Status::NotRegistered);
        EXPECT_TRUE(service().registerProgram());
        EXPECT_EQ(service().status(), Status::Enabled);
    }
}

TEST_F(AutostartLoginServiceTest, aFolderThatCannotBeMadeIsAnErrorInTheSystemsWords)
{
    QFile file(folder.filePath(u"config"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const auto result = service().registerProgram();
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().isEmpty());
    EXPECT_EQ(service().status(), Status::NotRegistered);
}

TEST_F(AutostartLoginServiceTest, aFolderWithoutPermissionIsAnErrorInTheSystemsWords)
{
    const QString autostart = folder.filePath(u"config/autostart"_s);
    ASSERT_TRUE(QDir().mkpath(autostart));
    for (const QString &path : {folder.path(), folder.filePath(u"config"_s), autostart})
        ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x7055)));
    {
        const WithoutPrivileges user;
        if (!user.arePermissionsChecked())
            GTEST_SKIP() << "root cannot step down here";
        if (geteuid() == getuid())
            QFile::setPermissions(autostart, QFile::Permissions(0x5055));
        const auto result = service().registerProgram();
        ASSERT_FALSE(result);
        EXPECT_FALSE(result.error().isEmpty());
    }
    QFile::setPermissions(autostart, QFile::Permissions(0x7055));
}

TEST_F(AutostartLoginServiceTest, theEntryIsValid)
{
    const QString validator = QStandardPaths::findExecutable(u"desktop-file-validate"_s);
    if (validator.isEmpty())
        GTEST_SKIP() << "desktop-file-validate is not installed";
    for (const QString &program :
         {u"/usr/bin/roamlet"_s, u"/home/anna/My \"apps\"/Roam$let `1` 100% \\x/roamlet"_s}) {
        ASSERT_TRUE(service(program).registerProgram());
        QProcess process;
        process.start(validator, {service().entryPath()});
        ASSERT_TRUE(process.waitForFinished());
        const QByteArray complaints = process.readAllStandardOutput() + process.readAllStandardError();
        EXPECT_EQ(process.exitCode(), 0) << complaints.constData() << qPrintable(entry());
    }
}

TEST_F(AutostartLoginServiceTest, aPathIsQuotedAsDesktopEntriesWantIt)
{
    ASSERT_TRUE(service(u"/a b/\"c\"/$d/`e`/\\f/100%"_s).registerProgram());
    // The quotes want one backslash before these, and the file doubles each.
    EXPECT_TRUE(entry().contains(u"\nExec=\"/a b/\\\\\"c\\\\\"/\\\\$d/\\\\`e\\\\`/\\\\\\\\f/100%%\" "_s))
        << qPrintable(entry());
}

TEST_F(AutostartLoginServiceTest, anEntryWhoseProgramIsGoneIsNoRegistration)
{
    const QString odd = folder.filePath(u"My \"apps\" $1 `2` 100% \\x.AppImage"_s);
    QFile program(odd);
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    ASSERT_TRUE(service(odd).registerProgram());
    EXPECT_EQ(service(odd).status(), Status::Enabled);
    EXPECT_EQ(service().status(), Status::Enabled) << "another copy starts";
    ASSERT_TRUE(program.rename(folder.filePath(u"moved.AppImage"_s)));
    EXPECT_EQ(service().status(), Status::NotRegistered);
    ASSERT_TRUE(service().registerProgram());
    EXPECT_EQ(service().status(), Status::Enabled);

    writeEntry("[Desktop Entry]\nExec=env A=b /usr/bin/roamlet\n");
    EXPECT_EQ(service().status(), Status::Enabled) << "found along the path";
    writeEntry("[Desktop Entry]\nExec=no-such-program-here\n");
    EXPECT_EQ(service().status(), Status::NotRegistered);
}

TEST_F(AutostartLoginServiceTest, aPathThatNoEntryCanNameIsAnError)
{
    for (const QString &program :
         {u"/opt/a\nExec=b/roamlet"_s, u"/opt/a\tb/roamlet"_s, u"/opt/a\rb/roamlet"_s, u"/opt/\u0001"_s}) {
        const auto result = service(program).registerProgram();
        ASSERT_FALSE(result) << qPrintable(program);
        EXPECT_FALSE(result.error().isEmpty());
        EXPECT_EQ(service(program).status(), Status::NotRegistered);
        EXPECT_FALSE(QFile::exists(service().entryPath()));
    }
}

TEST_F(AutostartLoginServiceTest, onlyAProgramBesideTheEntryThatTheDesktopFindsIsAnInstalledCopy)
{
    const auto touch = [this](const QString &path) {
        QDir().mkpath(QFileInfo(folder.filePath(path)).path());
        QFile file(folder.filePath(path));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return folder.filePath(path);
    };
    const QString built = touch(u"build/dev/roamlet"_s);
    const QString installed = touch(u"usr/bin/roamlet"_s);
    EXPECT_FALSE(service(built).isInstalledCopy());
    EXPECT_FALSE(service(installed).isInstalledCopy());
    touch(u"usr/share/applications/org.roamlet.Roamlet.desktop"_s);
    EXPECT_TRUE(service(installed).isInstalledCopy());
    touch(u"build/share/applications/org.roamlet.Roamlet.desktop"_s);
    EXPECT_FALSE(service(built).isInstalledCopy());
    EXPECT_FALSE(service(folder.filePath(u"usr/bin/gone"_s)).isInstalledCopy());

    const QString unpacked = touch(u"Downloads/roamlet/usr/bin/roamlet"_s);
    touch(u"Downloads/roamlet/usr/share/applications/org.roamlet.Roamlet.desktop"_s);
    EXPECT_FALSE(service(unpacked).isInstalledCopy());

    const QString link = folder.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(installed, link));
    EXPECT_TRUE(service(link).isInstalledCopy());
}

} // namespace
} // namespace roamlet::testing
