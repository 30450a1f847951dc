#include "model/store/source_protection.h"

#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <memory>

namespace iosphoto {

namespace {

namespace fs = std::filesystem;

bool exists(const char *file)
{
    std::error_code ignored;
    return fs::exists(file, ignored);
}

bool isEmpty(const char *file)
{
    std::error_code error;
    return fs::file_size(file, error) == 0 && !error;
}

struct CloseFile
{
    void operator()(std::FILE *file) const { std::fclose(file); }
};

/// Whether a journal holds something: one that is done with starts with a zero byte or is empty. Of
/// one that cannot be read SQLite would believe it, too.
bool holdsAChange(const char *journal)
{
    std::error_code error;
    const fs::file_type type = fs::status(journal, error).type();
    if (type != fs::file_type::regular) // opening a pipe could wait for ever
        return type != fs::file_type::not_found;
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(journal, "rb"));
    if (file == nullptr)
        return exists(journal);
    const int firstByte = std::fgetc(file.get());
    return firstByte != EOF ? firstByte != 0 : std::ferror(file.get()) != 0;
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

/// Whether what SQLite would act on was left by a writer that died. A writer who is just done may
/// have had it when that was looked at and no lock any more when this was, so it is looked at
/// again.
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
    // SQLite is asked for the names because a link's log lies beside its target.
    const char *const database = sqlite3_db_filename(connection, "main");
    if (database == nullptr || *database == '\0')
        return ReadingRisk::None;
    const char *const journal = sqlite3_filename_journal(database);
    const bool hasLog = exists(sqlite3_filename_wal(database));
    // Without a log the setting would leave an empty one behind.
    if (hasLog)
        sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (isEmpty(database)) {
        const bool isLeftOver = hasLog || isLeftBehind(connection, journal, exists);
        return isLeftOver ? ReadingRisk::DeletesCompanion : ReadingRisk::None;
    }
    return isLeftBehind(connection, journal, holdsAChange) ? ReadingRisk::RollsBack
                                                           : ReadingRisk::None;
}

} // namespace iosphoto
