// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Firefox/FirefoxProfiles.h"

#include "Model/Browser.h"
#include "Model/Collation.h"
#include "Model/Utf8.h"
#include "Platform/BrowserFolders.h"
#include "Platform/Files.h"
#include "Readers/Files/Ini.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace roamlet::FirefoxProfiles
{

using namespace Qt::StringLiterals;

namespace
{

/// A section "[ProfileN]".
struct Section {
    std::string_view name;
    std::string_view path;
    std::string_view isRelative;
    std::string_view isDefault;

    /// Whether Firefox finds a folder by it.
    bool isUsable() const
    {
        const bool isAbsolute = path.starts_with('/');
        return !path.empty() && (isRelative.empty() || (isRelative == "1") != isAbsolute);
    }
};

constexpr std::array<std::pair<std::string_view, std::string_view Section::*>, 4> sectionKeys{
    {{"Name", &Section::name},
     {"Path", &Section::path},
     {"IsRelative", &Section::isRelative},
     {"Default", &Section::isDefault}}};

/// By value, however many digits they have.
struct NumberOrder {
    bool operator()(std::string_view left, std::string_view right) const
    {
        return left.size() != right.size() ? left.size() < right.size() : left < right;
    }
};

/// What "profiles.ini" says, in parts of its text.
struct ProfileList {
    /// By their number.
    std::map<std::string_view, Section, NumberOrder> sections;
    /// The folder of the profile that starts by itself, or empty.
    std::string_view defaultPath;
};

ProfileList profileList(std::string_view text)
{
    ProfileList list;
    std::map<std::string_view, std::string_view> installs;
    Ini::forEachEntry(text, [&](const Ini::Entry &entry) {
        constexpr std::string_view profilePrefix = "Profile";
        if (entry.section.starts_with("Install")) {
            std::string_view &path = installs[entry.section];
            if (entry.key == "Default")
                path = entry.value;
        }
        if (!entry.section.starts_with(profilePrefix))
            return;
        const std::string_view number = entry.section.substr(profilePrefix.size());
        const auto *const known =
            std::ranges::find(sectionKeys, entry.key, &decltype(sectionKeys)::value_type::first);
        const bool isNumber =
            !number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos;
        if (isNumber && known != sectionKeys.end())
            list.sections[number].*(known->second) = entry.value;
    });
    for (const auto &[number, section] : list.sections) {
        if (section.isUsable() && section.isDefault == "1")
            list.defaultPath = section.path;
    }
    if (installs.size() == 1)
        list.defaultPath = installs.begin()->second;
    return list;
}

/// A profile of a group.
struct Member {
    QString path;
    QString name;
};

/// The members of a group.
std::expected<QList<Member>, ReadError> groupMembers(const QString &database, const ReadContext &context)
{
    const auto snapshot = SQLiteSnapshot::copying(database, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());
    QList<Member> result;
    const auto run =
        snapshot->query(u"SELECT path, name FROM Profiles"_s, {}, [&](const SQLiteSnapshot::Row &row) {
            enum Column { Path, Name };
            result.append({row.text(Path).value_or(QString()), row.text(Name).value_or(QString())});
        });
    if (!run)
        return std::unexpected(ReadError::unreadable(database, run.error().reason()));
    return result;
}

/// The databases of the groups of profiles in a data folder.
QStringList groupDatabases(const QString &root, const Files &files)
{
    const QString folder = root % u"/Profile Groups";
    QStringList names = files.names(folder);
    names.removeIf([](const QString &name) { return !name.endsWith(u".sqlite"); });
    names.sort();
    for (QString &name : names)
        name = folder % u'/' % name;
    return names;
}

/// Finds the profiles of one installation.
class Finder
{
public:
    Finder(const BrowserFolders::Installation &installation, const ReadContext &context,
           const QList<Source> &known)
        : m_installation(installation), m_context(context), m_known(known), m_collation(context.locale)
    {
    }

    /// Those in one data folder that none of the folders before it has.
    QList<Source> profilesIn(const QString &root);

private:
    struct Found {
        Source source;
        QString folder;
    };

    /// Adds the profile in the folder that is written as `key`, when there is one that is not known yet. The
    /// first name that is not empty holds.
    void add(const QString &key, const QString &name, const QString &root, std::vector<Found> &found);

    const BrowserFolders::Installation &m_installation;
    const ReadContext &m_context;
    const QList<Source> &m_known;
    Collation m_collation;
    QSet<QString> m_keys;
    QSet<QString> m_folders;
};

QList<Source> Finder::profilesIn(const QString &root)
{
    const QString file = root % u"/profiles.ini";
    const auto bytes = m_context.files->read(file);
    // One that is not there lists nothing: the folder may be the other one of the two that a Firefox has.
    bool isListKnown = bytes.has_value() || !m_context.files->exists(file);
    if (!isListKnown)
        m_context.reportList(ReadError::wrap(bytes.error(), file));
    const ProfileList list =
        profileList(bytes ? std::string_view(bytes->constData(), static_cast<size_t>(bytes->size())) : "");
    const QStringList groups = groupDatabases(root, *m_context.files);
    std::vector<Found> found;
    // What a group says of a profile goes before the text file, in which its members come and go.
    for (const QString &group : groups) {
        const auto members = groupMembers(group, m_context);
        if (!members) {
            isListKnown = false;
            m_context.reportList(members.error());
        }
        for (const Member &member : members.value_or(QList<Member>()))
            add(member.path, member.name, root, found);
    }
    for (const auto &[number, section] : list.sections) {
        if (section.isUsable())
            add(utf8Text(section.path), utf8Text(section.name), root, found);
    }
    // A profile must not go because what lists it could not be read this time.
    for (const Source &source : isListKnown ? QList<Source>() : m_known) {
        if (source.kind == m_installation.browser && source.installation == m_installation.key)
            add(*source.profile, source.name, root, found);
    }

    // Of a group, the profile that was started last is the one that starts by itself: a list must not change
    // with it.
    const QString first = groups.isEmpty() && !list.defaultPath.empty()
                              ? BrowserFolders::firefoxProfile(root, utf8Text(list.defaultPath))
                              : QString();
    for (Found &each : found) {
        if (each.source.name.isEmpty())
            each.source.name = each.folder.sliced(each.folder.lastIndexOf(u'/') + 1);
    }
    std::ranges::sort(found, [&](const Found &left, const Found &right) {
        if (left.folder == first || right.folder == first)
            return left.folder == first && right.folder != first;
        const int order = m_collation.compare(left.source.name, right.source.name);
        return order != 0 ? order < 0 : *left.source.profile < *right.source.profile;
    });
    QList<Source> result;
    for (Found &each : found)
        result.append(std::move(each.source));
    return result;
}

void Finder::add(const QString &key, const QString &name, const QString &root, std::vector<Found> &found)
{
    const QString folder = BrowserFolders::firefoxProfile(root, key);
    const auto known = std::ranges::find(found, folder, &Found::folder);
    if (known != found.end() && known->source.name.isEmpty())
        known->source.name = name;
    // A new Firefox also makes a folder that it never uses.
    if (key.isEmpty() || m_keys.contains(key) || m_folders.contains(folder) ||
        !m_context.files->exists(folder % u'/' % Browser::historyFile(Browser::Family::Firefox)))
        return;
    m_keys.insert(key);
    m_folders.insert(folder);
    Source source{.kind = m_installation.browser,
                  .profile = key,
                  .name = name,
                  .safariBookmarks = Source::AllExcept{},
                  .installation = m_installation.key,
                  .namesInstallation = m_installation.isNamed};
    // Another data folder may hold a folder of that name without listing it.
    if (m_context.folders.profile(source, *m_context.files) != folder)
        source.profile = folder;
    found.push_back({std::move(source), folder});
}

} // namespace

QList<Source> read(const BrowserFolders::Installation &installation, const ReadContext &context,
                   const QList<Source> &known)
{
    Finder finder(installation, context, known);
    QList<Source> result;
    for (const QString &root : installation.roots)
        result += finder.profilesIn(root);
    return result;
}

} // namespace roamlet::FirefoxProfiles
