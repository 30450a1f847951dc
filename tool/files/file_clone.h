#ifndef IOSPHOTO_TOOL_FILE_CLONE_H
#define IOSPHOTO_TOOL_FILE_CLONE_H

#include <filesystem>

namespace iosphoto::tool {

/// Makes a new file, for the owner only, that shares its blocks with an open one until either is
/// written to. False, and nothing is made, where the file system has no such files.
/// @param from  a descriptor
bool cloneFile(int from, const std::filesystem::path &to);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_CLONE_H
