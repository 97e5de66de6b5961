// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Platform.h"
#include "Readers/ReadContext.h"
#include "Support/FakeClock.h"
#include "Support/FakeFileEvents.h"
#include "Support/InterceptedFiles.h"
#include "Support/MemoryUserDefaults.h"

#include <QStringList>
#include <QTemporaryDir>

namespace roamlet::testing
{

/// An empty home folder of a test's own, a temporary folder of its own beside it, and a platform of fakes
/// that leads to both.
class TestHome
{
public:
    TestHome();

    /// The home folder; it exists and is empty at first.
    QString path() const { return m_home; }
    /// The temporary folder of the programs under test.
    QString temporary() const { return m_temporary; }
    /// The path of something below the home folder.
    QString path(const QString &relative) const { return m_home % u'/' % relative; }
    /// What the readers need; computed anew, since folders that exist decide.
    ReadContext context() const;
    Platform platform() { return {folders, files, defaults, fileEvents, clock}; }
    /// The names of private copies that were left behind. Every test that reads expects none.
    QStringList leftovers() const;

    InterceptedFiles files;
    MemoryUserDefaults defaults;
    FakeFileEvents fileEvents;
    FakeClock clock;

private:
    QTemporaryDir m_folder;
    QString m_home;
    QString m_temporary;

public:
    LinuxFolders folders;
};

} // namespace roamlet::testing
