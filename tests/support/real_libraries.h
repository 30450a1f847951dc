/// Real photo libraries. They are not part of the repository: tests of them skip where the folder
/// IOSPHOTO_REAL_LIBRARIES is absent.
#ifndef IOSPHOTO_TESTS_REAL_LIBRARIES_H
#define IOSPHOTO_TESTS_REAL_LIBRARIES_H

#include <filesystem>
#include <ostream>
#include <string>

namespace iosphoto::test {

struct RealLibrary
{
    const char *name;
    const char *iosVersion;
};

inline std::ostream &operator<<(std::ostream &stream, const RealLibrary &library)
{
    return stream << library.name;
}

constexpr RealLibrary realLibraries[] = {
    {"ios13_a", "13.7"}, {"ios14_a", "14.8"}, {"ios15_a", "15.7"},
    {"ios16_a", "16.5"}, {"ios18_a", "18.1"},
};

inline std::filesystem::path folderOf(const RealLibrary &library)
{
    std::string name = library.name;
    name.replace(name.find('_'), 1, "-");
    return std::filesystem::path(IOSPHOTO_REAL_LIBRARIES) / name;
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_REAL_LIBRARIES_H
