#include "input/tree/zip_times.h"

#include "files/source_reader.h"
#include "formats/little_endian.h"
#include "input/tree/archive_reader.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

using std::string_view;

/// Where the list of all entries is, which is at the end.
struct Directory
{
    std::uint64_t begin = 0;
    std::uint64_t size = 0;
    std::uint64_t shift = 0; ///< of offsets: the bytes of something else in front of the archive
};

std::uint64_t sizeOf(const SourceReader &file)
{
    struct stat facts = {};
    return fstat(file.descriptor(), &facts) == 0 ? static_cast<std::uint64_t>(facts.st_size) : 0;
}

/// The bytes there, fewer at the end of the file.
std::string bytesAt(const SourceReader &file, std::uint64_t begin, std::uint64_t size)
{
    std::string bytes(static_cast<std::size_t>(size), '\0');
    const ssize_t count =
        pread(file.descriptor(), bytes.data(), bytes.size(), static_cast<off_t>(begin));
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return bytes;
}

/// The number in `size` bytes of a record; 0 beyond its end.
std::uint64_t number(string_view record, std::size_t at, std::size_t size)
{
    return at + size <= record.size() ? littleEndian(record.substr(at, size)) : 0;
}

Directory directoryAt(std::uint64_t end, std::uint64_t size, std::uint64_t offset)
{
    if (size > end || offset > end - size)
        return {};
    return {end - size, size, end - size - offset};
}

/// That of an archive with more than 4 GiB or 65,535 entries.
Directory largeDirectory(const SourceReader &file, string_view locator)
{
    constexpr std::size_t recordSize = 56;
    const std::uint64_t at = number(locator, 8, 8);
    const std::string record = bytesAt(file, at, recordSize);
    if (record.compare(0, 4, "PK\6\6") != 0)
        return {};
    return directoryAt(at, number(record, 40, 8), number(record, 48, 8));
}

Directory findDirectory(const SourceReader &file)
{
    constexpr std::uint64_t mostAtTheEnd = 22 + 65535 + 20; // with a comment, and the locator
    constexpr std::size_t locatorSize = 20;
    const std::uint64_t size = sizeOf(file);
    const std::uint64_t begin = size - std::min(size, mostAtTheEnd);
    const std::string end = bytesAt(file, begin, size - begin);
    const std::size_t at = end.rfind("PK\5\6");
    if (at == std::string::npos)
        return {};
    const string_view before =
        string_view(end).substr(at - std::min(at, locatorSize), std::min(at, locatorSize));
    if (before.substr(0, 4) == "PK\6\7")
        return largeDirectory(file, before);
    const string_view record = string_view(end).substr(at);
    return directoryAt(begin + at, number(record, 12, 4), number(record, 16, 4));
}

/// Looks up a field in those behind an entry's name: its content.
std::optional<string_view> extraField(string_view fields, std::uint64_t id)
{
    while (fields.size() >= 4) {
        const std::uint64_t itsId = number(fields, 0, 2);
        const std::size_t size = static_cast<std::size_t>(number(fields, 2, 2));
        fields.remove_prefix(4);
        if (size > fields.size())
            return std::nullopt;
        if (itsId == id)
            return fields.substr(0, size);
        fields.remove_prefix(size);
    }
    return std::nullopt;
}

/// The place of an entry, which stands in the list or, beyond 4 GiB, in a field of it.
std::uint64_t placeOf(string_view record, string_view fields)
{
    constexpr std::uint64_t isInField = 0xffffffff;
    const std::uint64_t place = number(record, 42, 4);
    const auto large = place == isInField ? extraField(fields, 1) : std::nullopt;
    if (!large)
        return place;
    const std::size_t sizes = (number(record, 24, 4) == isInField ? 8U : 0U) +
                              (number(record, 20, 4) == isInField ? 8U : 0U);
    return number(*large, sizes, 8);
}

std::optional<std::uint64_t> findEntry(string_view directory, const std::string &path)
{
    constexpr std::size_t recordSize = 46;
    while (directory.size() >= recordSize && directory.substr(0, 4) == "PK\1\2") {
        const auto nameSize = static_cast<std::size_t>(number(directory, 28, 2));
        const auto extraSize = static_cast<std::size_t>(number(directory, 30, 2));
        const auto commentSize = static_cast<std::size_t>(number(directory, 32, 2));
        const std::size_t size = recordSize + nameSize + extraSize + commentSize;
        if (size > directory.size())
            return std::nullopt;
        if (pathInArchive(std::string(directory.substr(recordSize, nameSize))) == path)
            return placeOf(directory, directory.substr(recordSize + nameSize, extraSize));
        directory.remove_prefix(size);
    }
    return std::nullopt;
}

bool hasUtcTime(string_view fields)
{
    constexpr std::uint64_t times = 0x5455;
    constexpr std::uint64_t oldTimes = 0x5855;
    constexpr unsigned ofChange = 1;
    const auto found = extraField(fields, times);
    return (found && (number(*found, 0, 1) & ofChange) != 0) || extraField(fields, oldTimes);
}

} // namespace

bool hasZonedTime(const std::filesystem::path &zip, const std::string &path)
{
    constexpr std::uint64_t largest = std::uint64_t{512} * 1024 * 1024;
    constexpr std::size_t headerSize = 30;
    const SourceReader file(zip);
    const Directory directory = file.isOpen() ? findDirectory(file) : Directory();
    if (directory.size == 0 || directory.size > largest)
        return false;
    const auto place = findEntry(bytesAt(file, directory.begin, directory.size), path);
    if (!place)
        return false;
    const std::uint64_t at = *place + directory.shift;
    const std::string header = bytesAt(file, at, headerSize);
    const std::uint64_t fieldsAt = at + headerSize + number(header, 26, 2);
    return header.compare(0, 4, "PK\3\4") == 0 &&
           hasUtcTime(bytesAt(file, fieldsAt, number(header, 28, 2)));
}

} // namespace iosphoto::tool
