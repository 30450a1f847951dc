#ifndef IOSPHOTO_TOOL_PLACE_H
#define IOSPHOTO_TOOL_PLACE_H

#include "files/standard_input.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// What a person named: a folder or a file on disk, an archive, ARCHIVE/PATH, or standard input.
struct Place
{
    std::string name;                            ///< as the user named it
    std::unique_ptr<StandardInput> input;        ///< where that is what was named
    std::unique_ptr<FileTree> tree;              ///< that it is, or is in
    std::string top;                             ///< the folder of the tree to look in
    std::optional<std::string> database;         ///< the file of the tree, where it is just one
    std::optional<std::filesystem::path> folder; ///< on disk, where it is one
};

/// Throws when there is nothing to look in.
Place openPlace(Session &session, const std::string &name);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PLACE_H
