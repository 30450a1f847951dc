#include "host_buffer.h"
#include "ios_photo.h"
#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"
#include "require.h"
#include "thumb_cache.h"

#include <limits>
#include <set>

namespace iosphoto::fuzz {

namespace {

struct Decoder
{
    int format;
    void (*decode)(ifile &file, int index, char *buffer, int &size, int &width, int &height);
};

constexpr Decoder decoders[] = {{78, get_bmp_from_ithmb_78},   {120, get_bmp_from_ithmb_120},
                                {125, get_bmp_from_ithmb_125}, {128, get_bmp_from_ithmb_128},
                                {157, get_bmp_from_ithmb_157}, {158, get_bmp_from_ithmb_158},
                                {166, get_bmp_from_ithmb_166}};

void decode(const Decoder &decoder, ifile &file, int index, HostBuffer &into)
{
    into.decode([&](char *buffer, int &size, int &width, int &height) {
        decoder.decode(file, index, buffer, size, width, height);
    });
}

/// Decodes a record in the format that is found for it, if there is one.
void decodeAsFound(ifile &file, int index, HostBuffer &into)
{
    into.clear();
    const int format = detect_ithmb_size(file, index);
    bool isKnown = format == 0;
    for (const Decoder &decoder : decoders)
        if (decoder.format == format) {
            isKnown = true;
            decode(decoder, file, index, into);
        }
    require(isKnown, "a format that is found has a decoder");
}

void getBmp(const ThumbCache &cache, int index, HostBuffer &into)
{
    into.decode([&](char *buffer, int &size, int &width, int &height) {
        require(GetBmp(cache.path.c_str(), index, buffer, size, width, height) == 0,
                "GetBmp succeeds");
    });
}

void getThumb(const ThumbCache &cache, int index, HostBuffer &into)
{
    into.decode([&](char *buffer, int &size, int &width, int &height) {
        const int result =
            ios_photo_get_thumb(cache.path.c_str(), index, buffer, width, height, size);
        require(result == (index < 0 ? -1 : 0), "ios_photo_get_thumb refuses negative indexes");
    });
}

/// Indexes at both ends of the file and of the numbers, and such as wrap.
std::set<int> indexesOf(const ThumbCache &cache)
{
    using Int = std::numeric_limits<int>;
    constexpr int wrapping = 1 << 30; // record sizes are multiples of four: this gives offset 0
    std::set<int> indexes = {0, 1, 2, 3, wrapping, wrapping + 1, -1, Int::min(), Int::max()};
    indexes.insert(cache.chosenNumber());
    for (const ThumbFormat &format : thumbFormats) {
        const int records = cache.size() / format.recordSize;
        indexes.insert({records - 1, records, records + 1});
    }
    return indexes;
}

} // namespace

void checkDecoding(const ThumbCache &cache)
{
    ifile file(cache.path.c_str());
    HostBuffer found;
    HostBuffer other;
    for (const int index : indexesOf(cache)) {
        for (const Decoder &decoder : decoders)
            decode(decoder, file, index, other);
        decodeAsFound(file, index, found);
        getBmp(cache, index, other);
        require(other == found, "GetBmp decodes in the format that is found");
        getThumb(cache, index, other);
        require(index < 0 ? !other.hasImage() : other == found,
                "ios_photo_get_thumb decodes what GetBmp does");
    }
}

} // namespace iosphoto::fuzz
