#ifndef IOSPHOTO_TESTS_SAMPLE_THUMB_CACHE_H
#define IOSPHOTO_TESTS_SAMPLE_THUMB_CACHE_H

#include "support/thumb_cache_builder.h"

namespace iosphoto::test {

/// A pixel that differs from its neighbours and from that of the other thumbnails; never 0.
inline ThumbPixels pixelsOf(int thumbnail)
{
    return [=](int x, int y) {
        return static_cast<std::uint16_t>((thumbnail * 1021 + x * 37 + y * 331) % 0x7FFF + 1);
    };
}

/// Three thumbnails of 80x60, 60x80 and 77x77 at 0, 1 and 3, followed by two empty records.
inline ThumbCacheBuilder sampleThumbCache(int format)
{
    ThumbCacheBuilder cache(format);
    cache.thumbnail(80, 60, pixelsOf(0));
    cache.thumbnail(60, 80, pixelsOf(1)).empty();
    cache.thumbnail(77, 77, pixelsOf(3)).empty(2);
    return cache;
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SAMPLE_THUMB_CACHE_H
