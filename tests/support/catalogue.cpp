#include "support/catalogue.h"

#include "records/record_ownership.h"

#include <algorithm>
#include <stdexcept>

namespace iosphoto::test {

Files files(const CAlbumGroup *album)
{
    Files names;
    if (album != nullptr)
        for (const CPhotoData *photo : album->photos)
            names.push_back(photo->fileName.toStdString());
    return names;
}

AlbumNames albumNames(const std::vector<CAlbumGroup> &albums)
{
    AlbumNames names;
    for (const CAlbumGroup &album : albums)
        names.push_back(album.albumName.toStdString());
    return names;
}

AlbumKinds albumKinds(const std::vector<CAlbumGroup> &albums)
{
    AlbumKinds kinds;
    for (const CAlbumGroup &album : albums)
        kinds.push_back(album.albumKind);
    return kinds;
}

const CAlbumGroup *findAlbum(const std::vector<CAlbumGroup> &albums, AlbumKind::Code kind,
                             bool isSmart)
{
    const auto found = std::find_if(albums.begin(), albums.end(), [&](const CAlbumGroup &album) {
        return album.albumKind == kind && album.isSmartAlbum == isSmart;
    });
    return found != albums.end() ? &*found : nullptr;
}

Catalogue::Catalogue(const std::string &path, const std::string &iosVersion,
                     const std::string &productType)
    : result(ios_photo_get_list(path, iosVersion, productType, &albums))
{
}

Catalogue::Catalogue(const LibraryBuilder &library)
    : Catalogue(library, library.schema().iosVersion, library.schema().productType)
{
}

Catalogue::Catalogue(const LibraryBuilder &library, const std::string &iosVersion,
                     const std::string &productType)
    : Catalogue(library.path(), iosVersion, productType)
{
}

const CAlbumGroup *Catalogue::named(const QString &name) const
{
    const auto found = std::find_if(albums.begin(), albums.end(), [&](const CAlbumGroup &album) {
        return album.albumName == name;
    });
    return found != albums.end() ? &*found : nullptr;
}

const CPhotoData &Catalogue::photo(const CAlbumGroup *album, const char *fileName) const
{
    if (album != nullptr)
        for (const CPhotoData *photo : album->photos)
            if (photo->fileName == QString::fromUtf8(fileName))
                return *photo;
    throw std::runtime_error(std::string("not in the album: ") + fileName);
}

OwningManager::OwningManager(const LibraryBuilder &library)
    : OwningManager(library.path(), library.schema().iosVersion, library.schema().productType)
{
}

OwningManager::OwningManager(const std::string &path, const std::string &ios,
                             const std::string &model)
    : QDevPhotoDbMgr(ios, model)
{
    SetDataPath(QString::fromStdString(path));
}

OwningManager::~OwningManager()
{
    destroyRecords(albums);
}

void OwningManager::prepare()
{
    SetDefaultAlbum();
    GetPrimarykeyTabAssetInfo();
    GetPrimarykeyTabAlbumInfo();
    GetPrimarykeyTabPhotostreamAlbumInfo();
}

} // namespace iosphoto::test
