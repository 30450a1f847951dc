#include "model/device/ios_generation.h"

#include "model/device/version_compare.h"

namespace iosphoto {

namespace {

struct FirstVersion
{
    IosGeneration generation;
    const char *version;
};

constexpr FirstVersion newestFirst[] = {
    {IosGeneration::Ios18, "18.0"}, {IosGeneration::Ios15, "15.0"}, {IosGeneration::Ios14, "14.0"},
    {IosGeneration::Ios11, "11.0"}, {IosGeneration::Ios10, "10.0"}, {IosGeneration::Ios9, "9.0"},
    {IosGeneration::Ios8, "8.0"},   {IosGeneration::Ios7, "7.0"},   {IosGeneration::Ios6, "6.0"},
};

} // namespace

IosGeneration iosGeneration(const std::string &iosVersion)
{
    for (const FirstVersion &first : newestFirst)
        if (compareVersions(iosVersion, first.version) >= 0)
            return first.generation;
    return IosGeneration::Oldest;
}

const char *firstVersion(IosGeneration generation)
{
    for (const FirstVersion &first : newestFirst)
        if (first.generation == generation)
            return first.version;
    return "";
}

} // namespace iosphoto
