#include "input/tree/archive_reader.h"

#include "files/new_file.h"
#include "files/source_file.h"
#include "files/sqlite_magic.h"
#include "input/tree/file_tree.h"
#include "text/system_error.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

#ifdef __APPLE__
constexpr const char *utf8LocaleName = "en_US.UTF-8";
#else
constexpr const char *utf8LocaleName = "C.UTF-8";
#endif

/// Only what is an archive beyond doubt: a format that takes any file would take a database.
void supportFormats(archive *reader)
{
    archive_read_support_format_zip(reader);
    archive_read_support_format_tar(reader);
    archive_read_support_format_7zip(reader);
}

/// Not those that run another program.
void supportFilters(archive *reader)
{
    archive_read_support_filter_gzip(reader);
    archive_read_support_filter_bzip2(reader);
    archive_read_support_filter_xz(reader);
    archive_read_support_filter_lzma(reader);
    archive_read_support_filter_lzip(reader);
    archive_read_support_filter_lz4(reader);
    archive_read_support_filter_zstd(reader);
    archive_read_support_filter_compress(reader);
}

using Reader = std::unique_ptr<archive, int (*)(archive *)>;

Reader newReader()
{
    Reader reader(archive_read_new(), archive_read_free);
    supportFormats(reader.get());
    supportFilters(reader.get());
    return reader;
}

int open(archive *reader, const fs::path &file, const SourceReader &source)
{
    constexpr std::size_t blockSize = 1 << 16;
    if (!source.isOpen())
        throw mayNotRead(file, systemError(errno));
    return archive_read_open_fd(reader, source.descriptor(), blockSize);
}

} // namespace

Utf8Locale::Utf8Locale()
    : utf8_(newlocale(LC_CTYPE_MASK, utf8LocaleName, nullptr)), before_(uselocale(utf8_))
{
}

Utf8Locale::~Utf8Locale()
{
    uselocale(before_);
    if (utf8_ != nullptr)
        freelocale(utf8_);
}

ArchiveReader::ArchiveReader(const fs::path &file, std::string shownName)
    : shownName_(std::move(shownName)), source_(file), archive_(newReader())
{
    if (open(archive_.get(), file, source_) != ARCHIVE_OK)
        throw damaged();
}

ArchiveReader::~ArchiveReader() = default;

bool ArchiveReader::next()
{
    const int result = archive_read_next_header(archive_.get(), &entry_);
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN && result != ARCHIVE_EOF)
        throw damaged();
    return result != ARCHIVE_EOF;
}

std::string ArchiveReader::path() const
{
    const char *name = archive_entry_pathname_utf8(entry_);
    if (name == nullptr)
        name = archive_entry_pathname(entry_);
    return name != nullptr ? pathInArchive(name) : "";
}

bool ArchiveReader::isFile() const
{
    return archive_entry_filetype(entry_) == AE_IFREG || isHardLink();
}

bool ArchiveReader::isLink() const
{
    return archive_entry_filetype(entry_) == AE_IFLNK && !isHardLink();
}

bool ArchiveReader::isHardLink() const
{
    return archive_entry_hardlink(entry_) != nullptr;
}

bool ArchiveReader::isEncrypted() const
{
    return archive_entry_is_data_encrypted(entry_) != 0;
}

std::optional<std::uint64_t> ArchiveReader::size() const
{
    if (archive_entry_size_is_set(entry_) == 0)
        return std::nullopt;
    return static_cast<std::uint64_t>(std::max<std::int64_t>(0, archive_entry_size(entry_)));
}

std::int64_t ArchiveReader::modified() const
{
    return archive_entry_mtime(entry_);
}

bool ArchiveReader::isZip() const
{
    return (archive_format(archive_.get()) & ARCHIVE_FORMAT_BASE_MASK) == ARCHIVE_FORMAT_ZIP;
}

void ArchiveReader::copyTo(const fs::path &target, std::uint64_t most)
{
    constexpr std::size_t bufferSize = 1 << 16;
    std::array<char, bufferSize> buffer = {};
    NewFile file(target, size());
    la_ssize_t count = 0;
    while ((count = archive_read_data(archive_.get(), buffer.data(), buffer.size())) > 0) {
        requireNotLarger(joinedPath(shownName_, path()),
                         file.written() + static_cast<std::uint64_t>(count), most);
        if (!file.append({buffer.data(), static_cast<std::size_t>(count)}))
            throw damaged();
    }
    if (count < 0 || !file.isComplete())
        throw damaged();
    file.close(modified());
}

SourceError ArchiveReader::damaged() const
{
    if (archive_read_has_encrypted_entries(archive_.get()) == 1)
        return {SourceProblem::EncryptedArchive, {shownName_}};
    if (const char *const reason = archive_error_string(archive_.get()); reason != nullptr)
        return {SourceProblem::DamagedArchiveBecause, {shownName_, reason}};
    return {SourceProblem::DamagedArchive, {shownName_}};
}

std::string pathInArchive(const std::string &name)
{
    std::string result;
    for (std::size_t begin = 0; begin < name.size();) {
        const std::size_t end = std::min(name.find('/', begin), name.size());
        const std::string part = name.substr(begin, end - begin);
        if (part == "..")
            return {};
        if (!part.empty() && part != ".")
            result += (result.empty() ? "" : "/") + part;
        begin = end + 1;
    }
    return result;
}

bool isArchive(const fs::path &file)
{
    if (beginsAsDatabase(file))
        return false;
    const SourceReader source(file);
    const Reader reader = newReader();
    if (open(reader.get(), file, source) == ARCHIVE_OK)
        return true;
    // Without a filter it met a compressed file that is damaged from the start.
    return archive_filter_count(reader.get()) == 0;
}

} // namespace iosphoto::tool
