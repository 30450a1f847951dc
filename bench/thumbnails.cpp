#include "thumbnails.h"

#include "ios_photo.h"
#include "ithmb/thumb_formats.h"
#include "support/thumb_cache_builder.h"

#include <array>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

namespace iosphoto::bench {

namespace {

constexpr const ThumbFormat &format = thumbFormat<166>;
using Image = std::array<char, largestImage>;

[[noreturn]] void failToDecode(const std::filesystem::path &cache)
{
    throw std::runtime_error("no thumbnail in " + cache.string());
}

void decodePlainly(const std::filesystem::path &cache, int index, Image &image)
{
    std::array<char, largestRecord> record; // NOLINT: filled or not used
    const int file = open(cache.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t size =
        pread(file, record.data(), record.size(), off_t{index} * format.recordSize);
    close(file);
    if (size != format.recordSize)
        failToDecode(cache);
    const auto rowBytes = static_cast<std::size_t>(format.rowBytes);
    const char *row = record.data();
    char *out = image.data() + bmpHeaderSize + rowBytes * static_cast<std::size_t>(format.rows);
    for (int i = 0; i < format.rows; ++i, row += format.stride) {
        out -= rowBytes;
        std::memcpy(out, row, rowBytes);
    }
    const BmpHeader header = {format.code, format.code, format.statedFileSize,
                              format.statedImageSize};
    writeBmpHeader(header, image.data());
}

} // namespace

void makeThumbCache(const std::filesystem::path &cache, int thumbnails)
{
    std::ofstream out(cache, std::ios::binary);
    for (int i = 0; i < thumbnails; ++i) {
        test::ThumbCacheBuilder record(format.code);
        record.thumbnail(160, 120, [=](int x, int y) {
            return static_cast<std::uint16_t>(((i + x) * 37 + y * 331) % 0x8000);
        });
        out << record.bytes();
    }
    out.flush();
    if (!out)
        throw std::runtime_error("cannot write " + cache.string());
}

void decodeAll(const std::filesystem::path &cache, int thumbnails)
{
    Image image = {};
    for (int i = 0; i < thumbnails; ++i) {
        int width = 0;
        int height = 0;
        int size = 0;
        ios_photo_get_thumb(cache.c_str(), i, image.data(), width, height, size);
        if (size == 0)
            failToDecode(cache);
    }
}

void decodeAllPlainly(const std::filesystem::path &cache, int thumbnails)
{
    Image image = {};
    for (int i = 0; i < thumbnails; ++i)
        decodePlainly(cache, i, image);
}

} // namespace iosphoto::bench
