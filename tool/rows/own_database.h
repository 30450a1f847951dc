#ifndef IOSPHOTO_TOOL_OWN_DATABASE_H
#define IOSPHOTO_TOOL_OWN_DATABASE_H

#include <cstdint>
#include <filesystem>

namespace iosphoto::tool {

/// SQLite's application_id of the databases that the tool writes: "iPho".
constexpr std::int32_t ownApplicationId = 0x6950686F;

/// Throws Failure when there is a file that the tool did not write, so that nobody loses one, or
/// one that is in use.
void checkMayReplace(const std::filesystem::path &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OWN_DATABASE_H
