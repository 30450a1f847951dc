#ifndef IOSPHOTO_TOOL_PRIVATE_FOLDER_H
#define IOSPHOTO_TOOL_PRIVATE_FOLDER_H

#include "files/folder_owner.h"
#include "process/failure.h"
#include "process/temporary_path.h"

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// A folder in TMPDIR that only this user can enter. It is removed with all it holds when the
/// object goes, and on an interruption; where the run is killed the next one removes it.
class PrivateFolder
{
public:
    /// Throws Failure when no folder can be made.
    PrivateFolder();
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder &) = delete;
    PrivateFolder &operator=(const PrivateFolder &) = delete;

    const std::filesystem::path &path() const { return folder_.path(); }
    std::filesystem::path operator/(const std::string &name) const { return path() / name; }

private:
    TemporaryPath folder_;
    FolderOwner owner_;
};

/// Why a file cannot be written, or copied, to where temporary files go, and what to do.
/// @{
Failure cannotWriteCopy(const std::filesystem::path &file, const std::string &reason);
Failure cannotCopy(const std::filesystem::path &file, const std::filesystem::path &folder,
                   const std::string &reason);
/// @}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_FOLDER_H
