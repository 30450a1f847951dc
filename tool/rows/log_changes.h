#ifndef IOSPHOTO_TOOL_LOG_CHANGES_H
#define IOSPHOTO_TOOL_LOG_CHANGES_H

#include "catalogue/difference.h"
#include "catalogue/library.h"
#include "rows/left_out_changes.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What the write-ahead log makes of a photo.
struct LogChange
{
    /// As between two snapshots; where those would be the same, that it changed.
    PhotoDifference photo;
    /// The keys of its facts that are not the same with the log and without, but its albums; none
    /// for a photo that is only in one.
    std::vector<std::string> facts;
};

/// Everything that the write-ahead log of a library changes of what is shown.
class LogChanges
{
public:
    /// @param library  that was read without its log too; has to outlive the changes
    explicit LogChanges(const Library &library);

    /// Those of the library in its order, those that are gone, then those whose facts differ in a
    /// way that two snapshots would not be told apart by.
    const std::vector<LogChange> &photos() const { return photos_; }
    const std::vector<AlbumDifference> &albums() const { return albums_; }
    /// The photos that no album shows.
    const std::vector<LeftOutChange> &leftOut() const { return leftOut_; }
    /// Whether albums or their photos stand in another order, or albums are of another kind or
    /// count.
    bool hasOtherLists() const { return hasOtherLists_; }
    bool hasOtherCounts() const { return hasOtherCounts_; } ///< of rows, listed or left out
    /// Whether the database says otherwise of what made it, or other fields are unknown.
    bool isOfOtherSchema() const { return isOfOtherSchema_; }

    /// Whether there are photos or albums to name.
    bool hasNames() const { return !photos_.empty() || !albums_.empty() || !leftOut_.empty(); }
    bool isNone() const
    {
        return !hasNames() && !hasOtherLists_ && !hasOtherCounts_ && !isOfOtherSchema_;
    }

private:
    const std::vector<CAlbumGroup> &before_;
    const std::vector<CAlbumGroup> &after_;
    AssetList assetsBefore_;
    AssetList assetsAfter_;
    std::vector<LogChange> photos_;
    std::vector<AlbumDifference> albums_;
    bool hasOtherLists_;
    bool isOfOtherSchema_;
    bool hasOtherCounts_;
    std::vector<LeftOutChange> leftOut_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LOG_CHANGES_H
