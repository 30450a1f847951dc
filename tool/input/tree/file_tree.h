#ifndef IOSPHOTO_TOOL_FILE_TREE_H
#define IOSPHOTO_TOOL_FILE_TREE_H

#include "input/source_problem.h"
#include "process/failure.h"
#include "time/epochs.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// What is known of a file before it is read.
struct FileFacts
{
    std::uint64_t size;
    UnixTime modified;
};

/// A file of a tree, and where a copy of it goes.
struct FileToCopy
{
    std::string path;
    std::filesystem::path target;
    std::uint64_t most = std::numeric_limits<std::uint64_t>::max(); ///< bytes that it can have
};

/// What a search of folders did not look at.
struct UnsearchedFolders
{
    std::vector<Failure> unreadable;       ///< why, of each
    std::optional<std::size_t> endedAfter; ///< so many folders, though there are more
};

/// Files in folders, on disk or in an archive. Paths begin at the top of the tree, without a slash;
/// the top itself is the empty path. All functions throw when something cannot be read.
class FileTree
{
public:
    FileTree() = default;
    virtual ~FileTree() = default;
    FileTree(const FileTree &) = delete;
    FileTree &operator=(const FileTree &) = delete;

    /// The regular file of that path, if there is one.
    virtual std::optional<FileFacts> find(const std::string &path) const = 0;

    /// Hands a folder and those in it to `look`, parents first, and goes into those for which it
    /// returns true. Links are not followed.
    virtual UnsearchedFolders
    searchFolders(const std::string &top,
                  const std::function<bool(const std::string &)> &look) const = 0;

    /// The files in a folder that may be a lone database of any name. None on disk, where it can be
    /// named.
    virtual std::vector<std::string> loneFiles(const std::string &top) const = 0;

    /// Copies files that belong together, as they are at one moment and for the owner's eyes only.
    /// Those that are not there are passed over. Throws SourceError when one is larger than it can
    /// be.
    virtual void copyOut(const std::vector<FileToCopy> &files) const = 0;

    /// The file on disk that is read for that path.
    virtual std::filesystem::path onDisk(const std::string &path) const = 0;

    /// A path of the tree as messages show it.
    virtual std::string shown(const std::string &path) const = 0;

    virtual bool isArchive() const = 0;

    /// Whether the tree keeps the local time at which that file was last changed without its zone,
    /// so that it is taken as one of this computer's.
    virtual bool hasTimeWithoutZone(const std::string &path) const = 0;
};

/// Throws SourceError when a file, with its name for messages, has more bytes than it can have.
inline void requireNotLarger(const std::string &shownName, std::uint64_t bytes, std::uint64_t most)
{
    if (bytes > most)
        throw SourceError(SourceProblem::TooLarge, {shownName, std::to_string(most)});
}

/// Whether a path is that of the folder or of something in it.
inline bool isInside(const std::string &path, const std::string &folder)
{
    return folder.empty() || path == folder ||
           path.compare(0, folder.size() + 1, folder + "/") == 0;
}

/// `folder` and `name` with a slash in between, where one is needed.
inline std::string joinedPath(const std::string &folder, const std::string &name)
{
    return folder.empty() || name.empty() ? folder + name : folder + "/" + name;
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_TREE_H
