#include "source/private_copy.h"

#include "failure.h"
#include "source/source_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

void copyFile(const fs::path &from, const fs::path &to)
{
    requireReadable(from);
    std::error_code error;
    fs::copy_file(from, to, error);
    if (!error)
        fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, error);
    if (error)
        throw Failure(CannotAccess, "cannot copy '" + from.string() + "' to '" +
                                        to.parent_path().string() + "': " + error.message() +
                                        "; set TMPDIR to a folder with room for it");
}

fs::path makePrivateFolder()
{
    const char *const wanted = std::getenv("TMPDIR");
    const fs::path parent = wanted != nullptr && *wanted != '\0' ? wanted : "/tmp";
    std::string name = (parent / "iosphoto-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw Failure(CannotAccess, "cannot make a temporary folder in '" + parent.string() +
                                        "': " + std::strerror(errno) +
                                        "; set TMPDIR to a folder that can be written");
    return name;
}

} // namespace

PrivateCopy::PrivateCopy(const fs::path &database)
    // The files beside a database lie beside the target of a link.
    : source_(sourceFile(database, "the database in it, such as PhotoData/Photos.sqlite")),
      folder_(makePrivateFolder)
{
    copy();
}

bool PrivateCopy::hasLog() const
{
    std::error_code ignored;
    const auto size = fs::file_size(database() + "-wal", ignored);
    return !ignored && size > 0;
}

void PrivateCopy::copy() const
{
    copyFile(source_, database());
    for (const char *suffix : {"-wal", "-journal"}) {
        fs::path companion = source_;
        companion += suffix;
        std::error_code ignored;
        if (fs::exists(companion, ignored))
            copyFile(companion, database() + suffix);
    }
}

} // namespace iosphoto::tool
