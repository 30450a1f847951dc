#ifndef IOSPHOTO_BENCH_STORE_GENERATOR_H
#define IOSPHOTO_BENCH_STORE_GENERATOR_H

#include <filesystem>

namespace iosphoto::bench {

/// How large a library is.
struct StoreShape
{
    int assets; ///< the frames of the bursts included
    int albums;
    int photosPerAlbum;
    int bursts = 0;
    int framesPerBurst = 0;
    bool hasLog = false; ///< its newest tenth is in the write-ahead log only
};

/// Makes the database of an iOS 15 photo library of this shape, with what a phone's holds: photos
/// of many years, several a day, in albums of consecutive ones, each of which begins elsewhere. The
/// same shape always gives the same rows.
void generateStore(const std::filesystem::path &database, const StoreShape &shape);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_STORE_GENERATOR_H
