#ifndef IOSPHOTO_TOOL_ARCHIVE_READER_H
#define IOSPHOTO_TOOL_ARCHIVE_READER_H

#include "files/source_reader.h"
#include "input/source_problem.h"

#include <clocale>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#ifdef __APPLE__
#include <xlocale.h>
#endif

struct archive;
struct archive_entry;

namespace iosphoto::tool {

/// Makes the C functions of this thread take texts as UTF-8 while it lives, whatever the user's
/// locale. Without it names in some archives are lost.
class Utf8Locale
{
public:
    Utf8Locale();
    ~Utf8Locale();
    Utf8Locale(const Utf8Locale &) = delete;
    Utf8Locale &operator=(const Utf8Locale &) = delete;

private:
    locale_t utf8_; ///< null where there is none, and then nothing changes
    locale_t before_;
};

/// Reads a zip, tar or 7zip archive from its beginning, one entry after the other. What it holds is
/// not to be trusted: names and sizes may be made up.
class ArchiveReader
{
public:
    /// Throws when the file cannot be read.
    /// @param shownName  the archive as messages show it
    ArchiveReader(const std::filesystem::path &file, std::string shownName);
    ~ArchiveReader();
    ArchiveReader(const ArchiveReader &) = delete;
    ArchiveReader &operator=(const ArchiveReader &) = delete;

    /// Goes to the next entry; false after the last. Throws SourceError when the archive is
    /// damaged.
    bool next();

    /// The path of the entry, as pathInArchive() makes it.
    std::string path() const;
    bool isFile() const;
    bool isLink() const; ///< to a path, which may be anywhere
    /// Whether the content is that of another entry.
    bool isHardLink() const;
    bool isEncrypted() const;
    std::optional<std::uint64_t> size() const;
    std::int64_t modified() const;
    /// Of the whole archive, known with its first entry.
    bool isZip() const;

    /// Writes the content of the entry, which must be a file, to a new file for the owner only.
    /// Throws SourceError when it is damaged, larger than the archive says or than `most` bytes, or
    /// finds no room.
    void copyTo(const std::filesystem::path &target, std::uint64_t most);

private:
    SourceError damaged() const;

    std::string shownName_;
    SourceReader source_;
    Utf8Locale locale_;
    std::unique_ptr<archive, int (*)(archive *)> archive_;
    archive_entry *entry_ = nullptr;
};

/// The path of an entry made of its names, without "." and slashes in front; empty when it leads
/// upwards.
std::string pathInArchive(const std::string &name);

/// Whether a file is an archive, whole or damaged: its content tells, not its name. A database is
/// none. Throws Failure when the file cannot be read.
bool isArchive(const std::filesystem::path &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ARCHIVE_READER_H
