#ifndef IOSPHOTO_TOOL_PASSED_OVER_H
#define IOSPHOTO_TOOL_PASSED_OVER_H

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Why a search did not look at something, or does not take it for a library.
enum class PassedOver {
    OtherLibrary,    ///< beside the library that the folder itself is
    NestedLibrary,   ///< in a backup
    Archive,         ///< in a folder
    PackedArchive,   ///< in an archive
    Link,            ///< to anything
    SystemDatabase,  ///< such as that of photos which others sent
    OtherDatabase,   ///< by its name no library, where there are some
    NoPhotoDatabase, ///< by its content
};

/// What was passed over, as paths of the tree, by the reason.
using PassedOverPlaces = std::map<PassedOver, std::vector<std::string>>;

/// The same as messages show it: so many, and the first of them.
struct PassedOverNames
{
    PassedOver reason;
    std::size_t count;
    std::vector<std::string> first;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PASSED_OVER_H
