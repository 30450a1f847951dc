#ifndef IOSPHOTO_TOOL_BURST_FRAMES_H
#define IOSPHOTO_TOOL_BURST_FRAMES_H

#include "catalogue/assets.h"

#include <vector>

namespace iosphoto::tool {

/// The frames of each burst of a catalogue.
class BurstFrames
{
public:
    explicit BurstFrames(const AssetList &assets);

    /// The frames of the burst that an asset belongs to; 0 for one that belongs to none.
    int count(const Asset &asset) const;

    /// Leaves one of each burst: the frame that stands for it, or else the first one taken, in the
    /// place of the first. What is in the trash and what is not are apart.
    static void keepOneOfEach(ChosenAssets &assets);

private:
    struct Burst
    {
        QString uuid;
        int frames;
    };

    std::vector<Burst> bursts_; // sorted, not hashed: no choice of uuids makes it slow
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BURST_FRAMES_H
