#ifndef IOSPHOTO_TOOL_FILE_TREE_H
#define IOSPHOTO_TOOL_FILE_TREE_H

#include "input/source_problem.h"
#include "process/failure.h"
#include "time/epochs.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
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
    bool hasTooDeep = false;               ///< whether there are folders below the deepest
};

/// Folders within folders that a tree has, at most: more than any phone, and few enough that
/// made-up ones do not fill the memory.
constexpr std::ptrdiff_t deepestFolder = 64;

/// Is shown what a search of folders meets.
class FolderVisitor
{
public:
    FolderVisitor() = default;
    virtual ~FolderVisitor() = default;
    FolderVisitor(const FolderVisitor &) = delete;
    FolderVisitor &operator=(const FolderVisitor &) = delete;

    /// A folder, after those around it. Returns whether to look into it.
    virtual bool enter(const std::string &folder) = 0;
    /// A file in a folder that was entered.
    virtual void meetFile(const std::string &path) = 0;
    /// A link there, which is not followed.
    virtual void meetLink(const std::string &path) = 0;
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

    /// Whether it is one that searchFolders() shows as such, and find() follows.
    virtual bool isLink(const std::string & /*path*/) const { return false; }

    /// Shows a folder to a visitor, and what is in it.
    virtual UnsearchedFolders searchFolders(const std::string &top,
                                            FolderVisitor &visitor) const = 0;

    /// Copies files that belong together, as they are at one moment and for the owner's eyes only.
    /// Those that are not there are passed over. Throws SourceError when one is larger than it can
    /// be.
    virtual void copyOut(const std::vector<FileToCopy> &files) const = 0;

    /// Throws SourceError where copyOut() would, as far as that is known before: mostly it is not.
    virtual void requireCopyable(const std::string & /*path*/) const {}

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

/// The folder around a path; empty at the top.
inline std::string parentOf(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    return slash != std::string::npos ? path.substr(0, slash) : "";
}

/// The last name of a path.
inline std::string nameOf(const std::string &path)
{
    return path.substr(path.rfind('/') + 1);
}

/// `folder` and `name` with a slash in between, where one is needed.
inline std::string joinedPath(const std::string &folder, const std::string &name)
{
    return folder.empty() || name.empty() ? folder + name : folder + "/" + name;
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_TREE_H
