// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

void writeFile(const QString &path, const QByteArray &bytes)
{
    makeFolderOf(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw Failure(path % u": " % file.errorString());
}

void makeFolder(const QString &path)
{
    if (!QDir().mkpath(path))
        throw Failure(path % u": the folder cannot be made");
}

void makeFolderOf(const QString &path)
{
    makeFolder(QFileInfo(path).absolutePath());
}

} // namespace roamlet::sample
