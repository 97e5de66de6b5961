// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/LinuxFiles.h"
#include "SampleHome/PlainFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace roamlet::testing
{

/// The file system of this machine, in a folder of the test's own.
class LinuxFilesTest : public ::testing::Test
{
protected:
    /// A mask of permissions that takes nothing away, for as long as it lives.
    class OpenMask
    {
    public:
        OpenMask() = default;
        OpenMask(const OpenMask &) = delete;
        OpenMask &operator=(const OpenMask &) = delete;
        ~OpenMask() { ::umask(m_before); }

    private:
        mode_t m_before = ::umask(0);
    };

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString file(const QString &name, const QByteArray &content) const
    {
        sample::writeFile(path(name), content);
        return path(name);
    }

    std::error_code copy(const QString &source, const QString &target, const std::stop_token &stop = {}) const
    {
        const auto copied = files.copy(source, target, {}, stop, {});
        return copied ? std::error_code{} : copied.error().code;
    }

    static struct stat attributes(const QString &path)
    {
        struct stat result = {};
        EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &result), 0) << qPrintable(path);
        return result;
    }

    static mode_t permissions(const QString &path) { return attributes(path).st_mode & 07777U; }

    static void setPermissions(const QString &path, mode_t mode)
    {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0) << qPrintable(path);
    }

    static bool isThere(const QString &path)
    {
        struct stat result = {};
        return ::lstat(QFile::encodeName(path).constData(), &result) == 0;
    }

    /// Bytes in which a block that is lost, doubled or out of place is noticed.
    static QByteArray bytes(qsizetype size)
    {
        QByteArray result(size, Qt::Uninitialized);
        quint32 state = 1;
        for (char &byte : result) {
            state = state * 1'664'525U + 1'013'904'223U;
            byte = static_cast<char>(state >> 24U);
        }
        return result;
    }

    const LinuxFiles files;

private:
    QTemporaryDir m_folder;
};

} // namespace roamlet::testing
