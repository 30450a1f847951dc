#include "files/atomic_file.h"

#include "files/disk_sync.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The permissions of the file that is replaced; of a new one, what the process gives.
mode_t modeFor(const fs::path &file)
{
    struct stat old = {};
    if (stat(file.c_str(), &old) == 0)
        return old.st_mode & 0777;
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// Of a name that no user thinks of.
constexpr const char prefix[] = ".iosphoto-unfinished-";

/// What mkstemp() replaces.
constexpr const char places[] = "XXXXXX";

bool isCalledUnfinished(const std::string &name)
{
    constexpr std::size_t length = sizeof(prefix) - 1;
    return name.size() == length + sizeof(places) - 1 && name.compare(0, length, prefix) == 0 &&
           std::all_of(name.begin() + length, name.end(),
                       [](unsigned char byte) { return std::isalnum(byte) != 0; });
}

/// Whether a file is for its owner alone, as mkstemp() makes it and few people do.
bool isPrivate(int file)
{
    struct stat facts = {};
    return fstat(file, &facts) == 0 && (facts.st_mode & 07777) == 0600;
}

bool isThere(int file)
{
    struct stat facts = {};
    return fstat(file, &facts) == 0 && facts.st_nlink > 0;
}

/// Where the locks of all who may write there are seen.
void removeIfOfTheDead(const fs::path &path)
{
    const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.number() >= 0 && isOurs(file.number(), S_IFREG) && isPrivate(file.number()) &&
        isOnOwnDisk(file.number()) && lockAsOwner(file.number()))
        unlink(path.c_str());
}

} // namespace

AtomicFile::AtomicFile(const fs::path &file) : file_(file), temporary_([this] { return make(); }) {}

AtomicFile::~AtomicFile()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

void AtomicFile::write(const QByteArray &content)
{
    for (int written = 0; written < content.size();) {
        const auto left = static_cast<std::size_t>(content.size() - written);
        const ssize_t step = ::write(descriptor_, content.constData() + written, left);
        if (step < 0 && errno != EINTR)
            fail(errno);
        written += step > 0 ? static_cast<int>(step) : 0;
    }
}

void AtomicFile::finish()
{
    finishInFolder();
    throwIf(syncFolder(file_.parent_path()));
}

void AtomicFile::finishInFolder()
{
    throwIf(syncFile(descriptor_)); // first, or a power cut might leave the name to an empty file
    if (fchmod(descriptor_, modeFor(file_)) != 0) // last, as its mode tells one that was left
        fail(errno);
    if (close(std::exchange(descriptor_, -1)) != 0)
        fail(errno);
    throwIf(temporary_.keepAs(file_));
}

fs::path AtomicFile::make()
{
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::string name = (file_.parent_path() / prefix).string() + places;
        Descriptor made(mkstemp(name.data()));
        if (made.number() < 0)
            fail(errno);
        if (isOnOwnDisk(made.number()) && !(lockAsOwner(made.number()) && isThere(made.number())))
            continue; // another run took it for one that was left
        descriptor_ = fcntl(made.number(), F_DUPFD_CLOEXEC, 0);
        if (descriptor_ < 0)
            fail(errno);
        lock_ = std::move(made);
        return name;
    }
    fail(EEXIST);
}

void removeUnfinishedFiles(const fs::path &folder)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, error), end;
         !error && entry != end; entry.increment(error))
        if (isCalledUnfinished(entry->path().filename().string()))
            removeIfOfTheDead(entry->path());
}

void AtomicFile::throwIf(const std::error_code &error) const
{
    if (error)
        fail(error.value());
}

void AtomicFile::fail(int error) const
{
    throw cannotWrite(file_, std::error_code(error, std::system_category()));
}

Failure cannotWrite(const fs::path &file, const std::error_code &error)
{
    return cannotWrite(
        file, translate("{0}; choose another place for the output", systemError(error.value())));
}

Failure cannotWrite(const fs::path &file, const std::string &reason)
{
    return {CannotAccess, translate("cannot write '{0}': {1}", file.string(), reason)};
}

} // namespace iosphoto::tool
