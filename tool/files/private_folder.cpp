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

constexpr char prefix[] = "iosphoto-";

/// Where temporary files go, without what runs left there that were killed.
fs::path cleanTemporaryPlace()
{
    const char *const wanted = std::getenv("TMPDIR");
    const fs::path place = wanted != nullptr && *wanted != '\0' ? wanted : "/tmp";
    removeFoldersOfTheDead(place, prefix);
    return place;
}

fs::path makeFolderIn(const fs::path &place)
{
    std::string name = (place / prefix).string() + "XXXXXX";
    if (mkdtemp(name.data()) == nullptr)
        throw Failure(CannotAccess,
                      translate("cannot make a temporary folder in '{0}': {1}; set TMPDIR "
                                "to a folder that can be written",
                                place.string(), systemError(errno)));
    return name;
}

} // namespace

PrivateFolder::PrivateFolder()
    : folder_([place = cleanTemporaryPlace()] { return makeFolderIn(place); }), owner_(path())
{
}

PrivateFolder::~PrivateFolder()
{
    // The mark is to be the last that goes, with the folder.
    std::error_code error;
    for (fs::directory_iterator entry(path(), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->path().filename() != FolderOwner::mark)
            fs::remove_all(entry->path(), ignored);
    }
}

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
