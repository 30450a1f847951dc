#include "files/consistent_copy.h"

#include "files/file_clone.h"
#include "files/file_stamp.h"
#include "files/new_file.h"
#include "files/private_folder.h"
#include "files/source_file.h"
#include "files/source_reader.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The system notes the time of a change in steps of some milliseconds. Of a file that changed just
/// now, the next change could have the same time and go unnoticed.
constexpr std::chrono::milliseconds settlingTime(20);

/// Throws std::system_error.
[[noreturn]] void fail(int error)
{
    throw std::system_error(error, std::generic_category());
}

/// Copies what is left of an open file, a piece at a time.
void copyContent(const SourceReader &from, int to)
{
    constexpr std::size_t pieceSize = std::size_t{1024} * 1024;
    std::vector<char> piece(pieceSize);
    for (;;) {
        const ssize_t size = from.read(piece.data(), piece.size());
        if (size < 0)
            fail(errno);
        if (size == 0)
            return;
        for (ssize_t written = 0; written < size;) {
            const ssize_t step =
                write(to, piece.data() + written, static_cast<std::size_t>(size - written));
            if (step < 0 && errno != EINTR)
                fail(errno);
            written += std::max<ssize_t>(step, 0);
        }
    }
}

void writeCopy(const SourceReader &from, const fs::path &to)
{
    const int copy = open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (copy < 0)
        fail(errno);
    try {
        copyContent(from, copy);
    } catch (...) {
        close(copy);
        throw;
    }
    if (close(copy) != 0)
        fail(errno);
}

void keepTime(const struct stat &original, const fs::path &copy)
{
    const timespec times[] = {modifiedAt(original), modifiedAt(original)};
    if (utimensat(AT_FDCWD, copy.c_str(), times, 0) != 0)
        fail(errno);
}

void copyFile(const Copy &file)
{
    std::error_code error;
    if (!fs::is_regular_file(file.from, error))
        throw cannotRead(file.from, error ? systemError(error.value())
                                          : translate("it is not a file; name a file"));
    const SourceReader from(file.from);
    struct stat facts = {};
    if (!from.isOpen() || fstat(from.descriptor(), &facts) != 0)
        throw mayNotRead(file.from, systemError(errno));
    try {
        if (!cloneFile(from.descriptor(), file.to)) {
            // Copying does not tell a full disk from a failing one.
            requireRoom(file.to, static_cast<std::uint64_t>(facts.st_size));
            writeCopy(from, file.to);
        }
        keepTime(facts, file.to);
    } catch (const std::system_error &failed) {
        throw cannotCopy(file.from, file.to.parent_path(), systemError(failed.code().value()));
    }
}

std::vector<FileStamp> stampsOf(const std::vector<Copy> &files)
{
    std::vector<FileStamp> stamps;
    stamps.reserve(files.size());
    for (const Copy &file : files)
        stamps.emplace_back(file.from);
    return stamps;
}

void copyExisting(const std::vector<Copy> &files, const std::vector<FileStamp> &stamps)
{
    for (std::size_t i = 0; i < files.size(); ++i) {
        std::error_code ignored;
        fs::remove(files[i].to, ignored); // of an earlier try
        if (stamps[i].exists)
            copyFile(files[i]);
    }
}

bool changedJustNow(const std::vector<FileStamp> &stamps)
{
    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return std::any_of(stamps.begin(), stamps.end(), [&](const FileStamp &stamp) {
        const auto age = now - std::chrono::nanoseconds(stamp.changed);
        return stamp.exists && age.count() >= 0 && age < settlingTime;
    });
}

/// Whether the copies are of one moment.
bool copyOnce(const std::vector<Copy> &files, const std::function<void()> &wait)
{
    if (changedJustNow(stampsOf(files)))
        wait();
    const std::vector<FileStamp> before = stampsOf(files);
    if (changedJustNow(before))
        return false;
    try {
        copyExisting(files, before);
    } catch (const Failure &) {
        if (stampsOf(files) == before)
            throw;
    }
    return stampsOf(files) == before;
}

} // namespace

void waitUntilSettled()
{
    std::this_thread::sleep_for(settlingTime);
}

void copyConsistently(const std::vector<Copy> &files, const std::function<void()> &wait)
{
    constexpr int tries = 3;
    for (int i = 0; i < tries; ++i)
        if (copyOnce(files, wait))
            return;
    throw Failure(CannotAccess,
                  translate("'{0}' changes while it is copied; close what writes to it, "
                            "or copy it with its -wal first",
                            files.front().from.string()));
}

} // namespace iosphoto::tool
