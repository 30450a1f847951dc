#include "model/entity_numbers.h"

#include "model/model_devicephoto_dbmgr.h"
#include "model/statement_tables.h"
#include "model/store/database_visit.h"
#include "no_throw.h"

namespace iosphoto {

EntityNumbers entityNumbers(const QDevPhotoDbMgr &manager)
{
    return {manager.albumEntity, manager.photoStreamAlbumEntity, manager.assetSuperEntity,
            manager.assetEntity};
}

namespace {

/// Runs a lookup; of several rows the last one counts.
template <typename TakeRow>
int lookUp(const QDevPhotoDbMgr &manager, const Statement &statement, TakeRow takeRow)
{
    return withoutThrowing(
        [&] { return visitRows(manager.dataPath, QString::fromUtf8(statement.text), takeRow); });
}

} // namespace

} // namespace iosphoto

using iosphoto::Row;

int QDevPhotoDbMgr::GetPrimarykeyTabAssetInfo()
{
    return iosphoto::lookUp(*this, iosphoto::assetEntityStatement, [this](const Row &row) {
        assetSuperEntity = row.int32(0);
        assetEntity = row.int32(1);
    });
}

int QDevPhotoDbMgr::GetPrimarykeyTabAlbumInfo()
{
    return iosphoto::lookUp(*this, iosphoto::albumEntityStatement,
                            [this](const Row &row) { albumEntity = row.int32(0); });
}

int QDevPhotoDbMgr::GetPrimarykeyTabPhotostreamAlbumInfo()
{
    return iosphoto::lookUp(*this, iosphoto::photoStreamAlbumEntityStatement,
                            [this](const Row &row) { photoStreamAlbumEntity = row.int32(0); });
}
