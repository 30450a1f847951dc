#ifndef IOSPHOTO_TESTS_LIBRARY_BUILDER_H
#define IOSPHOTO_TESTS_LIBRARY_BUILDER_H

#include "model/store/sqlite_handles.h"
#include "support/schema.h"
#include "support/temporary_folder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace iosphoto::test {

/// The bytes of a blob, written "\x01\x02".
struct Blob
{
    std::string bytes;
};

/// A value for a column. Values of another type than the column's are stored as they are.
using Value =
    std::variant<std::nullptr_t, int, std::int64_t, double, const char *, std::string, Blob>;

class LibraryBuilder;

/// An album that a builder has inserted.
class AlbumRow
{
public:
    AlbumRow &set(const std::string &column, const Value &value);
    int key() const { return key_; }
    /// The uuid as the catalogue shows it.
    std::string uuid() const;

private:
    friend class LibraryBuilder;
    AlbumRow(LibraryBuilder &library, int key) : library_(&library), key_(key) {}

    LibraryBuilder *library_;
    int key_;
};

/// An asset that a builder has inserted, in both of its tables.
class AssetRow
{
public:
    /// Sets a column of whichever of the two tables has it.
    AssetRow &set(const std::string &column, const Value &value);
    AssetRow &in(const AlbumRow &album);
    AssetRow &video() { return set("ZUNIFORMTYPEIDENTIFIER", "com.apple.quicktime-movie"); }
    AssetRow &trashedAt(std::int64_t coreDataSeconds);
    /// Makes it an asset that a computer synced.
    AssetRow &synced();
    int key() const { return key_; }
    /// The uuid as the catalogue shows it.
    std::string uuid() const;

private:
    friend class LibraryBuilder;
    AssetRow(LibraryBuilder &library, int key) : library_(&library), key_(key) {}

    LibraryBuilder *library_;
    int key_;
    char uuidPrefix_ = 'A';
};

/// Builds a photo database of one schema, row by row, in a temporary folder.
///
/// An asset is a JPEG that the device's camera took, each a day older than the one before, so that
/// albums show assets in the order in which they were inserted.
class LibraryBuilder
{
public:
    /// @param encoding  of its texts, such as "UTF-16"
    explicit LibraryBuilder(const Schema &schema, const std::string &encoding = "UTF-8");

    AssetRow asset(const Value &fileName);
    /// An asset that the Camera Roll shows on every schema: below iOS 8 an untitled album must hold
    /// it.
    AssetRow cameraRollAsset(const Value &fileName);
    AlbumRow album(const Value &title);
    AlbumRow photoStream();

    /// Notes in the database which schema it has, and which system made it if `build` is given.
    void madeBy(std::int64_t modelVersion, const std::string &build = "");

    void execute(const std::string &sql);
    /// The number that a query finds.
    int number(const std::string &query);
    /// Lets go of the file, so that nothing of the builder's lies beside it.
    void close();

    const Schema &schema() const { return schema_; }
    const std::filesystem::path &folder() const { return folder_.path(); }
    std::string path() const { return (folder_ / "Photos.sqlite").string(); }

private:
    friend class AlbumRow;
    friend class AssetRow;

    int insertAlbum(int entity, const Value &title);
    void update(const std::string &table, const std::string &column, const Value &value,
                const std::string &where);
    bool hasColumn(const std::string &table, const std::string &column);
    void run(const std::string &sql, const Value &value);
    Value uuidValue(char prefix, int number) const;

    Schema schema_;
    TemporaryFolder folder_;
    SqliteConnection connection_;
    std::optional<AlbumRow> untitledAlbum_;
    int assets_ = 0;
    int albums_ = 0;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_LIBRARY_BUILDER_H
