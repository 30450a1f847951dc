#ifndef IOSPHOTO_TOOL_READING_FACTS_H
#define IOSPHOTO_TOOL_READING_FACTS_H

#include "ios_photo.h"
#include "schema/schema_probe.h"
#include "time/epochs.h"

#include <vector>

namespace iosphoto::tool {

/// What has to be known of a reading to say why rows are not in its catalogue.
struct ReadingFacts
{
    const ProbedSchema &schema;
    const std::vector<CAlbumGroup> &catalogue;
    UnixTime asOf;
    bool isWhole; ///< no pass ended before its last row
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_READING_FACTS_H
