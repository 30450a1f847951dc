#ifndef IOSPHOTO_TOOL_SOURCE_FILE_H
#define IOSPHOTO_TOOL_SOURCE_FILE_H

#include "process/failure.h"

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// What the user named, with links resolved. Throws Failure when nothing is there.
std::filesystem::path resolved(const std::filesystem::path &path);

/// A file that the user named, with links resolved. Throws Failure when nothing is there, or
/// something else than a file.
/// @param toName  what to name instead of a folder, such as "the database in it"
std::filesystem::path sourceFile(const std::filesystem::path &path, const std::string &toName);

/// Throws Failure when this user may not read the file.
void requireReadable(const std::filesystem::path &file);

/// For a file or folder that the system keeps from us.
Failure cannotRead(const std::filesystem::path &file, const std::string &reason);
Failure mayNotRead(const std::filesystem::path &file, const std::string &reason);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SOURCE_FILE_H
