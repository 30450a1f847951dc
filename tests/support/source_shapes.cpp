#include "support/source_shapes.h"

#include "support/archive_builder.h"
#include "support/backup_builder.h"

namespace iosphoto::test {

namespace fs = std::filesystem;

namespace {

/// With its log if it has one.
fs::path putDatabase(const LibraryBuilder &library, const fs::path &folder)
{
    const fs::path database = folder / "Photos.sqlite";
    for (const char *suffix : {"", "-wal"})
        if (fs::exists(library.path() + suffix))
            fs::copy_file(library.path() + suffix, database.string() + suffix);
    return database;
}

fs::path putMedia(const LibraryBuilder &library, const fs::path &folder)
{
    fs::create_directories(folder / "Media/PhotoData");
    putDatabase(library, folder / "Media/PhotoData");
    return folder / "Media";
}

fs::path putBackup(const LibraryBuilder &library, const fs::path &folder)
{
    return writeBackup(folder / "backup", library);
}

fs::path putZipOfBackup(const LibraryBuilder &library, const fs::path &folder)
{
    return packed(putBackup(library, folder), folder / "backup", zip);
}

} // namespace

std::ostream &operator<<(std::ostream &stream, const SourceShape &shape)
{
    return stream << shape.label;
}

std::vector<SourceShape> allSourceShapes()
{
    return {{"Database", "database", false, false, putDatabase},
            {"DatabaseWithLog", "database", false, true, putDatabase},
            {"MediaFolder", "media-folder", false, true, putMedia},
            {"Backup", "backup", false, false, putBackup},
            {"ZipOfBackup", "backup", true, true, putZipOfBackup}};
}

ShapedSource::ShapedSource(const SourceShape &shape)
{
    LibraryBuilder library(ios15);
    library.madeBy(17311, "21E219");
    library.asset("IMG_0001.JPG").set("ZFAVORITE", 1);
    const AlbumRow trip = library.album("Trip");
    if (shape.hasLog)
        library.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
    library.asset("IMG_0002.MOV").in(trip).video();
    path_ = shape.put(library, folder_.path()).string();
}

} // namespace iosphoto::test
