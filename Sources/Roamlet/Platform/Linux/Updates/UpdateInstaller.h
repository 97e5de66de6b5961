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

/// Puts a package that was downloaded and checked in its place. On the main thread.
class UpdateInstaller
{
public:
    struct Environment {
        /// The AppImage that the program was started from; empty when it was not.
        QString appImage;
        /// The file that the running program was started from.
        QString program;
        /// Where packages for the desktop's installer are kept. Nothing else is to be in there.
        QString packageFolder;
        /// Opens a package with the desktop's installer. False where the desktop has none.
        std::function<bool(const QString &path)> openPackage;
        /// Ends this program in an orderly way and then starts the one at `path`. It must not be started
        /// before this one has ended: of two, the second hands over to the first.
        std::function<void(const QString &path)> restart;

        /// Where this process keeps packages and whether it is an AppImage; `restart` is left empty.
        static Environment ofThisProcess();
    };

    explicit UpdateInstaller(Environment environment);

    /// Where the package has to be for install(). Its folder is there, or the error tells why not.
    std::expected<QString, UpdateError> packagePath() const;
    /// Whether another version was installed since this object was made: the one that runs is not the one
    /// that the next start would run.
    bool isProgramReplaced() const;
    /// Removes what a download of an earlier run has left unfinished, and a package that the desktop's
    /// installer was handed so long before `now` that it has no more use for it.
    void removeLeftovers(PointInTime now) const;
    /// Hands the package to the desktop's installer, or replaces the AppImage by it and restarts. Nothing
    /// when that went well.
    std::optional<UpdateError> install();

private:
    std::expected<QString, UpdateError> target() const;
    std::optional<UpdateError> replaceAppImage(const QString &package) const;

    /// What tells one file from another of the same name; nothing where there is no file.
    using FileIdentity = std::optional<std::pair<std::uint64_t, std::uint64_t>>;
    static FileIdentity identityOf(const QString &path);

    Environment m_environment;
    FileIdentity m_program;
};

} // namespace roamlet
