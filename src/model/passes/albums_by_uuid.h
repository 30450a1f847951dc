#ifndef IOSPHOTO_ALBUMS_BY_UUID_H
#define IOSPHOTO_ALBUMS_BY_UUID_H

#include "ios_photo.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto {

/// Finds the first album of a list that has a uuid, byte for byte. An ordered map, because the
/// uuids come from the file: no choice of them makes it slow.
class AlbumsByUuid
{
public:
    explicit AlbumsByUuid(const std::vector<CAlbumGroup> &albums)
    {
        for (std::size_t index = 0; index < albums.size(); ++index)
            add(albums[index].albumUuid, index);
    }

    /// Notes that the album at `index` has this uuid, unless an earlier one has it.
    /// @return whether it was the first.
    bool add(const std::string &uuid, std::size_t index)
    {
        return indexes_.emplace(uuid, index).second;
    }

    std::optional<std::size_t> indexOf(const std::string &uuid) const
    {
        const auto found = indexes_.find(uuid);
        return found != indexes_.end() ? std::make_optional(found->second) : std::nullopt;
    }

private:
    std::map<std::string, std::size_t> indexes_;
};

} // namespace iosphoto

#endif // IOSPHOTO_ALBUMS_BY_UUID_H
