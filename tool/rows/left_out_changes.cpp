#include "rows/left_out_changes.h"

#include "rows/fact_comparison.h"

#include <algorithm>
#include <map>

namespace iosphoto::tool {

namespace {

/// The numbers of photos that are left out, by the keys of their rows.
std::map<std::int32_t, RecordNumber> numbersByKey(const AssetList &photos)
{
    std::map<std::int32_t, RecordNumber> numbers;
    for (const Asset photo : photos)
        numbers[photo.firstRecord().assetId] = photo.number();
    return numbers;
}

/// What the trash leaves out is compared among the photos of the catalogues, which have all of it.
bool isComparedElsewhere(const LeftOutChange &change)
{
    const auto isOfCatalogues = [](const std::optional<PhotoReason> &reason) {
        return !reason || *reason == PhotoReason::TrashedTooLong ||
               *reason == PhotoReason::TrashedWithoutDate;
    };
    return isOfCatalogues(change.before) && isOfCatalogues(change.after);
}

LeftOutChange changeOf(const Asset &photo)
{
    return {photo.uuid(), photo.path(), {}, {}, {}};
}

} // namespace

std::vector<LeftOutChange> leftOutChanges(const Library &library)
{
    const WithoutLog &without = *library.withoutLog();
    const LeftOutPhotos &leftOutBefore = without.leftOut;
    const LeftOutPhotos &leftOutAfter = library.leftOutPhotos();
    const AssetList before(leftOutBefore.records());
    const AssetList after(leftOutAfter.records());
    const FactComparison facts({before, without.trash, without.without.dates, &leftOutBefore},
                               {after, library.trash(), library.dates(), &leftOutAfter});
    std::map<std::int32_t, RecordNumber> numbersBefore = numbersByKey(before);
    std::vector<LeftOutChange> changes;
    for (const Asset now : after) {
        LeftOutChange change = changeOf(now);
        change.after = leftOutAfter.reasonFor(now);
        const auto found = numbersBefore.find(now.firstRecord().assetId);
        if (found != numbersBefore.end()) {
            const Asset old = before.at(found->second);
            numbersBefore.erase(found);
            change.before = leftOutBefore.reasonFor(old);
            change.facts = facts.differing(old, now);
            if (change.facts.empty())
                continue;
        }
        changes.push_back(std::move(change));
    }
    for (const auto &[key, number] : numbersBefore) {
        LeftOutChange change = changeOf(before.at(number));
        change.before = leftOutBefore.reasonFor(before.at(number));
        changes.push_back(std::move(change));
    }
    changes.erase(std::remove_if(changes.begin(), changes.end(), isComparedElsewhere),
                  changes.end());
    return changes;
}

} // namespace iosphoto::tool
