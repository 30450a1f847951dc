#ifndef IOSPHOTO_ENTITY_NUMBERS_H
#define IOSPHOTO_ENTITY_NUMBERS_H

#include <cstdint>

namespace iosphoto {

/// The numbers that Core Data gave the entities in this database. They differ from schema to schema
/// and stand in the names of its join tables and columns.
struct EntityNumbers
{
    std::int32_t album = 0;
    std::int32_t photoStreamAlbum = 0;
    std::int32_t assetSuper = 0; ///< parent of `Asset`, whose number older schemas use in its place
    std::int32_t asset = 0;
};

} // namespace iosphoto

#endif // IOSPHOTO_ENTITY_NUMBERS_H
