#ifndef IOSPHOTO_TOOL_DISK_SYNC_H
#define IOSPHOTO_TOOL_DISK_SYNC_H

#include <filesystem>
#include <system_error>

namespace iosphoto::tool {

// Each waits until the disk itself has it, so that it is there after a power cut, and tells what
// the disk lost. Where a file system cannot wait, nothing is known to be lost.

/// What was written to an open file, and its permissions.
std::error_code syncFile(int descriptor);

/// The names in a folder.
std::error_code syncFolder(const std::filesystem::path &folder);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_DISK_SYNC_H
