// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Search/ApplicationCall.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <utility>

namespace roamlet::ApplicationCall
{

using namespace Qt::StringLiterals;

namespace
{

using Wish = RunningInstance::Wish;

constexpr std::array actions{
    std::pair{Wish::RestoreSession, "restore-session"_L1},
    std::pair{Wish::Search, "search"_L1},
    std::pair{Wish::Bookmarks, "bookmarks"_L1},
    std::pair{Wish::ExportBookmarks, "export-bookmarks"_L1},
};

} // namespace

QString actionOf(Wish::Kind kind)
{
    const auto *known = std::ranges::find(actions, kind, [](const auto &action) { return action.first; });
    return known == actions.end() ? QString() : QString(known->second);
}

Wish wishOf(const QString &action, const QVariantList &parameters)
{
    const auto *known =
        std::ranges::find_if(actions, [&action](const auto &each) { return each.second == action; });
    if (known == actions.end())
        return Wish::ComeForward;
    const bool hasWords = known->first == Wish::Search && !parameters.isEmpty();
    return {known->first, hasWords ? parameters.first().toString() : QString()};
}

QDBusMessage message(const QString &service, const Wish &wish, const QString &activationToken)
{
    const QString action = actionOf(wish.kind);
    QDBusMessage message =
        QDBusMessage::createMethodCall(service, objectPath, u"org.freedesktop.Application"_s,
                                       action.isEmpty() ? u"Activate"_s : u"ActivateAction"_s);
    if (!action.isEmpty())
        message << action << (wish.words.isEmpty() ? QVariantList() : QVariantList{wish.words});
    QVariantMap platformData;
    if (!activationToken.isEmpty())
        platformData.insert(u"activation-token"_s, activationToken);
    message << platformData;
    return message;
}

QString activationToken(const QVariantMap &platformData)
{
    return platformData.value(u"activation-token"_s).toString();
}

} // namespace roamlet::ApplicationCall
