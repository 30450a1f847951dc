#ifndef IOSPHOTO_TESTS_SAMPLE_THUMBS_H
#define IOSPHOTO_TESTS_SAMPLE_THUMBS_H

#include "support/thumb_cache_builder.h"

#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::test {

/// The size that a record's trailer states.
struct ThumbSide
{
    std::uint32_t width;
    std::uint32_t height;

    std::string name() const { return std::to_string(width) + "x" + std::to_string(height); }
};

inline std::ostream &operator<<(std::ostream &stream, const ThumbSide &side)
{
    return stream << side.name();
}

/// Pixels none of which is like another of its picture, nor like that at its place in the pictures
/// of other numbers.
ThumbPixels differingPixels(int number);

/// A record of differing pixels.
std::string sampleRecord(int format, ThumbSide side, int number = 0);

/// Records that differ in their pixels and in the size that they state, which is decodable in every
/// format.
std::vector<std::string> sampleRecords(int format);

/// Replaces one of the three words at the end of a record: 0 is the width, 1 the height.
void setTrailerWord(std::string &record, int number, std::uint32_t value);

std::string joined(const std::vector<std::string> &records);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SAMPLE_THUMBS_H
