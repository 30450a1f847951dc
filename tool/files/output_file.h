#ifndef IOSPHOTO_TOOL_OUTPUT_FILE_H
#define IOSPHOTO_TOOL_OUTPUT_FILE_H

#include "files/file_use.h"

#include <QByteArray>

#include <filesystem>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Writes a file whole or not at all: one that was there before is replaced at the end,
/// keeping its rights; a link is followed.
///
/// Throws Failure when it cannot be written, and when `file` is `source` or protected, which is
/// never changed.
void writeOutput(FileUse &files, const std::filesystem::path &file, const QByteArray &content,
                 const std::filesystem::path &source);

/// Where the output `file` goes: itself, or what it links to. Throws Failure when it is a folder,
/// not a file, or `source` or protected.
std::filesystem::path outputPlace(FileUse &files, const std::filesystem::path &file,
                                  const std::filesystem::path &source);

/// That an output would take the place of a file.
struct FileIsThere
{
    std::filesystem::path file;
};

/// Throws FileIsThere where writeOutput() would replace something, be it a link to nowhere, and
/// Failure where it would not.
void requireNew(const FileUse &files, const std::filesystem::path &file,
                const std::filesystem::path &source);

/// Throws Failure where writeOutput() would, as far as can be told before.
void requireWritable(const std::filesystem::path &file);

/// Throws Failure when an output `file` is one of the sources.
void requireOther(const std::filesystem::path &file, const FileSet &sources);

/// Throws Failure when an output `file` would change a source.
void requireUnprotected(const FileUse &files, const std::filesystem::path &file);

/// A folder for many outputs, which is synced once: that takes as long as to write one of them.
class OutputFolder
{
public:
    /// Makes it, with those above it. Throws Failure when that cannot be done.
    explicit OutputFolder(const std::filesystem::path &folder);

    /// As writeOutput() does, but for what a power cut may undo before finish().
    void write(FileUse &files, const std::string &name, const QByteArray &content,
               const std::filesystem::path &source) const;

    void finish() const;

private:
    std::filesystem::path folder_;
    std::vector<std::filesystem::path> changed_; ///< the folders in which names are new
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OUTPUT_FILE_H
