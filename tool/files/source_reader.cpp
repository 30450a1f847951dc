#include "files/source_reader.h"

#include "unnoticed_open.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace iosphoto::tool {

SourceReader::SourceReader(const std::filesystem::path &file)
    : descriptor_(openUnnoticed(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
{
}

SourceReader::~SourceReader()
{
    if (isOpen())
        close(descriptor_);
}

ssize_t SourceReader::read(char *bytes, std::size_t size) const
{
    return readDescriptor(descriptor_, bytes, size);
}

ssize_t readDescriptor(int descriptor, char *bytes, std::size_t size)
{
    ssize_t count = 0;
    do
        count = ::read(descriptor, bytes, size);
    while (count < 0 && errno == EINTR);
    return count;
}

} // namespace iosphoto::tool
