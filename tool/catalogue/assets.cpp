#include "catalogue/assets.h"

#include "catalogue/photo_kinds.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

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

std::vector<Appearance> allAppearances(const std::vector<CAlbumGroup> &catalogue)
{
    std::vector<Appearance> all;
    for (const CAlbumGroup &album : catalogue)
        for (std::size_t i = 0; i < album.photos.size(); ++i)
            all.push_back({album.photos[i], &album, i});
    return all;
}

/// The uuid of an appearance, for sorting. Most comparisons end with the beginnings, which spares
/// fetching the uuids themselves from all over the memory.
class UuidKey
{
public:
    UuidKey(const Appearance &appearance, std::size_t index)
        : uuid_(&appearance.record->uuid), index_(index)
    {
        std::memcpy(&beginning_, uuid_->data(), std::min(uuid_->size(), sizeof beginning_));
    }

    std::size_t index() const { return index_; }
    bool isSame(const UuidKey &other) const
    {
        return beginning_ == other.beginning_ && !uuid_->empty() && *uuid_ == *other.uuid_;
    }
    /// Any order will do that puts the same ones side by side, the first appearance first.
    bool operator<(const UuidKey &other) const
    {
        if (beginning_ != other.beginning_)
            return beginning_ < other.beginning_;
        const int compared = uuid_->compare(*other.uuid_);
        return compared < 0 || (compared == 0 && index_ < other.index_);
    }

private:
    std::uint64_t beginning_ = 0;
    const std::string *uuid_;
    std::size_t index_;
};

/// For each appearance the index of the first one of the same asset. Sorted, not hashed: no choice
/// of uuids makes it slow.
std::vector<std::size_t> firstOfSame(const std::vector<Appearance> &appearances)
{
    std::vector<UuidKey> keys;
    keys.reserve(appearances.size());
    for (const Appearance &appearance : appearances)
        keys.emplace_back(appearance, keys.size());
    std::sort(keys.begin(), keys.end());
    std::vector<std::size_t> first(appearances.size());
    const UuidKey *head = nullptr;
    for (const UuidKey &key : keys) {
        if (head == nullptr || !key.isSame(*head))
            head = &key;
        first[key.index()] = head->index();
    }
    return first;
}

} // namespace

std::string Asset::path() const
{
    const CPhotoData &photo = *first_->record;
    const QString separator = photo.directory.isEmpty() ? "" : "/";
    return (photo.directory + separator + photo.fileName).toStdString();
}

bool Asset::has(bool CPhotoData::*flag) const
{
    return std::any_of(begin(), end(),
                       [&](const Appearance &appearance) { return appearance.record->*flag; });
}

CPhotoData Asset::facts() const
{
    CPhotoData facts = *first_->record;
    for (const Appearance *other = first_ + 1; other != last_; ++other)
        merge(facts, *other->record);
    return facts;
}

std::vector<const CAlbumGroup *> Asset::albums() const
{
    std::vector<const CAlbumGroup *> albums;
    for (const Appearance &appearance : *this)
        if (appearance.album != nullptr && (albums.empty() || albums.back() != appearance.album))
            albums.push_back(appearance.album);
    return albums;
}

AssetList::AssetList(const std::vector<CAlbumGroup> &catalogue)
{
    const std::vector<Appearance> all = allAppearances(catalogue);
    const std::vector<std::size_t> first = firstOfSame(all);

    // Counts each asset's appearances at its first one, then gives it room from there on.
    std::vector<std::size_t> places(all.size(), 0);
    for (const std::size_t index : first)
        ++places[index];
    std::size_t end = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (first[i] != i)
            continue;
        starts_.push_back(end);
        end += std::exchange(places[i], end);
    }
    starts_.push_back(end);

    appearances_.resize(all.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        appearances_[places[first[i]]++] = all[i];
}

AssetList::AssetList(const std::vector<std::unique_ptr<CPhotoData>> &photos)
{
    for (const std::unique_ptr<CPhotoData> &photo : photos) {
        starts_.push_back(appearances_.size());
        appearances_.push_back({photo.get(), nullptr, appearances_.size()});
    }
    starts_.push_back(appearances_.size());
}

} // namespace iosphoto::tool
