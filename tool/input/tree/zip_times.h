#ifndef IOSPHOTO_TOOL_ZIP_TIMES_H
#define IOSPHOTO_TOOL_ZIP_TIMES_H

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// Whether a zip archive has the time of an entry in UTC. Each entry has a local time without a
/// zone; many programs add the other in an extra field, which is the one that libarchive takes
/// then. False where that cannot be found out.
/// @param path  as pathInArchive() makes it
bool hasZonedTime(const std::filesystem::path &zip, const std::string &path);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ZIP_TIMES_H
