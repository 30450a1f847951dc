#include "source/sqlite_error_log.h"

#include "failure.h"
#include "language/said.h"
#include "language/sqlite_error.h"

#include <sqlite3.h>

namespace iosphoto::tool::sqlite_error_log {

namespace {

int firstCode = SQLITE_OK;

void note(void * /*unused*/, int code, const char * /*details*/)
{
    constexpr int primaryCode = 0xff;
    const int primary = code & primaryCode;
    const bool isError = primary != SQLITE_NOTICE && primary != SQLITE_WARNING;
    if (isError && firstCode == SQLITE_OK)
        firstCode = code;
}

} // namespace

void install()
{
    const int result = sqlite3_config(SQLITE_CONFIG_LOG, note, nullptr);
    if (result != SQLITE_OK)
        throw Failure(CannotAccess, said("damage of databases would go unnoticed: {0}; install "
                                         "iosphoto and SQLite again",
                                         sqliteError(result)));
}

void clear()
{
    firstCode = SQLITE_OK;
}

std::string firstError()
{
    return firstCode != SQLITE_OK ? sqliteError(firstCode) : "";
}

} // namespace iosphoto::tool::sqlite_error_log
