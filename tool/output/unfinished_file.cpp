#include "output/unfinished_file.h"

#include "language/said.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The rights of the file that is replaced; of a new one, what the process gives.
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

UnfinishedFile::UnfinishedFile(const fs::path &file)
    : file_(file), name_((file.parent_path() / ".iosphoto-XXXXXX").string())
{
    descriptor_ = mkstemp(name_.data());
    if (descriptor_ < 0)
        fail();
}

UnfinishedFile::~UnfinishedFile()
{
    if (descriptor_ < 0)
        return;
    close(descriptor_);
    unlink(name_.c_str());
}

void UnfinishedFile::write(const QByteArray &content)
{
    for (int written = 0; written < content.size();) {
        const auto left = static_cast<std::size_t>(content.size() - written);
        const ssize_t step = ::write(descriptor_, content.constData() + written, left);
        if (step < 0 && errno != EINTR)
            fail();
        written += step > 0 ? static_cast<int>(step) : 0;
    }
}

void UnfinishedFile::finish()
{
    if (fchmod(descriptor_, modeFor(file_)) != 0)
        fail();
    if (close(std::exchange(descriptor_, -1)) != 0 || rename(name_.c_str(), file_.c_str()) != 0) {
        const int error = errno;
        unlink(name_.c_str());
        errno = error;
        fail();
    }
}

void UnfinishedFile::fail() const
{
    throw cannotWrite(file_,
                      said("{0}; choose another place for the output", std::strerror(errno)));
}

Failure cannotWrite(const fs::path &file, const std::string &reason)
{
    return {CannotAccess, said("cannot write '{0}': {1}", file.string(), reason)};
}

} // namespace iosphoto::tool
