#include "catalogue/album_difference.h"

#include "catalogue/album_kinds.h"
#include "language/said.h"

#include <cctype>
#include <map>
#include <set>

namespace iosphoto::tool {

namespace {

using AlbumsByUuid = std::map<std::string, const CAlbumGroup *>; // ordered: no uuids make it slow

AlbumsByUuid albumsByUuid(const std::vector<CAlbumGroup> &catalogue)
{
    AlbumsByUuid albums;
    for (const CAlbumGroup &album : catalogue)
        if (isOfTheTable(album))
            albums.emplace(comparable(album.albumUuid), &album);
    return albums;
}

const CAlbumGroup *counterpart(const AlbumsByUuid &others, const CAlbumGroup &album)
{
    const auto found = others.find(comparable(album.albumUuid));
    return found != others.end() ? found->second : nullptr;
}

} // namespace

std::string comparable(const std::string &uuid)
{
    std::string digits;
    for (const char character : uuid)
        if (character != '-')
            digits += static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return digits;
}

const char *changeName(AlbumChange change)
{
    switch (change) {
    case AlbumChange::New:
        return translatable("new");
    case AlbumChange::Gone:
        return translatable("gone");
    case AlbumChange::Renamed:
        break;
    }
    return translatable("renamed");
}

std::vector<AlbumDifference> compareAlbums(const std::vector<CAlbumGroup> &before,
                                           const std::vector<CAlbumGroup> &after)
{
    const AlbumsByUuid first = albumsByUuid(before);
    const AlbumsByUuid second = albumsByUuid(after);
    std::vector<AlbumDifference> differences;
    for (const CAlbumGroup &album : after) {
        if (!isOfTheTable(album))
            continue;
        const CAlbumGroup *const old = counterpart(first, album);
        if (old == nullptr)
            differences.push_back({AlbumChange::New, nullptr, &album});
        else if (old->albumName != album.albumName)
            differences.push_back({AlbumChange::Renamed, old, &album});
    }
    for (const CAlbumGroup &album : before)
        if (isOfTheTable(album) && counterpart(second, album) == nullptr)
            differences.push_back({AlbumChange::Gone, &album, nullptr});
    return differences;
}

std::vector<const CAlbumGroup *> albumsMissingFrom(const std::vector<const CAlbumGroup *> &others,
                                                   const std::vector<const CAlbumGroup *> &albums)
{
    std::set<std::string> there;
    for (const CAlbumGroup *album : others)
        there.insert(comparable(album->albumUuid));
    std::vector<const CAlbumGroup *> missing;
    for (const CAlbumGroup *album : albums)
        if (isOfTheTable(*album) && there.count(comparable(album->albumUuid)) == 0)
            missing.push_back(album);
    return missing;
}

} // namespace iosphoto::tool
