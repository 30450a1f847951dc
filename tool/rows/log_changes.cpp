#include "rows/log_changes.h"

#include "catalogue/photo_kinds.h"
#include "rows/photo_fields.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

namespace iosphoto::tool {

namespace {

const std::vector<CAlbumGroup> &albumsWithLog(const Library &library)
{
    const auto &withLog = library.withoutLog()->withLog;
    return withLog ? withLog->catalogue.albums : library.albums();
}

const KnownDates &datesWithLog(const Library &library)
{
    const auto &withLog = library.withoutLog()->withLog;
    return withLog ? withLog->dates : library.dates();
}

/// By what photos are matched between two snapshots as well: their uuids, or else their paths.
bool isLess(const Asset &left, const Asset &right)
{
    return left.uuid().empty() && right.uuid().empty() ? left.path() < right.path()
                                                       : left.uuid() < right.uuid();
}

/// The numbers of the photos in the order of isLess. Sorted, not hashed: no choice of uuids makes
/// it slow.
std::vector<RecordNumber> sortedNumbers(const AssetList &assets)
{
    std::vector<RecordNumber> numbers;
    for (const Asset asset : assets)
        numbers.push_back(asset.number());
    std::stable_sort(numbers.begin(), numbers.end(), [&](RecordNumber left, RecordNumber right) {
        return isLess(assets.at(left), assets.at(right));
    });
    return numbers;
}

/// Each photo of `after` with the same one of `before`, in the order of `after`. Where several are
/// alike, the first is the same as the first, and so on.
std::vector<AssetMatch> partners(const AssetList &before, const AssetList &after)
{
    const std::vector<RecordNumber> first = sortedNumbers(before);
    const std::vector<RecordNumber> second = sortedNumbers(after);
    std::vector<AssetMatch> partners;
    auto old = first.begin();
    auto now = second.begin();
    while (old != first.end() && now != second.end()) {
        if (isLess(before.at(*old), after.at(*now)))
            ++old;
        else if (isLess(after.at(*now), before.at(*old)))
            ++now;
        else
            partners.push_back({*old++, *now++});
    }
    std::sort(
        partners.begin(), partners.end(),
        [](const AssetMatch &left, const AssetMatch &right) { return left.after < right.after; });
    return partners;
}

/// Whether nothing differs that rows are made of, which is quicker to see than by the rows. Not
/// where a date may be unknown.
bool haveSameFacts(const CPhotoData &before, const CPhotoData &after)
{
    if (before.createdTime == 0 || before.modifiedTime == 0 || before.addedTime == 0)
        return false;
    const auto facts = [](const CPhotoData &photo) {
        return std::tie(photo.uuid, photo.assetId, photo.directory, photo.fileName,
                        photo.sourceFileName, photo.width, photo.height, photo.fileSize,
                        photo.duration, photo.createdTime, photo.modifiedTime, photo.addedTime,
                        photo.dateText, photo.thumbnailIndex, photo.burstUuid, photo.burstCount,
                        photo.isBurstPick);
    };
    return facts(before) == facts(after) &&
           std::all_of(std::begin(traits), std::end(traits),
                       [&](const Trait &trait) { return before.*trait.flag == after.*trait.flag; });
}

bool isSameStay(const std::optional<TrashStay> &before, const std::optional<TrashStay> &after)
{
    return before.has_value() == after.has_value() &&
           (!before || (before->trashed == after->trashed && before->goes == after->goes));
}

/// Finds the facts of a photo that are not the same in two catalogues.
class FactComparison
{
public:
    struct Side
    {
        const AssetList &assets;
        const Trash &trash;
        const KnownDates &dates;
    };

    FactComparison(const Side &before, const Side &after)
        : before_(before), after_(after), burstsBefore_(before.assets), burstsAfter_(after.assets),
          fields_(factsOf(photoFields()))
    {
    }

    std::vector<std::string> differing(const Asset &before, const Asset &after) const
    {
        const PhotoRow old = rowOf(before, before_, burstsBefore_);
        const PhotoRow now = rowOf(after, after_, burstsAfter_);
        std::vector<std::string> keys;
        if (haveSameFacts(old.facts, now.facts) && isSameStay(old.trash, now.trash) &&
            old.burstFrames == now.burstFrames)
            return keys;
        for (const Field<PhotoRow> &field : fields_)
            if (!(field.value(old) == field.value(now)))
                keys.push_back(field.column.key);
        return keys;
    }

private:
    /// Without albums, in which indices shift.
    static PhotoRow rowOf(const Asset &asset, const Side &side, const BurstFrames &bursts)
    {
        return {asset, asset.facts(), side.trash.stayOf(asset), bursts.count(asset), {}, side.dates,
                {}};
    }

    Side before_;
    Side after_;
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
    const PhotoComparison photos = comparePhotos(before, after);
    for (const PhotoDifference &photo : photos.differences) {
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
    std::set<RecordNumber> known;
    for (const LogChange &change : changes)
        if (change.photo.after)
            known.insert(change.photo.after->number());
    for (const AssetMatch &match : partners(before, after)) {
        if (known.count(match.after) != 0)
            continue;
        const Asset old = before.at(match.before);
        const Asset now = after.at(match.after);
        std::vector<std::string> differing = facts.differing(old, now);
        if (!differing.empty())
            changes.push_back({{old, now, {Change::Changed}, {}, {}, {}}, std::move(differing)});
    }
}

} // namespace

LogChanges::LogChanges(const Library &library)
    : before_(library.withoutLog()->without.catalogue.albums), after_(albumsWithLog(library)),
      assetsBefore_(before_), assetsAfter_(after_), albums_(compareAlbums(before_, after_)),
      isInOtherOrder_(
          !std::equal(before_.begin(), before_.end(), after_.begin(), after_.end(), isSameOrder))
{
    const WithoutLog &without = *library.withoutLog();
    const FactComparison facts({assetsBefore_, without.trash, without.without.dates},
                               {assetsAfter_, library.trash(), datesWithLog(library)});
    photos_ = snapshotChanges(assetsBefore_, assetsAfter_, facts);
    addOtherChanges(assetsBefore_, assetsAfter_, facts, photos_);
}

} // namespace iosphoto::tool
