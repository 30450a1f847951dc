#include "output/output_file.h"

#include "failure.h"
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

Failure cannotWrite(const fs::path &file, const std::string &reason)
{
    return {CannotAccess, said("cannot write '{0}': {1}", file.string(), reason)};
}

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

/// A file under a passing name beside the one that it becomes. Gone with the object otherwise.
class UnfinishedFile
{
public:
    explicit UnfinishedFile(const fs::path &file)
        : file_(file), name_((file.parent_path() / ".iosphoto-XXXXXX").string())
    {
        descriptor_ = mkstemp(name_.data());
        if (descriptor_ < 0)
            fail();
    }
    ~UnfinishedFile()
    {
        if (descriptor_ < 0)
            return;
        close(descriptor_);
        unlink(name_.c_str());
    }
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;

    void write(const QByteArray &content)
    {
        for (int written = 0; written < content.size();) {
            const auto left = static_cast<std::size_t>(content.size() - written);
            const ssize_t step = ::write(descriptor_, content.constData() + written, left);
            if (step < 0 && errno != EINTR)
                fail();
            written += step > 0 ? static_cast<int>(step) : 0;
        }
    }

    void finish()
    {
        if (fchmod(descriptor_, modeFor(file_)) != 0)
            fail();
        if (close(std::exchange(descriptor_, -1)) != 0 ||
            rename(name_.c_str(), file_.c_str()) != 0) {
            const int error = errno;
            unlink(name_.c_str());
            errno = error;
            fail();
        }
    }

private:
    [[noreturn]] void fail() const
    {
        throw cannotWrite(file_,
                          said("{0}; choose another place for the output", systemError(errno)));
    }

    fs::path file_;
    std::string name_;
    int descriptor_ = -1;
};

} // namespace

void writeOutput(const fs::path &file, const QByteArray &content, const fs::path &source)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(file, ignored);
    if (fs::is_directory(status))
        throw cannotWrite(file, said("it is a folder; name a file in it"));
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw cannotWrite(file, said("it is not a file"));
    if (fs::equivalent(file, source, ignored))
        throw Failure(WrongUsage, said("'{0}' is the source, which is never changed; choose "
                                       "another place for the output",
                                       file.string()));
    UnfinishedFile unfinished(fs::exists(status) ? fs::canonical(file, ignored) : file);
    unfinished.write(content);
    unfinished.finish();
}

void makeOutputFolder(const fs::path &folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (!error && !fs::is_directory(folder))
        error = std::make_error_code(std::errc::not_a_directory);
    if (error)
        throw Failure(CannotAccess, said("cannot make the folder '{0}': {1}; choose another "
                                         "place for the output",
                                         folder.string(), systemError(error.value())));
}

} // namespace iosphoto::tool
