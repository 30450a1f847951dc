#ifndef IOSPHOTO_TOOL_ACCOUNT_H
#define IOSPHOTO_TOOL_ACCOUNT_H

#include "catalogue/album_account.h"
#include "catalogue/left_out_photos.h"
#include "catalogue/untitled_albums.h"

namespace iosphoto::tool {

/// What became of every row of the tables that a library is made of.
struct Account
{
    PhotoAccount photos;
    AlbumAccount albums;
    UntitledContents untitled = {};

    bool operator==(const Account &other) const
    {
        return photos == other.photos && albums == other.albums && untitled == other.untitled;
    }
};

/// Throws Failure when the tables cannot be read.
/// @param leftOut  takes the photos that are left out; may be null
inline Account accountOf(const CopyDatabase &database, const ReadingFacts &reading,
                         LeftOutPhotos *leftOut)
{
    return {accountOfPhotos(database, reading, leftOut), accountOfAlbums(database, reading),
            contentsOfUntitled(database, reading)};
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ACCOUNT_H
