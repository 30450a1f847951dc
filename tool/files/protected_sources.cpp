#include "files/protected_sources.h"

#include "files/file_set.h"
#include "files/output_file.h"

#include <algorithm>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

FileSet protectedFiles;
FileSet protectedFolders;

bool isInProtectedFolder(const fs::path &file)
{
    std::error_code error;
    fs::path folder = fs::weakly_canonical(fs::absolute(file, error), error).parent_path();
    for (; folder.has_relative_path(); folder = folder.parent_path())
        if (protectedFolders.contains(folder))
            return true;
    return false;
}

} // namespace

void protectFiles(const std::vector<fs::path> &files)
{
    for (const fs::path &file : files)
        protectedFiles.add(file);
}

void protectFolder(const fs::path &folder)
{
    protectedFolders.add(folder);
}

bool isProtected(const fs::path &file)
{
    return protectedFiles.contains(file) || isInProtectedFolder(file);
}

void requireOutsideOfSources(const fs::path &file)
{
    if (isProtected(file))
        refuseAsOutput(file);
}

} // namespace iosphoto::tool
