#ifndef IOSPHOTO_TESTS_CATALOGUE_H
#define IOSPHOTO_TESTS_CATALOGUE_H

#include "ios_photo.h"
#include "model/model_devicephoto_dbmgr.h"
#include "records/owned_catalogue.h"
#include "support/library_builder.h"

#include <string>
#include <vector>

namespace iosphoto::test {

using Files = std::vector<std::string>;

/// The file names of an album, in order; none for a null pointer.
Files files(const CAlbumGroup *album);

using AlbumNames = std::vector<std::string>;
AlbumNames albumNames(const std::vector<CAlbumGroup> &albums);

using AlbumKinds = std::vector<int>;
AlbumKinds albumKinds(const std::vector<CAlbumGroup> &albums);

const CAlbumGroup *findAlbum(const std::vector<CAlbumGroup> &albums, AlbumKind::Code kind,
                             bool isSmart);

/// A catalogue that ios_photo_get_list() returned.
class Catalogue : public OwnedCatalogue
{
public:
    Catalogue(const std::string &path, const std::string &iosVersion,
              const std::string &productType);
    /// Reads the library with the device that goes with its schema.
    explicit Catalogue(const LibraryBuilder &library);
    Catalogue(const LibraryBuilder &library, const std::string &iosVersion,
              const std::string &productType = "iPhone14,2");

    const CAlbumGroup *smart(AlbumKind::Code kind) const { return findAlbum(albums, kind, true); }
    /// The first album of the kind that is not smart: Camera Roll, Photo Library, the albums that
    /// collect by kind.
    const CAlbumGroup *plain(AlbumKind::Code kind) const { return findAlbum(albums, kind, false); }
    const CAlbumGroup *named(const QString &name) const;
    const CAlbumGroup *cameraRoll() const { return plain(AlbumKind::CameraRoll); }
    const CAlbumGroup *photoLibrary() const { return plain(AlbumKind::PhotoLibrary); }

    /// The record of a file in an album. Throws where there is none.
    const CPhotoData &photo(const CAlbumGroup *album, const char *fileName) const;
    /// The first record of a file in the Camera Roll.
    const CPhotoData &photo(const char *fileName) const { return photo(cameraRoll(), fileName); }

    int result;
};

/// A manager that owns its records.
class OwningManager : public QDevPhotoDbMgr
{
public:
    explicit OwningManager(const LibraryBuilder &library);
    OwningManager(const std::string &path, const std::string &ios, const std::string &model);
    ~OwningManager() override;

    /// Does what a build does before its first pass: lays the built-in albums down and looks the
    /// entity numbers up.
    void prepare();

    const CAlbumGroup *smart(AlbumKind::Code kind) const { return findAlbum(albums, kind, true); }
    const CAlbumGroup *plain(AlbumKind::Code kind) const { return findAlbum(albums, kind, false); }
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_CATALOGUE_H
