/// The numbers by which the database says what an asset is.
#ifndef IOSPHOTO_ASSET_CODES_H
#define IOSPHOTO_ASSET_CODES_H

namespace iosphoto {

namespace kind_subtype { // ZKINDSUBTYPE
constexpr int panorama = 1;
constexpr int screenshot = 10;
constexpr int sloMo = 101;
constexpr int timelapse = 102;
constexpr int screenRecording = 103;
} // namespace kind_subtype

namespace saved_asset_type { // ZSAVEDASSETTYPE
constexpr int camera = 3;
constexpr int cloudLibrary = 6;
constexpr int syncedFromComputer = 256;
} // namespace saved_asset_type

constexpr int frontCamera = 1;         // ZCAMERACAPTUREDEVICE
constexpr int animatedPlayback = 2;    // ZPLAYBACKSTYLE
constexpr int hasDepthBeforeIos14 = 2; // ZDEPTHSTATES
constexpr int hasDepth = 1;            // ZDEPTHTYPE
constexpr int inTrash = 1;             // ZTRASHEDSTATE
constexpr int isFavoriteAsset = 1;     // ZFAVORITE
constexpr int isHiddenAsset = 1;       // ZHIDDEN
constexpr int rawBadge = 6;            // ZPACKEDBADGEATTRIBUTES
constexpr int proResBadge = 8;         // ZPACKEDBADGEATTRIBUTES

} // namespace iosphoto

#endif // IOSPHOTO_ASSET_CODES_H
