// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/TestHome.h"

#include <QDir>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TestHome::TestHome()
    : m_home(m_folder.filePath(u"home"_s)),
      m_temporary(m_folder.filePath(u"tmp"_s)),
      folders({.home = m_home, .configHome = {}, .temporary = m_temporary}, files, defaults)
{
    QDir().mkpath(m_home);
    QDir().mkpath(m_temporary);
}

ReadContext TestHome::context() const
{
    return {.folders = BrowserFolders::of(folders, files),
            .files = &files,
            .locale = u"en_US"_s,
            .stop = {},
            .onUnreadableList = {}};
}

QStringList TestHome::leftovers() const
{
    return QDir(m_temporary).entryList({u"Roamlet-*"_s}, QDir::AllEntries | QDir::Hidden | QDir::System);
}

} // namespace roamlet::testing
