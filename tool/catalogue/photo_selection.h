#ifndef IOSPHOTO_TOOL_PHOTO_SELECTION_H
#define IOSPHOTO_TOOL_PHOTO_SELECTION_H

#include "catalogue/assets.h"
#include "catalogue/library.h"
#include "catalogue/photo_kinds.h"
#include "catalogue/photo_order.h"

namespace iosphoto::tool {

/// Which photos are asked for. One that is asked for matches all that is said.
struct PhotoFilter
{
    std::vector<std::string> albums; ///< names, kinds or uuids, if any; see matchingAlbums()
    std::vector<std::string> uuids;  ///< any of them, if there are some
    std::vector<std::string> names; ///< likewise; patterns with * ? [a-z], whatever case of letters
    std::optional<UnixTime> since;  ///< of its creation
    std::optional<UnixTime> until;
    bool isUndated = false; ///< only those of which no time of creation can be compared
    std::vector<const PhotoKind *> kinds; ///< any of them, if there are some
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

/// Chooses the photos that match as well, in the order of their list.
/// @param albums  those that match any of the filter's
void takeMatching(const PhotoFilter &filter, const std::vector<const CAlbumGroup *> &albums,
                  const Library &library, const AssetList &assets, ChosenAssets &matching);

/// Photos of the catalogue, those that it leaves out, or both.
enum class Shown { Listed, LeftOut, Both };

/// Which photos to show, and in which order.
struct PhotoChoice
{
    Shown shown = Shown::Listed;
    PhotoFilter filter;
    bool hasFrames = false; ///< every frame of a burst, not one for all
    PhotoSorting sorting;
};

/// Of the photos of a library those that are chosen.
/// @param albums  those that match the filter's
/// @param leftOut  the library's, which are looked at only where the choice says so
ChosenAssets choosePhotos(const PhotoChoice &choice, const std::vector<const CAlbumGroup *> &albums,
                          const Library &library, const AssetList &assets,
                          const AssetList &leftOut);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_SELECTION_H
