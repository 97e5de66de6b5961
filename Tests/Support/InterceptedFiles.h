// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/LinuxFiles.h"

#include <functional>

namespace roamlet::testing
{

/// The real file system, with a test's hand in it.
class InterceptedFiles final : public LinuxFiles
{
public:
    /// Asked before a file is read or copied; an error is answered in its place. Called on the reading
    /// thread.
    std::function<std::error_code(const QString &path)> failure;
    /// Answered in the place of making a private folder.
    std::error_code privateFolderFailure;
    /// Called before a lasting stamp is taken. Called on the reading thread.
    std::function<void()> beforeStamp;
    /// Called after a file was copied with what stands beside it, for each of them, before anybody looks at
    /// their stamps again. Called on the reading thread.
    std::function<void(const QString &source)> afterCopy;

    /// Called when one file of a copy has been copied, and what stands beside it has not. Called on the
    /// reading thread.
    std::function<void(const QString &source, const QString &target)> betweenFiles;

    QString lastingStamp(const QString &path) const override
    {
        if (beforeStamp)
            beforeStamp();
        return LinuxFiles::lastingStamp(path);
    }

    std::expected<QByteArray, std::error_code> read(const QString &path) const override
    {
        if (const std::error_code error = failureOf(path))
            return std::unexpected(error);
        return LinuxFiles::read(path);
    }

    std::expected<void, CopyError> copy(const QString &source, const QString &target,
                                        const QStringList &suffixes, const std::stop_token &stop,
                                        const std::function<bool()> &isGood) const override
    {
        if (const std::error_code error = failureOf(source))
            return std::unexpected(CopyError{.side = CopyError::Side::Source, .code = error});
        QStringList readable;
        for (const QString &suffix : suffixes) {
            if (!failureOf(source + suffix))
                readable.append(suffix);
        }
        const auto copied = LinuxFiles::copy(source, target, readable, stop, isGood);
        if (copied && afterCopy) {
            afterCopy(source);
            for (const QString &suffix : readable) {
                if (isPlainFile(target + suffix))
                    afterCopy(source + suffix);
            }
        }
        return copied;
    }

    std::error_code makePrivateFolder(const QString &path) const override
    {
        return privateFolderFailure ? privateFolderFailure : LinuxFiles::makePrivateFolder(path);
    }

protected:
    std::expected<void, CopyError> copyFile(const QString &source, const QString &target,
                                            const std::stop_token &stop) const override
    {
        auto copied = LinuxFiles::copyFile(source, target, stop);
        if (copied && betweenFiles)
            betweenFiles(source, target);
        return copied;
    }

private:
    std::error_code failureOf(const QString &path) const
    {
        return failure ? failure(path) : std::error_code{};
    }
};

} // namespace roamlet::testing
