#ifndef IOSPHOTO_TOOL_PHOTO_SELECTION_H
#define IOSPHOTO_TOOL_PHOTO_SELECTION_H

#include "catalogue/assets.h"
#include "catalogue/library.h"
#include "catalogue/photo_kinds.h"

namespace iosphoto::tool {

/// Which photos are asked for. One that is asked for matches all that is said.
struct PhotoFilter
{
    std::vector<std::string> albums; ///< names, kinds or uuids, if any; see matchingAlbums()
    std::vector<std::string> uuids;  ///< any of them, if there are some
    std::vector<std::string> names; ///< likewise; patterns with * ? [a-z], whatever case of letters
    std::optional<UnixTime> since;  ///< of its creation
    std::optional<UnixTime> until;
    std::vector<KindTest> kinds; ///< any of them, if there are some
    bool isDeleted = false;
    std::optional<int> trashedWithinDays; ///< before the library's moment; needs isDeleted
    bool isHidden = false;
    bool isFavorite = false;
    bool isEdited = false;
    KindTest isWanted; ///< whatever else is asked for; asked last
};

/// The albums that match `wanted`, in the catalogue's order: by the catalogue's name or that which
/// a person sees, by their kind (its machine name, name in English or in the current language, or
/// number) or by their uuid, letter case aside.
std::vector<const CAlbumGroup *> matchingAlbums(const Library &library, const std::string &wanted);

/// The first of the filter's uuids that no photo of any list has; empty where all are there.
std::string missingUuid(const PhotoFilter &filter, const std::vector<const AssetList *> &lists);

/// The photos that match, in the order of the list.
/// @param albums  those that match any of the filter's
std::vector<Asset> matchingPhotos(const PhotoFilter &filter,
                                  const std::vector<const CAlbumGroup *> &albums,
                                  const Library &library, const AssetList &assets);

/// What photos are sorted by. Names from A to Z; times from the newest, numbers from the largest,
/// those that have none last.
enum class PhotoOrder { Date, Name, Size, Duration, Added, Modified, Deleted };

/// The order that somebody names, such as "date"; nothing for an unknown one.
std::optional<PhotoOrder> orderNamed(const std::string &name);

std::vector<std::string> orderNames();

/// Sorts photos; those that are alike stay in their order.
void sortPhotos(std::vector<Asset> &photos, PhotoOrder order, const Library &library);

/// Photos of the catalogue, those that it leaves out, or both.
enum class Shown { Listed, LeftOut, Both };

/// Which photos to show, and in which order.
struct PhotoChoice
{
    Shown shown = Shown::Listed;
    PhotoFilter filter;
    PhotoOrder order = PhotoOrder::Date;
    bool isReversed = false;
    bool hasFrames = false; ///< every frame of a burst, not one for all
    std::optional<std::size_t> limit;
};

/// Of the photos of a library those that are chosen.
/// @param albums  those that match the filter's
/// @param leftOut  the library's, which are looked at only where the choice says so
std::vector<Asset> choosePhotos(const PhotoChoice &choice,
                                const std::vector<const CAlbumGroup *> &albums,
                                const Library &library, const AssetList &assets,
                                const AssetList &leftOut);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_SELECTION_H
