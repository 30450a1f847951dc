#include "model/store/reading_only.h"

#include <sqlite3.h>

#include <cstring>
#include <new>

namespace iosphoto {

void ReadingOnly::apply(sqlite3 *connection)
{
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_drop_modules(connection, nullptr); // without them a virtual table cannot be read
    sqlite3_set_authorizer(connection, judge, this);
}

int ReadingOnly::judge(void *self, int action, const char *object, const char * /*detail*/,
                       const char * /*schema*/, const char * /*context*/) noexcept
{
    switch (action) {
    case SQLITE_READ:
        static_cast<ReadingOnly *>(self)->note(object);
        return SQLITE_OK;
    case SQLITE_SELECT:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    case SQLITE_PRAGMA:
        return std::strcmp(object, "table_xinfo") == 0 ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

void ReadingOnly::note(const char *table) noexcept
{
    try {
        tables_.emplace(table);
    } catch (const std::bad_alloc &) {
        isOutOfMemory_ = true;
    }
}

} // namespace iosphoto
