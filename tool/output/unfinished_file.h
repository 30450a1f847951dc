#ifndef IOSPHOTO_TOOL_UNFINISHED_FILE_H
#define IOSPHOTO_TOOL_UNFINISHED_FILE_H

#include "failure.h"

#include <QByteArray>

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// A file under a passing name beside the one that it becomes. Gone with the object otherwise.
/// Throws Failure when the disk does not let it.
class UnfinishedFile
{
public:
    explicit UnfinishedFile(const std::filesystem::path &file);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;

    const std::string &passingName() const { return name_; }

    void write(const QByteArray &content);

    /// Gives it its name, with the rights of the file that it replaces.
    void finish();

private:
    [[noreturn]] void fail() const;

    std::filesystem::path file_;
    std::string name_;
    int descriptor_ = -1;
};

/// That a file cannot be written, and why.
Failure cannotWrite(const std::filesystem::path &file, const std::string &reason);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UNFINISHED_FILE_H
