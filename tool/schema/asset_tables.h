#ifndef IOSPHOTO_TOOL_ASSET_TABLES_H
#define IOSPHOTO_TOOL_ASSET_TABLES_H

#include "sqlite/copy_database.h"

#include <string>

namespace iosphoto::tool {

/// "ZASSET", or before iOS 14 "ZGENERICASSET"; empty in a database without photos.
std::string assetTableOf(const CopyDatabase &database);

/// Whether the tables of the assets do not agree with their indices, or are damaged in another way.
/// A query meets no error where pages have turned into others that look well but hold nothing.
bool areAssetTablesDamaged(const CopyDatabase &database);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ASSET_TABLES_H
