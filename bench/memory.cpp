#include "memory.h"

#include "child.h"
#include "library_run.h"
#include "process_memory.h"

#include <sstream>
#include <stdexcept>
#include <string>

#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
#define HAS_MALLINFO2
#include <malloc.h>
#endif

namespace iosphoto::bench {

#ifdef HAS_MALLINFO2

namespace {

double heldBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

} // namespace

std::optional<MemoryUse> memoryUse(const std::filesystem::path &database)
{
    const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
    const ChildRun child = runChild({self, memoryOption, database.string()}, Output::Kept);
    MemoryUse use = {};
    if (child.status != 0 || !(std::istringstream(child.output) >> use.held >> use.peak))
        throw std::runtime_error("cannot measure the memory for " + database.string());
    return use;
}

void printMemoryUse(const std::filesystem::path &database, std::ostream &out)
{
    const double residentBefore = residentBytes();
    LibraryRun library;
    const double heldBefore = heldBytes();
    library.read(database);
    const auto records = static_cast<double>(library.records());
    out << (heldBytes() - heldBefore) / records << ' ' << (peakBytes() - residentBefore) / records
        << '\n';
}

#else

std::optional<MemoryUse> memoryUse(const std::filesystem::path &)
{
    return std::nullopt;
}

void printMemoryUse(const std::filesystem::path &, std::ostream &) {}

#endif

} // namespace iosphoto::bench
