#ifndef IOSPHOTO_TOOL_ASSET_MATCHING_H
#define IOSPHOTO_TOOL_ASSET_MATCHING_H

#include "catalogue/assets.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// The same photo in two lists, by its number in each; noRecord where it is not there.
struct AssetMatch
{
    RecordNumber before;
    RecordNumber after;
};

/// All photos of two lists: those of the second in its order, then those that only the first one
/// has, in the order of the first. Photos are matched by their uuids, those without one by folder
/// and file name. Of several that are alike in that each has one counterpart at most.
std::vector<AssetMatch> matchAssets(const AssetList &before, const AssetList &after);

/// The form of a uuid that snapshots share: a phone that was updated from iOS 7 writes it with
/// dashes and in capitals from then on.
std::string comparable(const std::string &uuid);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ASSET_MATCHING_H
