#ifndef IOSPHOTO_TOOL_OUTPUT_FILE_H
#define IOSPHOTO_TOOL_OUTPUT_FILE_H

#include <QByteArray>

#include <filesystem>
#include <vector>

namespace iosphoto::tool {

/// Writes a file whole or not at all: one that was there before is replaced at the end,
/// keeping its rights; a link is followed.
///
/// Throws Failure when it cannot be written, and when `file` is a source, which is never changed.
void writeOutput(const std::filesystem::path &file, const QByteArray &content,
                 const std::vector<std::filesystem::path> &sources);
void writeOutput(const std::filesystem::path &file, const QByteArray &content,
                 const std::filesystem::path &source);

/// Throws Failure where writeOutput() would, as far as can be told before.
void requireWritable(const std::filesystem::path &file,
                     const std::vector<std::filesystem::path> &sources);

/// Whether two paths name one file, be it there or not.
bool isSameFile(const std::filesystem::path &one, const std::filesystem::path &other);

/// Throws Failure when an output `file` is `source`, which is never changed.
void requireOther(const std::filesystem::path &file, const std::filesystem::path &source);

/// Makes a folder for output, with those above it. Throws Failure when that cannot be done.
void makeOutputFolder(const std::filesystem::path &folder);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OUTPUT_FILE_H
