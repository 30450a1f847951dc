/// The numbers and names by which the database says what an asset or an album is.
#ifndef IOSPHOTO_DATABASE_CODES_H
#define IOSPHOTO_DATABASE_CODES_H

#include <cstdint>

namespace iosphoto {

/// ZKINDSUBTYPE
struct KindSubtype
{
    enum Code : std::int32_t {
        None = 0,
        Panorama = 1,
        LivePhoto = 2,
        Screenshot = 10,
        SloMo = 101,
        Timelapse = 102,
        ScreenRecording = 103
    };
};

/// ZSAVEDASSETTYPE
struct SavedAssetType
{
    enum Code : std::int32_t {
        Camera = 3,
        SharedAlbum = 4,
        CloudLibrary = 6,
        SyncedFromComputer = 256
    };
};

/// Those that the statements of the Camera Roll select, of whatever iOS.
constexpr std::int32_t cameraRollSavedTypes[] = {0, 1, SavedAssetType::Camera, 5,
                                                 SavedAssetType::CloudLibrary};

/// ZUNIFORMTYPEIDENTIFIER of videos
constexpr const char *videoTypes[] = {"com.apple.quicktime-movie", "public.mpeg-4"};

/// ZPLAYBACKSTYLE
struct PlaybackStyle
{
    enum Code : std::int32_t { Image = 1, Animated = 2, LivePhoto = 3, Video = 4 };
};

/// ZPACKEDBADGEATTRIBUTES
struct Badge
{
    enum Code : std::int32_t { Raw = 6, ProRes = 8 };
};

/// ZAVALANCHEPICKTYPE: what became of a frame of a burst.
struct BurstPickType
{
    enum Code : std::int32_t {
        NoBurst = 0,
        NotPicked = 2,
        PickedBySystem = 4,
        // The frames that stand for their burst.
        Shown = 16,
        ShownPickedBySystem = 20,
        ShownWithoutSelection = 52
    };
};

/// ZCAMERACAPTUREDEVICE
struct CaptureDevice
{
    enum Code : std::int32_t { FrontCamera = 1 };
};

/// ZDEPTHSTATES, before iOS 14
struct DepthStates
{
    enum Code : std::int32_t { HasDepth = 2 };
};

/// ZDEPTHTYPE, from iOS 14 on
struct DepthType
{
    enum Code : std::int32_t { HasDepth = 1 };
};

/// ZTRASHEDSTATE
struct TrashedState
{
    enum Code : std::int32_t { InTrash = 1 };
};

/// ZFAVORITE
struct FavoriteFlag
{
    enum Code : std::int32_t { IsFavorite = 1 };
};

/// ZHIDDEN
struct HiddenFlag
{
    enum Code : std::int32_t { IsHidden = 1 };
};

/// ZHASADJUSTMENTS, before iOS 18
struct HasAdjustments
{
    enum Code : std::int32_t { Edited = 1 };
};

/// ZADJUSTMENTSSTATE, from iOS 18 on
struct AdjustmentsState
{
    enum Code : std::int32_t { Edited = 2 };
};

/// ZKIND of an album: who made it, or what it is besides
struct TableAlbumKind
{
    enum Code : std::int32_t {
        MadeOnDevice = 2,
        Shared = 1505,
        Project = 1508,
        ProjectsFolder = 3998,
        RootFolder = 3999,
        Folder = 4000
    };
    static constexpr std::int32_t firstOfSystem = 3500; ///< of those that the statements leave out
};

/// Z_NAME of the entities of albums
namespace album_entity {
constexpr auto album = "Album";
constexpr auto photoStreamAlbum = "PhotoStreamAlbum";
constexpr auto sharedAlbum = "CloudSharedAlbum";
constexpr auto project = "ProjectAlbum";
constexpr auto folder = "Folder";
} // namespace album_entity

} // namespace iosphoto

#endif // IOSPHOTO_DATABASE_CODES_H
