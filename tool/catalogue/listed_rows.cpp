#include "catalogue/listed_rows.h"

#include "input/tree/file_tree.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

constexpr std::int32_t noKey = -1;

template <typename Take>
void forEachRecord(const std::vector<CAlbumGroup> &catalogue, Take take)
{
    for (const CAlbumGroup &album : catalogue)
        for (const CPhotoData *photo : album.photos)
            take(*photo);
}

template <typename Value>
void sortOnce(std::vector<Value> &values)
{
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

} // namespace

ListedKeys::ListedKeys(const std::vector<CAlbumGroup> &catalogue)
{
    std::size_t records = 0;
    for (const CAlbumGroup &album : catalogue)
        records += album.photos.size();
    keys_.reserve(records); // growing would take three times as much for a moment
    forEachRecord(catalogue, [this](const CPhotoData &photo) {
        if (photo.assetId != noKey)
            keys_.push_back(photo.assetId);
    });
    sortOnce(keys_);
}

bool ListedKeys::has(std::int32_t key) const
{
    return std::binary_search(keys_.begin(), keys_.end(), key);
}

ListedUuids::ListedUuids(const std::vector<CAlbumGroup> &catalogue)
{
    forEachRecord(catalogue, [this](const CPhotoData &photo) {
        if (photo.assetId != noKey)
            return;
        if (photo.uuid.empty())
            paths_.push_back(
                joinedPath(photo.directory.toStdString(), photo.fileName.toStdString()));
        else
            uuids_.emplace_back(photo.uuid);
    });
    sortOnce(uuids_);
    sortOnce(paths_);
}

bool ListedUuids::has(const std::string &uuid, const std::string &path) const
{
    return uuid.empty() ? std::binary_search(paths_.begin(), paths_.end(), path)
                        : std::binary_search(uuids_.begin(), uuids_.end(), uuid);
}

} // namespace iosphoto::tool
