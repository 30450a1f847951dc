#include "model/store/source_protection.h"

#include <sqlite3.h>

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <memory>

namespace iosphoto {

namespace {

// Nothing here allocates memory for paths: SQLite calls some of it, and would not pass an exception
// on.

bool exists(const char *file)
{
    struct stat facts = {};
    return stat(file, &facts) == 0;
}

bool isEmpty(const char *file)
{
    struct stat facts = {};
    return stat(file, &facts) == 0 && facts.st_size == 0;
}

bool holdsAnything(const char *file)
{
    return exists(file) && !isEmpty(file);
}

/// SQLite is asked for the name because a link's log lies beside its target.
const char *nameOf(sqlite3 *connection)
{
    const char *const database = sqlite3_db_filename(connection, "main");
    return database != nullptr && *database != '\0' ? database : nullptr;
}

/// A plain close would move the log into the database and delete it. Where there is no log, this
/// would leave an empty one behind.
void keepLog(sqlite3 *connection)
{
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

struct CloseFile
{
    void operator()(std::FILE *file) const { std::fclose(file); }
};

/// Whether a journal holds something: one that is done with starts with a zero byte or is empty. Of
/// one that cannot be read SQLite would believe it, too.
bool holdsAChange(const char *journal)
{
    struct stat facts = {};
    if (stat(journal, &facts) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    if (!S_ISREG(facts.st_mode)) // opening a pipe could wait for ever
        return true;
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(journal, "rb"));
    if (file == nullptr)
        return exists(journal);
    const int firstByte = std::fgetc(file.get());
    return firstByte != EOF ? firstByte != 0 : std::ferror(file.get()) != 0;
}

/// Whether somebody else is writing to the database, and will deal with the journal.
bool isBeingWritten(sqlite3 *connection)
{
    sqlite3_file *file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    int isReserved = 0;
    return file != nullptr && file->pMethods != nullptr &&
           file->pMethods->xCheckReservedLock(file, &isReserved) == SQLITE_OK && isReserved != 0;
}

/// Whether what SQLite would act on was left by a writer that died. A writer that has just finished
/// may still have its journal when that is looked for, and no lock any more when this is; so both
/// are looked for several times.
bool isLeftBehind(sqlite3 *connection, const char *journal, bool (*isActedOn)(const char *))
{
    constexpr int looks = 5;
    constexpr int milliseconds = 1;
    for (int look = 0; look < looks; ++look) {
        if (!isActedOn(journal) || isBeingWritten(connection))
            return false;
        sqlite3_sleep(milliseconds);
    }
    return true;
}

} // namespace

ReadingRisk protectSource(sqlite3 *connection)
{
    const char *const database = nameOf(connection);
    if (database == nullptr)
        return ReadingRisk::None;
    const char *const journal = sqlite3_filename_journal(database);
    const bool hasLog = exists(sqlite3_filename_wal(database));
    if (hasLog)
        keepLog(connection);
    if (isEmpty(database)) {
        const bool isLeftOver = hasLog || isLeftBehind(connection, journal, exists);
        return isLeftOver ? ReadingRisk::DeletesCompanion : ReadingRisk::None;
    }
    return isLeftBehind(connection, journal, holdsAChange) ? ReadingRisk::RollsBack
                                                           : ReadingRisk::None;
}

bool hasWriterDied(sqlite3 *connection)
{
    const char *const database = nameOf(connection);
    return database != nullptr &&
           isLeftBehind(connection, sqlite3_filename_journal(database), holdsAChange);
}

void protectLog(sqlite3 *connection)
{
    const char *const database = nameOf(connection);
    if (database != nullptr && holdsAnything(sqlite3_filename_wal(database)))
        keepLog(connection);
}

} // namespace iosphoto
