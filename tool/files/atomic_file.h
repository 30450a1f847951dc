#ifndef IOSPHOTO_TOOL_ATOMIC_FILE_H
#define IOSPHOTO_TOOL_ATOMIC_FILE_H

#include "files/owner_lock.h"
#include "process/failure.h"
#include "process/temporary_path.h"

#include <QByteArray>

#include <filesystem>
#include <string>
#include <system_error>

namespace iosphoto::tool {

/// A file under a temporary name beside the one that it becomes. It is removed with the object
/// unless it was finished.
/// Throws Failure when the disk does not let it.
class AtomicFile
{
public:
    explicit AtomicFile(const std::filesystem::path &file);
    ~AtomicFile();
    AtomicFile(const AtomicFile &) = delete;
    AtomicFile &operator=(const AtomicFile &) = delete;

    std::string temporaryName() const { return temporary_.path().string(); }

    void write(const QByteArray &content);

    /// Gives it its name, with the permissions of the file that it replaces. A power cut does not
    /// undo that.
    void finish();

    /// The same for one of many in a folder, which has to be synced after the last of them.
    void finishInFolder();

private:
    std::filesystem::path make();
    void throwIf(const std::error_code &error) const;
    [[noreturn]] void fail(int error) const;

    std::filesystem::path file_;
    int descriptor_ = -1;
    Descriptor lock_;         // goes after the file
    TemporaryPath temporary_; // behind the descriptor that it sets
};

/// Removes what runs of this user left in a folder that were killed before they had written a file.
void removeUnfinishedFiles(const std::filesystem::path &folder);

/// That a file cannot be written, and why.
Failure cannotWrite(const std::filesystem::path &file, const std::error_code &error);
Failure cannotWrite(const std::filesystem::path &file, const std::string &reason);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ATOMIC_FILE_H
