// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/FuzzHome.h"

#include "Kit/Target.h"
#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

#include <array>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

/// Written over in place: a new file for each of a million inputs takes longer than most of them are read.
/// And as if long ago: whoever copies a file that was written to just now waits until its time says more.
void write(const QString &path, QByteArrayView bytes)
{
    static long writes = 0;
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                           file.write(bytes.data(), bytes.size()) == bytes.size();
    constexpr time_t longAgo = 1'600'000'000;
    constexpr long most = 1'000'000'000;
    const struct timespec time{.tv_sec = longAgo, .tv_nsec = ++writes % most};
    const std::array times{time, time};
    if (!isWritten || ::futimens(file.handle(), times.data()) != 0)
        throw sample::Failure(path % u": " % file.errorString());
}

} // namespace

FuzzHome::FuzzHome(const QString &file)
    : m_home(m_folder.filePath(u"home"_s)),
      m_temporary(m_folder.filePath(u"tmp"_s)),
      m_file(m_home % u'/' % file),
      m_folders({.home = m_home, .configHome = {}, .temporary = m_temporary}, files, m_defaults)
{
    sample::makeFolderOf(m_file);
    sample::makeFolder(m_temporary);
}

ReadContext FuzzHome::context() const
{
    return {.folders = BrowserFolders::of(m_folders, files),
            .files = &files,
            .locale = u"en_US"_s,
            .stop = {},
            .onUnreadableList = {}};
}

void FuzzHome::reading(QByteArrayView bytes, const std::function<void()> &read) const
{
    reading({{QString(), bytes}}, read);
}

void FuzzHome::reading(const QList<std::pair<QString, QByteArrayView>> &filesBySuffix,
                       const std::function<void()> &read) const
{
    for (const auto &[suffix, bytes] : filesBySuffix) {
        // An empty log is none, and an empty database is one.
        if (bytes.isEmpty() && !suffix.isEmpty())
            QFile::remove(m_file + suffix);
        else
            write(m_file + suffix, bytes);
    }
    const QStringList before = stamps();
    read();
    require(stamps() == before, "the browser's files are only ever read");
    require(QDir(m_temporary).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
            "no private copy is left behind");
}

QStringList FuzzHome::stamps() const
{
    const QString folder = m_file.section(u'/', 0, -2);
    QStringList result;
    for (const QString &name : files.names(folder))
        result.append(name % u' ' % files.fileStamp(folder % u'/' % name));
    result.sort();
    return result;
}

} // namespace roamlet::fuzz
