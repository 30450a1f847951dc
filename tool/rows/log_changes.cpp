#include "rows/log_changes.h"

#include "rows/photo_fields.h"

#include <algorithm>
#include <set>
#include <utility>

namespace iosphoto::tool {

namespace {

const std::vector<CAlbumGroup> &albumsWithLog(const Library &library)
{
    const auto &withLog = library.withoutLog()->withLog;
    return withLog ? withLog->albums : library.albums();
}

/// What a photo is matched by, as between two snapshots.
std::string keyOf(const Asset &asset)
{
    return asset.uuid().empty() ? "/" + asset.path() : asset.uuid();
}

/// The photos of a catalogue by their keys. Sorted, not hashed: no choice of uuids makes it slow.
class AssetsByKey
{
public:
    explicit AssetsByKey(const AssetList &assets) : assets_(assets)
    {
        for (std::size_t i = 0; i < assets.size(); ++i)
            places_.emplace_back(keyOf(assets[i]), i);
        std::sort(places_.begin(), places_.end());
    }

    std::optional<Asset> find(const std::string &key) const
    {
        const auto found =
            std::lower_bound(places_.begin(), places_.end(), std::pair(key, std::size_t(0)));
        return found != places_.end() && found->first == key ? std::optional(assets_[found->second])
                                                             : std::nullopt;
    }

private:
    const AssetList &assets_;
    std::vector<std::pair<std::string, std::size_t>> places_;
};

/// Finds the facts of a photo that are not the same in two catalogues.
class FactComparison
{
public:
    struct Side
    {
        const AssetList &assets;
        const Trash &trash;
    };

    FactComparison(const Side &before, const Side &after)
        : trashBefore_(before.trash), trashAfter_(after.trash), burstsBefore_(before.assets),
          burstsAfter_(after.assets)
    {
        for (const Field<PhotoRow> &field : factsOf(photoFields()))
            if (field.column.type != Type::List) // albums, in which indices shift
                fields_.push_back(field);
    }

    std::vector<std::string> differing(const Asset &before, const Asset &after) const
    {
        const PhotoRow old = rowOf(before, trashBefore_, burstsBefore_);
        const PhotoRow now = rowOf(after, trashAfter_, burstsAfter_);
        std::vector<std::string> keys;
        for (const Field<PhotoRow> &field : fields_)
            if (!(field.value(old) == field.value(now)))
                keys.push_back(field.column.key);
        return keys;
    }

private:
    static PhotoRow rowOf(const Asset &asset, const Trash &trash, const BurstFrames &bursts)
    {
        return {asset, asset.facts(), trash.stayOf(asset), bursts.count(asset), {}};
    }

    const Trash &trashBefore_;
    const Trash &trashAfter_;
    BurstFrames burstsBefore_;
    BurstFrames burstsAfter_;
    std::vector<Field<PhotoRow>> fields_;
};

bool isSameOrder(const CAlbumGroup &before, const CAlbumGroup &after)
{
    return before.albumKind == after.albumKind && before.albumUuid == after.albumUuid &&
           before.isSmartAlbum == after.isSmartAlbum &&
           std::equal(
               before.photos.begin(), before.photos.end(), after.photos.begin(), after.photos.end(),
               [](const CPhotoData *old, const CPhotoData *now) { return old->uuid == now->uuid; });
}

/// As diff finds them, with the facts that differ.
std::vector<LogChange> snapshotChanges(const AssetList &before, const AssetList &after,
                                       const FactComparison &facts)
{
    std::vector<LogChange> changes;
    for (PhotoDifference &photo : comparePhotos(before, after).differences) {
        const bool isInBoth = photo.before && photo.after;
        changes.push_back({photo, isInBoth ? facts.differing(*photo.before, *photo.after)
                                           : std::vector<std::string>()});
    }
    return changes;
}

/// Adds the photos that are in both and not among the changes though their facts differ.
void addOtherChanges(const AssetList &before, const AssetList &after, const FactComparison &facts,
                     std::vector<LogChange> &changes)
{
    std::set<const Appearance *> known;
    for (const LogChange &change : changes)
        if (change.photo.after)
            known.insert(change.photo.after->begin());
    const AssetsByKey byKey(before);
    for (std::size_t i = 0; i < after.size(); ++i) {
        const std::optional<Asset> old = byKey.find(keyOf(after[i]));
        if (!old || known.count(after[i].begin()) != 0)
            continue;
        std::vector<std::string> differing = facts.differing(*old, after[i]);
        if (!differing.empty())
            changes.push_back(
                {{*old, after[i], {Change::Changed}, {}, {}, {}}, std::move(differing)});
    }
}

} // namespace

LogChanges::LogChanges(const Library &library)
    : before_(library.withoutLog()->catalogue.albums), after_(albumsWithLog(library)),
      assetsBefore_(before_), assetsAfter_(after_), albums_(compareAlbums(before_, after_)),
      isInOtherOrder_(
          !std::equal(before_.begin(), before_.end(), after_.begin(), after_.end(), isSameOrder))
{
    const FactComparison facts({assetsBefore_, library.withoutLog()->trash},
                               {assetsAfter_, library.trash()});
    photos_ = snapshotChanges(assetsBefore_, assetsAfter_, facts);
    addOtherChanges(assetsBefore_, assetsAfter_, facts, photos_);
}

} // namespace iosphoto::tool
