#include "catalogue/assets.h"

#include "catalogue/photo_kinds.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

/// An album of the photos, which does not own them.
std::vector<CAlbumGroup> holderOf(const std::vector<std::unique_ptr<CPhotoData>> &photos)
{
    std::vector<CAlbumGroup> holder(1);
    for (const std::unique_ptr<CPhotoData> &photo : photos)
        holder.front().photos.push_back(photo.get());
    return holder;
}

} // namespace

void addFacts(CPhotoData &facts, const CPhotoData &record)
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

std::string Asset::path() const
{
    const CPhotoData &photo = firstRecord();
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
    Iterator other = begin();
    CPhotoData facts = *other->record;
    while (++other != end())
        addFacts(facts, *other->record);
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

AssetList::Iterator::Iterator(const Records &records, RecordNumber number)
    : records_(&records), number_(number)
{
    if (number_ < records_->count())
        here_ = records[number_];
}

AssetList::Iterator &AssetList::Iterator::operator++()
{
    do
        step();
    while (here_.record != nullptr && !linkOf(*here_.record).isFirst);
    return *this;
}

/// To the next record; within an album without looking it up.
void AssetList::Iterator::step()
{
    ++number_;
    ++here_.position;
    if (here_.album != nullptr && here_.position < here_.album->photos.size())
        here_.record = here_.album->photos[here_.position];
    else
        here_ = number_ < records_->count() ? (*records_)[number_] : Appearance{};
}

AssetList::AssetList(const std::vector<CAlbumGroup> &catalogue)
    : records_(catalogue), size_(linkAssets(catalogue))
{
}

AssetList::AssetList(const std::vector<std::unique_ptr<CPhotoData>> &photos)
    : unshown_(holderOf(photos)), records_(unshown_, false), size_(photos.size())
{
    linkNone(unshown_);
}

} // namespace iosphoto::tool
