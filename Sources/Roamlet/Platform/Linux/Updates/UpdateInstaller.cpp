// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/UpdateInstaller.h"

#include "Platform/Linux/AppImage.h"
#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/Updates/FileOpening.h"
#include "Platform/Linux/Updates/UnfinishedPackage.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>

#include <cstdio>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

UpdateError lastErrorAs(UpdateError::Code code)
{
    return {code, QString::fromStdString(lastError().message())};
}

} // namespace

UpdateInstaller::Environment UpdateInstaller::Environment::ofThisProcess()
{
    const QString appImage = ownAppImage();
    return {
        .appImage = appImage,
        .program = appImage.isEmpty() ? QCoreApplication::applicationFilePath() : appImage,
        .packageFolder =
            QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) % u"/Roamlet/Updates",
        .openPackage =
            [](const QString &path) { return openFile(path, u"application/vnd.debian.binary-package"_s); },
        .restart = {}};
}

UpdateInstaller::UpdateInstaller(Environment environment)
    : m_environment(std::move(environment)), m_program(identityOf(m_environment.program))
{
}

bool UpdateInstaller::isProgramReplaced() const
{
    const FileIdentity present = identityOf(m_environment.program);
    return m_program && present && *present != *m_program;
}

UpdateInstaller::FileIdentity UpdateInstaller::identityOf(const QString &path)
{
    struct stat attributes = {};
    if (::stat(QFile::encodeName(path).constData(), &attributes) != 0)
        return {};
    return std::pair<std::uint64_t, std::uint64_t>(attributes.st_dev, attributes.st_ino);
}

std::expected<QString, UpdateError> UpdateInstaller::packagePath() const
{
    if (m_environment.appImage.isEmpty()) {
        const QString folder = m_environment.packageFolder;
        if (!QDir().mkpath(folder) || ::chmod(QFile::encodeName(folder).constData(), S_IRWXU) != 0)
            return std::unexpected(lastErrorAs(UpdateError::Code::CannotWrite));
    }
    return target();
}

void UpdateInstaller::removeLeftovers(PointInTime now) const
{
    const auto path = target();
    if (!path)
        return;
    QFile::remove(unfinishedPackage(*path));
    // The user may still be asked by the installer whether they want it.
    constexpr std::chrono::hours patience = 24h;
    const QDateTime written = QFileInfo(*path).lastModified();
    if (written.isValid() &&
        now - pointInTime(static_cast<double>(written.toMSecsSinceEpoch()) / 1000) >= patience)
        QFile::remove(*path);
}

std::expected<QString, UpdateError> UpdateInstaller::target() const
{
    if (m_environment.appImage.isEmpty())
        return QString(m_environment.packageFolder % u"/Roamlet.deb");
    // In the same folder, so that it takes a mere renaming to put it in its place.
    const QFileInfo program(QFileInfo(m_environment.appImage).canonicalFilePath());
    if (!program.isFile())
        return std::unexpected(UpdateError{UpdateError::Code::CannotInstall, m_environment.appImage});
    return QString(program.path() % u"/." % program.fileName() % u".update");
}

std::optional<UpdateError> UpdateInstaller::install()
{
    const auto package = packagePath();
    if (!package)
        return package.error();
    if (!m_environment.appImage.isEmpty())
        return replaceAppImage(*package);
    if (!m_environment.openPackage(*package))
        return UpdateError{UpdateError::Code::NoInstaller, *package};
    return {};
}

std::optional<UpdateError> UpdateInstaller::replaceAppImage(const QString &package) const
{
    const QString program = QFileInfo(m_environment.appImage).canonicalFilePath();
    const QByteArray oldName = QFile::encodeName(program);
    const QByteArray newName = QFile::encodeName(package);
    struct stat attributes = {};
    constexpr mode_t permissions = S_IRWXU | S_IRWXG | S_IRWXO;
    // The program that runs keeps its own file open; what it started from may go.
    if (::stat(oldName.constData(), &attributes) != 0 ||
        ::chmod(newName.constData(), (attributes.st_mode & permissions) | S_IXUSR) != 0 ||
        std::rename(newName.constData(), oldName.constData()) != 0) {
        UpdateError error = lastErrorAs(UpdateError::Code::CannotInstall);
        QFile::remove(package);
        return error;
    }
    m_environment.restart(m_environment.appImage);
    return {};
}

} // namespace roamlet
