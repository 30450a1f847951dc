#include "files/atomic_file.h"

#include "files/disk_sync.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <cerrno>
#include <cstdlib>
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
    if (fchmod(descriptor_, modeFor(file_)) != 0)
        fail(errno);
    throwIf(syncFile(descriptor_)); // first, or a power cut might leave the name to an empty file
    if (close(std::exchange(descriptor_, -1)) != 0)
        fail(errno);
    throwIf(temporary_.keepAs(file_));
}

fs::path AtomicFile::make()
{
    std::string name = (file_.parent_path() / ".iosphoto-XXXXXX").string();
    descriptor_ = mkstemp(name.data());
    if (descriptor_ < 0)
        fail(errno);
    return name;
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
