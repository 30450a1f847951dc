#ifndef IOSPHOTO_TOOL_LIBRARY_LAYOUT_H
#define IOSPHOTO_TOOL_LIBRARY_LAYOUT_H

#include "source/recorded_device.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

enum class SourceKind { Database, MediaFolder, Backup };

/// The kind's name for machines.
constexpr const char *machineName(SourceKind kind)
{
    switch (kind) {
    case SourceKind::MediaFolder:
        return "media-folder";
    case SourceKind::Backup:
        return "backup";
    default:
        return "database";
    }
}

/// Where the database lies below Media.
constexpr const char *databaseBelowMedia = "PhotoData/Photos.sqlite";

/// Where in a tree the files of a photo library lie.
class LibraryLayout
{
public:
    LibraryLayout() = default;
    virtual ~LibraryLayout() = default;
    LibraryLayout(const LibraryLayout &) = delete;
    LibraryLayout &operator=(const LibraryLayout &) = delete;

    virtual SourceKind kind() const = 0;

    /// The path in the tree of a file that has this path below Media. Nothing where the layout has
    /// no place for it; the file itself may be missing all the same.
    virtual std::optional<std::string> locate(const std::string &mediaPath) const = 0;

    virtual std::optional<RecordedDevice> device() const { return std::nullopt; }
    virtual std::optional<std::int64_t> backupDate() const { return std::nullopt; }

    /// What should be there and is not, in sentences for a person; mostly none.
    virtual std::vector<std::string> missing() const { return {}; }

    /// The files, beside those of the library, that say all this.
    virtual std::vector<std::string> records() const { return {}; }
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_LAYOUT_H
