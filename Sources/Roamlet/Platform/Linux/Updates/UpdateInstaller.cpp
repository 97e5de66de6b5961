// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/UpdateInstaller.h"

#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/Workspace/ProgramsModule.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <sys/stat.h>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

UpdateInstaller::Environment UpdateInstaller::Environment::ofThisProcess()
{
    return {
        .program = QCoreApplication::applicationFilePath(),
        .packageFolder =
            QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) % u"/Roamlet/Updates",
        .openPackage =
            [](const QString &path) { return openFile(path, u"application/vnd.debian.binary-package"_s); },
        .systemBus = QDBusConnection::systemBus};
}

UpdateInstaller::UpdateInstaller(Environment environment)
    : m_environment(std::move(environment)), m_program(identityOf(m_environment.program))
{
}

bool UpdateInstaller::openFile(const QString &path, const QString &type)
{
    return ProgramsModule::launchPreferred(type, {QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)});
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
    const QString folder = m_environment.packageFolder;
    if (!QDir().mkpath(folder) || ::chmod(QFile::encodeName(folder).constData(), S_IRWXU) != 0)
        return std::unexpected(
            UpdateError{UpdateError::Code::CannotWrite, QString::fromStdString(lastError().message())});
    return target();
}

void UpdateInstaller::removeLeftovers(PointInTime now) const
{
    QFile::remove(unfinished(target()));
    // The user may still be asked by the desktop's program whether they want it.
    constexpr std::chrono::hours patience = 24h;
    const QDateTime written = QFileInfo(target()).lastModified();
    if (written.isValid() &&
        now - pointInTime(static_cast<double>(written.toMSecsSinceEpoch()) / 1000) >= patience)
        QFile::remove(target());
}

std::optional<UpdateError> UpdateInstaller::handOver() const
{
    if (!m_environment.openPackage(target()))
        return UpdateError{UpdateError::Code::NoInstaller, target()};
    return {};
}

} // namespace roamlet
