#ifndef IOSPHOTO_TOOL_SQLITE_MAGIC_H
#define IOSPHOTO_TOOL_SQLITE_MAGIC_H

#include <filesystem>
#include <string_view>

namespace iosphoto::tool {

/// What every SQLite database that is not empty begins with; the zero byte belongs to it.
inline constexpr std::string_view sqliteMagic("SQLite format 3\0", 16);

/// Whether a file begins so; false where it cannot be read.
bool beginsAsDatabase(const std::filesystem::path &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_MAGIC_H
