#ifndef IOSPHOTO_IOS_GENERATION_H
#define IOSPHOTO_IOS_GENERATION_H

#include <string>

namespace iosphoto {

/// A major version of iOS, by its number. Named are those at which something that this library
/// reads changed; the versions behind one, up to the next, are read as it is. Everything that
/// depends on the version asks `generation >= IosGeneration::Ios8`, so that version texts are
/// compared once per pass.
enum class IosGeneration : int {
    Oldest = 0,
    Ios6 = 6,
    Ios7 = 7,
    Ios8 = 8,
    Ios9 = 9,
    Ios10 = 10,
    Ios11 = 11,
    Ios14 = 14,
    Ios15 = 15,
    Ios18 = 18
};

/// The generation of a dotted decimal version.
IosGeneration iosGeneration(const std::string &iosVersion);

/// The number of the iOS that a generation begins with; 0 for the oldest.
constexpr int firstIos(IosGeneration generation)
{
    return static_cast<int>(generation);
}

} // namespace iosphoto

#endif // IOSPHOTO_IOS_GENERATION_H
