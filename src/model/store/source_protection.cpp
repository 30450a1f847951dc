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

/// Whether SQLite would roll an unfinished change back: a journal that is done with starts with a
/// zero byte or is empty.
bool isHotJournal(const char *journal)
{
    const int firstByte = std::ifstream(journal, std::ios::binary).get();
    return firstByte != std::ifstream::traits_type::eof() && firstByte != 0;
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
    const char *const journal = sqlite3_filename_journal(database);
    if (isEmpty(database)) // its log or journal would be deleted as left over
        return !hasLog && !exists(journal);
    return !isHotJournal(journal);
}

} // namespace iosphoto
