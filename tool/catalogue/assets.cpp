#include "catalogue/assets.h"

#include "catalogue/traits.h"

#include <algorithm>
#include <map>

namespace iosphoto::tool {

namespace {

/// Adds what another record of the same asset knows: albums of the table do not say everything that
/// the Camera Roll does, nor the other way round.
void merge(CPhotoData &facts, const CPhotoData &record)
{
    for (const Trait &trait : traits)
        facts.*trait.flag = facts.*trait.flag || record.*trait.flag;
    facts.duration = std::max(facts.duration, record.duration);
    if (facts.assetId == CPhotoData().assetId)
        facts.assetId = record.assetId;
    facts.burstCount = std::max(facts.burstCount, record.burstCount);
    facts.isBurstPick = std::max(facts.isBurstPick, record.isBurstPick);
    if (facts.burstUuid.isEmpty())
        facts.burstUuid = record.burstUuid;
}

} // namespace

std::vector<Asset> assetsOf(const std::vector<CAlbumGroup> &catalogue)
{
    std::vector<Asset> assets;
    std::map<std::string, std::size_t> indexes; // ordered: no choice of uuids makes it slow
    for (const CAlbumGroup &album : catalogue) {
        for (const CPhotoData *record : album.photos) {
            const auto known = record->uuid.empty() ? indexes.end() : indexes.find(record->uuid);
            const std::size_t index = known != indexes.end() ? known->second : assets.size();
            if (index == assets.size()) {
                assets.push_back({*record, {}});
                indexes.emplace(record->uuid, index);
            } else {
                merge(assets[index].facts, *record);
            }
            std::vector<const CAlbumGroup *> &albums = assets[index].albums;
            if (albums.empty() || albums.back() != &album)
                albums.push_back(&album);
        }
    }
    return assets;
}

bool isShownBy(const Asset &asset, const std::vector<const CAlbumGroup *> &albums)
{
    return std::any_of(asset.albums.begin(), asset.albums.end(), [&](const CAlbumGroup *album) {
        return std::find(albums.begin(), albums.end(), album) != albums.end();
    });
}

} // namespace iosphoto::tool
