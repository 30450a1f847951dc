#ifndef IOSPHOTO_TOOL_DATABASE_SIZE_H
#define IOSPHOTO_TOOL_DATABASE_SIZE_H

#include <cstdint>
#include <filesystem>
#include <optional>

namespace iosphoto::tool {

/// The sizes of a database of which the end is missing, in bytes.
struct CutDatabase
{
    std::uint64_t size;
    std::uint64_t whole; ///< by its header
};

/// Nothing for a file that is as long as its header says, or whose header does not tell. SQLite
/// itself reads zeros behind the end of one that is cut within its last page.
std::optional<CutDatabase> cutOf(const std::filesystem::path &databaseFile);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DATABASE_SIZE_H
