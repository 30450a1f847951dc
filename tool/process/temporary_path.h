#ifndef IOSPHOTO_TOOL_TEMPORARY_PATH_H
#define IOSPHOTO_TOOL_TEMPORARY_PATH_H

#include <filesystem>
#include <functional>
#include <system_error>

namespace iosphoto::tool {

/// A file or folder that goes, with all it holds, with the object; or with the command when an
/// interruption ends it before.
class TemporaryPath
{
public:
    /// @param make  makes the file or folder and tells its path; interruptions wait meanwhile
    explicit TemporaryPath(const std::function<std::filesystem::path()> &make);
    ~TemporaryPath();
    TemporaryPath(const TemporaryPath &) = delete;
    TemporaryPath &operator=(const TemporaryPath &) = delete;

    const std::filesystem::path &path() const { return path_; }

    /// Makes it a file that stays, under another name. It remains temporary where that fails.
    std::error_code keepAs(const std::filesystem::path &name);

private:
    std::filesystem::path path_;
};

/// Removes all there are. For an interruption, which must hold the lock and never give it back.
void removeTemporaryPaths();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TEMPORARY_PATH_H
