// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/CommandLine.h"

#include "Platform/Linux/AutostartLoginService.h"

#include <algorithm>
#include <array>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The word right after the first place of a switch.
std::optional<QString> wordAfter(const QStringList &arguments, const QString &option)
{
    const qsizetype place = arguments.indexOf(option);
    if (place < 0 || place + 1 >= arguments.size())
        return {};
    return arguments[place + 1];
}

/// An option that Qt takes for the windows; a session manager that restores the program adds "-session".
struct WindowOption {
    QLatin1StringView name;
    bool hasValue = true;
};

constexpr std::array windowOptions{
    // Of the desktop entry; the window knows the actions.
    WindowOption{"action"_L1},        WindowOption{"display"_L1},      WindowOption{"dograb"_L1, false},
    WindowOption{"geometry"_L1},      WindowOption{"icon"_L1},         WindowOption{"name"_L1},
    WindowOption{"nograb"_L1, false}, WindowOption{"platform"_L1},     WindowOption{"platformpluginpath"_L1},
    WindowOption{"platformtheme"_L1}, WindowOption{"plugin"_L1},       WindowOption{"qwindowgeometry"_L1},
    WindowOption{"qwindowicon"_L1},   WindowOption{"qwindowtitle"_L1}, WindowOption{"reverse"_L1, false},
    WindowOption{"session"_L1},       WindowOption{"style"_L1},        WindowOption{"stylesheet"_L1},
    WindowOption{"title"_L1},
};

/// How many words from this one on are for the windows; 0 when it is no option of theirs.
qsizetype wordsForWindows(QStringView word)
{
    if (!word.startsWith(u'-'))
        return 0;
    const QStringView option = word.sliced(word.startsWith(u"--") ? 2 : 1);
    const qsizetype equals = option.indexOf(u'=');
    const QStringView name = equals < 0 ? option : option.first(equals);
    const auto *known =
        std::ranges::find_if(windowOptions, [name](const WindowOption &each) { return name == each.name; });
    if (known == windowOptions.end())
        return 0;
    return known->hasValue && equals < 0 ? 2 : 1;
}

} // namespace

Command Command::of(const QStringList &arguments)
{
    if (arguments.contains(u"--summary"))
        return {.job = Job::Summary, .argument = {}, .sourceID = {}};
    if (arguments.contains(u"--export"))
        return {.job = Job::Export,
                .argument = wordAfter(arguments, u"--export"_s),
                .sourceID = wordAfter(arguments, u"--source"_s)};
    if (arguments.contains(u"--top"))
        return {.job = Job::Top, .argument = {}, .sourceID = {}};
    if (const qsizetype place = arguments.indexOf(u"--search"); place >= 0)
        return {.job = Job::Search, .argument = arguments.sliced(place + 1).join(u' '), .sourceID = {}};
    if (arguments.contains(u"--site"))
        return {.job = Job::Site, .argument = wordAfter(arguments, u"--site"_s), .sourceID = {}};
    if (arguments.contains(u"--watch"))
        return {.job = Job::Watch, .argument = wordAfter(arguments, u"--watch"_s), .sourceID = {}};
    if (arguments.contains(u"--desktop-search"))
        return {.job = Job::DesktopSearch, .argument = {}, .sourceID = {}};
    if (arguments.contains(u"--help") || arguments.contains(u"-h"))
        return {.job = Job::Help, .argument = {}, .sourceID = {}};
    if (arguments.contains(u"--version") || arguments.contains(u"-v"))
        return {.job = Job::Version, .argument = {}, .sourceID = {}};
    for (qsizetype i = 0; i < arguments.size();) {
        const bool isMarker = arguments[i] == QLatin1StringView(AutostartLoginService::launchMarker);
        const qsizetype taken = isMarker ? 1 : wordsForWindows(arguments[i]);
        if (taken == 0)
            return {.job = Job::Unknown, .argument = arguments[i], .sourceID = {}};
        i += taken;
    }
    return {};
}

QString Command::help()
{
    return u"Usage: roamlet [SWITCH]\n"
           "\n"
           "Roamlet gathers the history and the bookmarks of all your browsers, every profile of each,\n"
           "and never writes to the browsers' files.\n"
           "\n"
           "  --summary            what every profile holds\n"
           "  --search WORD...     pages whose title or address holds all the words, newest first\n"
           "  --site SITE          pages of one site, such as example.org, newest first\n"
           "  --top                the most visited pages\n"
           "  --export FORMAT      the bookmarks of one profile as html, markdown or csv\n"
           "    --source ID        the profile, such as \"chrome/Profile 1\" (Safari's when left out)\n"
           "  --watch [SECONDS]    tell which profiles change, for 60 seconds when left out\n"
           "  -h, --help           this text\n"
           "  -v, --version        the version\n"
           "\n"
           "Profiles that are switched off in the settings are not read.\n"_s;
}

} // namespace roamlet
