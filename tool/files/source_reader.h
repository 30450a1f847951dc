#ifndef IOSPHOTO_TOOL_SOURCE_READER_H
#define IOSPHOTO_TOOL_SOURCE_READER_H

#include <cstddef>
#include <filesystem>
#include <sys/types.h>

namespace iosphoto::tool {

/// A file of a source, open for reading so that it is not noticed, where the system allows that.
class SourceReader
{
public:
    /// errno says why it is not open then. A pipe without a writer does not keep it waiting.
    explicit SourceReader(const std::filesystem::path &file);
    ~SourceReader();
    SourceReader(const SourceReader &) = delete;
    SourceReader &operator=(const SourceReader &) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }

    /// The number of bytes read: 0 at the end, negative after an error, which errno tells.
    ssize_t read(char *bytes, std::size_t size) const;

private:
    int descriptor_;
};

/// read(2), begun again when a signal interrupts it.
ssize_t readDescriptor(int descriptor, char *bytes, std::size_t size);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SOURCE_READER_H
