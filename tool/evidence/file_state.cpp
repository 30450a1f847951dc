#include "evidence/file_state.h"

#include "evidence/sha256.h"
#include "files/file_stamp.h"
#include "files/source_file.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t pieceSize = std::size_t{1024} * 1024;

/// A file open for reading; none where nothing is there.
class OpenFile
{
public:
    explicit OpenFile(const fs::path &file)
        // A pipe must not make us wait for its writer.
        : file_(file), descriptor_(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
    {
        if (descriptor_ < 0 && errno != ENOENT && errno != ENOTDIR)
            throw mayNotRead(file_, systemError(errno));
    }
    ~OpenFile()
    {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    /// Nothing for what is no regular file, as it has no content of its own.
    std::optional<struct stat> status() const
    {
        struct stat status = {};
        if (descriptor_ < 0)
            return std::nullopt;
        if (fstat(descriptor_, &status) != 0)
            throw mayNotRead(file_, systemError(errno));
        return S_ISREG(status.st_mode) ? std::make_optional(status) : std::nullopt;
    }

    /// 0 at the end.
    std::size_t read(std::vector<char> &piece) const
    {
        ssize_t size = 0;
        do
            size = ::read(descriptor_, piece.data(), piece.size());
        while (size < 0 && errno == EINTR);
        if (size < 0)
            throw mayNotRead(file_, systemError(errno));
        return static_cast<std::size_t>(size);
    }

private:
    fs::path file_;
    int descriptor_;
};

/// Rounded up, and never 0.
int mebibytes(std::uint64_t bytes)
{
    constexpr std::uint64_t one = std::uint64_t{1024} * 1024;
    return static_cast<int>(std::max<std::uint64_t>(1, (bytes + one - 1) / one));
}

std::uint64_t totalSize(const std::vector<fs::path> &files)
{
    std::uint64_t total = 0;
    for (const fs::path &file : files) {
        std::error_code error;
        const std::uintmax_t size = fs::file_size(file, error);
        total += error ? 0 : size;
    }
    return total;
}

} // namespace

FileState stateOf(const fs::path &file, HashingProgress &progress)
{
    const OpenFile opened(file);
    const std::optional<struct stat> status = opened.status();
    if (!status)
        return {};
    Sha256 hash;
    std::vector<char> piece(pieceSize);
    std::uint64_t hashed = 0;
    while (const std::size_t size = opened.read(piece)) {
        hash.add(piece.data(), size);
        progress.add(size);
        hashed += size;
    }
    if (hashed != static_cast<std::uint64_t>(status->st_size))
        throw Failure(CannotAccess,
                      translate("cannot read '{0}': it changed while it was read; copy it first",
                                file.string()));
    return {static_cast<std::uint64_t>(status->st_size), preciseTimeText(modifiedAt(*status)),
            hash.digits()};
}

HashingProgress::HashingProgress(const Terminal &terminal, const std::vector<fs::path> &files)
    : total_(mebibytes(totalSize(files))), bar_(terminal, translate("hashing (MiB)"), total_)
{
}

void HashingProgress::add(std::uint64_t bytes)
{
    done_ += bytes;
    bar_.show(std::min(mebibytes(done_), total_)); // a file may grow meanwhile
}

} // namespace iosphoto::tool
