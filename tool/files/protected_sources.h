#ifndef IOSPHOTO_TOOL_PROTECTED_SOURCES_H
#define IOSPHOTO_TOOL_PROTECTED_SOURCES_H

#include <filesystem>
#include <vector>

namespace iosphoto::tool {

/// Keeps outputs of this command away from files that it reads, be they there or not.
void protectFiles(const std::vector<std::filesystem::path> &files);

/// The same for all that is in a folder, or would be.
void protectFolder(const std::filesystem::path &folder);

/// Whether an output to `file` would change a source.
bool isProtected(const std::filesystem::path &file);

/// Throws Failure when it would.
void requireOutsideOfSources(const std::filesystem::path &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROTECTED_SOURCES_H
