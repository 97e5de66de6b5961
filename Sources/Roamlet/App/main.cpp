// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/DiagnosticRun.h"
#include "App/WindowModule.h"
#include "Model/Source.h"
#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/ProgramModule.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

std::expected<QFunctionPointer, QString> functionOfWindowModule(const char *name)
{
    return roamlet::ProgramModule::function(u"roamlet-window.so"_s, name);
}

std::expected<void, QString> openPage(const QString &url, const roamlet::Source &source)
{
    const auto function = functionOfWindowModule(roamlet::openPageEntry);
    if (!function)
        return std::unexpected(QString(u"cannot open a page: " % function.error()));
    QString problem;
    reinterpret_cast<roamlet::OpenPageEntry *>(*function)(url, source, problem);
    if (!problem.isEmpty())
        return std::unexpected(problem);
    return {};
}

int runWindows(int argc, char **argv)
{
    const auto function = functionOfWindowModule(roamlet::windowModuleEntry);
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
    if (const std::optional<int> status = roamlet::DiagnosticRun::run(argc, argv, openPage))
        return *status;
    return runWindows(argc, argv);
}
