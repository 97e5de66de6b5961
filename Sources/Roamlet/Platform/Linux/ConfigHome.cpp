// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/ConfigHome.h"

#include <QDir>

namespace roamlet
{

QString configHome()
{
    // A relative path in this variable is invalid and to be ignored.
    const QString path = qEnvironmentVariable("XDG_CONFIG_HOME");
    return QDir::isAbsolutePath(path) ? path : QString(QDir::homePath() % u"/.config");
}

} // namespace roamlet
