#include "files/source_file.h"

#include "text/system_error.h"
#include "text/translate.h"

#include <cerrno>
#include <cstdio>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// Why a file cannot be opened for reading; empty if it can.
std::string unreadableBecause(const fs::path &file)
{
    std::FILE *opened = std::fopen(file.c_str(), "rb");
    if (opened == nullptr)
        return systemError(errno);
    std::fclose(opened);
    return {};
}

} // namespace

Failure cannotRead(const fs::path &file, const std::string &reason)
{
    return {CannotAccess, translate("cannot read '{0}': {1}", file.string(), reason)};
}

Failure mayNotRead(const fs::path &file, const std::string &reason)
{
    return cannotRead(file,
                      translate("{0}; run as a user who may read it, or copy it first", reason));
}

fs::path resolved(const fs::path &path)
{
    std::error_code error;
    const fs::file_type type = fs::status(path, error).type(); // as the path of a pipe says nothing
    if (type == fs::file_type::fifo || type == fs::file_type::socket)
        throw cannotRead(path, translate("it is a pipe; send it through standard input, and name "
                                         "that as -"));
    fs::path target = fs::canonical(path, error);
    if (error)
        throw cannotRead(path, translate("{0}; check the path", systemError(error.value())));
    return target;
}

fs::path sourceFile(const fs::path &path, const std::string &toName)
{
    fs::path target = resolved(path);
    std::error_code ignored;
    const fs::file_status status = fs::status(target, ignored);
    if (fs::is_directory(status))
        throw cannotRead(path, translate("it is a folder; name {0}", toName));
    if (!fs::is_regular_file(status))
        throw cannotRead(path, translate("it is not a file; name a file"));
    return target;
}

void requireReadable(const fs::path &file)
{
    if (const std::string reason = unreadableBecause(file); !reason.empty())
        throw mayNotRead(file, reason);
}

} // namespace iosphoto::tool
