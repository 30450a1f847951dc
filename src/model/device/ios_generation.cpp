#include "model/device/ios_generation.h"

#include "model/device/version_compare.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace iosphoto {

namespace {

int leadingNumber(const std::string &text)
{
    const long number = std::strtol(text.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(number, 0, std::numeric_limits<int>::max()));
}

} // namespace

IosGeneration iosGeneration(const std::string &iosVersion)
{
    const int major = leadingNumber(iosVersion);
    // "10.-1" is older than 10.0.
    const bool isReached = compareVersions(iosVersion, std::to_string(major) + ".0") >= 0;
    return static_cast<IosGeneration>(isReached ? major : std::max(major - 1, 0));
}

} // namespace iosphoto
