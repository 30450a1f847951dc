#include "source/private_copy.h"

#include "failure.h"

#include <cerrno>
#include <cstring>
#include <stdlib.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

Failure cannotRead(const fs::path &file, const std::string &reason)
{
    return {CannotRead, "cannot read '" + file.string() + "': " + reason};
}

/// The database with links resolved: the files beside it lie beside the link's target.
fs::path resolved(const fs::path &database)
{
    std::error_code error;
    const fs::path target = fs::canonical(database, error);
    if (error)
        throw cannotRead(database, error.message() + "; check the path");
    const fs::file_status status = fs::status(target, error);
    if (fs::is_directory(status))
        throw cannotRead(
            database, "it is a folder; name the database in it, such as PhotoData/Photos.sqlite");
    if (!fs::is_regular_file(status))
        throw cannotRead(database, "it is not a file");
    return target;
}

void copyFile(const fs::path &from, const fs::path &to)
{
    std::error_code error;
    fs::copy_file(from, to, error);
    if (!error)
        fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, error);
    if (error == std::errc::permission_denied)
        throw cannotRead(from,
                         error.message() + "; run as a user who may read it, or copy it first");
    if (error)
        throw cannotRead(from, error.message());
}

fs::path makePrivateFolder()
{
    std::error_code error;
    std::string name = (fs::temp_directory_path(error) / "iosphoto-XXXXXX").string();
    if (error || mkdtemp(name.data()) == nullptr)
        throw Failure(CannotRead, "cannot make a temporary folder '" + name +
                                      "': " + (error ? error.message() : std::strerror(errno)) +
                                      "; set TMPDIR to a folder that can be written");
    return name;
}

} // namespace

PrivateCopy::PrivateCopy(const fs::path &database)
{
    const fs::path source = resolved(database);
    folder_ = makePrivateFolder();
    try {
        copy(source);
    } catch (...) {
        fs::remove_all(folder_);
        throw;
    }
}

PrivateCopy::~PrivateCopy()
{
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void PrivateCopy::copy(const fs::path &source) const
{
    copyFile(source, database());
    for (const char *suffix : {"-wal", "-journal"}) {
        fs::path companion = source;
        companion += suffix;
        std::error_code ignored;
        if (fs::exists(companion, ignored))
            copyFile(companion, database() + suffix);
    }
}

} // namespace iosphoto::tool
