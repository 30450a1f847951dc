#include "rows/own_database.h"

#include "failure.h"
#include "language/said.h"

#include <array>
#include <fstream>
#include <string>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// Reads the header of a SQLite file: nothing is opened that could lock or change it.
bool isOwn(const fs::path &file)
{
    constexpr std::size_t idOffset = 68;
    std::array<char, idOffset + 4> header = {};
    std::ifstream in(file, std::ios::binary);
    if (!in.read(header.data(), header.size()))
        return false;
    std::uint32_t id = 0;
    for (std::size_t i = idOffset; i < header.size(); ++i)
        id = id << 8 | static_cast<unsigned char>(header.at(i));
    const std::string magic("SQLite format 3\0", 16);
    return magic.compare(0, magic.size(), header.data(), magic.size()) == 0 &&
           id == std::uint32_t(ownApplicationId);
}

} // namespace

void checkMayReplace(const fs::path &file)
{
    std::error_code ignored;
    for (const char *suffix : {"-wal", "-journal"})
        if (const fs::path log = file.string() + suffix; fs::exists(log, ignored))
            throw Failure(CannotAccess, said("cannot write '{0}': '{1}' lies beside it; close what "
                                             "uses it, or choose another name",
                                             file.string(), log.string()));
    if (fs::exists(file, ignored) && !isOwn(file))
        throw Failure(CannotAccess,
                      said("'{0}' is there and was not written by iosphoto --sqlite, so it is not "
                           "replaced; choose another name",
                           file.string()));
}

} // namespace iosphoto::tool
