#include "input/library_layout.h"

#include "input/tree/file_tree.h"

namespace iosphoto::tool {

std::optional<std::string> LoneDatabase::locate(const std::string &mediaPath) const
{
    const std::string database = databaseBelowMedia;
    if (mediaPath.compare(0, database.size(), database) != 0)
        return std::nullopt;
    return path_ + mediaPath.substr(database.size());
}

std::optional<std::string> MediaFolder::locate(const std::string &mediaPath) const
{
    return joinedPath(folder_, mediaPath);
}

} // namespace iosphoto::tool
