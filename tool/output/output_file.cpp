#include "output/output_file.h"

#include "failure.h"
#include "language/said.h"
#include "language/system_error.h"
#include "output/file_use_observer.h"
#include "output/temporary_path.h"

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
    explicit UnfinishedFile(const fs::path &file) : file_(file), passing_([this] { return make(); })
    {
    }
    ~UnfinishedFile()
    {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;

    void write(const QByteArray &content)
    {
        for (int written = 0; written < content.size();) {
            const auto left = static_cast<std::size_t>(content.size() - written);
            const ssize_t step = ::write(descriptor_, content.constData() + written, left);
            if (step < 0 && errno != EINTR)
                fail(errno);
            written += step > 0 ? static_cast<int>(step) : 0;
        }
    }

    void finish()
    {
        if (fchmod(descriptor_, modeFor(file_)) != 0 || close(std::exchange(descriptor_, -1)) != 0)
            fail(errno);
        if (const std::error_code error = passing_.keepAs(file_))
            fail(error.value());
    }

private:
    fs::path make()
    {
        std::string name = (file_.parent_path() / ".iosphoto-XXXXXX").string();
        descriptor_ = mkstemp(name.data());
        if (descriptor_ < 0)
            fail(errno);
        return name;
    }

    [[noreturn]] void fail(int error) const
    {
        throw cannotWrite(file_,
                          said("{0}; choose another place for the output", systemError(error)));
    }

    fs::path file_;
    int descriptor_ = -1;
    TemporaryPath passing_; // behind the descriptor that it sets
};

/// The file itself where `file` is a link.
fs::path targetOf(const fs::path &file)
{
    std::error_code ignored;
    return fs::exists(file, ignored) ? fs::canonical(file, ignored) : file;
}

void requirePlaceForFile(const fs::path &file)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(file, ignored);
    if (fs::is_directory(status))
        throw cannotWrite(file, said("it is a folder; name a file in it"));
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw cannotWrite(file, said("it is not a file"));
}

} // namespace

void requireOther(const fs::path &file, const FileSet &sources)
{
    if (sources.contains(file))
        throw Failure(WrongUsage, said("'{0}' is the source, which is never changed; choose "
                                       "another place for the output",
                                       file.string()));
}

void requireWritable(const fs::path &file)
{
    requirePlaceForFile(file);
    const UnfinishedFile attempt(targetOf(file));
}

void writeOutput(const fs::path &file, const QByteArray &content, const fs::path &source)
{
    requirePlaceForFile(file);
    requireOther(file, FileSet(source));
    FileUseObserver *const observer = FileUseObserver::current();
    if (observer != nullptr)
        observer->willWrite(file);
    UnfinishedFile unfinished(targetOf(file));
    unfinished.write(content);
    unfinished.finish();
    if (observer != nullptr)
        observer->wrote(file, content);
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
