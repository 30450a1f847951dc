#include "memory.h"

#include "child.h"
#include "library_run.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace iosphoto::bench {

#ifdef __GLIBC__

namespace {

double heldBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

/// A line of /proc/self/status. The number that getrusage() gives counts also what the process was
/// forked from.
double statusBytes(const std::string &name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.compare(0, name.size(), name) == 0)
            return std::stod(line.substr(name.size())) * 1024;
    throw std::runtime_error("the system does not tell " + name);
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
    const double residentBefore = statusBytes("VmRSS:");
    LibraryRun library;
    const double heldBefore = heldBytes();
    library.read(database);
    const auto records = static_cast<double>(library.records());
    out << (heldBytes() - heldBefore) / records << ' '
        << (statusBytes("VmHWM:") - residentBefore) / records << '\n';
}

#else

std::optional<MemoryUse> memoryUse(const std::filesystem::path &)
{
    return std::nullopt;
}

void printMemoryUse(const std::filesystem::path &, std::ostream &) {}

#endif

} // namespace iosphoto::bench
