// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Files.h"

#include <cstdint>
#include <optional>

namespace roamlet
{

/// The file system through the kernel's own calls.
class LinuxFiles : public Files
{
public:
    bool exists(const QString &path) const override;
    QString fileStamp(const QString &path) const override;
    QString lastingStamp(const QString &path) const override;
    std::expected<QByteArray, std::error_code> read(const QString &path) const override;
    std::expected<QByteArray, std::error_code> readBeginning(const QString &path,
                                                             qsizetype size) const override;
    std::expected<void, CopyError> copy(const QString &source, const QString &target,
                                        const QStringList &suffixes, const std::stop_token &stop,
                                        const std::function<bool()> &isGood) const override;
    bool haveSameBytes(const QString &one, const QString &other) const override;
    std::error_code makePrivateFolder(const QString &path) const override;
    void removeFile(const QString &path) const override;
    void removeFolder(const QString &path) const override;
    QStringList names(const QString &folder) const override;
    bool isUsersAlone(const QString &folder) const override;
    bool isPrivateFolder(const QString &path) const override;
    bool isPlainFile(const QString &path) const override;

protected:
    /// One file of a copy.
    virtual std::expected<void, CopyError> copyFile(const QString &source, const QString &target,
                                                    const std::stop_token &stop) const;
    /// The bytes that the file system of an open file still has for us, where it says so.
    virtual std::optional<std::uint64_t> room(int descriptor) const;
};

} // namespace roamlet
