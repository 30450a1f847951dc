#ifndef IOSPHOTO_BENCH_LIBRARY_RUN_H
#define IOSPHOTO_BENCH_LIBRARY_RUN_H

#include "ios_photo.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace iosphoto::bench {

/// A catalogue as a host gets it, and as it frees it in the end.
class LibraryRun
{
public:
    LibraryRun() = default;
    ~LibraryRun();
    LibraryRun(const LibraryRun &) = delete;
    LibraryRun &operator=(const LibraryRun &) = delete;

    /// Reads the library through the public entry point. Throws where there is nothing in it, since
    /// then nothing was measured.
    void read(const std::filesystem::path &database);

    /// The photo records of all albums.
    std::size_t records() const;

private:
    std::vector<CAlbumGroup> albums_;
};

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_LIBRARY_RUN_H
