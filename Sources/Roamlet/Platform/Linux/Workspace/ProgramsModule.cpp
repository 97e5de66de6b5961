// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/ProgramsModule.h"

#include "Platform/Linux/ProgramModule.h"
#include "Platform/Linux/Workspace/DetachedProcess.h"

#include <QFile>
#include <QList>

#include <vector>

namespace roamlet::ProgramsModule
{

using namespace Qt::StringLiterals;

namespace
{

template<typename Function>
Function *functionNamed(const char *name)
{
    const auto function = ProgramModule::function(u"roamlet-programs.so"_s, name);
    return function ? reinterpret_cast<Function *>(*function) : nullptr;
}

bool launch(const char *launcher, const QByteArray &what, const QStringList &urls,
            const QString &activationToken)
{
    auto *const function = functionNamed<LaunchWith>(launcher);
    if (function == nullptr)
        return false;
    QList<QByteArray> texts;
    for (const QString &url : urls)
        texts.append(url.toUtf8());
    std::vector<const char *> list;
    for (const QByteArray &text : texts)
        list.push_back(text.constData());
    list.push_back(nullptr);
    return function(what.constData(), list.data(), activationToken.toUtf8().constData(),
                    DetachedProcess::prepareChild) != 0;
}

} // namespace

bool launchEntry(const QString &path, const QStringList &urls, const QString &activationToken)
{
    return launch("roamletLaunchEntry", QFile::encodeName(path), urls, activationToken);
}

bool launchPreferred(const QString &type, const QStringList &urls, const QString &activationToken)
{
    return launch("roamletLaunchPreferred", type.toUtf8(), urls, activationToken);
}

std::unique_ptr<BrowserWindows> browserWindows(const QByteArray &display)
{
    auto *const function = functionNamed<MakeBrowserWindows>(ROAMLET_BROWSER_WINDOWS_ENTRY_NAME);
    return std::unique_ptr<BrowserWindows>(function != nullptr ? function(&display) : nullptr);
}

} // namespace roamlet::ProgramsModule
