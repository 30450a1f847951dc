#ifndef IOSPHOTO_PORTRAIT_RULE_H
#define IOSPHOTO_PORTRAIT_RULE_H

#include "model/database_codes.h"
#include "model/device/ios_generation.h"
#include "model/store/row.h"

namespace iosphoto {

/// Where a row says whether its asset has a depth map.
struct DepthColumns
{
    int states; ///< ZDEPTHSTATES
    int type;   ///< ZDEPTHTYPE
};

/// Whether an asset is a portrait.
inline bool isPortrait(const Row &row, const DepthColumns &depth, IosGeneration ios)
{
    return ios < IosGeneration::Ios14 ? row.int32(depth.states) == DepthStates::HasDepth
                                      : row.int32(depth.type) == DepthType::HasDepth;
}

} // namespace iosphoto

#endif // IOSPHOTO_PORTRAIT_RULE_H
