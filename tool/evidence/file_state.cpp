#include "evidence/file_state.h"

#include "evidence/sha256.h"
#include "files/file_stamp.h"
#include "files/source_file.h"
#include "files/source_reader.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <vector>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t pieceSize = std::size_t{1024} * 1024;

/// Nothing for what is not there or no regular file, as it has no content of its own.
std::optional<struct stat> statusOf(const fs::path &file, const SourceReader &reader)
{
    struct stat status = {};
    if (!reader.isOpen() && (errno == ENOENT || errno == ENOTDIR))
        return std::nullopt;
    if (!reader.isOpen() || fstat(reader.descriptor(), &status) != 0)
        throw mayNotRead(file, systemError(errno));
    return S_ISREG(status.st_mode) ? std::make_optional(status) : std::nullopt;
}

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
    const SourceReader reader(file);
    const std::optional<struct stat> status = statusOf(file, reader);
    if (!status)
        return {};
    Sha256 hash;
    std::vector<char> piece(pieceSize);
    std::uint64_t hashed = 0;
    ssize_t size = 0;
    while ((size = reader.read(piece.data(), piece.size())) > 0) {
        hash.add(piece.data(), static_cast<std::size_t>(size));
        progress.add(static_cast<std::uint64_t>(size));
        hashed += static_cast<std::uint64_t>(size);
    }
    if (size < 0)
        throw mayNotRead(file, systemError(errno));
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
