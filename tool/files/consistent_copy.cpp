#include "files/consistent_copy.h"

#include "files/file_stamp.h"
#include "files/new_file.h"
#include "files/private_folder.h"
#include "files/source_file.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The system notes the time of a change in steps of some milliseconds. Of a file that changed just
/// now, the next change could have the same time and go unnoticed.
constexpr std::chrono::milliseconds settlingTime(20);

void copyFile(const Copy &file)
{
    std::error_code error;
    if (!fs::is_regular_file(file.from, error)) // a pipe would keep us waiting
        throw cannotRead(file.from, error ? systemError(error.value())
                                          : translate("it is not a file; name a file"));
    requireReadable(file.from);
    if (const auto size = fs::file_size(file.from, error); !error)
        requireRoom(file.to, size); // copying does not tell a full disk from a failing one
    fs::copy_file(file.from, file.to, error);
    if (!error)
        fs::permissions(file.to, fs::perms::owner_read | fs::perms::owner_write, error);
    const fs::file_time_type time =
        error ? fs::file_time_type() : fs::last_write_time(file.from, error);
    if (!error)
        fs::last_write_time(file.to, time, error);
    if (error)
        throw cannotCopy(file.from, file.to.parent_path(), systemError(error.value()));
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
