#ifndef IOSPHOTO_TOOL_LIBRARY_SEARCH_H
#define IOSPHOTO_TOOL_LIBRARY_SEARCH_H

#include "input/library_layout.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <memory>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// That a source holds more than one photo library.
struct SeveralLibraries
{
    std::string source;
    bool areBackups;
    bool areInArchive;
    std::vector<std::string> names; ///< of all, or of more than `mostCounted`

    static constexpr std::size_t mostCounted = 20;
};

/// Finds the one photo library in a tree. Throws SourceError when there is none, SeveralLibraries
/// when there are more, and what the layouts throw.
/// @param shownName  the tree as the user named it, for messages
std::unique_ptr<LibraryLayout> findLibrary(Session &session, const FileTree &tree,
                                           const std::string &shownName);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_SEARCH_H
