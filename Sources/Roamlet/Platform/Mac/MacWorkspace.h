// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Mac/OpenCommands.h"
#include "Platform/Workspace.h"

namespace roamlet
{

/// What a Mac's workspace does by commands: it reaches the profiles of a Chromium browser, and the browser's
/// own pages, through programs of the system. What needs the system's own libraries is left to whoever
/// derives from this on a Mac, so that this much is built and tested everywhere.
class MacWorkspace : public Workspace
{
public:
    /// One start of a command opens them all. A browser of another family opens them in the profile that it
    /// chooses. One whose identifier we do not know is told by its name.
    bool openInProfile(const QStringList &urls, const Source &source) final;
    bool canShowPages(Source::Kind /*browser*/) const final { return true; }
    /// A blank tab that is pointed at the page as soon as it shows; Firefox is started with the page.
    void showPage(const QString &page, const Source &source) final;

protected:
    /// Starts a program and does not wait. The arguments reach it as they are; no shell sees them.
    virtual void start(const QString &program, const QStringList &arguments) = 0;

private:
    void run(const OpenCommands::Command &command);
};

} // namespace roamlet
