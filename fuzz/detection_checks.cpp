#include "ithmb/ithmb.h"
#include "require.h"
#include "thumb_cache.h"

#include <limits>

namespace iosphoto::fuzz {

namespace {

using Int = std::numeric_limits<int>;

bool isSide(std::uint32_t pixels)
{
    return pixels >= 1 && pixels <= 254;
}

bool hasPlausibleTrailer(const ThumbCache &cache, int end)
{
    constexpr int trailerSize = 12;
    if (end < trailerSize || end > cache.size())
        return false;
    return isSide(cache.word(end - 12)) && isSide(cache.word(end - 8)) && cache.word(end - 4) == 0;
}

} // namespace

void checkDetection(const ThumbCache &cache)
{
    ifile file(cache.path.c_str());
    for (const int end : {0, 11, 12, 28, cache.size() - 4, cache.size() - 1, cache.size(),
                          cache.size() + 1, cache.chosenNumber(), -1, Int::min(), Int::max()})
        require(detect_type(end, file) == hasPlausibleTrailer(cache, end),
                "a trailer is found where one is");
}

} // namespace iosphoto::fuzz
