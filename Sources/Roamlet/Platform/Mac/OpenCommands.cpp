// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Mac/OpenCommands.h"

namespace roamlet::OpenCommands
{

using namespace Qt::StringLiterals;

Command inProfile(const QStringList &urls, const QString &bundleID, const QString &profile)
{
    const QStringList arguments{u"-n"_s, u"-b"_s, bundleID, u"--args"_s, u"--profile-directory=" % profile};
    return {.program = u"/usr/bin/open"_s, .arguments = arguments + urls};
}

Command showPage(const QString &bundleID, const QString &page)
{
    return {.program = u"/usr/bin/osascript"_s, .arguments = {u"-e"_s, pageScript(bundleID, page)}};
}

QString pageScript(const QString &bundleID, const QString &page)
{
    return u"repeat 40 times\n"
           "    try\n"
           "        tell application id \"" %
           bundleID %
           u"\"\n"
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
