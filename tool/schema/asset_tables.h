#ifndef IOSPHOTO_TOOL_ASSET_TABLES_H
#define IOSPHOTO_TOOL_ASSET_TABLES_H

#include "input/photo_databases.h"
#include "sqlite/copy_database.h"

namespace iosphoto::tool {

/// Whether the tables of the assets do not agree with their indices, or are damaged in another way.
/// A query meets no error where pages have turned into others that look well but hold nothing.
bool areAssetTablesDamaged(const CopyDatabase &database);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ASSET_TABLES_H
