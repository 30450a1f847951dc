#include "files/sqlite_magic.h"

#include "files/source_reader.h"

#include <array>

namespace iosphoto::tool {

bool beginsAsDatabase(const std::filesystem::path &file)
{
    std::array<char, sqliteMagic.size()> begin = {};
    const SourceReader source(file);
    return source.isOpen() && source.read(begin.data(), begin.size()) == ssize_t{begin.size()} &&
           std::string_view(begin.data(), begin.size()) == sqliteMagic;
}

} // namespace iosphoto::tool
