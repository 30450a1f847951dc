#include "schema/optional_columns.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

using Table = TableOfColumns;
using Problem = SchemaProblem;

constexpr int always = 99;

/// A date that the library takes for one far in the future: the trash keeps the photo.
constexpr const char *neverEnding = "-1";

// clang-format off
const std::vector<OptionalColumn> columns = {
    {Table::Assets,     "ZTHUMBNAILINDEX",           "null", {"thumbnailIndex"}, always},
    {Table::Assets,     "ZWIDTH",                    "null", {"width", "pixels"}, always},
    {Table::Assets,     "ZHEIGHT",                   "null", {"height", "pixels"}, always},
    {Table::Assets,     "ZDURATION",                 "null", {"duration"}, always},
    {Table::Assets,     "ZMODIFICATIONDATE",         "null", {"modified"}, always},
    {Table::Assets,     "ZADDEDDATE",                "null", {"added", "localDay"}, always},
    {Table::Assets,     "ZTRASHEDSTATE",             "0",    {"trashed", "goes", "daysLeft", "isDeleted"}, always, Problem::UnknownTrash, {"trashedTooLong", "trashedWithoutDate"}},
    {Table::Assets,     "ZTRASHEDDATE",       neverEnding,   {"trashed", "goes", "daysLeft"}, always, Problem::UnknownTrashDates, {"trashedTooLong", "trashedWithoutDate"}},
    {Table::Assets,     "ZUNIFORMTYPEIDENTIFIER",    "null", {"mediaKind", "isVideo", "isTimelapse", "isSlomo", "isScreenRecording"}, always},
    {Table::Assets,     "ZKIND",                     "null", {"mediaKind", "isVideo", "isTimelapse", "isSlomo", "isScreenRecording"}, always, std::nullopt, {}, false},
    {Table::Assets,     "ZKINDSUBTYPE",              "null", {"isVideo", "isTimelapse", "isSlomo", "isScreenRecording", "isPanorama", "isScreenshot"}, always},
    {Table::Assets,     "ZAVALANCHEPICKTYPE",        "null", {"burstUuid", "burstCount", "burstFrames", "isBurstPick", "isBurst"}, always, Problem::UnknownBursts, {"burstFrame"}},
    {Table::Assets,     "ZAVALANCHEUUID",            "null", {"burstUuid", "burstCount", "burstFrames"}, always, Problem::UnknownBursts},
    {Table::Assets,     "ZSAVEDASSETTYPE",           "3",    {"isScreenshot"}, always, Problem::UnknownOrigins, {"sharedAlbum", "referencedElsewhere"}}, // of the camera
    {Table::Assets,     "ZFAVORITE",                 "null", {"isFavorite"}, always},
    {Table::Assets,     "ZHASADJUSTMENTS",           "null", {"isEdited"}, always},
    {Table::Assets,     "ZADJUSTMENTSSTATE",         "null", {"isEdited"}, always},
    {Table::Assets,     "ZHIDDEN",                   "null", {"isHidden"}, always},
    {Table::Assets,     "ZDEPTHSTATES",              "null", {"isPortrait"}, always},
    {Table::Assets,     "ZDEPTHTYPE",                "null", {"isPortrait"}, always},
    {Table::Assets,     "ZPLAYBACKSTYLE",            "null", {"isAnimated"}, always},
    {Table::Assets,     "ZPACKEDBADGEATTRIBUTES",    "null", {"isRaw", "isProRes"}, always},
    {Table::Assets,     "ZCLOUDASSETGUID",           "null", {"isInPhotoStream"}, always},
    {Table::Assets,     "ZVISIBILITYSTATE",          "null", {}, always},
    {Table::Assets,     "ZSORTTOKEN",                "null", {}, always},
    {Table::Assets,     "Z_OPT",                     "null", {}, always},
    {Table::Attributes, "ZORIGINALFILENAME",         "null", {"originalFileName"}, always},
    {Table::Attributes, "ZORIGINALFILESIZE",         "null", {"fileSize", "bytes"}, always},
    {Table::Attributes, "ZDURATION",                 "null", {"duration"}, always}, // before iOS 7
    {Table::Attributes, "ZVIDEOCPDURATIONTIMESCALE", "null", {"isLivePhoto"}, always},
    {Table::Attributes, "ZCAMERACAPTUREDEVICE",      "null", {"isSelfie"}, always},
    {Table::Attributes, "ZEDITORBUNDLEID",           "null", {"isEdited"}, 7},
    {Table::Attributes, "ZCREATORBUNDLEID",          "null", {"isScreenshot"}, 8},
    {Table::Attributes, "ZEMBEDDEDTHUMBNAILHEIGHT",  "null", {"isScreenshot"}, 8},
    {Table::Attributes, "ZORIGINALWIDTH",            "null", {}, always},
    {Table::Attributes, "ZORIGINALHEIGHT",           "null", {}, always},
    {Table::Attributes, "Z_OPT",                     "null", {}, always},
    {Table::Albums,     "ZTITLE",                    "null", {"albums"}, always, Problem::UnknownTitles, {"withoutTitle"}},
    {Table::Albums,     "ZKIND",                     "2",    {"albums"}, always, Problem::UnknownAlbumKinds, {"shared", "project", "folder", "system"}}, // made on the device
    {Table::Albums,     "ZTRASHEDSTATE",             "0",    {"albums"}, always, Problem::UnknownAlbumTrash, {"trashed"}},
    {Table::Albums,     "ZTRASHEDDATE",              "null", {}, always, Problem::UnknownAlbumTrash, {"trashed"}},
    {Table::Albums,     "ZKEYASSET",                 "null", {}, always},
    {Table::Albums,     "ZCACHEDCOUNT",              "null", {}, always},
    {Table::Albums,     "ZCACHEDPHOTOSCOUNT",        "null", {}, always},
    {Table::Albums,     "ZCACHEDVIDEOSCOUNT",        "null", {}, always},
    {Table::Albums,     "Z_OPT",                     "null", {}, always},
};
// clang-format on

template <typename Test>
const OptionalColumn *findColumn(Test test)
{
    const auto found = std::find_if(columns.begin(), columns.end(), test);
    return found != columns.end() ? &*found : nullptr;
}

} // namespace

const OptionalColumn *findOptionalColumn(TableOfColumns table, const std::string &name)
{
    return findColumn(
        [&](const OptionalColumn &column) { return column.table == table && name == column.name; });
}

const OptionalColumn *findOptionalColumn(const std::string &name)
{
    return findColumn([&](const OptionalColumn &column) {
        return column.isReadByStatements && name == column.name;
    });
}

const std::vector<OptionalColumn> &optionalColumns()
{
    return columns;
}

} // namespace iosphoto::tool
