#ifndef IOSPHOTO_BENCH_THUMBNAILS_H
#define IOSPHOTO_BENCH_THUMBNAILS_H

#include <filesystem>

namespace iosphoto::bench {

/// Makes a cache of this many thumbnails of the largest format, 166.
void makeThumbCache(const std::filesystem::path &cache, int thumbnails);

/// Decodes every thumbnail of such a cache through the public entry point, as a grid does. Throws
/// where there is none.
void decodeAll(const std::filesystem::path &cache, int thumbnails);

/// The least that this can cost: opens the file anew for each thumbnail, reads its record and
/// writes the picture row by row.
void decodeAllPlainly(const std::filesystem::path &cache, int thumbnails);

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_THUMBNAILS_H
