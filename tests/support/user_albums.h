#ifndef IOSPHOTO_TESTS_USER_ALBUMS_H
#define IOSPHOTO_TESTS_USER_ALBUMS_H

#include "support/catalogue.h"

namespace iosphoto::test {

/// A manager that has read the albums of the table, and nothing else.
class UserAlbumsRead : public OwningManager
{
public:
    explicit UserAlbumsRead(const LibraryBuilder &library)
        : UserAlbumsRead(library, library.schema().iosVersion)
    {
    }
    UserAlbumsRead(const LibraryBuilder &library, const std::string &ios)
        : OwningManager(library.path(), ios, library.schema().productType)
    {
        prepare();
        builtIn = albums.size();
        result = GetPhotoGroups();
    }

    /// How many albums the table gave.
    std::size_t size() const { return albums.size() - builtIn; }
    const CAlbumGroup &operator[](std::size_t index) const { return albums.at(builtIn + index); }
    AlbumNames names() const
    {
        const AlbumNames all = albumNames(albums);
        return {all.begin() + static_cast<std::ptrdiff_t>(builtIn), all.end()};
    }

    std::size_t builtIn = 0;
    int result = 0;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_USER_ALBUMS_H
