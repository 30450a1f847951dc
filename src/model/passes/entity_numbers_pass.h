/// The lookups of the entity numbers. Each is a pass of its own and leaves the numbers as they were
/// where the database does not have them; of several rows the last one counts. Each returns the
/// number of rows, or a negated SQLite code.
#ifndef IOSPHOTO_ENTITY_NUMBERS_PASS_H
#define IOSPHOTO_ENTITY_NUMBERS_PASS_H

#include "model/passes/pass_context.h"

namespace iosphoto {

int readAssetEntities(const PassContext &context, std::int32_t &assetSuper, std::int32_t &asset);
int readAlbumEntity(const PassContext &context, std::int32_t &album);
int readPhotoStreamAlbumEntity(const PassContext &context, std::int32_t &photoStreamAlbum);

} // namespace iosphoto

#endif // IOSPHOTO_ENTITY_NUMBERS_PASS_H
