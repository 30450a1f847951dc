#include "sqlite/write_ahead_log.h"

#include "formats/big_endian.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace iosphoto::tool {

namespace {

constexpr std::size_t headerSize = 32;
constexpr std::size_t frameHeaderSize = 24;

std::uint32_t bigEndian(std::string_view bytes, std::size_t at)
{
    return static_cast<std::uint32_t>(tool::bigEndian(bytes.substr(at, sizeof(std::uint32_t))));
}

std::uint32_t littleEndian(std::string_view bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = sizeof value; i > 0; --i)
        value = value << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
    return value;
}

/// The sum that goes on from the header through all frames.
class Checksum
{
public:
    explicit Checksum(bool isBigEndian) : word_(isBigEndian ? bigEndian : littleEndian) {}

    void add(std::string_view bytes)
    {
        for (std::size_t at = 0; at + 8 <= bytes.size(); at += 8) {
            first_ += word_(bytes, at) + second_;
            second_ += word_(bytes, at + 4) + first_;
        }
    }

    bool isAt(std::string_view bytes, std::size_t at) const
    {
        return bigEndian(bytes, at) == first_ && bigEndian(bytes, at + 4) == second_;
    }

private:
    std::uint32_t (*word_)(std::string_view, std::size_t);
    std::uint32_t first_ = 0;
    std::uint32_t second_ = 0;
};

/// Shorter where the file ends before.
std::string read(std::istream &file, std::size_t size)
{
    std::string bytes(size, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

bool isPageSize(std::uint32_t size)
{
    constexpr std::uint32_t smallest = 512;
    constexpr std::uint32_t largest = 65536;
    return size >= smallest && size <= largest && (size & (size - 1)) == 0;
}

/// Whether the first frame is whole. One that is cut short was still being written, and one with
/// another salt is left over from before the log was begun anew.
bool isFrameWhole(std::string_view frame, std::string_view header, Checksum sum)
{
    constexpr std::size_t salt = 16;
    constexpr std::size_t frameSalt = 8;
    constexpr std::size_t saltSize = 8;
    if (frame.size() < frameHeaderSize + bigEndian(header, 8) ||
        frame.substr(frameSalt, saltSize) != header.substr(salt, saltSize))
        return true;
    sum.add(frame.substr(0, frameSalt));
    sum.add(frame.substr(frameHeaderSize));
    return sum.isAt(frame, frameSalt + saltSize);
}

} // namespace

bool isWriteAheadLog(const std::filesystem::path &file)
{
    constexpr std::uint32_t magic = 0x377f0682;
    std::ifstream in(file, std::ios::binary);
    const std::string header = read(in, headerSize);
    if (header.size() < headerSize || (bigEndian(header, 0) & ~1U) != magic ||
        !isPageSize(bigEndian(header, 8)))
        return false;
    Checksum sum((bigEndian(header, 0) & 1U) != 0);
    constexpr std::size_t sumAt = 24;
    sum.add(std::string_view(header).substr(0, sumAt));
    return sum.isAt(header, sumAt) &&
           isFrameWhole(read(in, frameHeaderSize + bigEndian(header, 8)), header, sum);
}

} // namespace iosphoto::tool
