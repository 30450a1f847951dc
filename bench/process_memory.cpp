#include "process_memory.h"

#include <fstream>
#include <stdexcept>
#include <string>

namespace iosphoto::bench {

namespace {

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

double residentBytes()
{
    return statusBytes("VmRSS:");
}

double peakBytes()
{
    return statusBytes("VmHWM:");
}

void forgetPeak()
{
    constexpr char peakOnly = '5';
    if (!(std::ofstream("/proc/self/clear_refs") << peakOnly << std::flush))
        throw std::runtime_error("the system does not forget the peak of the memory");
}

} // namespace iosphoto::bench
