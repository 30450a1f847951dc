#ifndef IOSPHOTO_IOS_GENERATION_H
#define IOSPHOTO_IOS_GENERATION_H

#include <string>

namespace iosphoto {

/// The iOS releases at which something that this library reads changed, in order: each stands for
/// its own version and all later ones up to the next. Everything that depends on the version asks
/// `generation >= IosGeneration::Ios8`, so that version texts are compared once per pass.
enum class IosGeneration { Oldest, Ios6, Ios7, Ios8, Ios9, Ios10, Ios11, Ios14, Ios15, Ios18 };

/// The generation of a dotted decimal version.
IosGeneration iosGeneration(const std::string &iosVersion);

/// The version that a generation begins with, such as "14.0"; that of the oldest is empty.
const char *firstVersion(IosGeneration generation);

} // namespace iosphoto

#endif // IOSPHOTO_IOS_GENERATION_H
