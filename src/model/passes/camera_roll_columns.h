#ifndef IOSPHOTO_CAMERA_ROLL_COLUMNS_H
#define IOSPHOTO_CAMERA_ROLL_COLUMNS_H

#include "model/passes/row_columns.h"
#include "model/portrait_rule.h"

namespace iosphoto::camera_roll {

/// Columns that only the Camera Roll's rows have, or that only its pass reads.
constexpr int assetId = column(cameraRollColumns, "Z_PK");
constexpr int created = column(cameraRollColumns, "ZDATECREATED");
constexpr int modified = column(cameraRollColumns, "ZMODIFICATIONDATE");
constexpr int added = column(cameraRollColumns, "ZADDEDDATE");
constexpr int trashedState = column(cameraRollColumns, "ZTRASHEDSTATE");
constexpr int uniformTypeIdentifier = column(cameraRollColumns, "ZUNIFORMTYPEIDENTIFIER");
constexpr int trashedDate = column(cameraRollColumns, "ZTRASHEDDATE");
constexpr int kindSubtype = column(cameraRollColumns, "ZKINDSUBTYPE");
constexpr int burstPickType = column(cameraRollColumns, "ZAVALANCHEPICKTYPE");
constexpr int burstUuid = column(cameraRollColumns, "ZAVALANCHEUUID");
constexpr int embeddedThumbnailHeight = column(cameraRollColumns, "ZEMBEDDEDTHUMBNAILHEIGHT");
constexpr int savedAssetType = column(cameraRollColumns, "ZSAVEDASSETTYPE");
constexpr int creatorBundle = column(cameraRollColumns, "ZCREATORBUNDLEID");
constexpr int favorite = column(cameraRollColumns, "ZFAVORITE");
constexpr int cameraCaptureDevice = column(cameraRollColumns, "ZCAMERACAPTUREDEVICE");
constexpr int hidden = column(cameraRollColumns, "ZHIDDEN");
constexpr int playbackStyle = column(cameraRollColumns, "ZPLAYBACKSTYLE");
constexpr DepthColumns depth = {column(cameraRollColumns, "ZDEPTHSTATES"),
                                column(cameraRollColumns, "ZDEPTHTYPE")};
constexpr int packedBadgeAttributes = column(cameraRollColumns, "ZPACKEDBADGEATTRIBUTES");

} // namespace iosphoto::camera_roll

#endif // IOSPHOTO_CAMERA_ROLL_COLUMNS_H
