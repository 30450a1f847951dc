#include "source/consistent_copy.h"

#include "failure.h"
#include "language/said.h"
#include "source/source_file.h"

#include <algorithm>
#include <sys/stat.h>
#include <tuple>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

std::int64_t nanoseconds(const timespec &time)
{
    constexpr std::int64_t perSecond = 1'000'000'000;
    return std::int64_t{time.tv_sec} * perSecond + time.tv_nsec;
}

void copyFile(const Copy &file)
{
    requireReadable(file.from);
    std::error_code error;
    fs::copy_file(file.from, file.to, error);
    if (!error)
        fs::permissions(file.to, fs::perms::owner_read | fs::perms::owner_write, error);
    if (!error)
        fs::last_write_time(file.to, fs::last_write_time(file.from, error), error);
    if (error)
        throw Failure(CannotAccess,
                      said("cannot copy '{0}' to '{1}': {2}; set TMPDIR to a folder with room for "
                           "it",
                           file.from.string(), file.to.parent_path().string(), error.message()));
}

std::vector<FileState> statesOf(const std::vector<Copy> &files)
{
    std::vector<FileState> states;
    for (const Copy &file : files)
        states.emplace_back(file.from);
    return states;
}

void copyExisting(const std::vector<Copy> &files, const std::vector<FileState> &states)
{
    for (std::size_t i = 0; i < files.size(); ++i) {
        std::error_code ignored;
        fs::remove(files[i].to, ignored); // of an earlier try
        if (states[i].exists)
            copyFile(files[i]);
    }
}

/// Whether the copies are of one moment.
bool copyOnce(const std::vector<Copy> &files)
{
    const std::vector<FileState> before = statesOf(files);
    try {
        copyExisting(files, before);
    } catch (const Failure &) {
        if (statesOf(files) == before)
            throw;
    }
    return statesOf(files) == before;
}

} // namespace

FileState::FileState(const fs::path &file)
{
    struct stat facts = {};
    if (stat(file.c_str(), &facts) != 0)
        return;
    exists = true;
    device = facts.st_dev;
    inode = facts.st_ino;
    size = facts.st_size;
#ifdef __APPLE__
    modified = nanoseconds(facts.st_mtimespec);
    changed = nanoseconds(facts.st_ctimespec);
#else
    modified = nanoseconds(facts.st_mtim);
    changed = nanoseconds(facts.st_ctim);
#endif
}

bool FileState::operator==(const FileState &other) const
{
    const auto all = [](const FileState &state) {
        return std::tie(state.exists, state.device, state.inode, state.size, state.modified,
                        state.changed);
    };
    return all(*this) == all(other);
}

void copyConsistently(const std::vector<Copy> &files)
{
    constexpr int tries = 3;
    for (int i = 0; i < tries; ++i)
        if (copyOnce(files))
            return;
    throw Failure(CannotAccess, said("'{0}' changes while it is copied; close what writes to it, "
                                     "or copy it with its -wal first",
                                     files.front().from.string()));
}

} // namespace iosphoto::tool
