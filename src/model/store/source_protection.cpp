#include "model/store/source_protection.h"

#include <sqlite3.h>

#include <filesystem>
#include <fstream>

namespace iosphoto {

namespace {

bool exists(const char *file)
{
    std::error_code ignored;
    return std::filesystem::exists(file, ignored);
}

bool isEmpty(const char *file)
{
    std::error_code error;
    return std::filesystem::file_size(file, error) == 0 && !error;
}

/// Whether a journal holds something: one that is done with starts with a zero byte or is empty.
bool holdsAChange(const char *journal)
{
    const int firstByte = std::ifstream(journal, std::ios::binary).get();
    return firstByte != std::ifstream::traits_type::eof() && firstByte != 0;
}

/// Whether somebody is at work on the database, who will see to the journal himself.
bool isBeingWritten(sqlite3 *connection)
{
    sqlite3_file *file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    int isReserved = 0;
    return file != nullptr && file->pMethods != nullptr &&
           file->pMethods->xCheckReservedLock(file, &isReserved) == SQLITE_OK && isReserved != 0;
}

} // namespace

bool protectSource(sqlite3 *connection)
{
    // SQLite is asked for the names because a link's log lies beside its target.
    const char *const database = sqlite3_db_filename(connection, "main");
    if (database == nullptr || *database == '\0')
        return true;
    const bool hasLog = exists(sqlite3_filename_wal(database));
    // Without a log the setting would leave an empty one behind.
    if (hasLog)
        sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    const bool isWithoutPages = isEmpty(database);
    if (isWithoutPages && hasLog) // SQLite would delete the log as left over
        return false;
    // Left by a writer that died, a journal would be rolled back, or deleted beside an empty file.
    const char *const journal = sqlite3_filename_journal(database);
    const bool wouldBeTouched = isWithoutPages ? exists(journal) : holdsAChange(journal);
    return !wouldBeTouched || isBeingWritten(connection);
}

} // namespace iosphoto
