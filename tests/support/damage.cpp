#include "support/damage.h"

#include <fstream>

namespace iosphoto::test {

void damageTable(LibraryBuilder &library, const std::string &table)
{
    const int pageSize = library.number("pragma page_size");
    const int page =
        library.number("select rootpage from sqlite_master where name = '" + table + "'");
    library.close();
    std::fstream file(library.path(), std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(std::streamoff(page - 1) * pageSize);
    file << std::string(static_cast<std::size_t>(pageSize), '\xff');
}

} // namespace iosphoto::test
