/// What a generated library is made of, in round numbers of a phone that is used a lot.
#ifndef IOSPHOTO_BENCH_ASSET_MIX_H
#define IOSPHOTO_BENCH_ASSET_MIX_H

#include "model/asset_codes.h"

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
    bool isVideo() const { return playbackStyle == 4; }
    bool isSynced() const { return savedAssetType == saved_asset_type::syncedFromComputer; }
    bool isOfTheCloud() const { return savedAssetType == saved_asset_type::cloudLibrary; }
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

constexpr int livePhoto = 2; // ZKINDSUBTYPE
constexpr int anyBadge = 1;  // ZPACKEDBADGEATTRIBUTES

// clang-format off
namespace mix {
using namespace saved_asset_type;
using namespace kind_subtype;
using namespace uniform_type;

/// The first is what frames of bursts are.
constexpr AssetSort sorts[] = {
    // file  type   of 1000 sub-type         playback saved as            badge        traits
    {"HEIC", heic,  290,    0,               1,       camera,             anyBadge,    None},
    {"HEIC", heic,  200,    livePhoto,       3,       camera,             anyBadge,    Live},
    {"HEIC", heic,  25,     livePhoto,       3,       camera,             anyBadge,    Live | Favorite},
    {"HEIC", heic,  60,     livePhoto,       3,       camera,             anyBadge,    Live | Selfie},
    {"HEIC", heic,  30,     0,               1,       camera,             anyBadge,    Portrait},
    {"HEIC", heic,  20,     0,               1,       camera,             anyBadge,    Portrait | Selfie},
    {"HEIC", heic,  40,     0,               1,       camera,             anyBadge,    Edited},
    {"HEIC", heic,  6,      panorama,        1,       camera,             anyBadge,    None},
    {"HEIC", heic,  70,     0,               1,       cloudLibrary,       anyBadge,    None},
    {"JPG",  jpeg,  85,     0,               1,       camera,             anyBadge,    None},
    {"JPG",  jpeg,  10,     0,               1,       syncedFromComputer, anyBadge,    None},
    {"PNG",  png,   60,     screenshot,      1,       camera,             anyBadge,    None},
    {"PNG",  png,   10,     0,               1,       camera,             anyBadge,    None},
    {"GIF",  gif,   5,      0,               2,       camera,             anyBadge,    None},
    {"DNG",  dng,   3,      0,               1,       camera,             rawBadge,    None},
    {"MOV",  movie, 45,     0,               4,       camera,             anyBadge,    None},
    {"MOV",  movie, 10,     0,               4,       camera,             anyBadge,    Favorite},
    {"MOV",  movie, 1,      0,               4,       camera,             proResBadge, None},
    {"MOV",  movie, 6,      sloMo,           4,       camera,             anyBadge,    None},
    {"MOV",  movie, 6,      timelapse,       4,       camera,             anyBadge,    None},
    {"MP4",  mpeg,  4,      screenRecording, 4,       camera,             anyBadge,    None},
    {"HEIC", heic,  8,      0,               1,       camera,             anyBadge,    Trashed},
    {"HEIC", heic,  6,      0,               1,       camera,             anyBadge,    Hidden},
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
