#ifndef IOSPHOTO_TOOL_UNFINISHED_FILE_H
#define IOSPHOTO_TOOL_UNFINISHED_FILE_H

#include "failure.h"
#include "output/temporary_path.h"

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

    std::string passingName() const { return passing_.path().string(); }

    void write(const QByteArray &content);

    /// Gives it its name, with the rights of the file that it replaces.
    void finish();

private:
    std::filesystem::path make();
    [[noreturn]] void fail(int error) const;

    std::filesystem::path file_;
    int descriptor_ = -1;
    TemporaryPath passing_; // behind the descriptor that it sets
};

/// That a file cannot be written, and why.
Failure cannotWrite(const std::filesystem::path &file, const std::string &reason);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UNFINISHED_FILE_H
