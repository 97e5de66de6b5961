// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Mac/MacWorkspace.h"

#include "Model/Browser.h"
#include "Platform/Mac/OpenCommands.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

void MacWorkspace::openInProfile(const QStringList &urls, const Source &source)
{
    const Browser &browser = Browser::of(source.kind);
    if (browser.family != Browser::Family::Chromium || !source.profile) {
        open(urls, source.kind);
        return;
    }
    const auto [program, arguments] = OpenCommands::inProfile(urls, browser.bundleID, *source.profile);
    start(program, arguments);
}

void MacWorkspace::showPage(const QString &page, const Source &source)
{
    openInProfile({u"about:blank"_s}, source);
    const auto [program, arguments] = OpenCommands::showPage(Browser::of(source.kind).bundleID, page);
    start(program, arguments);
}

} // namespace roamlet
