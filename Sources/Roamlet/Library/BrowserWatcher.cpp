// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/BrowserWatcher.h"

#include "Model/Browser.h"
#include "Platform/BrowserFolders.h"
#include "Platform/Clock.h"
#include "Platform/Files.h"
#include "Platform/Folders.h"
#include "Readers/BrowserReader.h"

#include <algorithm>
#include <array>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

struct SplitPath {
    QStringView folder;
    QStringView name;
};

/// A path's last component and what stands before it.
SplitPath split(QStringView path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash < 0 ? SplitPath{{}, path} : SplitPath{path.first(slash), path.sliced(slash + 1)};
}

/// Every place where data may lie now or later: a browser can be installed while we run.
QStringList watchedFolders(const Platform &platform)
{
    QStringList result = platform.folders.dataFolders(Source::Kind::Safari, {});
    result += BrowserFolders::of(platform.folders, platform.files).safariProfiles();
    for (const Browser &browser : Browser::all()) {
        if (browser.family == Browser::Family::Safari)
            continue;
        for (const Browser::Installation &installation : browser.installations)
            result += platform.folders.dataFolders(browser.kind, installation.key);
    }
    return result;
}

/// A source as far as its id needs it.
QString idOf(Source::Kind kind, QStringView profile, const QString &installation = {})
{
    return Source{.kind = kind,
                  .profile = profile.toString(),
                  .name = {},
                  .safariBookmarks = {},
                  .installation = installation}
        .id();
}

/// Whether any browser has a file of this name that is read.
bool isReadAnywhere(QStringView name)
{
    using enum Browser::Family;
    return std::ranges::any_of(std::array{Safari, Chromium, Firefox}, [name](Browser::Family family) {
        return BrowserReader::isRead(name, family);
    });
}

/// The stamps of all files that are read in these folders and in those directly below them.
QHash<QString, QString> stampsIn(const QStringList &folders, const Files &files, const std::stop_token &stop)
{
    QHash<QString, QString> result;
    const auto add = [&](const QString &folder, const QStringList &names) {
        for (const QString &name : names) {
            const QString path = folder % u'/' % name;
            if (!stop.stop_requested() && isReadAnywhere(name))
                result.insert(path, files.fileStamp(path));
        }
    };
    for (const QString &folder : folders) {
        const QStringList names = files.names(folder);
        add(folder, names);
        for (const QString &name : names) {
            if (stop.stop_requested())
                return {};
            const QString subfolder = folder % u'/' % name;
            add(subfolder, files.names(subfolder));
        }
    }
    return result;
}

} // namespace

BrowserWatcher::BrowserWatcher(const Platform &platform, Handler onChange, std::function<void()> onLimit,
                               std::function<void(const QStringList &folders)> onSilence)
    : m_platform(platform),
      m_onChange(std::move(onChange)),
      m_onLimit(std::move(onLimit)),
      m_onSilence(std::move(onSilence)),
      m_stream(open(watchedFolders(platform)))
{
    lookWhereNobodyTells();
}

std::unique_ptr<FileEvents::Stream> BrowserWatcher::open(const QStringList &folders)
{
    return m_platform.fileEvents.open(folders, [this](const QStringList &paths) { handle(paths); });
}

QSet<QString> BrowserWatcher::setProfiles(const QList<Source> &profiles)
{
    const BrowserFolders folders = BrowserFolders::of(m_platform.folders, m_platform.files);
    QMultiHash<QString, Source> elsewhere;
    for (const Source &source : profiles) {
        const QStringList roots = folders.roots(source);
        const QString folder = folders.profile(source, m_platform.files);
        const auto [parent, name] = split(folder);
        const bool isKnownByPlace = roots.contains(parent) && source.profile == name;
        if (!roots.isEmpty() && !isKnownByPlace)
            elsewhere.insert(folder, source);
    }
    m_profilesElsewhere = elsewhere;
    const QStringList wanted = elsewhere.uniqueKeys();
    if (wanted.isEmpty()) {
        m_foldersElsewhere.clear();
        m_streamsElsewhere.clear();
    }
    const QSet<QString> added = QSet<QString>(wanted.cbegin(), wanted.cend()) - m_foldersElsewhere;
    if (added.isEmpty())
        return {};
    auto stream = open(added.values());
    // A folder that nothing can be told of now may be another one the next time.
    if (!stream)
        return {};
    m_streamsElsewhere.push_back(std::move(stream));
    m_foldersElsewhere.unite(added);
    lookWhereNobodyTells();
    QSet<QString> ids;
    for (const QString &folder : added) {
        for (const Source &source : elsewhere.values(folder))
            ids.insert(source.id());
    }
    return ids;
}

void BrowserWatcher::lookWhereNobodyTells()
{
    QStringList silent;
    bool isLimitReached = false;
    const auto ask = [&](const std::unique_ptr<FileEvents::Stream> &stream) {
        if (!stream)
            return;
        silent += stream->silentFolders();
        isLimitReached = isLimitReached || stream->isLimitReached();
    };
    ask(m_stream);
    std::ranges::for_each(m_streamsElsewhere, ask);
    if (!silent.isEmpty() && !std::exchange(m_isLooking, true))
        look(silent);
    if (isLimitReached && !std::exchange(m_isLimitReached, true) && m_onLimit)
        m_onLimit();
    if (isLimitReached || !m_onSilence)
        return;
    QStringList added;
    for (const QString &folder : std::as_const(silent)) {
        if (!m_silentFolders.contains(folder))
            added.append(folder);
        m_silentFolders.insert(folder);
    }
    added.sort();
    if (!added.isEmpty())
        m_onSilence(added);
}

void BrowserWatcher::look(const QStringList &folders)
{
    // Not on the main thread: a server can be slow, or gone.
    m_tasks.run(
        &m_context,
        [folders, files = &m_platform.files](const std::stop_token &stop) {
            return stampsIn(folders, *files, stop);
        },
        [this, folders](const Stamps &stamps) { compare(folders, stamps); });
}

void BrowserWatcher::compare(const QStringList &folders, const Stamps &stamps)
{
    // Who hears of it may ask for other profiles.
    const Stamps previous = std::exchange(m_knownStamps, stamps);
    const QSet<QString> now(folders.cbegin(), folders.cend());
    const QSet<QString> before = std::exchange(m_knownFolders, now);
    const auto liesIn = [](const QSet<QString> &roots, const QString &path) {
        const QStringView folder = split(path).folder;
        return roots.contains(folder.toString()) || roots.contains(split(folder).folder.toString());
    };
    QStringList changed;
    for (const auto &[path, stamp] : stamps.asKeyValueRange()) {
        if (previous.value(path) != stamp && liesIn(before, path))
            changed.append(path);
    }
    for (const auto &[path, stamp] : previous.asKeyValueRange()) {
        if (!stamps.contains(path) && liesIn(now, path))
            changed.append(path);
    }
    changed.sort();
    m_platform.clock.after(lookInterval, &m_context, [this] {
        m_isLooking = false;
        lookWhereNobodyTells();
    });
    if (!changed.isEmpty())
        handle(changed);
}

void BrowserWatcher::handle(const QStringList &paths)
{
    lookWhereNobodyTells();
    // Browsers write many files that nobody here reads; the folders cost a look at every browser's place.
    std::optional<BrowserFolders> folders;
    QSet<QString> changed;
    for (const QString &path : paths) {
        const auto [folder, name] = split(path);
        if (!isReadAnywhere(name))
            continue;
        if (!folders)
            folders = BrowserFolders::of(m_platform.folders, m_platform.files);
        QSet<QString> ids;
        if (const std::optional<QString> id = sourceID(path, *folders))
            ids.insert(*id);
        for (const Source &profile : m_profilesElsewhere.values(folder.toString())) {
            if (!BrowserReader::isRead(name, Browser::of(profile.kind).family))
                continue;
            // Its list writes the folder in another way than its place does.
            ids.remove(idOf(profile.kind, split(folder).name, profile.installation));
            ids.insert(profile.id());
        }
        if (ids.isEmpty())
            continue;
        const QString stamp = m_platform.files.fileStamp(path);
        const auto previous = m_stamps.constFind(path);
        if (previous == m_stamps.cend() || *previous != stamp)
            changed.unite(ids);
        m_stamps.insert(path, stamp);
    }
    if (!changed.isEmpty())
        m_onChange(changed);
}

std::optional<QString> BrowserWatcher::sourceID(const QString &path, const BrowserFolders &folders)
{
    const auto [folder, name] = split(path);
    const auto [parent, profile] = split(folder);
    if (BrowserReader::isRead(name, Browser::Family::Safari)) {
        if (folder == folders.safari)
            return Source::safari().id();
        if (parent == folders.safariProfiles())
            return idOf(Source::Kind::Safari, profile);
    }
    for (const BrowserFolders::Installation &installation : folders.installations) {
        const bool isHere = std::ranges::any_of(
            installation.roots, [parent = parent](const QString &root) { return parent == root; });
        if (isHere && BrowserReader::isRead(name, Browser::of(installation.browser).family))
            return idOf(installation.browser, profile, installation.key);
    }
    return {};
}

} // namespace roamlet
