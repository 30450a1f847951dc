#include "floor.h"

#include "device.h"
#include "floor_columns.h"
#include "model/model_devicephoto_dbmgr.h"
#include "model/statements/statement_tables.h"
#include "model/store/source_protection.h"
#include "model/store/sqlite_handles.h"
#include "model/store/untrusted_database.h"

#include <stdexcept>

namespace iosphoto::bench {

namespace {

EntityNumbers lookUpNumbers(const std::string &database)
{
    QDevPhotoDbMgr manager(iosVersion, productType);
    manager.SetDataPath(QString::fromStdString(database));
    manager.GetPrimarykeyTabAssetInfo();
    manager.GetPrimarykeyTabAlbumInfo();
    manager.GetPrimarykeyTabPhotostreamAlbumInfo();
    return {manager.albumEntity, manager.photoStreamAlbumEntity, manager.assetSuperEntity,
            manager.assetEntity};
}

} // namespace

Floor::Floor(const std::filesystem::path &database) : database_(database.string())
{
    const EntityNumbers numbers = lookUpNumbers(database_);
    const DeviceProfile device(iosVersion, productType);
    const auto filled = [&](const StatementTable &table) {
        return filledIn(choose(table, device), numbers).toStdString();
    };
    visits_ = {
        {assetEntityStatement.text, readAssetEntityNumbers},
        {albumEntityStatement.text, readEntityNumber},
        {photoStreamAlbumEntityStatement.text, readEntityNumber},
        {filled(cameraRollStatements), readCameraRollColumns},
        {filled(photoLibraryStatements), readPhotoLibraryColumns},
        {filled(userAlbumStatements), readUserAlbumColumns},
        {filled(albumContentsStatements), readAlbumContentsColumns},
    };
}

std::vector<std::string> Floor::statements() const
{
    std::vector<std::string> statements;
    for (const Visit &visit : visits_)
        statements.push_back(visit.statement);
    return statements;
}

std::vector<int> Floor::visitAll() const
{
    std::vector<int> rows;
    for (const Visit &visit : visits_)
        rows.push_back(make(visit));
    return rows;
}

int Floor::assets() const
{
    return make({"select Z_PK from ZASSET", [](sqlite3_stmt *) {}});
}

int Floor::make(const Visit &visit) const
{
    sqlite3 *opened = nullptr;
    const bool isOpen =
        sqlite3_open_v2(database_.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK;
    const SqliteConnection connection(opened);
    sqlite3_stmt *prepared = nullptr;
    if (isOpen && distrust(opened) == SQLITE_OK && protectSource(opened) == ReadingRisk::None)
        sqlite3_prepare_v2(opened, visit.statement.c_str(), -1, &prepared, nullptr);
    const SqliteStatement statement(prepared);
    if (prepared == nullptr)
        throw std::runtime_error("cannot read " + database_ + ": " + sqlite3_errmsg(opened));
    int rows = 0;
    for (; sqlite3_step(prepared) == SQLITE_ROW; ++rows)
        visit.readColumns(prepared);
    return rows;
}

} // namespace iosphoto::bench
