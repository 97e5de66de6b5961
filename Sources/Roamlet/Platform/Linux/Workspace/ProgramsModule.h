// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Workspace/BrowserWindows.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

/// Other programs, as far as it takes libraries to start and to steer them that load for 5 ms. So they come
/// as a module, with the first page that is opened.
namespace roamlet::ProgramsModule
{

/// Opens URLs with the application of the desktop entry in this file. The token, where there is one, lets its
/// window come forward. False when it could not be started. From any thread.
bool launchEntry(const QString &path, const QStringList &urls, const QString &activationToken = {});
/// The same with the application that the user prefers for a MIME type.
bool launchPreferred(const QString &type, const QStringList &urls, const QString &activationToken = {});
/// The windows on an X11 display; null where the module is not the one of this version, as after an update.
std::unique_ptr<BrowserWindows> browserWindows(const QByteArray &display);

/// What the module exports. The launchers have plain types and one meaning for ever: a package may be updated
/// while the program runs. The texts are UTF-8, the lists end with null, and an empty token is none.
extern "C" {
using LaunchWith = int(const char *what, const char *const *urls, const char *activationToken,
                       void (*prepareChild)(void *));
using MakeBrowserWindows = BrowserWindows *(const QByteArray *display);
}

} // namespace roamlet::ProgramsModule
