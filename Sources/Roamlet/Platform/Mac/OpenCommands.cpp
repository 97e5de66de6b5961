// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Mac/OpenCommands.h"

#include "Model/Browser.h"

namespace roamlet::OpenCommands
{

using namespace Qt::StringLiterals;

namespace
{

/// How "open" is told which application it is to open: by its identifier where we know that.
QStringList application(const Browser &browser)
{
    return browser.bundleID.isEmpty() ? QStringList{u"-a"_s, browser.displayName}
                                      : QStringList{u"-b"_s, browser.bundleID};
}

QStringList profileArguments(const QString &profile)
{
    if (const QString name = Browser::sideProfile(profile); !name.isEmpty())
        return {u"--side-profile-name=" % name, u"--with-feature:side-profiles"_s};
    // One in the data folder itself has no name.
    return profile.isEmpty() ? QStringList() : QStringList{u"--profile-directory=" % profile};
}

} // namespace

Command inApplication(const QStringList &urls, const Browser &browser)
{
    return {.program = u"/usr/bin/open"_s, .arguments = application(browser) + urls};
}

Command inProfile(const QStringList &urls, const Browser &browser, const QString &profile)
{
    return withArguments(browser, profileArguments(profile) + urls);
}

Command withArguments(const Browser &browser, const QStringList &arguments)
{
    return {.program = u"/usr/bin/open"_s,
            .arguments = QStringList{u"-n"_s} + application(browser) + QStringList{u"--args"_s} + arguments};
}

Command showPage(const Browser &browser, const QString &page)
{
    return {.program = u"/usr/bin/osascript"_s, .arguments = {u"-e"_s, pageScript(browser, page)}};
}

QString pageScript(const Browser &browser, const QString &page)
{
    const QString name = browser.bundleID.isEmpty() ? QString(u'"' % browser.displayName % u'"')
                                                    : QString(u"id \"" % browser.bundleID % u'"');
    return u"repeat 40 times\n"
           "    try\n"
           "        tell application " %
           name %
           u"\n"
           "            if (count of windows) > 0 and URL of active tab of front window is \"about:blank\" "
           "then\n"
           "                set URL of active tab of front window to \"" %
           page %
           u"\"\n"
           "                return\n"
           "            end if\n"
           "        end tell\n"
           "    end try\n"
           "    delay 0.1\n"
           "end repeat";
}

} // namespace roamlet::OpenCommands
