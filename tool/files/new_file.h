#ifndef IOSPHOTO_TOOL_NEW_FILE_H
#define IOSPHOTO_TOOL_NEW_FILE_H

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

namespace iosphoto::tool {

/// A file for the owner only that is written piece by piece. Its size was stated before by a source
/// that may lie, as an archive does.
class NewFile
{
public:
    /// Throws Failure when a file of that size finds no room.
    /// @param size  nothing when it is not known before
    NewFile(std::filesystem::path path, std::optional<std::uint64_t> size);

    /// False when the file becomes larger than was said. Throws Failure when there is no room.
    bool append(std::string_view bytes);

    std::uint64_t written() const { return written_; }

    /// Whether it has the size that was said.
    bool isComplete() const { return !size_ || written_ == *size_; }

    /// Throws Failure when it could not be written.
    /// @param modified  its time, in seconds since 1970
    void close(std::int64_t modified);

private:
    std::filesystem::path path_;
    std::optional<std::uint64_t> size_;
    std::uint64_t written_ = 0;
    std::ofstream out_;
};

/// Throws Failure when the disk of the file has no room for so many bytes.
void requireRoom(const std::filesystem::path &file, std::uint64_t bytes);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_NEW_FILE_H
