// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/CommandLine.h"

#include "Platform/Linux/AutostartLoginService.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

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

/// The job that is tested first, as long as nothing stands beside it that says more.
Command plainJob(const QStringList &arguments)
{
    using Job = Command::Job;
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

/// The switches that say which rows are printed and how, and the jobs that are not among the six; what they
/// are given is not read yet.
struct RowSwitches {
    bool isJson = false;
    std::optional<QString> limit;
    std::optional<QString> since;
    std::optional<QString> until;
    std::optional<QString> rowToOpen;
    std::optional<QString> bookmarkWords;
    /// The first of the other jobs among them.
    std::optional<QString> otherJob;
    /// The one that has no value behind it.
    std::optional<QString> withoutValue;

    static RowSwitches in(const QStringList &arguments);

    bool haveAny() const
    {
        return isJson || limit || since || until || rowToOpen || bookmarkWords || withoutValue;
    }
};

RowSwitches RowSwitches::in(const QStringList &arguments)
{
    static const QStringList jobs{u"--summary"_s, u"--export"_s, u"--top"_s,
                                  u"--search"_s,  u"--site"_s,   u"--watch"_s};
    RowSwitches result;
    const std::array<std::pair<QLatin1StringView, std::optional<QString> *>, 4> withValue{
        {{"--limit"_L1, &result.limit},
         {"--since"_L1, &result.since},
         {"--until"_L1, &result.until},
         {"--open"_L1, &result.rowToOpen}}};
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &word = arguments[i];
        if (jobs.contains(word) && !result.otherJob)
            result.otherJob = word;
        if (word == u"--search")
            break;
        if (word == u"--bookmarks") {
            result.bookmarkWords = arguments.sliced(i + 1).join(u' ');
            break;
        }
        if (word == u"--export" || word == u"--site" || word == u"--source") {
            ++i;
            continue;
        }
        const qsizetype equals = word.indexOf(u'=');
        const QStringView name = equals < 0 ? QStringView(word) : QStringView(word).first(equals);
        result.isJson = result.isJson || name == u"--json";
        const auto *known =
            std::ranges::find_if(withValue, [name](const auto &each) { return name == each.first; });
        if (known == withValue.end())
            continue;
        if (equals < 0 && ++i == arguments.size()) {
            result.withoutValue = word;
            break;
        }
        // As with all switches, the first one counts.
        if (!*known->second)
            *known->second = equals < 0 ? arguments[i] : word.sliced(equals + 1);
    }
    return result;
}

Command misuse(const QString &reason)
{
    return {.job = Command::Job::Misuse, .argument = reason, .sourceID = {}};
}

std::optional<qint64> limitOf(const QString &text)
{
    const bool isNumber =
        std::ranges::all_of(text, [](QChar character) { return character >= u'0' && character <= u'9'; });
    bool isSmallEnough = false;
    const qint64 number = text.toLongLong(&isSmallEnough);
    return isNumber && isSmallEnough && number > 0 ? std::optional(number) : std::nullopt;
}

/// The job with what the switches of rows say, which have to be for it.
Command withRows(Command command, const RowSwitches &rows)
{
    using Job = Command::Job;
    const Job job = command.job;
    const bool isSearch = job == Job::Search || job == Job::Site;
    const bool isList = isSearch || job == Job::Top || job == Job::Bookmarks;
    if (rows.isJson && !isList && job != Job::Summary)
        return misuse(u"--json goes with --summary, --search, --site, --top and --bookmarks only."_s);
    if (rows.limit && !isList)
        return misuse(u"--limit goes with --search, --site, --top and --bookmarks only."_s);
    if (rows.since && !isSearch)
        return misuse(u"--since goes with --search and --site only."_s);
    if (rows.until && !isSearch)
        return misuse(u"--until goes with --search and --site only."_s);

    command.isJson = rows.isJson;
    if (rows.limit) {
        command.limit = limitOf(*rows.limit);
        if (!command.limit)
            return misuse(u"--limit takes a whole number from 1 on, not "_s % *rows.limit % u'.');
    }
    for (const auto &[name, words, time] : {std::tuple("--since"_L1, &rows.since, &command.since),
                                            std::tuple("--until"_L1, &rows.until, &command.until)}) {
        if (!*words)
            continue;
        *time = NamedTime::of(**words);
        if (!*time)
            return misuse(name %
                          u" takes a day or a time such as 2025-11-05, \"2025-11-05 14:30\", today, "
                          "yesterday, 12h, 7d or 2w, not " %
                          **words % u'.');
    }
    return command;
}

} // namespace

Command Command::of(const QStringList &arguments)
{
    const RowSwitches rows = RowSwitches::in(arguments);
    Command plain = plainJob(arguments);
    const bool isAmongThem = rows.rowToOpen || rows.bookmarkWords;
    const bool isHelp = plain.job == Job::Help || plain.job == Job::Version;
    if (!rows.haveAny() || (isHelp && !isAmongThem))
        return plain;
    if (rows.withoutValue)
        return misuse(*rows.withoutValue % u" needs a value.");
    if (!isAmongThem)
        return withRows(plain, rows);
    const QString name = rows.rowToOpen ? u"--open"_s : u"--bookmarks"_s;
    std::optional<QString> other = rows.otherJob;
    // It counts wherever it stands.
    if (plain.job == Job::Summary)
        other = u"--summary"_s;
    else if (rows.rowToOpen && rows.bookmarkWords)
        other = u"--bookmarks"_s;
    if (other)
        return misuse(name % u" and " % *other % u" do not go together.");
    return withRows({.job = rows.rowToOpen ? Job::Open : Job::Bookmarks,
                     .argument = rows.rowToOpen ? rows.rowToOpen : rows.bookmarkWords,
                     .sourceID = {}},
                    rows);
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
           "  --bookmarks WORD...  bookmarks whose title, address or folder holds all the words\n"
           "  --open ID            opens a row in its browser and profile, by its id in --json\n"
           "  --export FORMAT      the bookmarks of one profile as html, markdown or csv\n"
           "    --source ID        the profile, such as \"chrome/Profile 1\" (Safari's when left out)\n"
           "  --watch [SECONDS]    tell which profiles change, for 60 seconds when left out\n"
           "  -h, --help           this text\n"
           "  -v, --version        the version\n"
           "\n"
           "Profiles that are switched off in the settings are not read.\n"
           "\n"
           "These choose and shape the rows. --search and --bookmarks take all behind them for words:\n"
           "\n"
           "  --json               rows for other programs, one object on each line\n"
           "  --limit N            so many rows at most\n"
           "  --since TIME         --search and --site: last visited on this day, at this time or later\n"
           "  --until TIME         or earlier: 2025-11-05, \"2025-11-05 14:30\", yesterday, 12h, 7d, 2w\n"_s;
}

} // namespace roamlet
