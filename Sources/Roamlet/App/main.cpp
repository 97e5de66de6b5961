// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/DiagnosticRun.h"
#include "App/PageOpening/OpenPage.h"
#include "App/WindowModule.h"
#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/ProgramModule.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

int runWindows(int argc, char **argv)
{
    const auto function =
        roamlet::ProgramModule::function(u"roamlet-window.so"_s, roamlet::windowModuleEntry);
    if (function)
        return reinterpret_cast<roamlet::WindowModuleEntry *>(*function)(argc, argv);
    std::fputs(
        QString(u"roamlet: cannot open its windows: "_s % function.error() % u'\n').toUtf8().constData(),
        stderr);
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    roamlet::ignoreFileSizeSignal();
    const auto openPage = [](const QString &url, const roamlet::Source &source) {
        return roamlet::openPage(url, source);
    };
    if (const std::optional<int> status = roamlet::DiagnosticRun::run(argc, argv, openPage))
        return *status;
    return runWindows(argc, argv);
}
