#ifndef IOSPHOTO_TOOL_LEFT_OUT_CHANGES_H
#define IOSPHOTO_TOOL_LEFT_OUT_CHANGES_H

#include "catalogue/library.h"

#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A photo that is left out of the catalogue with the write-ahead log in another way than without.
struct LeftOutChange
{
    std::string uuid;
    std::string path;
    std::optional<PhotoReason> before; ///< nothing where it is not left out without the log
    std::optional<PhotoReason> after;  ///< likewise with it
    std::vector<std::string> facts;    ///< the keys of those that differ where it is both times
};

/// Those that are left out with the log, in the order of their rows, then the others. Rows are told
/// by their keys, as those of one database.
/// @param library  that was read without its log too
std::vector<LeftOutChange> leftOutChanges(const Library &library);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LEFT_OUT_CHANGES_H
