#include "rows/fact_comparison.h"

#include "catalogue/photo_kinds.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace iosphoto::tool {

namespace {

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

} // namespace

FactComparison::FactComparison(const Side &before, const Side &after)
    : before_(before), after_(after), burstsBefore_(before.assets), burstsAfter_(after.assets),
      fields_(factsOf(photoFields()))
{
}

std::vector<std::string> FactComparison::differing(const Asset &before, const Asset &after) const
{
    const PhotoRow old = rowOf(before, before_, burstsBefore_);
    const PhotoRow now = rowOf(after, after_, burstsAfter_);
    std::vector<std::string> keys;
    if (haveSameFacts(old.facts, now.facts) && isSameStay(old.trash, now.trash) &&
        old.burstFrames == now.burstFrames && old.leftOutBecause == now.leftOutBecause)
        return keys;
    for (const Field<PhotoRow> &field : fields_)
        if (!(field.value(old) == field.value(now)))
            keys.push_back(field.column.key);
    return keys;
}

PhotoRow FactComparison::rowOf(const Asset &asset, const Side &side, const BurstFrames &bursts)
{
    const auto reason =
        side.leftOut != nullptr ? side.leftOut->reasonFor(asset) : std::optional<PhotoReason>();
    return {
        asset,      asset.facts(), side.trash.stayOf(asset), reason ? 0 : bursts.count(asset), {},
        side.dates, reason};
}

} // namespace iosphoto::tool
