#include "model/album_names.h"
#include "model/passes/albums_by_uuid.h"
#include "model/passes/pass_run.h"
#include "model/passes/row_columns.h"

#include <cstring>
#include <utility>

namespace iosphoto {

namespace {

constexpr int cachedPhotos = column(userAlbumColumns, "ZCACHEDPHOTOSCOUNT");
constexpr int cachedVideos = column(userAlbumColumns, "ZCACHEDVIDEOSCOUNT");
constexpr int uuid = column(userAlbumColumns, "ZUUID");
constexpr int title = column(userAlbumColumns, "ZTITLE");
constexpr int kind = column(userAlbumColumns, "ZKIND");
constexpr int entityName = column(userAlbumColumns, "Z_NAME");

constexpr int madeOnDevice = 2; // ZKIND

bool isEntity(const Row &row, const char *name)
{
    const char *const entity = row.cString(entityName);
    return entity != nullptr && std::strcmp(entity, name) == 0;
}

/// The sum wraps as 32-bit numbers do, whatever counts the file holds.
std::int32_t cachedCount(const Row &row)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(row.int32(cachedPhotos)) +
                                     static_cast<std::uint32_t>(row.int32(cachedVideos)));
}

CAlbumGroup readAlbum(const Row &row, IosGeneration ios, const QString &photoStreamName)
{
    CAlbumGroup album;
    album.albumKind = AlbumKind::PhotoLibrary;
    album.albumName = row.text(title);
    album.isSmartAlbum = row.int32(kind) == madeOnDevice;
    if (isEntity(row, "Album")) {
        if (!album.albumName.isEmpty())
            album.albumKind = AlbumKind::User;
    } else if (isEntity(row, "PhotoStreamAlbum")) {
        album.albumKind = AlbumKind::PhotoStream;
        album.albumName = photoStreamName;
        album.isSmartAlbum = true;
    }
    album.albumCount = cachedCount(row);
    album.albumUuid = ios >= IosGeneration::Ios8 ? row.bytes(uuid) : row.hex(uuid);
    return album;
}

} // namespace

} // namespace iosphoto

int QDevPhotoDbMgr::GetPhotoGroups()
{
    using namespace iosphoto;
    return runPass(*this, Pass::UserAlbums, [this](PassRun &run) {
        const DeviceProfile device(iosVersion, productType);
        const QString photoStreamName = tr(album_names::photoStream);
        // The built-in albums have no uuid, so an album of the table without one is a duplicate.
        AlbumsByUuid known(albums);
        return run.readRows(userAlbumStatements, device, [&](const Row &row) {
            CAlbumGroup album = readAlbum(row, device.ios, photoStreamName);
            if (!known.add(album.albumUuid, albums.size()))
                return;
            album.albumIndex = static_cast<std::int32_t>(albums.size());
            albums.push_back(std::move(album));
        });
    });
}
