/// What a generated library is made of, in round numbers of a phone that is used a lot.
#ifndef IOSPHOTO_BENCH_ASSET_MIX_H
#define IOSPHOTO_BENCH_ASSET_MIX_H

#include "model/database_codes.h"

namespace iosphoto::bench {

/// What an asset may be besides its type of file.
enum Trait : unsigned {
    None = 0,
    Live = 1U << 0,
    Selfie = 1U << 1,
    Portrait = 1U << 2,
    Favorite = 1U << 3,
    Edited = 1U << 4,
    Hidden = 1U << 5,
    Trashed = 1U << 6,
};

struct AssetSort
{
    const char *extension;
    const char *uniformType;
    int perThousand;
    int kindSubtype;
    int playbackStyle;
    int savedAssetType;
    int badge;
    unsigned traits;

    bool has(Trait trait) const { return (traits & trait) != 0; }
    bool isVideo() const { return playbackStyle == PlaybackStyle::Video; }
    bool isSynced() const { return savedAssetType == SavedAssetType::SyncedFromComputer; }
    bool isOfTheCloud() const { return savedAssetType == SavedAssetType::CloudLibrary; }
};

namespace uniform_type {
constexpr auto heic = "public.heic";
constexpr auto jpeg = "public.jpeg";
constexpr auto png = "public.png";
constexpr auto gif = "com.compuserve.gif";
constexpr auto dng = "com.adobe.raw-image";
constexpr auto movie = "com.apple.quicktime-movie";
constexpr auto mpeg = "public.mpeg-4";
} // namespace uniform_type

constexpr int anyBadge = 1; // ZPACKEDBADGEATTRIBUTES

// clang-format off
namespace mix {
using namespace uniform_type;
using Is = KindSubtype;
using Plays = PlaybackStyle;
using From = SavedAssetType;

/// The first is what frames of bursts are.
constexpr AssetSort sorts[] = {
    // file  type   of 1000 sub-type             playback          saved as                  badge          traits
    {"HEIC", heic,  290,    Is::None,            Plays::Image,     From::Camera,             anyBadge,      None},
    {"HEIC", heic,  200,    Is::LivePhoto,       Plays::LivePhoto, From::Camera,             anyBadge,      Live},
    {"HEIC", heic,  25,     Is::LivePhoto,       Plays::LivePhoto, From::Camera,             anyBadge,      Live | Favorite},
    {"HEIC", heic,  60,     Is::LivePhoto,       Plays::LivePhoto, From::Camera,             anyBadge,      Live | Selfie},
    {"HEIC", heic,  30,     Is::None,            Plays::Image,     From::Camera,             anyBadge,      Portrait},
    {"HEIC", heic,  20,     Is::None,            Plays::Image,     From::Camera,             anyBadge,      Portrait | Selfie},
    {"HEIC", heic,  40,     Is::None,            Plays::Image,     From::Camera,             anyBadge,      Edited},
    {"HEIC", heic,  6,      Is::Panorama,        Plays::Image,     From::Camera,             anyBadge,      None},
    {"HEIC", heic,  70,     Is::None,            Plays::Image,     From::CloudLibrary,       anyBadge,      None},
    {"JPG",  jpeg,  85,     Is::None,            Plays::Image,     From::Camera,             anyBadge,      None},
    {"JPG",  jpeg,  10,     Is::None,            Plays::Image,     From::SyncedFromComputer, anyBadge,      None},
    {"PNG",  png,   60,     Is::Screenshot,      Plays::Image,     From::Camera,             anyBadge,      None},
    {"PNG",  png,   10,     Is::None,            Plays::Image,     From::Camera,             anyBadge,      None},
    {"GIF",  gif,   5,      Is::None,            Plays::Animated,  From::Camera,             anyBadge,      None},
    {"DNG",  dng,   3,      Is::None,            Plays::Image,     From::Camera,             Badge::Raw,    None},
    {"MOV",  movie, 45,     Is::None,            Plays::Video,     From::Camera,             anyBadge,      None},
    {"MOV",  movie, 10,     Is::None,            Plays::Video,     From::Camera,             anyBadge,      Favorite},
    {"MOV",  movie, 1,      Is::None,            Plays::Video,     From::Camera,             Badge::ProRes, None},
    {"MOV",  movie, 6,      Is::SloMo,           Plays::Video,     From::Camera,             anyBadge,      None},
    {"MOV",  movie, 6,      Is::Timelapse,       Plays::Video,     From::Camera,             anyBadge,      None},
    {"MP4",  mpeg,  4,      Is::ScreenRecording, Plays::Video,     From::Camera,             anyBadge,      None},
    {"HEIC", heic,  8,      Is::None,            Plays::Image,     From::Camera,             anyBadge,      Trashed},
    {"HEIC", heic,  6,      Is::None,            Plays::Image,     From::Camera,             anyBadge,      Hidden},
};
} // namespace mix
// clang-format on

/// The sort of the asset with this number: any thousand in a row hold each sort in its share, well
/// mixed.
constexpr const AssetSort &sortOf(int asset)
{
    constexpr int spread = 617; // has no divisor in common with 1000
    int place = static_cast<int>(static_cast<long long>(asset) * spread % 1000);
    const AssetSort *sort = mix::sorts;
    for (; place >= sort->perThousand; ++sort)
        place -= sort->perThousand;
    return *sort;
}

constexpr int shares()
{
    int sum = 0;
    for (const AssetSort &sort : mix::sorts)
        sum += sort.perThousand;
    return sum;
}

static_assert(shares() == 1000);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_ASSET_MIX_H
