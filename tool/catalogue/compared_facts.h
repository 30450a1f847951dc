/// Which facts of a photo two snapshots are compared by.
#ifndef IOSPHOTO_TOOL_COMPARED_FACTS_H
#define IOSPHOTO_TOOL_COMPARED_FACTS_H

#include "catalogue/assets.h"
#include "catalogue/known_dates.h"
#include "catalogue/trash.h"
#include "ios_photo.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// One of the catalogues that are compared, with what its records do not tell.
struct Snapshot
{
    const AssetList &assets;
    const KnownDates &dates;
    const Trash &trash;
    const std::vector<std::string> &unknownFields; ///< which are compared with nothing
};

/// A photo as a snapshot knows it.
struct PhotoInSnapshot
{
    PhotoInSnapshot(const Asset &photo, const Snapshot &in)
        : asset(photo), facts(photo.facts()), snapshot(in)
    {
    }

    const Asset &asset;
    CPhotoData facts;
    const Snapshot &snapshot;
};

struct ComparedFact
{
    const char *key; ///< of the field of photos
    bool (*isSame)(const PhotoInSnapshot &before, const PhotoInSnapshot &after);
};

/// All that photos shows of a photo, but numbers that the database and the thumbnail cache give it,
/// and what follows from other facts or other photos.
const std::vector<ComparedFact> &comparedFacts();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COMPARED_FACTS_H
