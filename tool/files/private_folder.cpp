#include "files/private_folder.h"

#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <cerrno>
#include <cstdlib>
#include <unistd.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

fs::path makePrivateFolder()
{
    const char *const wanted = std::getenv("TMPDIR");
    const fs::path parent = wanted != nullptr && *wanted != '\0' ? wanted : "/tmp";
    std::string name = (parent / "iosphoto-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw Failure(CannotAccess,
                      translate("cannot make a temporary folder in '{0}': {1}; set TMPDIR "
                                "to a folder that can be written",
                                parent.string(), systemError(errno)));
    return name;
}

} // namespace

PrivateFolder::PrivateFolder() : folder_(makePrivateFolder) {}

Failure cannotWriteCopy(const fs::path &file, const std::string &reason)
{
    return {CannotAccess,
            translate("cannot write '{0}': {1}; set TMPDIR to a folder with room for it",
                      file.string(), reason)};
}

Failure cannotCopy(const fs::path &file, const fs::path &folder, const std::string &reason)
{
    return {CannotAccess,
            translate("cannot copy '{0}' to '{1}': {2}; set TMPDIR to a folder with room for it",
                      file.string(), folder.string(), reason)};
}

} // namespace iosphoto::tool
