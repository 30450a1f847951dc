#ifndef IOSPHOTO_TOOL_NEW_FILE_H
#define IOSPHOTO_TOOL_NEW_FILE_H

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

namespace iosphoto::tool {

/// A file for the owner only that is written piece by piece, by somebody whose word about its size
/// need not be true.
class NewFile
{
public:
    /// Throws Failure when a file of that size finds no room.
    /// @param size  nothing when it is not known before
    NewFile(std::filesystem::path path, std::optional<std::uint64_t> size);

    /// False when the file becomes larger than was said. Throws Failure when there is no room.
    bool append(std::string_view bytes);

    /// Whether it has the size that was said.
    bool isComplete() const { return !size_ || written_ == *size_; }

    /// Throws Failure when it could not be written.
    /// @param modified  its time, in seconds since 1970
    void close(std::int64_t modified);

private:
    void requireRoom(std::uint64_t bytes) const;

    std::filesystem::path path_;
    std::optional<std::uint64_t> size_;
    std::uint64_t written_ = 0;
    std::ofstream out_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_NEW_FILE_H
