#ifndef IOSPHOTO_TOOL_FILE_USE_H
#define IOSPHOTO_TOOL_FILE_USE_H

#include "files/file_set.h"

#include <QByteArray>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Is told of all that the command reads and writes.
class FileUseObserver
{
public:
    FileUseObserver() = default;
    virtual ~FileUseObserver() = default;
    FileUseObserver(const FileUseObserver &) = delete;
    FileUseObserver &operator=(const FileUseObserver &) = delete;

    /// May throw, and so keep the files from being read. One may be missing.
    virtual void willRead(const std::vector<std::filesystem::path> &files) = 0;
    /// From standard input.
    virtual void received(const char *bytes, std::size_t size) = 0;
    /// May throw, and so keep the file from being written.
    virtual void willWrite(const std::filesystem::path &file) = 0;
    virtual void wrote(const std::filesystem::path &file, const QByteArray &content) = 0;
    /// The same of a file that was written piece by piece.
    virtual void wroteWhole(const std::filesystem::path &file) = 0;
    /// An input, whose content the command reads in a copy of its own.
    /// @param input  as messages name it
    virtual void decrypted(const std::string &input, const std::filesystem::path &copy) = 0;
    /// On standard output.
    virtual void printed(const char *bytes, std::size_t size) = 0;
};

/// The files that a run of the command reads and writes: keeps outputs away from what is read, and
/// tells an observer of both, if there is one.
class FileUse
{
public:
    FileUse() = default;
    FileUse(const FileUse &) = delete;
    FileUse &operator=(const FileUse &) = delete;

    /// Keeps outputs away from files, be they there or not.
    void protectFiles(const std::vector<std::filesystem::path> &files);
    /// The same for all that is in a folder, or would be.
    void protectFolder(const std::filesystem::path &folder);
    /// Whether an output to `file` would change a source.
    bool isProtected(const std::filesystem::path &file) const;

    /// Says that the files in a folder are the command's own, so that nobody is told of them.
    void passOver(const std::filesystem::path &folder) { ownFolders_.push_back(folder); }

    /// @param observer  has to outlive this, or be taken away before it goes; null takes it away
    void observe(FileUseObserver *observer) { observer_ = observer; }

    /// To be told by whoever is about to read the files of a source, or to write an output.
    void willRead(const std::vector<std::filesystem::path> &files);
    void received(const char *bytes, std::size_t size);
    void willWrite(const std::filesystem::path &file);
    void wrote(const std::filesystem::path &file, const QByteArray &content);
    void wroteWhole(const std::filesystem::path &file);
    void decrypted(const std::string &input, const std::filesystem::path &copy);
    void printed(const char *bytes, std::size_t size);

private:
    bool isInProtectedFolder(const std::filesystem::path &file) const;

    FileSet protectedFiles_;
    FileSet protectedFolders_;
    std::vector<std::filesystem::path> ownFolders_;
    FileUseObserver *observer_ = nullptr;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_USE_H
