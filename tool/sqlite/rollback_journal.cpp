#include "sqlite/rollback_journal.h"

#include "files/private_folder.h"
#include "text/system_error.h"

#include <cerrno>
#include <fstream>
#include <string>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The record of a path ends with it, which is the end of the journal.
const std::string magic = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";

} // namespace

void forgetSuperJournal(const fs::path &database)
{
    const fs::path journal = database.string() + "-journal";
    std::error_code error;
    const std::uintmax_t size = fs::file_size(journal, error);
    if (error || size < magic.size())
        return;
    std::fstream file(journal, std::ios::binary | std::ios::in | std::ios::out);
    const auto at = static_cast<std::streamoff>(size - magic.size());
    std::string end(magic.size(), '\0');
    file.seekg(at).read(end.data(), static_cast<std::streamsize>(end.size()));
    if (end == magic)
        file.seekp(at).write(std::string(magic.size(), '\0').data(),
                             static_cast<std::streamsize>(magic.size()));
    file.close();
    if (!file)
        throw cannotWriteCopy(journal, systemError(errno));
}

} // namespace iosphoto::tool
