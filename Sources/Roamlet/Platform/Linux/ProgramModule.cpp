// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/ProgramModule.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>

#include <filesystem>

namespace roamlet::ProgramModule
{

using namespace Qt::StringLiterals;

namespace
{

QStringList folders()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    const QString folder = QFile::decodeName(program.parent_path().c_str());
    return {folder, folder + u"/" ROAMLET_INSTALLED_MODULE_FOLDER ""_s};
}

} // namespace

std::expected<QFunctionPointer, QString> function(const QString &name, const char *function)
{
    QString problem = u"the file "_s % name % u" is missing";
    for (const QString &folder : folders()) {
        const QString path = folder % u'/' % name;
        if (!QFileInfo::exists(path))
            continue;
        QLibrary module(path);
        if (const QFunctionPointer found = module.resolve(function); found != nullptr)
            return found;
        problem = module.errorString();
    }
    return std::unexpected(problem);
}

} // namespace roamlet::ProgramModule
