#include "input/backup/manifest_mbdb.h"

#include "formats/big_endian.h"
#include "input/backup/stored_names.h"

#include <array>
#include <fstream>

namespace iosphoto::tool {

namespace {

constexpr std::array<char, 6> magic = {'m', 'b', 'd', 'b', 5, 0};

/// Reads the numbers and texts of the format, the most significant byte first. At the end of the
/// file they are zero and empty, and isCutOff().
class MbdbStream
{
public:
    explicit MbdbStream(const std::filesystem::path &file) : in_(file, std::ios::binary) {}

    bool hasMagic()
    {
        std::array<char, magic.size()> begin = {};
        in_.read(begin.data(), begin.size());
        return in_ && begin == magic;
    }
    bool isAtEnd() { return in_.peek() == std::ifstream::traits_type::eof(); }
    bool isCutOff() const { return in_.fail(); }

    std::uint64_t number(int bytes)
    {
        std::array<char, sizeof(std::uint64_t)> digits = {};
        in_.read(digits.data(), bytes);
        return in_ ? bigEndian({digits.data(), static_cast<std::size_t>(bytes)}) : 0;
    }

    std::string text()
    {
        constexpr std::uint64_t none = 0xffff;
        const std::uint64_t size = number(2);
        std::string value(size == none ? 0 : size, '\0');
        in_.read(value.data(), static_cast<std::streamsize>(value.size()));
        return value;
    }

    void skip(int bytes)
    {
        // Unlike seeking, this notices the end.
        for (int i = 0; i < bytes; ++i)
            in_.get();
    }

private:
    std::ifstream in_;
};

struct Record
{
    std::string domain;
    std::string path;
    unsigned mode;
    FileRecord file;
};

Record readRecord(MbdbStream &stream)
{
    Record record;
    record.domain = stream.text();
    record.path = stream.text();
    stream.text(); // target of a link
    stream.text(); // hash of the content
    const std::string key = stream.text();
    record.mode = static_cast<unsigned>(stream.number(2));
    constexpr int inode = 8;
    constexpr int owner = 4 + 4;
    constexpr int times = 3 * 4;
    stream.skip(inode + owner + times);
    record.file.size = static_cast<std::int64_t>(stream.number(8));
    const auto protectionClass = static_cast<std::uint32_t>(stream.number(1));
    if (!key.empty())
        record.file.key = {protectionClass, readWrappedKey(key).bytes};
    for (std::uint64_t properties = stream.number(1); properties > 0; --properties) {
        stream.text();
        stream.text();
    }
    return record;
}

bool isFile(const Record &record)
{
    constexpr unsigned typeMask = 0170000;
    constexpr unsigned regular = 0100000;
    return (record.mode & typeMask) == regular;
}

} // namespace

ManifestMbdb::ManifestMbdb(const std::filesystem::path &file, const std::string &shownName)
{
    MbdbStream stream(file);
    if (!stream.hasMagic())
        throw SourceError(SourceProblem::IndexIsSomethingElse, {shownName});
    while (!stream.isAtEnd()) {
        Record record = readRecord(stream);
        if (stream.isCutOff())
            throw SourceError(SourceProblem::IndexIsCutShort, {shownName});
        if (record.domain == mediaDomain && isFile(record))
            files_.emplace(std::move(record.path), std::move(record.file));
    }
}

std::optional<std::string> ManifestMbdb::locate(const std::string &mediaPath) const
{
    if (files_.count(pathInDomain(mediaPath)) == 0)
        return std::nullopt;
    return storedName(mediaPath);
}

std::optional<FileRecord> ManifestMbdb::record(const std::string &mediaPath) const
{
    const auto found = files_.find(pathInDomain(mediaPath));
    return found != files_.end() ? std::make_optional(found->second) : std::nullopt;
}

std::vector<std::string> ManifestMbdb::storedFiles() const
{
    std::vector<std::string> files;
    const std::string media = pathInDomain("");
    for (const auto &[path, file] : files_)
        if (path.rfind(media, 0) == 0)
            files.push_back(storedName(path.substr(media.size())));
    return files;
}

} // namespace iosphoto::tool
