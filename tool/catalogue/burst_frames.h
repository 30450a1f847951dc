#ifndef IOSPHOTO_TOOL_BURST_FRAMES_H
#define IOSPHOTO_TOOL_BURST_FRAMES_H

#include "catalogue/assets.h"

#include <map>

namespace iosphoto::tool {

/// The frames of each burst of a catalogue.
class BurstFrames
{
public:
    explicit BurstFrames(const AssetList &assets);

    /// The frames of the burst that an asset belongs to; 0 for one that belongs to none.
    int count(const Asset &asset) const;

    /// The assets in their order, with one of each burst: the frame that stands for it, or else
    /// the first one taken. What is in the trash and what is not are apart.
    static std::vector<Asset> oneOfEach(const std::vector<Asset> &assets);

private:
    std::map<QString, int> counts_; // by the burst's uuid; ordered: no choice of them makes it slow
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BURST_FRAMES_H
