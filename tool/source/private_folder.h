#ifndef IOSPHOTO_TOOL_PRIVATE_FOLDER_H
#define IOSPHOTO_TOOL_PRIVATE_FOLDER_H

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// A folder in TMPDIR that only this user can enter, removed with all it holds at the end.
class PrivateFolder
{
public:
    /// Throws Failure when no folder can be made.
    PrivateFolder();
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder &) = delete;
    PrivateFolder &operator=(const PrivateFolder &) = delete;

    const std::filesystem::path &path() const { return path_; }
    std::filesystem::path operator/(const std::string &name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_FOLDER_H
