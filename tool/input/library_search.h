#ifndef IOSPHOTO_TOOL_LIBRARY_SEARCH_H
#define IOSPHOTO_TOOL_LIBRARY_SEARCH_H

#include "input/library_layout.h"
#include "input/tree/file_tree.h"

#include <memory>

namespace iosphoto::tool {

/// Finds the one photo library in a tree. Throws Failure when there is none, or more than one.
/// @param shownName  the tree as the user named it, for messages
std::unique_ptr<LibraryLayout> findLibrary(const FileTree &tree, const std::string &shownName);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_SEARCH_H
