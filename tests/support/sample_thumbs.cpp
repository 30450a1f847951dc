#include "support/sample_thumbs.h"

#include "support/little_endian.h"

namespace iosphoto::test {

ThumbPixels differingPixels(int number)
{
    // No row has as many pixels as the factor of y, and 16 bits hold all of them.
    return [number](int x, int y) {
        return static_cast<std::uint16_t>(1 + x + 173 * y + 7919 * number);
    };
}

std::string sampleRecord(int format, ThumbSide side, int number)
{
    return ThumbCacheBuilder(format)
        .thumbnail(side.width, side.height, differingPixels(number))
        .bytes();
}

std::vector<std::string> sampleRecords(int format)
{
    const ThumbSide sides[] = {{100, 80}, {99, 77}, {1, 120}, {120, 1}, {254, 60}};
    std::vector<std::string> records;
    for (const ThumbSide side : sides)
        records.push_back(sampleRecord(format, side, static_cast<int>(records.size())));
    return records;
}

void setTrailerWord(std::string &record, int number, std::uint32_t value)
{
    const std::size_t fromEnd = 12 - 4 * static_cast<std::size_t>(number);
    record.replace(record.size() - fromEnd, 4, littleEndian(value, 4));
}

std::string joined(const std::vector<std::string> &records)
{
    std::string bytes;
    for (const std::string &record : records)
        bytes += record;
    return bytes;
}

} // namespace iosphoto::test
