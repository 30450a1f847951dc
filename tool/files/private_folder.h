#ifndef IOSPHOTO_TOOL_PRIVATE_FOLDER_H
#define IOSPHOTO_TOOL_PRIVATE_FOLDER_H

#include "process/temporary_path.h"

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// A folder in TMPDIR that only this user can enter, removed with all it holds at the end, which an
/// interruption is as well.
class PrivateFolder
{
public:
    /// Throws Failure when no folder can be made.
    PrivateFolder();

    const std::filesystem::path &path() const { return folder_.path(); }
    std::filesystem::path operator/(const std::string &name) const { return path() / name; }

private:
    TemporaryPath folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_FOLDER_H
