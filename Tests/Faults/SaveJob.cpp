// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// Saves what the windows save, without a window: the bookmarks of a profile as a file, and a choice of the
// user's.

#include "Export/BookmarkExport.h"
#include "Library/LibraryReading.h"
#include "Library/ProfileChoice.h"
#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Readers/BrowserReader.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace
{

int failed(const QString &reason)
{
    QTextStream(stderr) << "roamlet-save: " << reason << Qt::endl;
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    using namespace roamlet;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    ignoreFileSizeSignal();
    LinuxPlatform platform;
    const ReadContext context = LibraryReading::readContext(platform.services());
    const QList<Source> sources = LibraryReading::allProfiles({}, context);
    const auto source = std::ranges::find(sources, arguments[1], &Source::id);
    if (source == sources.end())
        return failed(QStringLiteral("no such source"));
    const auto trees = BrowserReader::bookmarks(*source, context);
    if (!trees)
        return failed(trees.error().constFirst().errorDescription());
    int status = 0;
    for (const ReadError &problem : trees->problems)
        status = failed(problem.errorDescription());
    const QString text = BookmarkExport::render(BookmarkExport::Format::Html, trees->roots, {});
    if (const auto written = BookmarkExport::write(text, arguments[2]); !written)
        status = failed(written.error());
    ProfileChoice(platform.services().defaults).setEnabled(false, *source);
    return status;
}
