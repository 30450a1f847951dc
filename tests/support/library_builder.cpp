#include "support/library_builder.h"

#include "support/database.h"

#include <cstdio>
#include <stdexcept>

namespace iosphoto::test {

namespace {

constexpr std::int64_t newestAsset = 600000000; // 2020-01-06 10:40:00 UTC
constexpr std::int64_t oneDay = 24 * 60 * 60;

int bind(sqlite3_stmt *statement, const Value &value)
{
    struct
    {
        sqlite3_stmt *statement;
        int operator()(std::nullptr_t) const { return sqlite3_bind_null(statement, 1); }
        int operator()(int number) const { return sqlite3_bind_int(statement, 1, number); }
        int operator()(std::int64_t number) const
        {
            return sqlite3_bind_int64(statement, 1, number);
        }
        int operator()(double number) const { return sqlite3_bind_double(statement, 1, number); }
        int operator()(const char *text) const { return (*this)(std::string(text)); }
        int operator()(const std::string &text) const
        {
            return sqlite3_bind_text64(statement, 1, text.data(), text.size(), SQLITE_TRANSIENT,
                                       SQLITE_UTF8);
        }
        int operator()(const Blob &blob) const
        {
            return sqlite3_bind_blob64(statement, 1, blob.bytes.data(), blob.bytes.size(),
                                       SQLITE_TRANSIENT);
        }
    } binder{statement};
    return std::visit(binder, value);
}

/// "A0000000-0000-0000-0000-00000000002A" for ('A', 42).
std::string textUuid(char prefix, int number)
{
    char text[37];
    std::snprintf(text, sizeof text, "%c0000000-0000-0000-0000-%012X", prefix,
                  static_cast<unsigned>(number));
    return text;
}

std::string catalogueUuid(const Schema &schema, char prefix, int number)
{
    std::string uuid;
    for (const char character : textUuid(prefix, number)) {
        if (!schema.hasBlobUuids)
            uuid += character;
        else if (character != '-')
            uuid += static_cast<char>(std::tolower(character));
    }
    return uuid;
}

} // namespace

AlbumRow &AlbumRow::set(const std::string &column, const Value &value)
{
    library_->update("ZGENERICALBUM", column, value, "Z_PK = " + std::to_string(key_));
    return *this;
}

std::string AlbumRow::uuid() const
{
    return catalogueUuid(library_->schema_, 'B', key_);
}

AssetRow &AssetRow::set(const std::string &column, const Value &value)
{
    const std::string key = std::to_string(key_);
    const std::string assets = library_->schema_.assetTable();
    if (library_->hasColumn(assets, column))
        library_->update(assets, column, value, "Z_PK = " + key);
    else
        library_->update("ZADDITIONALASSETATTRIBUTES", column, value, "ZASSET = " + key);
    return *this;
}

AssetRow &AssetRow::in(const AlbumRow &album)
{
    const std::string joinTable = "Z_" + std::to_string(library_->schema_.album) + "ASSETS";
    library_->execute("insert into " + joinTable + " values (" + std::to_string(album.key()) +
                      ", " + std::to_string(key_) + ")");
    return *this;
}

AssetRow &AssetRow::trashedAt(std::int64_t coreDataSeconds)
{
    return set("ZTRASHEDSTATE", 1).set("ZTRASHEDDATE", coreDataSeconds);
}

AssetRow &AssetRow::synced()
{
    uuidPrefix_ = '0'; // newer schemas tell synced assets by the zeros
    return set("ZSAVEDASSETTYPE", 256).set("ZUUID", library_->uuidValue(uuidPrefix_, key_));
}

std::string AssetRow::uuid() const
{
    return catalogueUuid(library_->schema_, uuidPrefix_, key_);
}

LibraryBuilder::LibraryBuilder(const Schema &schema, const std::string &encoding)
    : schema_(schema), connection_(openDatabase(path()))
{
    execute("pragma synchronous = off");
    execute("pragma encoding = '" + encoding + "'");
    execute(readFile(std::string(IOSPHOTO_TEST_DATA) + "/schema/" + schema.name + ".sql"));
}

void LibraryBuilder::close()
{
    connection_.reset();
}

AssetRow LibraryBuilder::asset(const Value &fileName)
{
    const int key = ++assets_;
    const std::string text = std::to_string(key);
    const std::string created = std::to_string(newestAsset - key * oneDay);
    execute(std::string("insert into ") + schema_.assetTable() +
            " (Z_PK, Z_ENT, ZWIDTH, ZHEIGHT, ZSAVEDASSETTYPE, ZTHUMBNAILINDEX, ZDIRECTORY,"
            " ZUNIFORMTYPEIDENTIFIER, ZDATECREATED, ZMODIFICATIONDATE) values (" +
            text + ", " + std::to_string(schema_.asset) + ", 4032, 3024, 3, " + text +
            ", 'DCIM/100APPLE', 'public.jpeg', " + created + ", " + created + ")");
    execute("insert into ZADDITIONALASSETATTRIBUTES"
            " (Z_PK, ZASSET, ZORIGINALFILESIZE, ZEMBEDDEDTHUMBNAILHEIGHT) values (" +
            text + ", " + text + ", 1000, 120)");
    AssetRow row(*this, key);
    row.set("ZFILENAME", fileName).set("ZUUID", uuidValue(row.uuidPrefix_, key));
    if (schema_.hasGenericAsset())
        row.set("Z" + std::to_string(schema_.assetSuper) + "_ASSET", schema_.asset);
    if (hasColumn(schema_.assetTable(), "ZTRASHEDSTATE"))
        row.set("ZTRASHEDSTATE", 0).set("ZADDEDDATE", newestAsset - key * oneDay);
    return row;
}

AssetRow LibraryBuilder::cameraRollAsset(const Value &fileName)
{
    AssetRow row = asset(fileName);
    if (!schema_.hasBlobUuids)
        return row;
    if (!untitledAlbum_)
        untitledAlbum_ = album(nullptr);
    return row.in(*untitledAlbum_);
}

AlbumRow LibraryBuilder::album(const Value &title)
{
    return {*this, insertAlbum(schema_.album, title)};
}

AlbumRow LibraryBuilder::photoStream()
{
    return {*this, insertAlbum(schema_.photoStreamAlbum, "My Photo Stream")};
}

void LibraryBuilder::madeBy(std::int64_t modelVersion, const std::string &build)
{
    execute("create table if not exists Z_METADATA (Z_VERSION integer primary key, Z_UUID varchar,"
            " Z_PLIST blob)");
    run("replace into Z_METADATA values (1, 'M', ?)",
        Blob{"<plist version=\"1.0\"><dict><key>PLModelVersion</key><integer>" +
             std::to_string(modelVersion) + "</integer></dict></plist>"});
    if (build.empty())
        return;
    execute("create table if not exists ZMIGRATIONHISTORY (ZINDEX integer, ZOSVERSION varchar)");
    run("insert into ZMIGRATIONHISTORY select count(*), ? from ZMIGRATIONHISTORY", build);
}

int LibraryBuilder::insertAlbum(int entity, const Value &title)
{
    const int key = ++albums_;
    const std::string where = "Z_PK = " + std::to_string(key);
    execute("insert into ZGENERICALBUM (Z_PK, Z_ENT, ZKIND) values (" + std::to_string(key) + ", " +
            std::to_string(entity) + ", 2)");
    update("ZGENERICALBUM", "ZTITLE", title, where);
    update("ZGENERICALBUM", "ZUUID", uuidValue('B', key), where);
    if (hasColumn("ZGENERICALBUM", "ZTRASHEDSTATE"))
        update("ZGENERICALBUM", "ZTRASHEDSTATE", 0, where);
    return key;
}

Value LibraryBuilder::uuidValue(char prefix, int number) const
{
    if (!schema_.hasBlobUuids)
        return textUuid(prefix, number);
    Blob blob;
    const std::string hex = catalogueUuid(schema_, prefix, number);
    for (std::size_t i = 0; i < hex.size(); i += 2)
        blob.bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return blob;
}

void LibraryBuilder::update(const std::string &table, const std::string &column, const Value &value,
                            const std::string &where)
{
    run("update " + table + " set " + column + " = ? where " + where, value);
}

bool LibraryBuilder::hasColumn(const std::string &table, const std::string &column)
{
    return sqlite3_table_column_metadata(connection_.get(), nullptr, table.c_str(), column.c_str(),
                                         nullptr, nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
}

void LibraryBuilder::run(const std::string &sql, const Value &value)
{
    const SqliteStatement statement = prepare(connection_, sql);
    if (bind(statement.get(), value) != SQLITE_OK || sqlite3_step(statement.get()) != SQLITE_DONE)
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(connection_.get()));
}

int LibraryBuilder::number(const std::string &query)
{
    const SqliteStatement statement = prepare(connection_, query);
    if (sqlite3_step(statement.get()) != SQLITE_ROW)
        throw std::runtime_error(query + ": " + sqlite3_errmsg(connection_.get()));
    return sqlite3_column_int(statement.get(), 0);
}

void LibraryBuilder::execute(const std::string &sql)
{
    test::execute(connection_, sql);
}

} // namespace iosphoto::test
