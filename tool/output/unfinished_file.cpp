#include "output/unfinished_file.h"

#include "language/said.h"
#include "language/system_error.h"

#include <cerrno>
#include <cstdlib>
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
    : file_(file), passing_([this] { return make(); })
{
}

UnfinishedFile::~UnfinishedFile()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

void UnfinishedFile::write(const QByteArray &content)
{
    for (int written = 0; written < content.size();) {
        const auto left = static_cast<std::size_t>(content.size() - written);
        const ssize_t step = ::write(descriptor_, content.constData() + written, left);
        if (step < 0 && errno != EINTR)
            fail(errno);
        written += step > 0 ? static_cast<int>(step) : 0;
    }
}

void UnfinishedFile::finish()
{
    if (fchmod(descriptor_, modeFor(file_)) != 0 || close(std::exchange(descriptor_, -1)) != 0)
        fail(errno);
    if (const std::error_code error = passing_.keepAs(file_))
        fail(error.value());
}

fs::path UnfinishedFile::make()
{
    std::string name = (file_.parent_path() / ".iosphoto-XXXXXX").string();
    descriptor_ = mkstemp(name.data());
    if (descriptor_ < 0)
        fail(errno);
    return name;
}

void UnfinishedFile::fail(int error) const
{
    throw cannotWrite(file_, said("{0}; choose another place for the output", systemError(error)));
}

Failure cannotWrite(const fs::path &file, const std::string &reason)
{
    return {CannotAccess, said("cannot write '{0}': {1}", file.string(), reason)};
}

} // namespace iosphoto::tool
