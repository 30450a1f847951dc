#include "support/archive_builder.h"

#include "support/temporary_folder.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <stdexcept>

namespace iosphoto::test {

namespace fs = std::filesystem;

namespace {

using Entry = std::unique_ptr<archive_entry, void (*)(archive_entry *)>;

Entry newEntry(const std::string &path, std::int64_t modified)
{
    constexpr int readable = 0644;
    Entry entry(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname(entry.get(), path.c_str());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), readable);
    archive_entry_set_mtime(entry.get(), modified, 0);
    return entry;
}

std::int64_t modificationTime(const fs::path &file)
{
    struct stat facts = {};
    stat(file.c_str(), &facts);
    return facts.st_mtime;
}

} // namespace

ArchiveBuilder::ArchiveBuilder(const fs::path &file, const ArchiveKind &kind,
                               const std::string &password)
    : archive_(archive_write_new(), archive_write_free)
{
    if (kind.name() == "tar.zst") { // not known by its ending
        archive_write_add_filter_zstd(archive_.get());
        archive_write_set_format_pax_restricted(archive_.get());
    } else {
        archive_write_set_format_filter_by_ext(archive_.get(), ("x." + kind.name()).c_str());
    }
    if (!password.empty()) {
        archive_write_set_options(archive_.get(), "zip:encryption=traditional");
        archive_write_set_passphrase(archive_.get(), password.c_str());
    }
    if (archive_write_open_filename(archive_.get(), file.c_str()) != ARCHIVE_OK)
        throw std::runtime_error(archive_error_string(archive_.get()));
}

ArchiveBuilder::~ArchiveBuilder() = default;

void ArchiveBuilder::write(archive_entry *entry, const std::string &content)
{
    if (archive_write_header(archive_.get(), entry) < ARCHIVE_WARN ||
        archive_write_data(archive_.get(), content.data(), content.size()) < 0)
        throw std::runtime_error(archive_error_string(archive_.get()));
}

ArchiveBuilder &ArchiveBuilder::add(const std::string &path, const std::string &content,
                                    std::int64_t modified)
{
    const Entry entry = newEntry(path, modified);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(content.size()));
    write(entry.get(), content);
    return *this;
}

ArchiveBuilder &ArchiveBuilder::addHardLink(const std::string &path, const std::string &target)
{
    const Entry entry = newEntry(path, 0);
    archive_entry_set_hardlink(entry.get(), target.c_str());
    write(entry.get(), "");
    return *this;
}

ArchiveBuilder &ArchiveBuilder::addLink(const std::string &path, const std::string &target)
{
    const Entry entry = newEntry(path, 0);
    archive_entry_set_filetype(entry.get(), AE_IFLNK);
    archive_entry_set_symlink(entry.get(), target.c_str());
    write(entry.get(), "");
    return *this;
}

ArchiveBuilder &ArchiveBuilder::addFolder(const fs::path &folder, const std::string &path)
{
    for (const auto &file : fs::recursive_directory_iterator(folder))
        if (file.is_regular_file())
            add((fs::path(path) / fs::relative(file.path(), folder)).string(),
                readFile(file.path()), modificationTime(file.path()));
    return *this;
}

fs::path packed(const fs::path &folder, const fs::path &file, const ArchiveKind &kind,
                const std::string &path)
{
    const fs::path archive = file.string() + "." + kind.ending;
    ArchiveBuilder(archive, kind).addFolder(folder, path);
    return archive;
}

} // namespace iosphoto::test
