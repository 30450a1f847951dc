#include "asset_values.h"

#include <fmt/format.h>

#include <algorithm>

namespace iosphoto::bench {

namespace {

constexpr int filesPerDirectory = 1000;
constexpr int namesInUse = 9999; // the camera counts to IMG_9999 and begins anew

/// Well mixed bits of a number (the finalizer of SplitMix64).
std::uint64_t mixed(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15U;
    value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9U;
    value = (value ^ value >> 27) * 0x94D049BB133111EBU;
    return value ^ value >> 31;
}

/// Some number below `limit`.
int below(int limit, int key, unsigned purpose)
{
    const std::uint64_t bits = mixed(static_cast<std::uint64_t>(key) << 8 | purpose);
    return static_cast<int>(bits % static_cast<unsigned>(limit));
}

/// Where a key lies: bursts are spread evenly over the other assets, a gap before each.
struct Place
{
    int burst; ///< negative outside of bursts
    int frame;
    int other; ///< number among the assets that are not in bursts
};

Place placeOf(int key, const StoreShape &shape)
{
    const int index = key - 1;
    const int others = shape.assets - shape.bursts * shape.framesPerBurst;
    const int gap = shape.bursts > 0 ? others / shape.bursts : 0;
    const int period = gap + shape.framesPerBurst;
    if (index >= shape.bursts * period)
        return {-1, 0, index - shape.bursts * shape.framesPerBurst};
    const int burst = index / period;
    const int offset = index % period;
    return offset < gap ? Place{-1, 0, burst * gap + offset} : Place{burst, offset - gap, 0};
}

/// The first frame is picked by the system and stands for its burst.
int pickTypeOf(const Place &place)
{
    if (place.burst < 0)
        return BurstPickType::NoBurst;
    return place.frame == 0 ? BurstPickType::ShownPickedBySystem : BurstPickType::NotPicked;
}

/// Several a day; more where so many would begin before there were such phones.
double createdOf(int key, const StoreShape &shape)
{
    constexpr double newest = 700000000; // 2023-03-08
    constexpr double years = 470000000;  // fifteen of them
    constexpr double mostApart = 7900;
    const double apart = std::min(years / shape.assets, mostApart);
    constexpr int parts = 1000000;
    return newest -
           apart * (shape.assets - key + static_cast<double>(below(parts, key, 'c')) / parts);
}

std::string uuidOf(const AssetSort &sort, int key)
{
    if (!sort.isSynced())
        return madeUpUuid("asset", key);
    return fmt::format("00000000-0000-0000-0000-{:012X}", key);
}

} // namespace

std::string madeUpUuid(const char *purpose, int number)
{
    const std::uint64_t high =
        mixed(static_cast<std::uint64_t>(number) << 8 | static_cast<unsigned char>(*purpose));
    const std::uint64_t low = mixed(high);
    return fmt::format("{:08X}-{:04X}-{:04X}-{:04X}-{:012X}", high >> 32, high >> 16 & 0xFFFF,
                       (high & 0x0FFF) | 0x4000, low >> 48, low & 0xFFFFFFFFFFFF);
}

namespace {

std::string directoryOf(const AssetSort &sort, int key)
{
    constexpr int cloudGroups = 1000;
    if (sort.isOfTheCloud())
        return fmt::format("PhotoData/CPLAssets/group{}", below(cloudGroups, key, 'g'));
    return sort.isSynced() ? "PhotoData/Sync/100SYNCD"
                           : fmt::format("DCIM/{}APPLE", 100 + (key - 1) / filesPerDirectory);
}

} // namespace

AssetValues::AssetValues(int assetKey, const StoreShape &shape) : key(assetKey)
{
    const Place place = placeOf(key, shape);
    sort = place.burst < 0 ? &sortOf(place.other) : mix::sorts;
    pickType = pickTypeOf(place);
    if (place.burst >= 0)
        burstUuid = madeUpUuid("burst", place.burst);
    width = sort->isVideo() ? 1920 : 4032;
    height = sort->isVideo() ? 1080 : 3024;
    fileSize = sort->isVideo() ? below(90000000, key, 's') : 900000 + below(3000000, key, 's');
    created = createdOf(key, shape);
    duration = sort->isVideo() ? 1 + below(60000, key, 'd') / 1000.0 : 0;
    uuid = uuidOf(*sort, key);
    directory = directoryOf(*sort, key);
    originalName = fmt::format("IMG_{:04}.{}", (key - 1) % namesInUse + 1, sort->extension);
    fileName = sort->isOfTheCloud() ? fmt::format("{}.{}", uuid, sort->extension) : originalName;
}

} // namespace iosphoto::bench
