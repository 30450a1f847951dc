#include "rows/library_database.h"

#include "rows/album_fields.h"
#include "rows/library_head.h"
#include "rows/sqlite_output.h"

namespace iosphoto::tool {

namespace {

void writeAlbums(SqliteOutput &output, const Library &library)
{
    SqliteRows writer(output, "index");
    RowStream<AlbumRow> stream(writer, {"albums", {}, {}},
                               withUnknown(factsOf(albumFields()), library.schema().unknownFields));
    for (const CAlbumGroup &album : library.albums())
        stream.write(AlbumRow(album, library.dates()));
    stream.end();
}

void writePhotos(SqliteOutput &output, const Library &library, const ChosenAssets &photos,
                 const PhotoRows &rows)
{
    SqliteRows writer(output);
    RowStream<PhotoRow> stream(writer, {"photos", {}, {}},
                               withUnknown(photoColumns(), library.schema().unknownFields));
    stream.writeAll(photos, [&](const Asset &photo) { return rows.of(photo); });
    output.execute("create index photos_uuid on photos (uuid);"
                   "create index photos_created on photos (created)");
}

void writeAppearances(SqliteOutput &output, const ChosenAssets &photos)
{
    output.execute("create table album_photos ("
                   "album integer references albums (\"index\"), position integer, "
                   "photo integer references photos (id), "
                   "primary key (album, position)) without rowid");
    constexpr std::size_t columns = 3;
    SqliteInsert insert(output, "album_photos", columns);
    std::int64_t id = 0;
    for (const Asset photo : photos) {
        ++id;
        for (const Appearance &appearance : photo)
            if (appearance.album != nullptr)
                insert.row({std::int64_t(appearance.album->albumIndex),
                            static_cast<std::int64_t>(appearance.position), id});
    }
    output.execute("create index album_photos_photo on album_photos (photo)");
}

} // namespace

void writeAlbumDatabase(FileUse &files, const std::string &file, const Library &library)
{
    SqliteOutput output(files, file, library.name(), libraryHead(library));
    writeAlbums(output, library);
    output.finish();
}

void writePhotoDatabase(FileUse &files, const std::string &file, const Library &library,
                        const ChosenAssets &photos, const PhotoRows &rows)
{
    SqliteOutput output(files, file, library.name(), libraryHead(library));
    writeAlbums(output, library);
    writePhotos(output, library, photos, rows);
    writeAppearances(output, photos);
    output.finish();
}

} // namespace iosphoto::tool
