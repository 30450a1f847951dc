#include "catalogue/photo_filter.h"

#include "catalogue/album_selection.h"
#include "catalogue/trash_stay.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

bool isShownBy(const Asset &asset, const std::vector<const CAlbumGroup *> &albums)
{
    return std::any_of(asset.begin(), asset.end(), [&](const Appearance &appearance) {
        return std::find(albums.begin(), albums.end(), appearance.album) != albums.end();
    });
}

bool fitsTime(const PhotoFilter &filter, const Asset &asset)
{
    if (!filter.since && !filter.until)
        return true;
    const auto created = unixTimeOf(asset.begin()->record->createdTime);
    return created && (!filter.since || *created >= *filter.since) &&
           (!filter.until || *created <= *filter.until);
}

bool fitsKinds(const PhotoFilter &filter, const Asset &asset)
{
    return filter.kinds.empty() || std::any_of(filter.kinds.begin(), filter.kinds.end(),
                                               [&](const KindTest &test) { return test(asset); });
}

bool fitsFlags(const PhotoFilter &filter, const Asset &asset)
{
    return (!filter.isDeleted || asset.has(&CPhotoData::isDeleted)) &&
           (!filter.isHidden || asset.has(&CPhotoData::isHidden)) &&
           (!filter.isFavorite || asset.has(&CPhotoData::isFavorite)) &&
           (!filter.isEdited || asset.has(&CPhotoData::isEdited));
}

bool fitsTrash(const PhotoFilter &filter, const Library &library, const Asset &asset)
{
    if (!filter.trashedWithinDays)
        return true;
    constexpr std::int64_t day = std::int64_t(24) * 60 * 60;
    const auto stay = trashStay(library, asset);
    return stay && stay->trashed >= library.asOf().unixTime - *filter.trashedWithinDays * day;
}

} // namespace

std::vector<Asset> photosThatFit(const PhotoFilter &filter, const Library &library,
                                 const AssetList &assets)
{
    std::vector<const CAlbumGroup *> albums;
    if (filter.album)
        albums = selectAlbums(library, *filter.album);
    std::vector<Asset> fitting;
    for (std::size_t i = 0; i < assets.size(); ++i) {
        const Asset asset = assets[i];
        if ((!filter.album || isShownBy(asset, albums)) && fitsTime(filter, asset) &&
            fitsKinds(filter, asset) && fitsFlags(filter, asset) &&
            fitsTrash(filter, library, asset))
            fitting.push_back(asset);
    }
    return fitting;
}

} // namespace iosphoto::tool
