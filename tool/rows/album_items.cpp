#include "rows/album_items.h"

#include "catalogue/album_kinds.h"
#include "output/json_document.h"

namespace iosphoto::tool {

AlbumItems::AlbumItems(const std::vector<CAlbumGroup> &catalogue) : catalogue_(catalogue)
{
    for (const CAlbumGroup &album : catalogue)
        items_.push_back({oneLine(albumReference(album)), englishName(album), shownName(album)});
}

Items AlbumItems::of(const Asset &asset) const
{
    Items items;
    for (const CAlbumGroup *album : asset.albums())
        items.push_back(&items_[static_cast<std::size_t>(album - catalogue_.data())]);
    return items;
}

} // namespace iosphoto::tool
