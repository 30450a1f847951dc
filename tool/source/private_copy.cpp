#include "source/private_copy.h"

#include "failure.h"
#include "language/said.h"
#include "language/system_error.h"
#include "source/source_file.h"

#include <cerrno>
#include <cstdlib>
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
        throw Failure(CannotAccess,
                      said("cannot copy '{0}' to '{1}': {2}; set TMPDIR to a folder "
                           "with room for it",
                           from.string(), to.parent_path().string(), systemError(error.value())));
}

fs::path makePrivateFolder()
{
    const char *const wanted = std::getenv("TMPDIR");
    const fs::path parent = wanted != nullptr && *wanted != '\0' ? wanted : "/tmp";
    std::string name = (parent / "iosphoto-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw Failure(CannotAccess, said("cannot make a temporary folder in '{0}': {1}; set "
                                         "TMPDIR to a folder that can be written",
                                         parent.string(), systemError(errno)));
    return name;
}

} // namespace

PrivateCopy::PrivateCopy(const fs::path &database)
{
    // The files beside a database lie beside the target of a link.
    const fs::path source =
        sourceFile(database, said("the database in it, such as PhotoData/Photos.sqlite"));
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
