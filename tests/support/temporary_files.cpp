#include "support/temporary_files.h"

#include <sqlite3.h>

#include <atomic>

namespace iosphoto::test {

namespace {

std::atomic<int> attemptCount{0};
sqlite3_vfs *systemsOwn = nullptr;
sqlite3_vfs withoutTemporaryFiles = {};

int open(sqlite3_vfs * /*vfs*/, sqlite3_filename name, sqlite3_file *file, int flags, int *opened)
{
    constexpr int temporary = SQLITE_OPEN_TEMP_DB | SQLITE_OPEN_TEMP_JOURNAL |
                              SQLITE_OPEN_TRANSIENT_DB | SQLITE_OPEN_SUBJOURNAL;
    if ((flags & temporary) == 0)
        return systemsOwn->xOpen(systemsOwn, name, file, flags, opened);
    ++attemptCount;
    file->pMethods = nullptr;
    return SQLITE_FULL;
}

} // namespace

NoTemporaryFiles::NoTemporaryFiles()
{
    attemptCount = 0;
    systemsOwn = sqlite3_vfs_find(nullptr);
    withoutTemporaryFiles = *systemsOwn;
    withoutTemporaryFiles.zName = "without temporary files";
    withoutTemporaryFiles.xOpen = open;
    sqlite3_vfs_register(&withoutTemporaryFiles, 1);
}

NoTemporaryFiles::~NoTemporaryFiles()
{
    sqlite3_vfs_register(systemsOwn, 1);
    sqlite3_vfs_unregister(&withoutTemporaryFiles);
}

int NoTemporaryFiles::attempts()
{
    return attemptCount;
}

} // namespace iosphoto::test
