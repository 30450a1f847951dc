#include "store_writer.h"

#include "store_indexes.h"
#include "store_tables.h"

#include <stdexcept>

namespace iosphoto::bench {

namespace {

/// As the database of a phone is laid out.
constexpr char layout[] = "pragma page_size = 4096; pragma auto_vacuum = incremental;";

/// The file is lost anyway when this process dies.
constexpr char haste[] = "pragma journal_mode = off; pragma synchronous = off;"
                         "pragma locking_mode = exclusive; pragma cache_size = -131072;";

// The values without a parameter make a row as long as a real one on average, which decides how
// many pages are read.
constexpr char insertAsset[] = R"sql(
insert into ZASSET (
    Z_PK, Z_ENT, Z_OPT, ZADDITIONALATTRIBUTES, ZCOMPUTEDATTRIBUTES, ZEXTENDEDATTRIBUTES,
    ZMEDIAANALYSISATTRIBUTES, ZMOMENT, ZCOMPLETE, ZORIENTATION, ZPACKEDACCEPTABLECROPRECT,
    ZPACKEDPREFERREDCROPRECT, ZCURATIONSCORE, ZLATITUDE, ZLONGITUDE, ZOVERALLAESTHETICSCORE,
    ZHIGHLIGHTVISIBILITYSCORE, ZIMAGEREQUESTHINTS, ZBUNDLESCOPE, ZCLOUDLOCALSTATE,
    ZCLOUDPLACEHOLDERKIND, ZVISIBILITYSTATE, ZTHUMBNAILINDEX,
    ZAVALANCHEPICKTYPE, ZDEPTHTYPE, ZFAVORITE, ZHASADJUSTMENTS, ZHIDDEN, ZTRASHEDSTATE,
    ZTRASHEDDATE, ZWIDTH, ZHEIGHT, ZKIND, ZKINDSUBTYPE, ZPACKEDBADGEATTRIBUTES, ZPLAYBACKSTYLE,
    ZSAVEDASSETTYPE, ZDURATION, ZDATECREATED, ZSORTTOKEN, ZADDEDDATE, ZMODIFICATIONDATE,
    ZANALYSISSTATEMODIFICATIONDATE, ZAVALANCHEUUID, ZDIRECTORY, ZFILENAME, ZUNIFORMTYPEIDENTIFIER,
    ZUUID
) values (
    ?1, 3, 4, ?1, ?1, ?1, ?1, ?1 / 8, 1, 1, 3659333615812651, 1407490853503048, 0.625, 52.5123,
    13.3912, 0.51171875, 0.0381679389312977, zeroblob(51), 0, 0, 0, 0, ?1,
    ?2, ?3, ?4, ?5, ?6, ?7,
    nullif(?8, 0), ?9, ?10, ?11, ?12, ?13, ?14,
    ?15, ?16, ?17, ?17, ?17 + 2.25, ?17 + 86400.5,
    ?17 + 7200.125, nullif(?18, ''), ?19, ?20, ?21, ?22
))sql";

constexpr char insertAttributes[] = R"sql(
insert into ZADDITIONALASSETATTRIBUTES (
    Z_PK, Z_ENT, Z_OPT, ZASSET, ZALLOWEDFORANALYSIS, ZINFERREDTIMEZONEOFFSET, ZTIMEZONEOFFSET,
    ZLOCATIONHASH, ZSCENEANALYSISVERSION, ZGPSHORIZONTALACCURACY, ZSCENEANALYSISTIMESTAMP,
    ZEXIFTIMESTAMPSTRING, ZMASTERFINGERPRINT, ZPUBLICGLOBALUUID, ZTIMEZONENAME, ZDISTANCEIDENTITY,
    ZREVERSELOCATIONDATA, ZEMBEDDEDTHUMBNAILHEIGHT,
    ZCAMERACAPTUREDEVICE, ZVIDEOCPDURATIONTIMESCALE, ZORIGINALFILESIZE, ZORIGINALWIDTH,
    ZORIGINALHEIGHT, ZORIGINALFILENAME
) values (
    ?1, 1, 2, ?1, 1, 3600, 3600,
    ?1 * 2654435761, 31, 4.75, 700000000.5,
    '2023:03:08 16:00:00', 'Acg7iUvHLiR8FEuZ08xqDKhpN+tR', ?8, 'GMT+0100', zeroblob(1),
    zeroblob(320), 0,
    ?2, ?3, ?4, ?5, ?6, ?7
))sql";

constexpr char insertAlbum[] = R"sql(
insert into ZGENERICALBUM (
    Z_PK, Z_ENT, Z_OPT, ZCACHEDCOUNT, ZCACHEDPHOTOSCOUNT, ZCACHEDVIDEOSCOUNT, ZKIND, ZTRASHEDSTATE,
    ZCREATIONDATE, ZTITLE, ZUUID
) values (?1, 27, 3, ?2, ?2, 0, 2, 0, 600000000.25 + ?1, 'Journey ' || ?1, ?3))sql";

constexpr char insertMembership[] = "insert into Z_27ASSETS values (?1, ?2, ?2 * 1024)";

int bind(sqlite3_stmt *statement, int place, int value)
{
    return sqlite3_bind_int(statement, place, value);
}

int bind(sqlite3_stmt *statement, int place, std::int64_t value)
{
    return sqlite3_bind_int64(statement, place, value);
}

int bind(sqlite3_stmt *statement, int place, double value)
{
    return sqlite3_bind_double(statement, place, value);
}

int bind(sqlite3_stmt *statement, int place, const std::string &value)
{
    return sqlite3_bind_text64(statement, place, value.data(), value.size(), SQLITE_STATIC,
                               SQLITE_UTF8);
}

/// In the trash until 2040, so that the albums do not depend on the day of the run.
double trashedDate(const AssetSort &sort)
{
    constexpr double in2040 = 1230768000;
    return sort.has(Trashed) ? in2040 : 0;
}

} // namespace

StoreWriter::StoreWriter(const std::filesystem::path &database)
{
    sqlite3 *connection = nullptr;
    const int opened = sqlite3_open(database.c_str(), &connection);
    connection_.reset(connection);
    check(opened);
    execute(layout);
    execute(haste);
    execute("begin");
    execute(store_tables);
    asset_ = prepare(insertAsset);
    attributes_ = prepare(insertAttributes);
    album_ = prepare(insertAlbum);
    membership_ = prepare(insertMembership);
}

void StoreWriter::addAsset(const AssetValues &asset)
{
    const AssetSort &sort = *asset.sort;
    const auto is = [&](Trait trait) { return sort.has(trait) ? 1 : 0; };
    insert(asset_, asset.key, asset.pickType, is(Portrait), is(Favorite), is(Edited), is(Hidden),
           is(Trashed), trashedDate(sort), asset.width, asset.height, sort.isVideo() ? 1 : 0,
           sort.kindSubtype, sort.badge, sort.playbackStyle, sort.savedAssetType, asset.duration,
           asset.created, asset.burstUuid, asset.directory, asset.fileName,
           std::string(sort.uniformType), asset.uuid);
    constexpr int liveTimeScale = 600;
    insert(attributes_, asset.key, is(Selfie), is(Live) * liveTimeScale, asset.fileSize,
           asset.width, asset.height, asset.originalName, asset.uuid);
}

void StoreWriter::addAlbum(int key, int photos)
{
    insert(album_, key, photos, madeUpUuid("Album", key));
}

void StoreWriter::addToAlbum(int album, int asset)
{
    insert(membership_, album, asset);
}

void StoreWriter::createIndexes()
{
    execute(store_indexes);
    execute("commit");
    execute("pragma locking_mode = normal; pragma journal_mode = wal; begin");
}

void StoreWriter::continueInLog()
{
    execute("commit; pragma wal_autocheckpoint = 0; begin");
    check(sqlite3_db_config(connection_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr));
}

void StoreWriter::commit()
{
    execute("commit");
}

SqliteStatement StoreWriter::prepare(const char *sql) const
{
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(connection_.get(), sql, -1, &statement, nullptr));
    return SqliteStatement(statement);
}

void StoreWriter::execute(const char *sql) const
{
    check(sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr));
}

void StoreWriter::check(int result) const
{
    if (result != SQLITE_OK && result != SQLITE_DONE)
        throw std::runtime_error(std::string("cannot make a library: ") +
                                 sqlite3_errmsg(connection_.get()));
}

template <typename... Values>
void StoreWriter::insert(const SqliteStatement &statement, const Values &...values) const
{
    int place = 0;
    (check(bind(statement.get(), ++place, values)), ...);
    check(sqlite3_step(statement.get()));
    check(sqlite3_reset(statement.get()));
}

} // namespace iosphoto::bench
