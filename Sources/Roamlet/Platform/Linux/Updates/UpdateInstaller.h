// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"
#include "Platform/Update.h"

#include <QDBusConnection>
#include <QFile>
#include <QString>

#include <chrono>
#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <utility>

namespace roamlet
{

/// Where the package that was downloaded is kept, and who installs it once it was checked. On the main
/// thread.
class UpdateInstaller
{
public:
    struct Environment {
        /// The file that the running program was started from.
        QString program;
        /// Where packages are kept. Nothing else is to be in there.
        QString packageFolder;
        /// Opens a package with the desktop's program for packages. False where the desktop has none.
        std::function<bool(const QString &path)> openPackage;
        /// Where the system's own service for packages is to be found; nothing where no bus is.
        std::function<QDBusConnection()> systemBus;
        /// How long that service may take to say that it is there.
        std::chrono::milliseconds patience = std::chrono::seconds(25);

        static Environment ofThisProcess();
    };

    explicit UpdateInstaller(Environment environment);

    /// Opens a file with the application that the user prefers for its MIME type. False where there is none.
    static bool openFile(const QString &path, const QString &type);
    /// The path of a package that is to stand at `target` once it is complete and checked.
    static QString unfinished(const QString &target) { return target % u".part"; }
    /// Where the package has to be to be installed. Its folder is there, or the error tells why not.
    std::expected<QString, UpdateError> packagePath() const;
    /// Whether another version was installed since this object was made: the one that runs is not the one
    /// that the next start would run.
    bool isProgramReplaced() const;
    /// Removes what a download of an earlier run has left unfinished, and a package that the desktop's
    /// program was handed so long before `now` that it has no more use for it.
    void removeLeftovers(PointInTime now) const;
    /// Removes the package, which is installed.
    void removePackage() const { QFile::remove(target()); }
    /// Opens the package with the desktop's program, which may or may not install it. Nothing when that went
    /// well.
    std::optional<UpdateError> handOver() const;
    const Environment &environment() const { return m_environment; }

private:
    QString target() const { return m_environment.packageFolder % u"/Roamlet.deb"; }

    /// What tells one file from another of the same name; nothing where there is no file.
    using FileIdentity = std::optional<std::pair<std::uint64_t, std::uint64_t>>;
    static FileIdentity identityOf(const QString &path);

    Environment m_environment;
    FileIdentity m_program;
};

} // namespace roamlet
