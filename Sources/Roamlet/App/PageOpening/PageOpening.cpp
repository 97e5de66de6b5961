// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/PageOpening/PageOpening.h"

#include "Opening/Opener.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Platform/Linux/LinuxWorkspace.h"

#include <QDBusConnection>

namespace roamlet::PageOpening
{

using namespace Qt::StringLiterals;

std::expected<void, QString> open(const QString &url, const Source &source, Workspace &workspace)
{
    if (!Opener::canOpen({.url = url, .source = source}))
        return std::unexpected(
            QString(Source::displayName(source.kind) % u" cannot be given this address to open: " % url));
    if (!Opener(workspace).openLinks({{.url = url, .source = source}}))
        return std::unexpected(QString(u"The browser or the profile of " % source.label() %
                                       u" is not here, so that this cannot be opened: " % url));
    return {};
}

std::expected<void, QString> open(const QString &url, const Source &source, const QString &activationToken)
{
    LinuxPlatform platform;
    const Platform services = platform.services();
    // Pages of a browser's own, which it takes windows and notices to show, are not opened here.
    const QString nobody = u"nobody"_s;
    LinuxWorkspace workspace(
        {.dataFolders = LinuxWorkspace::Environment::ofThisProcess().dataFolders, .display = {}},
        services.folders, services.files, services.clock, PasteNotice(QDBusConnection(nobody), {}, {}));
    workspace.setActivationToken(activationToken);
    const auto opened = open(url, source, workspace);
    if (opened && !workspace.finishStarts())
        return std::unexpected(QString(u"The browser of " % source.label() % u" could not be started."));
    return opened;
}

} // namespace roamlet::PageOpening
