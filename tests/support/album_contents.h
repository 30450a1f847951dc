#ifndef IOSPHOTO_TESTS_ALBUM_CONTENTS_H
#define IOSPHOTO_TESTS_ALBUM_CONTENTS_H

#include "model/default_albums.h"
#include "support/catalogue.h"

#include <stdexcept>

namespace iosphoto::test {

/// A manager that has read the albums of the table and their contents, as a build does it, but
/// neither the Camera Roll nor the Photo Library.
class AlbumContents : public OwningManager
{
public:
    explicit AlbumContents(const LibraryBuilder &library)
        : AlbumContents(library, library.schema().iosVersion, library.schema().productType)
    {
    }
    AlbumContents(const LibraryBuilder &library, const std::string &ios,
                  const std::string &model = "iPhone14,2")
        : OwningManager(library.path(), ios, model)
    {
        prepare();
        appendCollectingAlbums(albums, {iosVersion, productType});
        GetPhotoGroups();
        result = GetPhotoDatas();
    }

    /// The album of the table that was inserted as `row`. Throws where there is none.
    const CAlbumGroup &operator[](const AlbumRow &row) const
    {
        for (const CAlbumGroup &album : albums)
            if (album.albumUuid == row.uuid())
                return album;
        throw std::runtime_error("no album " + row.uuid());
    }
    /// The first record of that album.
    const CPhotoData &photo(const AlbumRow &row) const { return *(*this)[row].photos.at(0); }

    int result = 0;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_ALBUM_CONTENTS_H
