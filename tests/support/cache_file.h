#ifndef IOSPHOTO_TESTS_CACHE_FILE_H
#define IOSPHOTO_TESTS_CACHE_FILE_H

#include "support/temporary_folder.h"

#include <cstdint>
#include <string>

namespace iosphoto::test {

/// A thumbnail cache on disk.
class CacheFile
{
public:
    explicit CacheFile(const std::string &bytes = "") { writeFile(path_, bytes); }

    const std::string &path() const { return path_; }

    /// Replaces bytes. Behind the end of the file they make it grow; the gap takes no room on disk.
    void write(std::int64_t offset, const std::string &bytes);

    /// Cuts the file off or makes it grow, without taking room on disk.
    void resize(std::int64_t size);

private:
    TemporaryFolder folder_;
    std::string path_ = (folder_ / "thumbs.ithmb").string();
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_CACHE_FILE_H
