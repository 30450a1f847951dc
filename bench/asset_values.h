#ifndef IOSPHOTO_BENCH_ASSET_VALUES_H
#define IOSPHOTO_BENCH_ASSET_VALUES_H

#include "asset_mix.h"
#include "store_generator.h"

#include <cstdint>
#include <string>

namespace iosphoto::bench {

/// What stands for one asset in a generated library, worked out from its key alone.
struct AssetValues
{
    AssetValues(int assetKey, const StoreShape &shape);

    int key;
    const AssetSort *sort;
    int pickType; ///< of a frame of a burst, else 0
    int width;
    int height;
    std::int64_t fileSize;
    double created; ///< seconds since 2001
    double duration;
    std::string burstUuid; ///< empty outside of bursts
    std::string directory;
    std::string fileName;
    std::string originalName; ///< before it went to the cloud library, which renames files
    std::string uuid;
};

/// An upper-case uuid, the same for the same arguments.
std::string madeUpUuid(const char *purpose, int number);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_ASSET_VALUES_H
