// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/DesktopSearch/PageOpening.h"
#include "Opening/Opener.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "Platform/Platform.h"

#include <QDBusConnection>

extern "C" Q_DECL_EXPORT void roamletOpenPage(const roamlet::PageOpening &opening)
{
    using roamlet::LinuxWorkspace;

    // Only a browser's own pages are steered to, and only they are told of.
    LinuxWorkspace::Environment environment = LinuxWorkspace::Environment::ofThisProcess();
    environment.display.clear();
    const roamlet::Platform &platform = opening.platform;
    LinuxWorkspace workspace(environment, platform.folders, platform.files, platform.clock,
                             {QDBusConnection::sessionBus(), {}, {}});
    workspace.setActivationToken(opening.activationToken);
    roamlet::Opener(workspace).openLinks({{.url = opening.url, .source = opening.source}});
    workspace.finishStarts();
}
