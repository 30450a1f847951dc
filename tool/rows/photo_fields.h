#ifndef IOSPHOTO_TOOL_PHOTO_FIELDS_H
#define IOSPHOTO_TOOL_PHOTO_FIELDS_H

#include "catalogue/assets.h"
#include "catalogue/burst_frames.h"
#include "catalogue/library.h"
#include "catalogue/trash.h"
#include "rows/fields.h"
#include "rows/values.h"

namespace iosphoto::tool {

/// The albums of a catalogue as items of the lists that rows have.
class AlbumItems
{
public:
    /// @param catalogue  has to outlive the items
    explicit AlbumItems(const std::vector<CAlbumGroup> &catalogue);

    /// The albums that show an asset, each once.
    Items of(const Asset &asset) const;
    const ListItem *of(const CAlbumGroup &album) const;

private:
    const std::vector<CAlbumGroup> &catalogue_;
    std::vector<ListItem> items_; // of each album
};

/// A photo of a library with all that its fields are made of.
struct PhotoRow
{
    Asset asset;
    CPhotoData facts;
    std::optional<TrashStay> trash;
    int burstFrames; ///< of the burst that it belongs to; 0: none
    Items albums;
    const KnownDates &dates;
    std::optional<PhotoReason> leftOutBecause; ///< nothing for a photo of the catalogue
};

/// Makes the rows of a library's photos.
class PhotoRows
{
public:
    /// @param library  has to outlive the rows, as have the others
    PhotoRows(const Library &library, const BurstFrames &bursts)
        : library_(library), bursts_(bursts), albums_(library.albums())
    {
    }

    PhotoRow of(const Asset &asset) const;

private:
    const Library &library_;
    const BurstFrames &bursts_;
    AlbumItems albums_;
};

/// What is known about a photo.
FieldTable<PhotoRow> photoFields();

/// Those that a table of a database has as columns: the facts, without lists.
std::vector<Field<PhotoRow>> photoColumns();

/// The same as photoFields(); tables show how long each photo stays in the trash in columns of
/// their own.
FieldTable<PhotoRow> photoFieldsOfTheTrash();

/// The same; tables say why photos are left out, and so are in no albums.
FieldTable<PhotoRow> photoFieldsOfLeftOut();

/// The same, for lists in which others are in albums.
FieldTable<PhotoRow> photoFieldsWithLeftOut();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_FIELDS_H
