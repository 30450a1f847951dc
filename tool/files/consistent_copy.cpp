#include "files/consistent_copy.h"

#include "files/new_file.h"
#include "files/source_file.h"
#include "files/stat_times.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <tuple>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The system notes the time of a change in steps of some milliseconds. Of a file that changed just
/// now, the next change could have the same time and go unnoticed.
constexpr std::chrono::milliseconds settlingTime(20);

std::int64_t nanoseconds(const timespec &time)
{
    constexpr std::int64_t perSecond = 1'000'000'000;
    return std::int64_t{time.tv_sec} * perSecond + time.tv_nsec;
}

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
        throw Failure(
            CannotAccess,
            translate("cannot copy '{0}' to '{1}': {2}; set TMPDIR to a folder with room for "
                      "it",
                      file.from.string(), file.to.parent_path().string(),
                      systemError(error.value())));
}

std::vector<FileStamp> statesOf(const std::vector<Copy> &files)
{
    std::vector<FileStamp> states;
    states.reserve(files.size());
    for (const Copy &file : files)
        states.emplace_back(file.from);
    return states;
}

void copyExisting(const std::vector<Copy> &files, const std::vector<FileStamp> &states)
{
    for (std::size_t i = 0; i < files.size(); ++i) {
        std::error_code ignored;
        fs::remove(files[i].to, ignored); // of an earlier try
        if (states[i].exists)
            copyFile(files[i]);
    }
}

bool changedJustNow(const std::vector<FileStamp> &states)
{
    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return std::any_of(states.begin(), states.end(), [&](const FileStamp &state) {
        const auto age = now - std::chrono::nanoseconds(state.changed);
        return state.exists && age.count() >= 0 && age < settlingTime;
    });
}

/// Whether the copies are of one moment.
bool copyOnce(const std::vector<Copy> &files, const std::function<void()> &wait)
{
    if (changedJustNow(statesOf(files)))
        wait();
    const std::vector<FileStamp> before = statesOf(files);
    if (changedJustNow(before))
        return false;
    try {
        copyExisting(files, before);
    } catch (const Failure &) {
        if (statesOf(files) == before)
            throw;
    }
    return statesOf(files) == before;
}

} // namespace

FileStamp::FileStamp(const fs::path &file)
{
    struct stat facts = {};
    if (stat(file.c_str(), &facts) != 0)
        return;
    exists = true;
    device = facts.st_dev;
    inode = facts.st_ino;
    size = facts.st_size;
    modified = nanoseconds(modifiedAt(facts));
    changed = nanoseconds(changedAt(facts));
}

bool FileStamp::operator==(const FileStamp &other) const
{
    const auto all = [](const FileStamp &state) {
        return std::tie(state.exists, state.device, state.inode, state.size, state.modified,
                        state.changed);
    };
    return all(*this) == all(other);
}

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
