#include "model/statements/entity_numbers.h"

#include "model/passes/pass_run.h"

namespace iosphoto {

EntityNumbers entityNumbers(const QDevPhotoDbMgr &manager)
{
    return {manager.albumEntity, manager.photoStreamAlbumEntity, manager.assetSuperEntity,
            manager.assetEntity};
}

namespace {

/// Runs a lookup; of several rows the last one counts.
template <typename TakeRow>
int lookUp(QDevPhotoDbMgr &manager, Pass::Code pass, const Statement &statement, TakeRow takeRow)
{
    return runPass(manager, pass, [&](PassRun &run) {
        return run.readRows({QString::fromUtf8(statement.text), {}}, takeRow);
    });
}

} // namespace

} // namespace iosphoto

using namespace iosphoto;

int QDevPhotoDbMgr::GetPrimarykeyTabAssetInfo()
{
    return lookUp(*this, Pass::AssetEntity, assetEntityStatement, [this](const Row &row) {
        assetSuperEntity = row.int32(0);
        assetEntity = row.int32(1);
    });
}

int QDevPhotoDbMgr::GetPrimarykeyTabAlbumInfo()
{
    return lookUp(*this, Pass::AlbumEntity, albumEntityStatement,
                  [this](const Row &row) { albumEntity = row.int32(0); });
}

int QDevPhotoDbMgr::GetPrimarykeyTabPhotostreamAlbumInfo()
{
    return lookUp(*this, Pass::PhotoStreamAlbumEntity, photoStreamAlbumEntityStatement,
                  [this](const Row &row) { photoStreamAlbumEntity = row.int32(0); });
}
