#ifndef IOSPHOTO_TOOL_STANDARD_INPUT_H
#define IOSPHOTO_TOOL_STANDARD_INPUT_H

#include "files/file_use.h"
#include "files/private_folder.h"

#include <filesystem>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// Whether somebody who names this means standard input.
bool isStandardInput(const std::string &name);

/// The file or folder that standard input was redirected from, which is read under its own name, as
/// what belongs to it lies beside it; nothing for a pipe, or when a part of it was read before.
std::optional<std::filesystem::path> redirectedInput();

/// All that comes through standard input, kept in a private file.
class StandardInput
{
public:
    /// How it is named.
    static constexpr const char *name = "-";
    static constexpr const char *device = "/dev/stdin";

    /// Reads it to its end, and tells `fileUse` of each piece. Throws Failure when it is a terminal
    /// or cannot be read.
    explicit StandardInput(FileUse &fileUse);

    std::filesystem::path file() const { return folder_ / "standard-input"; }

private:
    PrivateFolder folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STANDARD_INPUT_H
