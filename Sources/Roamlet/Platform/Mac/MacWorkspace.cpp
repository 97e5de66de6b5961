// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Mac/MacWorkspace.h"

#include "Model/Browser.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

bool MacWorkspace::openInProfile(const QStringList &urls, const Source &source)
{
    const Browser &browser = Browser::of(source.kind);
    if (browser.family == Browser::Family::Chromium && source.profile)
        run(OpenCommands::inProfile(urls, browser, *source.profile));
    else if (browser.bundleID.isEmpty())
        run(OpenCommands::inApplication(urls, browser));
    else
        return open(urls, source.kind);
    return true;
}

void MacWorkspace::showPage(const QString &page, const Source &source)
{
    const Browser &browser = Browser::of(source.kind);
    if (browser.family == Browser::Family::Firefox) {
        // Windows of its own are no addresses, and it has an option for them.
        const bool isWindow = page.startsWith(u"chrome:");
        run(OpenCommands::withArguments(browser,
                                        isWindow ? QStringList{u"--chrome"_s, page} : QStringList{page}));
        return;
    }
    openInProfile({u"about:blank"_s}, source);
    run(OpenCommands::showPage(browser, page));
}

void MacWorkspace::run(const OpenCommands::Command &command)
{
    start(command.program, command.arguments);
}

} // namespace roamlet
