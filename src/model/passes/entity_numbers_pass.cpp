#include "model/passes/entity_numbers_pass.h"

#include "model/passes/pass_run.h"

namespace iosphoto {

namespace {

template <typename TakeRow>
int lookUp(const PassContext &context, Pass::Code pass, const Statement &statement, TakeRow takeRow)
{
    return runPass(context, pass, [&](PassRun &run) {
        return run.readRows({QString::fromUtf8(statement.text), {}}, takeRow);
    });
}

} // namespace

int readAssetEntities(const PassContext &context, std::int32_t &assetSuper, std::int32_t &asset)
{
    return lookUp(context, Pass::AssetEntity, assetEntityStatement, [&](const Row &row) {
        assetSuper = row.int32(0);
        asset = row.int32(1);
    });
}

int readAlbumEntity(const PassContext &context, std::int32_t &album)
{
    return lookUp(context, Pass::AlbumEntity, albumEntityStatement,
                  [&](const Row &row) { album = row.int32(0); });
}

int readPhotoStreamAlbumEntity(const PassContext &context, std::int32_t &photoStreamAlbum)
{
    return lookUp(context, Pass::PhotoStreamAlbumEntity, photoStreamAlbumEntityStatement,
                  [&](const Row &row) { photoStreamAlbum = row.int32(0); });
}

} // namespace iosphoto
