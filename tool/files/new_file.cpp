#include "files/new_file.h"

#include "files/private_folder.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

NewFile::NewFile(fs::path path, std::optional<std::uint64_t> size)
    : path_(std::move(path)), size_(size)
{
    requireRoom(path_, size.value_or(0));
    out_.open(path_, std::ios::binary | std::ios::trunc);
    std::error_code error;
    fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write, error);
    if (!out_ || error)
        throw cannotWriteCopy(path_, systemError(errno));
}

void requireRoom(const fs::path &file, std::uint64_t bytes)
{
    std::error_code error;
    const fs::space_info room = fs::space(file.parent_path(), error);
    if (!error && bytes > room.available)
        throw cannotWriteCopy(file, translate("{0} bytes are more than there is room for", bytes));
}

bool NewFile::append(std::string_view bytes)
{
    written_ += bytes.size();
    if (size_ && written_ > *size_)
        return false;
    out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out_)
        throw cannotWriteCopy(path_, systemError(errno));
    return true;
}

void NewFile::close(std::int64_t modified)
{
    out_.close();
    if (!out_)
        throw cannotWriteCopy(path_, systemError(errno));
    const timespec time = {static_cast<time_t>(modified), 0};
    const timespec times[] = {time, time};
    if (utimensat(AT_FDCWD, path_.c_str(), times, 0) != 0)
        throw cannotWriteCopy(path_, systemError(errno));
}

} // namespace iosphoto::tool
