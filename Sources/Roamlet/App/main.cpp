// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/DiagnosticRun.h"
#include "App/WindowModule.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>

#include <cstdio>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace
{

/// Where the window module is: beside the program in a build, and in the libraries' folder once installed.
QStringList moduleFolders()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    const QString folder = QFile::decodeName(program.parent_path().c_str());
    return {folder, folder + u"/" ROAMLET_INSTALLED_MODULE_FOLDER ""_s};
}

int runWindows(int argc, char **argv)
{
    QString problem = u"the file roamlet-window.so is missing"_s;
    for (const QString &folder : moduleFolders()) {
        const QString path = folder + u"/roamlet-window.so"_s;
        if (!QFileInfo::exists(path))
            continue;
        QLibrary module(path);
        const QFunctionPointer function = module.resolve(roamlet::windowModuleEntry);
        if (function != nullptr) {
            // The module is loaded for as long as the process runs.
            return reinterpret_cast<roamlet::WindowModuleEntry *>(function)(argc, argv);
        }
        problem = module.errorString();
    }
    std::fputs(QString(u"roamlet: cannot open its windows: "_s % problem % u'\n').toUtf8().constData(),
               stderr);
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (const std::optional<int> status = roamlet::DiagnosticRun::run(argc, argv))
        return *status;
    return runWindows(argc, argv);
}
