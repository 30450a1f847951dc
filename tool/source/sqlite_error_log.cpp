#include "source/sqlite_error_log.h"

#include <sqlite3.h>

namespace iosphoto::tool::sqlite_error_log {

namespace {

std::string &first()
{
    static std::string error;
    return error;
}

void note(void * /*unused*/, int code, const char * /*details*/)
{
    constexpr int primaryCode = 0xff;
    const int primary = code & primaryCode;
    const bool isError = primary != SQLITE_NOTICE && primary != SQLITE_WARNING;
    if (isError && first().empty())
        first() = sqlite3_errstr(code);
}

} // namespace

void install()
{
    first();
    sqlite3_config(SQLITE_CONFIG_LOG, note, nullptr);
}

void clear()
{
    first().clear();
}

std::string firstError()
{
    return first();
}

} // namespace iosphoto::tool::sqlite_error_log
