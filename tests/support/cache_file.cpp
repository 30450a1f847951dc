#include "support/cache_file.h"

#include <fstream>

namespace iosphoto::test {

void CacheFile::write(std::int64_t offset, const std::string &bytes)
{
    std::fstream file(path_, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(offset);
    file << bytes;
}

void CacheFile::resize(std::int64_t size)
{
    std::filesystem::resize_file(path_, static_cast<std::uintmax_t>(size));
}

} // namespace iosphoto::test
