#ifndef IOSPHOTO_TOOL_ALBUM_ITEMS_H
#define IOSPHOTO_TOOL_ALBUM_ITEMS_H

#include "catalogue/assets.h"
#include "rows/value.h"

namespace iosphoto::tool {

/// The albums of a catalogue as items of the lists that rows have.
class AlbumItems
{
public:
    /// @param catalogue  has to outlive the items
    explicit AlbumItems(const std::vector<CAlbumGroup> &catalogue);

    /// The albums that show an asset, each once.
    Items of(const Asset &asset) const;

private:
    const std::vector<CAlbumGroup> &catalogue_;
    std::vector<ListItem> items_; // of each album
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ALBUM_ITEMS_H
