#ifndef IOSPHOTO_TOOL_TRASH_H
#define IOSPHOTO_TOOL_TRASH_H

#include "ios_photo.h"
#include "sqlite/copy_database.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// What the records of a catalogue do not tell of the trash: since when an asset is in it, and
/// which assets are missing because the trash was emptied of them.
class Trash
{
public:
    Trash() = default;
    /// Reads the trash of a database of iOS 8 or later; that of an older one is empty.
    explicit Trash(const CopyDatabase &database);

    /// When an asset was put there, in seconds since 2001; nothing where the database does not say.
    std::optional<double> trashedAt(const std::string &uuid) const;

    /// The assets that are in no album of a catalogue since they were in the trash for 30 days at
    /// the time that it was read as of.
    int leftOutOf(const std::vector<CAlbumGroup> &catalogue, std::int64_t asOf) const;

private:
    struct Entry
    {
        std::optional<double> trashedAt;
        std::int32_t rawDate = 0; ///< as the library reads it
    };

    std::map<std::string, Entry> entries_; // by uuid; ordered: no choice of uuids makes it slow
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TRASH_H
