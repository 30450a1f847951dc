#include "ithmb/ithmb.h"
#include "require.h"
#include "thumb_cache.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace iosphoto::fuzz {

namespace {

constexpr int readLimit = 4096;

void checkFailure(ifile &file)
{
    char byte = 0;
    require(!file.is_open(), "only a file is open");
    require(file.seekg(0) != 0, "without a file no offset is found");
    require(!file.read(&byte, 1), "without a file nothing is read");
    require(file.getlength() == -1, "without a file there is no length");
    require(file.close() == 0, "to close nothing is no failure");
}

void checkFailures()
{
    for (const char *path : {static_cast<const char *>(nullptr), "", "/"}) {
        ifile file(path);
        checkFailure(file);
    }
}

void checkRead(const ThumbCache &cache, ifile &file, int offset)
{
    const int left = std::max(cache.size() - offset, 0);
    for (const int count : {1, 12, std::clamp(left, 1, readLimit), left + 1}) {
        std::vector<char> bytes(static_cast<std::size_t>(count));
        require(file.seekg(offset) == 0, "every offset from 0 on is found");
        const bool isThere = count <= left;
        require(file.read(bytes.data(), count) == isThere, "all is read, or it is told");
        if (isThere)
            require(cache.bytes.compare(static_cast<std::size_t>(offset), bytes.size(),
                                        bytes.data(), bytes.size()) == 0,
                    "what is read is what the file has");
    }
}

} // namespace

void checkIfile(const ThumbCache &cache)
{
    checkFailures();
    ifile file(cache.path.c_str());
    require(file.is_open(), "a file opens");
    require(file.getlength() == cache.size(), "the length is that of the file");
    require(file.seekg(-1) != 0, "no offset is negative");
    require(!file.read(nullptr, 0), "nothing is read to nowhere");
    char byte = 0;
    require(!file.read(&byte, -1), "no count is negative");
    constexpr int largest = std::numeric_limits<int>::max();
    for (const int offset : {0, cache.size() / 2, cache.size(), largest})
        checkRead(cache, file, offset);
    checkRead(cache, file, cache.chosenNumber() & largest);
    require(file.close() == 0, "a file closes");
    checkFailure(file);
}

} // namespace iosphoto::fuzz
