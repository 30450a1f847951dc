#include "catalogue/listed_rows.h"

#include <algorithm>
#include <tuple>

namespace iosphoto::tool {

namespace {

constexpr std::int32_t noKey = -1;

template <typename Take>
void forEachRecord(const std::vector<CAlbumGroup> &catalogue, Take take)
{
    for (const CAlbumGroup &album : catalogue)
        for (CPhotoData *const photo : album.photos)
            take(photo);
}

bool isBefore(const CPhotoData &left, const CPhotoData &right)
{
    const auto identity = [](const CPhotoData &photo) {
        return std::tie(photo.uuid, photo.directory, photo.fileName);
    };
    return identity(left) < identity(right);
}

} // namespace

KeyedRecords::KeyedRecords(const std::vector<CAlbumGroup> &catalogue) : records_(catalogue)
{
    if (!catalogue.empty())
        inCameraRoll_ = catalogue.front().photos.size();
    entries_.reserve(records_.count()); // growing would take three times as much for a moment
    RecordNumber number = 0;
    forEachRecord(catalogue, [&](const CPhotoData *photo) {
        if (photo->assetId != noKey)
            entries_.push_back({photo->assetId, number});
        ++number;
    });
    std::sort(entries_.begin(), entries_.end(), [](const Entry &left, const Entry &right) {
        return std::tie(left.key, left.number) < std::tie(right.key, right.number);
    });
}

CPhotoData *KeyedRecords::find(std::int64_t key) const
{
    const Entry *const entry = entryOf(key);
    return entry != nullptr ? &records_.record(entry->number) : nullptr;
}

bool KeyedRecords::isInCameraRoll(std::int64_t key) const
{
    const Entry *const entry = entryOf(key);
    return entry != nullptr && entry->number < inCameraRoll_;
}

const KeyedRecords::Entry *KeyedRecords::entryOf(std::int64_t key) const
{
    const auto found = std::lower_bound(
        entries_.begin(), entries_.end(), key,
        [](const Entry &entry, std::int64_t wanted) { return entry.key < wanted; });
    return found != entries_.end() && found->key == key ? &*found : nullptr;
}

KeylessRecords::KeylessRecords(const std::vector<CAlbumGroup> &catalogue)
{
    forEachRecord(catalogue, [this](CPhotoData *photo) {
        if (photo->assetId == noKey)
            records_.push_back(photo);
    });
    std::stable_sort(
        records_.begin(), records_.end(),
        [](const CPhotoData *left, const CPhotoData *right) { return isBefore(*left, *right); });
    areFound_.resize(records_.size());
}

ListedRecord KeylessRecords::find(const CPhotoData &row)
{
    const auto found = std::lower_bound(records_.begin(), records_.end(), row,
                                        [](const CPhotoData *record, const CPhotoData &wanted) {
                                            return isBefore(*record, wanted);
                                        });
    if (found == records_.end() || isBefore(row, **found))
        return {};
    const auto isFound = areFound_.begin() + (found - records_.begin());
    const bool isRepeated = *isFound;
    *isFound = true;
    return {*found, isRepeated};
}

} // namespace iosphoto::tool
