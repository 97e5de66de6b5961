// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/AppImage.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace roamlet
{

QString ownAppImage()
{
    // The folder in which the AppImage shows its content while it runs.
    const QString content = QFileInfo(qEnvironmentVariable("APPDIR")).canonicalFilePath();
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    const bool isInside = !content.isEmpty() && program.startsWith(content % u'/');
    return isInside ? qEnvironmentVariable("APPIMAGE") : QString();
}

} // namespace roamlet
