#include "source/stored_names.h"

#include "source/stored_name.h"

namespace iosphoto::tool {

std::optional<std::string> StoredNames::locate(const std::string &mediaPath) const
{
    const std::string name = storedName(mediaPath);
    for (const std::string &path : {inItsFolder(name), name})
        if (tree_.find(joined(folder_, path)))
            return path;
    return std::nullopt;
}

} // namespace iosphoto::tool
