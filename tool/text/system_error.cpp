#include "text/system_error.h"

#include "text/translate.h"

#include <array>
#include <cstring>

namespace iosphoto::tool {

namespace {

/// Those that people meet; the others stay English.
[[maybe_unused]] constexpr std::array common = {
    translatable("File exists"),
    translatable("File name too long"),
    translatable("File too large"),
    translatable("Input/output error"),
    translatable("Is a directory"),
    translatable("No space left on device"),
    translatable("No such file or directory"),
    translatable("Not a directory"),
    translatable("Permission denied"),
    translatable("Read-only file system"),
    translatable("Too many levels of symbolic links"),
};

} // namespace

std::string systemError(int number)
{
    return translateTerm(std::strerror(number));
}

} // namespace iosphoto::tool
