#include "model/store/untrusted_database.h"

#include <sqlite3.h>

namespace iosphoto {

namespace {

struct Limit
{
    int id;
    int most;
};

/// What no photo library comes near.
constexpr Limit limits[] = {
    {SQLITE_LIMIT_LENGTH, 64 * 1024 * 1024},
    {SQLITE_LIMIT_SQL_LENGTH, 1024 * 1024},
    {SQLITE_LIMIT_WORKER_THREADS, 0},
};

struct Setting
{
    int id;
    int value;
};

constexpr Setting settings[] = {
    {SQLITE_DBCONFIG_DEFENSIVE, 1},      {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0}, {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
    {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
};

} // namespace

int distrust(sqlite3 *connection)
{
    for (const Limit &limit : limits)
        sqlite3_limit(connection, limit.id, limit.most);
    for (const Setting &setting : settings)
        sqlite3_db_config(connection, setting.id, setting.value, nullptr);
    // From some ten thousand rows on SQLite would sort in a file.
    return sqlite3_exec(connection, "pragma temp_store = memory", nullptr, nullptr, nullptr);
}

} // namespace iosphoto
