// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What reads foreign files may write nothing but its own copies of them, whatever a fault in it or in a
/// library would do. A thread that starts other programs must never be confined: they would be, too.
namespace roamlet::Confinement
{

/// From now on and for good, the calling thread and those that it starts can change nothing outside these
/// folders, and get no rights by starting a program. What is open stays open, and reading is free. False,
/// with nothing changed, where the system cannot do that or one of the folders is not there.
bool writeOnlyBelow(const QStringList &folders);
/// The same for a thread that makes private copies in this folder and reads them. On the main thread it does
/// nothing.
bool ofReadingThread(const QString &temporaryFolder);
/// The same for the whole process, which is to have no other threads yet.
bool ofReadingProcess(const QString &temporaryFolder);

} // namespace roamlet::Confinement
