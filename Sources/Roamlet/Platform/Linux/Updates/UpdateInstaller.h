// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"
#include "Platform/Update.h"

#include <QString>

#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <utility>

namespace roamlet
{

/// Keeps the package that was downloaded, and has it installed once it was checked. On the main thread.
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

        static Environment ofThisProcess();
    };

    explicit UpdateInstaller(Environment environment);

    /// Opens a file with the application that the user prefers for its MIME type. False where there is none.
    static bool openFile(const QString &path, const QString &type);
    /// The path of a package that is to stand at `target` once it is complete and checked.
    static QString unfinished(const QString &target) { return target % u".part"; }
    /// Where the package has to be for install(). Its folder is there, or the error tells why not.
    std::expected<QString, UpdateError> packagePath() const;
    /// Whether another version was installed since this object was made: the one that runs is not the one
    /// that the next start would run.
    bool isProgramReplaced() const;
    /// Removes what a download of an earlier run has left unfinished, and a package that the desktop's
    /// program was handed so long before `now` that it has no more use for it.
    void removeLeftovers(PointInTime now) const;
    /// Hands the package to the desktop's program. Nothing when that went well.
    std::optional<UpdateError> install() const;

private:
    QString target() const { return m_environment.packageFolder % u"/Roamlet.deb"; }

    /// What tells one file from another of the same name; nothing where there is no file.
    using FileIdentity = std::optional<std::pair<std::uint64_t, std::uint64_t>>;
    static FileIdentity identityOf(const QString &path);

    Environment m_environment;
    FileIdentity m_program;
};

} // namespace roamlet
