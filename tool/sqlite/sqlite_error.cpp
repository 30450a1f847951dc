#include "sqlite/sqlite_error.h"

#include "text/translate.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace iosphoto::tool {

namespace {

/// Those that people meet; the others stay English.
[[maybe_unused]] constexpr std::array common = {
    translatable("attempt to write a readonly database"),
    translatable("database disk image is malformed"),
    translatable("database is locked"),
    translatable("database or disk is full"),
    translatable("disk I/O error"),
    translatable("file is not a database"),
    translatable("out of memory"),
    translatable("unable to open database file"),
};

std::string wordsFor(int code, const char *ofSqlite)
{
    if (code == SQLITE_INTERRUPT) // only our own limit interrupts
        return translate("it asks for more work than any photo library of its size");
    return translateTerm(ofSqlite);
}

/// The same error where SQLite has a vaguer word for it.
int plainCode(int code)
{
    return code == SQLITE_IOERR_SHMSIZE ? SQLITE_FULL : code; // no room for the -shm
}

/// An error that comes from outside of the database.
struct Trouble
{
    int code;
    const char *remedy;
};

constexpr const char *lookForRoom =
    translatable("make room where temporary files go, or set TMPDIR to a folder with room");
constexpr const char *lookAtDisk =
    translatable("look whether the disk with the temporary files is full or fails, or set TMPDIR "
                 "to a folder on another one");
constexpr const char *tryAgain =
    translatable("close what uses it and try again, or set TMPDIR to a folder on a local disk");

constexpr Trouble troubles[] = {
    {SQLITE_FULL, lookForRoom},
    {SQLITE_IOERR, lookAtDisk},
    {SQLITE_CANTOPEN, lookAtDisk},
    {SQLITE_READONLY, lookAtDisk},
    {SQLITE_PERM, lookAtDisk},
    {SQLITE_BUSY, tryAgain},
    {SQLITE_LOCKED, tryAgain},
    {SQLITE_PROTOCOL, tryAgain},
    {SQLITE_NOMEM, translatable("close other programs and try again")},
};

const Trouble *troubleOf(int code)
{
    constexpr int primaryCode = 0xff;
    const int primary = plainCode(code) & primaryCode;
    const auto *const found =
        std::find_if(std::begin(troubles), std::end(troubles),
                     [&](const Trouble &trouble) { return trouble.code == primary; });
    return found != std::end(troubles) ? found : nullptr;
}

} // namespace

std::string sqliteError(int code)
{
    return wordsFor(code, sqlite3_errstr(plainCode(code)));
}

std::string sqliteError(sqlite3 *connection)
{
    const int code = sqlite3_extended_errcode(connection);
    return plainCode(code) != code ? sqliteError(code) : wordsFor(code, sqlite3_errmsg(connection));
}

bool isOfDatabase(int code)
{
    return troubleOf(code) == nullptr;
}

std::string adviceFor(IfDamaged remedy)
{
    return remedy == IfDamaged::CopyBackupAgain
               ? translate("copy the whole backup again")
               : translate("copy it from the device or the backup again, its -wal with it");
}

std::string remedyFor(int code, IfDamaged remedy)
{
    const Trouble *const trouble = troubleOf(code);
    return trouble != nullptr ? translateTerm(trouble->remedy) : adviceFor(remedy);
}

} // namespace iosphoto::tool
