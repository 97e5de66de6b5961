// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/InotifyFileEvents.h"

#include "Model/Utf8.h"
#include "Platform/Clock.h"
#include "Platform/Linux/LinuxIO.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMultiHash>
#include <QObject>
#include <QSet>
#include <QSocketNotifier>

#include <linux/magic.h>
#include <sys/inotify.h>
#include <sys/vfs.h>
#include <system_error>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <utility>

namespace roamlet
{

namespace
{

/// For a folder on the way to one that we want.
constexpr std::uint32_t entries =
    IN_CREATE | IN_MOVED_TO | IN_DELETE | IN_MOVED_FROM | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
/// For a folder whose files count.
constexpr std::uint32_t changes = entries | IN_MODIFY | IN_CLOSE_WRITE;

/// Whether a file system is one that other machines, or other programs, change without the kernel's
/// knowledge.
bool isSilent(std::uint32_t fileSystem)
{
    constexpr auto silent = std::to_array<std::uint32_t>(
        {NFS_SUPER_MAGIC, SMB_SUPER_MAGIC, CIFS_SUPER_MAGIC, SMB2_SUPER_MAGIC, FUSE_SUPER_MAGIC, V9FS_MAGIC,
         CEPH_SUPER_MAGIC, AFS_SUPER_MAGIC, AFS_FS_MAGIC, CODA_SUPER_MAGIC, NCP_SUPER_MAGIC});
    return std::ranges::find(silent, fileSystem) != silent.end();
}

/// Whether the system has no more watches, or streams of them, to give.
bool isLimit(std::error_code error)
{
    return error == std::errc::too_many_files_open || error == std::errc::too_many_files_open_in_system ||
           error == std::errc::no_space_on_device || error == std::errc::not_enough_memory;
}

/// Where the limit left nothing to watch with.
class SilentStream final : public FileEvents::Stream
{
public:
    explicit SilentStream(QStringList folders) : m_folders(std::move(folders)) {}

    QStringList silentFolders() const override { return m_folders; }
    bool isLimitReached() const override { return true; }

private:
    QStringList m_folders;
};

class InotifyStream final : public FileEvents::Stream
{
public:
    InotifyStream(int descriptor, const QStringList &roots, FileEvents::Handler handler, const Clock &clock,
                  const InotifyFileEvents::Calls &calls)
        : m_descriptor(descriptor),
          m_roots(roots),
          m_handler(std::move(handler)),
          m_clock(clock),
          m_calls(calls),
          m_notifier(descriptor, QSocketNotifier::Read)
    {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_context, [this] { readEvents(); });
        watchRoots(Contents::Known);
        m_isOpen = true;
    }
    InotifyStream(const InotifyStream &) = delete;
    InotifyStream &operator=(const InotifyStream &) = delete;
    ~InotifyStream() override
    {
        m_notifier.setEnabled(false);
        ::close(m_descriptor);
    }

    /// Whether any of the folders is watched, or is waited for where it would appear.
    bool followsAny() const { return m_followsAny; }

    QStringList silentFolders() const override
    {
        // Which of them the missing watches would have told of is not worth knowing: looking is cheap.
        return m_isLimitReached ? m_roots : m_silentRoots.values();
    }
    bool isLimitReached() const override { return m_isLimitReached; }

private:
    /// Whether the files in a folder that is watched from now on were there before anybody listened.
    enum class Contents { Known, New };

    bool isRoot(const QString &folder) const { return m_roots.contains(folder); }
    bool isRootOrDirectlyBelow(const QString &folder) const
    {
        return isRoot(folder) || isRoot(QFileInfo(folder).path());
    }
    std::error_code watch(const QString &folder)
    {
        const QByteArray name = QFile::encodeName(folder);
        const bool hasFiles = isRootOrDirectlyBelow(folder);
        const int number =
            m_calls.addWatch(m_descriptor, name.constData(), (hasFiles ? changes : entries) | IN_MASK_ADD);
        if (number < 0) {
            const std::error_code error = lastError();
            if (isLimit(error) && !std::exchange(m_isLimitReached, true))
                tellOfSilence();
            return error;
        }
        if (!m_folders.contains(number, folder))
            m_folders.insert(number, folder);
        if (hasFiles && isSilent(m_calls.fileSystem(name.constData())))
            noteSilence(folder);
        return {};
    }

    /// From this folder, a root or one directly below, not every change is heard of.
    void noteSilence(const QString &folder)
    {
        const QString above = QFileInfo(folder).path();
        for (const QString &root : std::as_const(m_roots)) {
            if ((root == folder || root == above) && !m_silentRoots.contains(root)) {
                m_silentRoots.insert(root);
                tellOfSilence();
            }
        }
    }

    void watchRoots(Contents contents)
    {
        QHash<QString, std::error_code> looked;
        for (const QString &root : std::as_const(m_roots)) {
            if (!m_watchedRoots.contains(root))
                watchRoot(root, contents, looked);
        }
    }

    /// `looked` is what became of the folders on the ways to the roots before: most of these ways begin
    /// alike.
    void watchRoot(const QString &root, Contents contents, QHash<QString, std::error_code> &looked)
    {
        // The folders on the way as well: one of them may be renamed, or the next one may appear. From the
        // top, so that neither happens unseen below a folder that was looked at already.
        bool isFollowed = false;
        std::error_code error;
        for (const QString &folder : wayTo(root)) {
            const auto known = looked.constFind(folder);
            error = known != looked.cend() ? *known : *looked.insert(folder, watch(folder));
            // What would lie in it cannot be there before it is, and its own arrival is told of.
            if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
                break;
            isFollowed = !error;
        }
        m_followsAny = m_followsAny || isFollowed;
        if (error)
            return;
        m_watchedRoots.insert(root);
        watchContents(root, contents);
    }

    /// A folder and those that it lies in, from the root of the file system down.
    static QStringList wayTo(const QString &folder)
    {
        QStringList result{folder};
        for (QString above = QFileInfo(folder).path(); above != result.first();
             above = QFileInfo(above).path())
            result.prepend(above);
        return result;
    }

    /// Forgets a folder and all below it: nothing is reported from there under these names any more. Whether
    /// anything was watched there.
    bool letGo(const QString &folder)
    {
        bool wasWatched = false;
        const QString below = folder % u'/';
        for (auto entry = m_folders.begin(); entry != m_folders.end();) {
            if (entry.value() != folder && !entry.value().startsWith(below)) {
                ++entry;
                continue;
            }
            wasWatched = true;
            const int number = entry.key();
            m_watchedRoots.remove(entry.value());
            entry = m_folders.erase(entry);
            // Another name may lead to it.
            if (!m_folders.contains(number))
                inotify_rm_watch(m_descriptor, number);
        }
        return wasWatched;
    }

    void watchContents(const QString &root, Contents contents)
    {
        if (contents == Contents::New)
            noteFilesIn(root);
        std::error_code error;
        std::filesystem::directory_iterator entry(QFile::encodeName(root).toStdString(), error);
        for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
            std::error_code ignored;
            if (entry->is_directory(ignored))
                watchSubfolder(root % u'/' % utf8Text(entry->path().filename().string()), contents);
        }
        // Nobody knows what lies there, so nothing tells when it changes.
        if (error)
            noteSilence(root);
    }

    void watchSubfolder(const QString &folder, Contents contents)
    {
        // A root can lie in another one.
        if (isRoot(folder))
            watchRoots(contents);
        else if (!watch(folder) && contents == Contents::New)
            noteFilesIn(folder);
    }

    void noteFilesIn(const QString &folder)
    {
        const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
        for (const QString &name : names)
            note(folder % u'/' % name);
    }

    void note(const QString &path)
    {
        reportLater();
        m_changed.insert(path);
    }

    /// Whoever has opened the stream asks at first, and need not be told.
    void tellOfSilence()
    {
        if (m_isOpen)
            reportLater();
    }

    void reportLater()
    {
        if (!std::exchange(m_isReportPending, true))
            m_clock.after(InotifyFileEvents::latency, &m_context, [this] { report(); });
    }

    void report()
    {
        m_isReportPending = false;
        QStringList paths = std::exchange(m_changed, {}).values();
        paths.sort();
        m_handler(paths);
    }

    void readEvents()
    {
        constexpr size_t bufferSize = size_t{64} << 10U;
        alignas(inotify_event) std::array<char, bufferSize> buffer;
        for (;;) {
            const ssize_t length = ::read(m_descriptor, buffer.data(), buffer.size());
            if (length <= 0)
                return;
            for (const char *position = buffer.data(); position < buffer.data() + length;) {
                inotify_event event = {};
                std::memcpy(&event, position, sizeof(event));
                const char *name = position + sizeof(event);
                handle(event, event.len > 0 ? utf8Text(name) : QString());
                position = name + event.len;
            }
        }
    }

    void handle(const inotify_event &event, const QString &name)
    {
        if ((event.mask & IN_Q_OVERFLOW) != 0) {
            reportEverything();
            return;
        }
        const QStringList folders = m_folders.values(event.wd);
        if ((event.mask & IN_IGNORED) != 0) {
            m_folders.remove(event.wd);
            for (const QString &folder : folders)
                m_watchedRoots.remove(folder);
            watchAgain(folders);
            return;
        }
        if ((event.mask & IN_MOVE_SELF) != 0) {
            // The kernel goes on watching it, and all that lies in it, under its new name.
            for (const QString &folder : folders)
                letGo(folder);
            watchAgain(folders);
            return;
        }
        for (const QString &folder : folders) {
            if (!name.isEmpty())
                handleEntry(folder, name, event.mask);
        }
    }

    /// Watches what now stands in the place of these folders, if anything does, and of all roots.
    void watchAgain(const QStringList &folders)
    {
        for (const QString &folder : folders) {
            if (!isRoot(folder) && isRootOrDirectlyBelow(folder))
                watchSubfolder(folder, Contents::New);
        }
        watchRoots(Contents::New);
    }

    void handleEntry(const QString &folder, const QString &name, std::uint32_t mask)
    {
        const QString path = folder.endsWith(u'/') ? QString(folder % name) : QString(folder % u'/' % name);
        const bool hasArrived = (mask & (IN_CREATE | IN_MOVED_TO)) != 0;
        const bool hasGone = (mask & (IN_DELETE | IN_MOVED_FROM)) != 0;
        // The folder behind a link does not notice that the link is gone or leads elsewhere now.
        const bool wasWatched = (hasArrived || hasGone) && letGo(path);
        // A link to a folder comes and goes as if it were a file.
        const bool isFolder = (mask & IN_ISDIR) != 0 || (hasArrived ? QFileInfo(path).isDir() : wasWatched);
        if (!isFolder) {
            if (isRootOrDirectlyBelow(folder))
                note(path);
        } else if (hasArrived || wasWatched) {
            if (isRoot(folder))
                watchSubfolder(path, Contents::New);
            watchRoots(Contents::New);
        }
    }

    /// Events were lost: anything may have changed, also which folders there are.
    void reportEverything()
    {
        const QList<int> numbers = m_folders.uniqueKeys();
        for (const int number : numbers)
            inotify_rm_watch(m_descriptor, number);
        m_folders.clear();
        m_watchedRoots.clear();
        watchRoots(Contents::New);
    }

    int m_descriptor;
    QStringList m_roots;
    FileEvents::Handler m_handler;
    const Clock &m_clock;
    const InotifyFileEvents::Calls &m_calls;
    /// By the kernel's number. Two names can lead to one folder.
    QMultiHash<int, QString> m_folders;
    QSet<QString> m_watchedRoots;
    QSet<QString> m_silentRoots;
    bool m_followsAny = false;
    bool m_isLimitReached = false;
    bool m_isOpen = false;
    bool m_isReportPending = false;
    QSet<QString> m_changed;
    QSocketNotifier m_notifier;
    QObject m_context;
};

} // namespace

InotifyFileEvents::Calls InotifyFileEvents::Calls::ofKernel()
{
    return {.init = inotify_init1, .addWatch = inotify_add_watch, .fileSystem = [](const char *path) {
                struct statfs attributes = {};
                return ::statfs(path, &attributes) == 0 ? static_cast<std::uint32_t>(attributes.f_type)
                                                        : std::uint32_t{0};
            }};
}

InotifyFileEvents::InotifyFileEvents(const Clock &clock, Calls calls)
    : m_clock(clock), m_calls(std::move(calls))
{
}

std::unique_ptr<FileEvents::Stream> InotifyFileEvents::open(const QStringList &folders, Handler handler)
{
    const int descriptor = m_calls.init(IN_NONBLOCK | IN_CLOEXEC);
    if (descriptor < 0) {
        if (isLimit(lastError()))
            return std::make_unique<SilentStream>(folders);
        return nullptr;
    }
    auto stream = std::make_unique<InotifyStream>(descriptor, folders, std::move(handler), m_clock, m_calls);
    if (!folders.isEmpty() && !stream->followsAny() && !stream->isLimitReached())
        return nullptr;
    return stream;
}

} // namespace roamlet
