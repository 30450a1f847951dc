#include "sqlite/database_size.h"

#include "files/sqlite_magic.h"
#include "formats/big_endian.h"

#include <array>
#include <fstream>
#include <string_view>

namespace iosphoto::tool {

namespace {

/// The bytes that a database has by its header; nothing where that is cut off itself.
std::optional<std::uint64_t> wholeSize(const std::filesystem::path &databaseFile)
{
    constexpr std::size_t headerSize = 100;
    std::array<char, headerSize> header = {};
    std::ifstream(databaseFile, std::ios::binary).read(header.data(), header.size());
    const std::string_view bytes(header.data(), header.size());
    const std::uint64_t pageSize = bigEndian(bytes.substr(16, 2));
    constexpr std::uint64_t largestPage = 65536; // written as 1
    const std::uint64_t pages = bigEndian(bytes.substr(28, 4));
    // Versions that do not keep the number of pages leave the second counter behind.
    const bool isCurrent = bytes.substr(24, 4) == bytes.substr(92, 4);
    const bool isHeader = bytes.substr(0, sqliteMagic.size()) == sqliteMagic;
    return isHeader && isCurrent && pages > 0
               ? std::make_optional(pages * (pageSize == 1 ? largestPage : pageSize))
               : std::nullopt;
}

} // namespace

std::optional<CutDatabase> cutOf(const std::filesystem::path &databaseFile)
{
    std::error_code error;
    const std::uint64_t size = std::filesystem::file_size(databaseFile, error);
    const std::optional<std::uint64_t> whole = wholeSize(databaseFile);
    if (error || !whole || size >= *whole)
        return std::nullopt;
    return CutDatabase{size, *whole};
}

} // namespace iosphoto::tool
