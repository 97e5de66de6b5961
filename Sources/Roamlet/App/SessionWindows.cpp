// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/SessionWindows.h"

#include "Platform/UserDefaults.h"

#include <QStringList>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString windowsKey = u"session.windows"_s;
const QString paneKey = u"session.pane"_s;
const QString mainName = u"main"_s;
const QString settingsName = u"settings"_s;

const QString historyName = u"history"_s;
const QString bookmarksName = u"bookmarks"_s;
const QString mostVisitedName = u"mostVisited"_s;
const QString nothingName = u"none"_s;
/// Before the id of the one source that is shown.
constexpr QChar separator = u':';

QString textOf(const std::optional<Pane> &pane)
{
    if (!pane)
        return nothingName;
    if (std::holds_alternative<MostVisitedPane>(*pane))
        return mostVisitedName;
    const QString name = std::holds_alternative<HistoryPane>(*pane) ? historyName : bookmarksName;
    const std::optional<QString> sourceID = sourceIDOf(*pane);
    return sourceID ? QString(name % separator % *sourceID) : name;
}

std::optional<Pane> paneOf(const QString &text)
{
    if (text == nothingName)
        return {};
    if (text == mostVisitedName)
        return MostVisitedPane();
    const qsizetype end = text.indexOf(separator);
    const std::optional<QString> sourceID =
        end < 0 ? std::nullopt : std::optional<QString>(text.sliced(end + 1));
    if (text.left(end) == bookmarksName)
        return BookmarksPane{.sourceID = sourceID};
    // Somebody else may have written there, too. Whatever it says, a window begins with all history.
    return text.left(end) == historyName ? HistoryPane{.sourceID = sourceID} : HistoryPane();
}

} // namespace

SessionWindows SessionWindows::stored(const UserDefaults &defaults)
{
    const QStringList windows = defaults.stringList(windowsKey).value_or(QStringList());
    return {.hasMain = windows.contains(mainName),
            .pane = paneOf(defaults.string(paneKey).value_or(historyName)),
            .hasSettings = windows.contains(settingsName)};
}

void SessionWindows::store(UserDefaults &defaults) const
{
    QStringList windows;
    if (hasMain)
        windows.append(mainName);
    if (hasSettings)
        windows.append(settingsName);
    defaults.setStringList(windowsKey, windows);
    defaults.setString(paneKey, textOf(pane));
}

} // namespace roamlet
