/// What a burst frame's pick type (`ZAVALANCHEPICKTYPE`, 0 for no burst) says.
#ifndef IOSPHOTO_BURST_PICK_H
#define IOSPHOTO_BURST_PICK_H

namespace iosphoto {

/// The frame stands for its burst.
constexpr bool standsForBurst(int pickType)
{
    return pickType == 16 || pickType == 20 || pickType == 52;
}

/// The Camera Roll leaves out the frames that nobody picked (2) and those that only the system
/// picked (4).
constexpr bool isShownInCameraRoll(int pickType)
{
    return pickType != 2 && pickType != 4;
}

} // namespace iosphoto

#endif // IOSPHOTO_BURST_PICK_H
