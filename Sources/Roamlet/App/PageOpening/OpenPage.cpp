// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/PageOpening/OpenPage.h"

#include "Model/Source.h"
#include "Platform/Linux/ProgramModule.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

std::expected<void, QString> openPage(const QString &url, const Source &source,
                                      const QString &activationToken)
{
    const auto function = ProgramModule::function(u"roamlet-open.so"_s, openPageEntry);
    if (!function)
        return std::unexpected(QString(u"cannot open a page: " % function.error()));
    // NOLINTNEXTLINE(misc-const-correctness)
    QString problem;
    reinterpret_cast<OpenPageEntry *>(*function)(url, source, activationToken, problem);
    if (!problem.isEmpty())
        return std::unexpected(problem);
    return {};
}

} // namespace roamlet
