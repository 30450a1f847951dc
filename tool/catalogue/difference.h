/// What happened to the photos of a phone between two snapshots of its library.
#ifndef IOSPHOTO_TOOL_DIFFERENCE_H
#define IOSPHOTO_TOOL_DIFFERENCE_H

#include "catalogue/asset_matching.h"
#include "catalogue/assets.h"
#include "catalogue/compared_facts.h"
#include "ios_photo.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// In the order in which they are shown and counted.
enum class Change { New, Gone, Trashed, Restored, Edited, Moved, Changed };

constexpr Change allChanges[] = {Change::New,    Change::Gone,  Change::Trashed, Change::Restored,
                                 Change::Edited, Change::Moved, Change::Changed};

/// For machines, such as "new".
const char *changeName(Change change);

/// A photo that is not the same in both snapshots.
struct PhotoDifference
{
    std::optional<Asset> before;                     ///< nothing for a new one
    std::optional<Asset> after;                      ///< nothing for one that is gone
    std::vector<Change> changes;                     ///< at least one, each once and in order
    std::vector<const CAlbumGroup *> addedTo;        ///< albums of the second snapshot
    std::vector<const CAlbumGroup *> removedFrom;    ///< likewise, of the first
    std::vector<const ComparedFact *> changedFields; ///< those that no other change says

    /// The photo as it is now, or as it was when it is gone.
    const Asset &latest() const { return after ? *after : *before; }
};

/// Compares photos in two snapshots by all facts that both of them know.
class PhotoComparer
{
public:
    /// @param before, after  what they refer to has to outlive this
    PhotoComparer(const Snapshot &before, const Snapshot &after);

    const Snapshot &before() const { return before_; }
    const Snapshot &after() const { return after_; }
    /// The trash takes a photo out of its albums and gives it back to them; that is not reported as
    /// a move. Nor is that hidden photos and frames of bursts are not in the Camera Roll, or what
    /// is in an album that has no title in one of the snapshots, as that is not read.
    PhotoDifference compare(const Asset &before, const Asset &after) const;

private:
    using Keys = std::set<std::string>; // ordered: no choice of uuids makes it slow

    void compareAlbums(const PhotoInSnapshot &before, const PhotoInSnapshot &after,
                       PhotoDifference &difference) const;

    Snapshot before_;
    Snapshot after_;
    std::vector<const ComparedFact *> facts_;
    bool areAlbumsKnown_;
    bool isRollKnown_; ///< what is in the Camera Roll and the Photo Library
    Keys unread_;      ///< of albums whose photos one of the snapshots does not know
};

/// The photos that differ: those of the second snapshot in its order, then those that are gone in
/// the order of the first. Each is made when it is asked for: two libraries may differ in millions.
class PhotoDifferences
{
public:
    class Iterator
    {
    public:
        Iterator(const PhotoDifferences &differences, std::size_t index)
            : differences_(&differences), index_(index)
        {
        }

        PhotoDifference operator*() const { return (*differences_)[index_]; }
        Iterator &operator++()
        {
            ++index_;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return index_ != other.index_; }

    private:
        const PhotoDifferences *differences_;
        std::size_t index_;
    };

    PhotoDifferences() = default;
    /// @param matches  of the photos of both, whether they differ or not
    PhotoDifferences(const PhotoComparer &comparer, std::vector<AssetMatch> matches);

    std::size_t size() const { return matches_.size(); }
    bool empty() const { return matches_.empty(); }
    PhotoDifference operator[](std::size_t index) const { return differenceOf(matches_[index]); }
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, size()}; }

    int count(Change change) const;

    void leaveOut(const std::function<bool(const PhotoDifference &)> &isLeftOut);

private:
    PhotoDifference differenceOf(const AssetMatch &match) const;

    std::optional<PhotoComparer> comparer_; ///< nothing where nothing is compared
    std::vector<AssetMatch> matches_;       ///< that differ
    std::map<Change, int> counts_;
};

struct PhotoComparison
{
    PhotoDifferences differences;
    std::size_t inBoth = 0; ///< photos that both snapshots have, the same or not
};

/// Matches photos as matchAssets() does.
/// @param before, after  what they refer to has to outlive the result
PhotoComparison comparePhotos(const Snapshot &before, const Snapshot &after);

/// Changed is one that is of another kind, whatever its name.
enum class AlbumChange { New, Gone, Renamed, Changed };

constexpr AlbumChange allAlbumChanges[] = {AlbumChange::New, AlbumChange::Gone,
                                           AlbumChange::Renamed, AlbumChange::Changed};

/// For machines, such as "new".
const char *changeName(AlbumChange change);

/// An album of the table that differs between two snapshots.
struct AlbumDifference
{
    AlbumChange change;
    const CAlbumGroup *before; ///< null for a new one
    const CAlbumGroup *after;  ///< null for one that is gone
};

/// Those of the second catalogue in its order, then those that are gone in the order of the first.
std::vector<AlbumDifference> compareAlbums(const std::vector<CAlbumGroup> &before,
                                           const std::vector<CAlbumGroup> &after);

/// Everything that differs between two snapshots of a library.
struct LibraryDifference
{
    std::vector<AlbumDifference> albums;
    PhotoComparison photos;

    bool isNone() const { return albums.empty() && photos.differences.empty(); }
    int count(Change change) const;
    int count(AlbumChange change) const;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DIFFERENCE_H
