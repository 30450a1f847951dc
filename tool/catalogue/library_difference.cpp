#include "catalogue/library_difference.h"

#include <algorithm>

namespace iosphoto::tool {

int LibraryDifference::count(Change change) const
{
    const auto has = [change](const PhotoDifference &photo) {
        return std::find(photo.changes.begin(), photo.changes.end(), change) != photo.changes.end();
    };
    return static_cast<int>(
        std::count_if(photos.differences.begin(), photos.differences.end(), has));
}

int LibraryDifference::count(AlbumChange change) const
{
    const auto is = [change](const AlbumDifference &album) { return album.change == change; };
    return static_cast<int>(std::count_if(albums.begin(), albums.end(), is));
}

} // namespace iosphoto::tool
