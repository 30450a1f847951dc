#ifndef IOSPHOTO_FUZZ_THUMB_CACHE_H
#define IOSPHOTO_FUZZ_THUMB_CACHE_H

#include <QtEndian>

#include <cstdint>
#include <string>

namespace iosphoto::fuzz {

/// The cache that a run is about.
struct ThumbCache
{
    std::string path;
    std::string bytes; ///< what the file holds

    int size() const { return static_cast<int>(bytes.size()); }

    /// The little-endian word at an offset of the file.
    std::uint32_t word(int offset) const
    {
        return qFromLittleEndian<std::uint32_t>(bytes.data() + offset);
    }

    /// The last word: a number that the fuzzer chooses for whatever takes one.
    int chosenNumber() const { return size() < 4 ? 0 : static_cast<int>(word(size() - 4)); }
};

/// @name Checks
/// Each calls functions on the file and requires that they keep what ithmb.h and ios_photo.h
/// promise.
/// @{
void checkIfile(const ThumbCache &cache);
void checkDetection(const ThumbCache &cache);
void checkCounting(const ThumbCache &cache);
void checkDecoding(const ThumbCache &cache);
/// @}

} // namespace iosphoto::fuzz

#endif // IOSPHOTO_FUZZ_THUMB_CACHE_H
