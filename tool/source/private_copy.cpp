#include "source/private_copy.h"

#include "failure.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

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
    fs::path target = fs::canonical(database, error);
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

/// Why a file cannot be opened for reading; empty if it can.
std::string unreadableBecause(const fs::path &file)
{
    std::FILE *opened = std::fopen(file.c_str(), "rb");
    if (opened == nullptr)
        return std::strerror(errno);
    std::fclose(opened);
    return {};
}

void copyFile(const fs::path &from, const fs::path &to)
{
    if (const std::string reason = unreadableBecause(from); !reason.empty())
        throw cannotRead(from, reason + "; run as a user who may read it, or copy it first");
    std::error_code error;
    fs::copy_file(from, to, error);
    if (!error)
        fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, error);
    if (error)
        throw Failure(CannotRead, "cannot copy '" + from.string() + "' to '" +
                                      to.parent_path().string() + "': " + error.message() +
                                      "; set TMPDIR to a folder with room for it");
}

fs::path makePrivateFolder()
{
    const char *const wanted = std::getenv("TMPDIR");
    const fs::path parent = wanted != nullptr && *wanted != '\0' ? wanted : "/tmp";
    std::string name = (parent / "iosphoto-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw Failure(CannotRead, "cannot make a temporary folder in '" + parent.string() +
                                      "': " + std::strerror(errno) +
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
        remove();
        throw;
    }
}

PrivateCopy::~PrivateCopy()
{
    remove();
}

void PrivateCopy::remove() const
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
