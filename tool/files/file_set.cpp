#include "files/file_set.h"

#include <optional>
#include <sys/stat.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// Without links; empty where there is no telling.
fs::path placeOf(const fs::path &file)
{
    std::error_code error;
    const fs::path place = fs::weakly_canonical(fs::absolute(file, error), error);
    return error ? fs::path() : place;
}

std::optional<std::pair<dev_t, ino_t>> identityOf(const fs::path &file)
{
    struct stat status = {};
    if (stat(file.c_str(), &status) != 0)
        return std::nullopt;
    return std::pair(status.st_dev, status.st_ino);
}

} // namespace

void FileSet::add(const fs::path &file)
{
    if (const fs::path place = placeOf(file); !place.empty())
        places_.insert(place);
    if (const auto identity = identityOf(file))
        identities_.insert(*identity);
}

bool FileSet::contains(const fs::path &file) const
{
    const auto identity = identityOf(file);
    return places_.count(placeOf(file)) != 0 || (identity && identities_.count(*identity) != 0);
}

} // namespace iosphoto::tool
