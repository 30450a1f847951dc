#include "ithmb/ithmb.h"
#include "unnoticed_open.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>

namespace {

/// Opens a file as fopen(path, "rb") would, if it is a regular one: opening a pipe could wait for
/// ever, and a folder opens but cannot be read.
std::FILE *openRegularFile(char const *path)
{
    if (path == nullptr)
        return nullptr;
    const int descriptor = iosphoto::openUnnoticed(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    struct stat status = {};
    std::FILE *handle = nullptr;
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        handle = fdopen(descriptor, "rb");
    if (handle == nullptr)
        close(descriptor);
    return handle;
}

} // namespace

ifile::ifile(char const *path) : handle_(openRegularFile(path))
{
    // Records are far apart: a buffer would be filled with what nobody asked for.
    if (handle_ != nullptr)
        std::setvbuf(handle_, nullptr, _IONBF, 0);
}

ifile::~ifile()
{
    close();
}

bool ifile::is_open() const
{
    return handle_ != nullptr;
}

int ifile::seekg(long offset)
{
    return handle_ != nullptr ? std::fseek(handle_, offset, SEEK_SET) : -1;
}

bool ifile::read(char *buffer, int count)
{
    if (handle_ == nullptr || buffer == nullptr || count < 0)
        return false;
    const auto wanted = static_cast<std::size_t>(count);
    return std::fread(buffer, 1, wanted, handle_) == wanted;
}

long ifile::getlength()
{
    if (handle_ == nullptr || std::fseek(handle_, 0, SEEK_END) != 0)
        return -1;
    const long length = std::ftell(handle_);
    std::rewind(handle_);
    return length;
}

int ifile::close()
{
    std::FILE *const handle = std::exchange(handle_, nullptr);
    return handle != nullptr ? std::fclose(handle) : 0;
}
