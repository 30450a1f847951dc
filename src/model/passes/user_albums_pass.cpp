#include "model/passes/user_albums_pass.h"

#include "model/database_codes.h"
#include "model/display_texts.h"
#include "model/passes/albums_by_uuid.h"
#include "model/passes/pass_run.h"
#include "model/passes/row_columns.h"
#include "model/passes/row_uuid.h"

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
    album.isSmartAlbum = row.int32(kind) == TableAlbumKind::MadeOnDevice;
    if (isEntity(row, album_entity::album)) {
        if (!album.albumName.isEmpty())
            album.albumKind = AlbumKind::User;
    } else if (isEntity(row, album_entity::photoStreamAlbum)) {
        album.albumKind = AlbumKind::PhotoStream;
        album.albumName = photoStreamName;
        album.isSmartAlbum = true;
    }
    album.albumCount = cachedCount(row);
    album.albumUuid = uuidOf(row, uuid, ios);
    return album;
}

} // namespace

int readUserAlbums(const PassContext &context)
{
    return runPass(context, Pass::UserAlbums, [&](PassRun &run) {
        std::vector<CAlbumGroup> &albums = context.albums;
        const QString photoStreamName = translated(display_text::photoStream);
        // The built-in albums have no uuid, so an album of the table without one is a duplicate.
        AlbumsByUuid known(albums);
        return run.readRows(userAlbumStatements, [&](const Row &row) {
            CAlbumGroup album = readAlbum(row, context.device.ios, photoStreamName);
            if (!known.add(album.albumUuid, albums.size()))
                return;
            album.albumIndex = static_cast<std::int32_t>(albums.size());
            albums.push_back(std::move(album));
        });
    });
}

} // namespace iosphoto
