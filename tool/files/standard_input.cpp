#include "files/standard_input.h"

#include "files/new_file.h"
#include "files/source_reader.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

Failure unreadable(int error)
{
    return {CannotAccess,
            translate("cannot read standard input: {0}; send a database or an "
                      "archive through a pipe, or name a file",
                      error == EBADF ? translate("it is closed") : systemError(error))};
}

bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

} // namespace

bool isStandardInput(const std::string &name)
{
    constexpr const char *names[] = {StandardInput::name, StandardInput::device, "/dev/fd/0",
                                     "/proc/self/fd/0"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

std::optional<fs::path> redirectedInput()
{
    std::error_code error;
    const fs::path target = fs::canonical(StandardInput::device, error);
    struct stat input = {};
    struct stat named = {};
    if (error || target.string().rfind("/dev/", 0) == 0 || fstat(STDIN_FILENO, &input) != 0 ||
        stat(target.c_str(), &named) != 0 || !isSameFile(input, named))
        return std::nullopt;
    const bool isWhole = S_ISREG(input.st_mode) && lseek(STDIN_FILENO, 0, SEEK_CUR) == 0;
    return isWhole || S_ISDIR(input.st_mode) ? std::make_optional(target) : std::nullopt;
}

StandardInput::StandardInput(FileUse &fileUse)
{
    if (isatty(STDIN_FILENO) == 1)
        throw Failure(WrongUsage,
                      translate("standard input is a terminal; send a database or an archive "
                                "through a pipe, or name a file"));
    fileUse.passOver(folder_.path());
    NewFile kept(file(), std::nullopt);
    constexpr std::size_t pieceSize = 1 << 16;
    std::vector<char> piece(pieceSize);
    ssize_t size = 0;
    while ((size = readDescriptor(STDIN_FILENO, piece.data(), piece.size())) > 0) {
        const auto bytes = static_cast<std::size_t>(size);
        fileUse.received(piece.data(), bytes);
        (void)kept.append({piece.data(), bytes});
    }
    if (size < 0)
        throw unreadable(errno);
    fileUse.received(nullptr, 0); // also says that nothing came
    kept.close(std::time(nullptr));
}

} // namespace iosphoto::tool
