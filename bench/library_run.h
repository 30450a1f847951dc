#ifndef IOSPHOTO_BENCH_LIBRARY_RUN_H
#define IOSPHOTO_BENCH_LIBRARY_RUN_H

#include "records/owned_catalogue.h"

#include <cstddef>
#include <filesystem>

namespace iosphoto::bench {

/// A catalogue as a host gets it, and as it frees it in the end.
class LibraryRun
{
public:
    /// Reads the library through the public entry point. Throws where there is nothing in it, since
    /// then nothing was measured.
    void read(const std::filesystem::path &database);

    /// The photo records of all albums.
    std::size_t records() const;

private:
    OwnedCatalogue catalogue_;
};

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_LIBRARY_RUN_H
