#include "model/store/stored_bytes.h"

#include <sys/stat.h>

#include <algorithm>
#include <string>

namespace iosphoto {

std::int64_t storedBytes(const char *file)
{
    constexpr std::int64_t bytesOfABlock = 512;
    constexpr std::int64_t bestCompression = 16; // by the file system
    struct stat facts = {};
    if (stat(file, &facts) != 0)
        return 0;
    return std::min<std::int64_t>(facts.st_size, facts.st_blocks * bytesOfABlock * bestCompression);
}

std::int64_t storedBytesOfDatabase(const char *database)
{
    return storedBytes(database) + storedBytes((std::string(database) + "-wal").c_str());
}

} // namespace iosphoto
