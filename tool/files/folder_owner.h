/// Who a folder of temporary files belongs to, so that what a run left that was killed can be told
/// from what a run still uses, and be removed.
#ifndef IOSPHOTO_TOOL_FOLDER_OWNER_H
#define IOSPHOTO_TOOL_FOLDER_OWNER_H

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// Marks a folder as that of a run which lives as long as the object: by a file that the process
/// keeps locked, whatever ends it. Where locks do not work it is not marked, and left alone.
class FolderOwner
{
public:
    /// The file.
    static constexpr const char *mark = ".owner";

    explicit FolderOwner(const std::filesystem::path &folder);
    ~FolderOwner();
    FolderOwner(const FolderOwner &) = delete;
    FolderOwner &operator=(const FolderOwner &) = delete;

private:
    int lock_;
};

/// Removes the folders in `parent` whose names begin with `prefix` if they are this user's alone
/// and marked by a run that is dead for sure. On a disk that other machines may use too, that is
/// one since the last start of this very machine.
void removeFoldersOfTheDead(const std::filesystem::path &parent, const std::string &prefix);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FOLDER_OWNER_H
