#ifndef IOSPHOTO_TESTS_ARCHIVE_BUILDER_H
#define IOSPHOTO_TESTS_ARCHIVE_BUILDER_H

#include <cstdint>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>

struct archive;
struct archive_entry;

namespace iosphoto::test {

/// A way to pack files, named as the ending of such files.
struct ArchiveKind
{
    const char *ending;

    std::string name() const { return ending; }
};

inline std::ostream &operator<<(std::ostream &stream, const ArchiveKind &kind)
{
    return stream << kind.ending;
}

constexpr ArchiveKind zip = {"zip"};
constexpr ArchiveKind tar = {"tar"};
constexpr ArchiveKind allArchiveKinds[] = {zip,        tar,         {"tar.gz"}, {"tar.bz2"},
                                           {"tar.xz"}, {"tar.zst"}, {"7z"}};

/// Packs an archive, entry by entry, hostile ones too. It is whole when the builder goes.
class ArchiveBuilder
{
public:
    /// @param password  of all entries; empty for none
    ArchiveBuilder(const std::filesystem::path &file, const ArchiveKind &kind,
                   const std::string &password = "");
    ~ArchiveBuilder();
    ArchiveBuilder(const ArchiveBuilder &) = delete;
    ArchiveBuilder &operator=(const ArchiveBuilder &) = delete;

    ArchiveBuilder &add(const std::string &path, const std::string &content,
                        std::int64_t modified = 1'600'000'000);
    ArchiveBuilder &addHardLink(const std::string &path, const std::string &target);
    ArchiveBuilder &addLink(const std::string &path, const std::string &target);
    /// Adds all files of a folder, with their times, below a path in the archive.
    ArchiveBuilder &addFolder(const std::filesystem::path &folder, const std::string &path = "");

private:
    void write(archive_entry *entry, const std::string &content);

    std::unique_ptr<archive, int (*)(archive *)> archive_;
};

/// Packs a folder. Returns the file, named with the ending of its kind.
std::filesystem::path packed(const std::filesystem::path &folder, const std::filesystem::path &file,
                             const ArchiveKind &kind, const std::string &path = "");

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_ARCHIVE_BUILDER_H
