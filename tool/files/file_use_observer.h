#ifndef IOSPHOTO_TOOL_FILE_USE_OBSERVER_H
#define IOSPHOTO_TOOL_FILE_USE_OBSERVER_H

#include <QByteArray>

#include <cstddef>
#include <filesystem>
#include <vector>

namespace iosphoto::tool {

/// Is told of all that the command reads and writes while it lives. One at a time.
class FileUseObserver
{
public:
    FileUseObserver();
    virtual ~FileUseObserver();
    FileUseObserver(const FileUseObserver &) = delete;
    FileUseObserver &operator=(const FileUseObserver &) = delete;

    /// May throw, and so keep the files from being read. One may be missing.
    virtual void willRead(const std::vector<std::filesystem::path> &files) = 0;
    /// May throw, and so keep the file from being written.
    virtual void willWrite(const std::filesystem::path &file) = 0;
    virtual void wrote(const std::filesystem::path &file, const QByteArray &content) = 0;
    /// The same of a file that was written piece by piece.
    virtual void wroteWhole(const std::filesystem::path &file) = 0;
    /// On standard output.
    virtual void printed(const char *bytes, std::size_t size) = 0;

    /// The one there is, or null.
    static FileUseObserver *current();

    /// To be told by whoever is about to read the files of a source.
    static void announceReading(const std::vector<std::filesystem::path> &files);

protected:
    void stopObserving();
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_USE_OBSERVER_H
