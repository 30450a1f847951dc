#include "rows/log_changes.h"

#include "rows/fact_comparison.h"

#include <algorithm>
#include <set>
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

Snapshot snapshotWithoutLog(const AssetList &assets, const Library &library)
{
    const WithoutLog &without = *library.withoutLog();
    return {assets, without.without.dates, without.trash, without.schema.unknownFields};
}

Snapshot snapshotWithLog(const AssetList &assets, const Library &library)
{
    return {assets, datesWithLog(library), library.trash(), library.schema().unknownFields};
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

/// The stream counts photos that it does not show.
bool isSameList(const CAlbumGroup &before, const CAlbumGroup &after)
{
    return before.albumKind == after.albumKind && before.albumCount == after.albumCount &&
           before.albumUuid == after.albumUuid && before.isSmartAlbum == after.isSmartAlbum &&
           std::equal(
               before.photos.begin(), before.photos.end(), after.photos.begin(), after.photos.end(),
               [](const CPhotoData *old, const CPhotoData *now) { return old->uuid == now->uuid; });
}

bool isSameSchema(const ProbedSchema &before, const ProbedSchema &after)
{
    return before.name == after.name &&
           before.metadata.modelVersion == after.metadata.modelVersion &&
           before.metadata.build == after.metadata.build &&
           before.unknownFields == after.unknownFields;
}

/// As diff finds them, with the facts that differ.
std::vector<LogChange> snapshotChanges(const Snapshot &before, const Snapshot &after,
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
      hasOtherLists_(
          !std::equal(before_.begin(), before_.end(), after_.begin(), after_.end(), isSameList)),
      isOfOtherSchema_(!isSameSchema(library.withoutLog()->schema, library.schema())),
      hasOtherCounts_(library.account() && !(*library.account() == library.withoutLog()->account)),
      leftOut_(leftOutChanges(library))
{
    const Snapshot before = snapshotWithoutLog(assetsBefore_, library);
    const Snapshot after = snapshotWithLog(assetsAfter_, library);
    const FactComparison facts({assetsBefore_, before.trash, before.dates},
                               {assetsAfter_, after.trash, after.dates});
    photos_ = snapshotChanges(before, after, facts);
    addOtherChanges(assetsBefore_, assetsAfter_, facts, photos_);
}

} // namespace iosphoto::tool
