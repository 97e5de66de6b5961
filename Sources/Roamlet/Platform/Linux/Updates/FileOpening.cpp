// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/FileOpening.h"

#include "Platform/Linux/Workspace/DesktopEntry.h"
#include "Platform/Linux/Workspace/GLibPointer.h"

#include <QFile>
#include <QUrl>

namespace roamlet
{

bool openFile(const QString &path, const QString &type)
{
    const GLibPointer<GAppInfo> info(g_app_info_get_default_for_type(type.toUtf8().constData(), FALSE));
    if (!info || G_IS_DESKTOP_APP_INFO(info.get()) == FALSE)
        return false;
    DesktopEntry entry;
    entry.path = QFile::decodeName(g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(info.get())));
    entry.launch({QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)});
    return true;
}

} // namespace roamlet
