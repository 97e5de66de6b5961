// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/ConfinedFiles.h"

#include <sqlite3.h>

namespace roamlet::ConfinedFiles
{

namespace
{

constexpr const char *systemName = "roamlet-copies";

sqlite3_vfs *defaultFiles()
{
    static sqlite3_vfs *const files = sqlite3_vfs_find(nullptr);
    return files;
}

/// SQLite itself deletes the journals of the database that it opened, and nothing else: their names are those
/// of the database with something behind.
bool isJournal(std::string_view path)
{
    return path.ends_with("-journal") || path.ends_with("-wal") || path.ends_with("-shm");
}

/// Whether the path lies directly in the folder of one of our copies. Only the user may enter these, and no
/// journal of somebody else's knows their names.
bool isInCopy(std::string_view path)
{
    const auto folderEnd = path.rfind('/');
    if (folderEnd == std::string_view::npos || folderEnd == 0)
        return false;
    const auto folderBegin = path.rfind('/', folderEnd - 1);
    const std::string_view folder = path.substr(folderBegin + 1, folderEnd - folderBegin - 1);
    return folder.starts_with(folderPrefix);
}

int openFile(sqlite3_vfs * /*files*/, const char *path, sqlite3_file *file, int flags, int *flagsUsed)
{
    // A shared journal is read to see who still needs it. It is not ours to read, and need not even be a
    // file.
    const char *opened = (flags & SQLITE_OPEN_SUPER_JOURNAL) != 0 ? "/dev/null" : path;
    return defaultFiles()->xOpen(defaultFiles(), opened, file, flags, flagsUsed);
}

int deleteFile(sqlite3_vfs * /*files*/, const char *path, int syncsFolder)
{
    if (!isInCopy(path) || !isJournal(path))
        return SQLITE_OK;
    return defaultFiles()->xDelete(defaultFiles(), path, syncsFolder);
}

/// All that is left to the default one finds its own data in the copy of it.
bool registerFiles()
{
    static sqlite3_vfs files = *defaultFiles();
    files.pNext = nullptr;
    files.zName = systemName;
    files.xOpen = openFile;
    files.xDelete = deleteFile;
    return sqlite3_vfs_register(&files, 0) == SQLITE_OK;
}

} // namespace

const char *name()
{
    static const bool isRegistered = registerFiles();
    return isRegistered ? systemName : nullptr;
}

} // namespace roamlet::ConfinedFiles
