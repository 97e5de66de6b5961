// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/InotifyFileEvents.h"

#include "Model/Utf8.h"
#include "Platform/Clock.h"
#include "Platform/Linux/LinuxIO.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMultiHash>
#include <QObject>
#include <QSet>
#include <QSocketNotifier>

#include <sys/inotify.h>
#include <system_error>
#include <unistd.h>

#include <array>
#include <cstring>
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

class InotifyStream final : public FileEvents::Stream
{
public:
    InotifyStream(int descriptor, const QStringList &roots, FileEvents::Handler handler, const Clock &clock)
        : m_descriptor(descriptor),
          m_roots(roots),
          m_handler(std::move(handler)),
          m_clock(clock),
          m_notifier(descriptor, QSocketNotifier::Read)
    {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_context, [this] { readEvents(); });
        watchRoots(Contents::Known);
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
        const int number =
            inotify_add_watch(m_descriptor, QFile::encodeName(folder).constData(),
                              (isRootOrDirectlyBelow(folder) ? changes : entries) | IN_MASK_ADD);
        if (number < 0)
            return lastError();
        if (!m_folders.contains(number, folder))
            m_folders.insert(number, folder);
        return {};
    }

    void watchRoots(Contents contents)
    {
        for (const QString &root : std::as_const(m_roots)) {
            if (!m_watchedRoots.contains(root))
                watchRoot(root, contents);
        }
    }

    void watchRoot(const QString &root, Contents contents)
    {
        // The folders on the way as well: one of them may be renamed, or the next one may appear. From the
        // top, so that neither happens unseen below a folder that was looked at already.
        bool isFollowed = false;
        std::error_code error;
        for (const QString &folder : wayTo(root)) {
            error = watch(folder);
            if (error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory)
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
        const QStringList subfolders =
            QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
        for (const QString &name : subfolders)
            watchSubfolder(root % u'/' % name, contents);
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
        if (m_changed.isEmpty())
            m_clock.after(InotifyFileEvents::latency, &m_context, [this] { report(); });
        m_changed.insert(path);
    }

    void report()
    {
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
    /// By the kernel's number. Two names can lead to one folder.
    QMultiHash<int, QString> m_folders;
    QSet<QString> m_watchedRoots;
    bool m_followsAny = false;
    QSet<QString> m_changed;
    QSocketNotifier m_notifier;
    QObject m_context;
};

} // namespace

std::unique_ptr<FileEvents::Stream> InotifyFileEvents::open(const QStringList &folders, Handler handler)
{
    const int descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    auto stream = std::make_unique<InotifyStream>(descriptor, folders, std::move(handler), m_clock);
    if (!folders.isEmpty() && !stream->followsAny())
        return nullptr;
    return stream;
}

} // namespace roamlet
