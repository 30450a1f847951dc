/// What makes a database one of photos, whatever its file is called.
#ifndef IOSPHOTO_TOOL_PHOTO_DATABASES_H
#define IOSPHOTO_TOOL_PHOTO_DATABASES_H

#include "input/tree/file_tree.h"
#include "session/session.h"
#include "sqlite/copy_database.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// "ZASSET", or before iOS 14 "ZGENERICASSET"; empty in a database without photos.
std::string assetTableOf(const CopyDatabase &database);

/// Whether it has the tables of every library from iOS 6 on, or one of files that are assets, as a
/// library of an iOS that is not known may.
bool hasPhotoTables(const CopyDatabase &database);
/// Whether it has those of iOS 5 and earlier.
bool hasPhotoTablesOfOldIos(const CopyDatabase &database);

/// Those of the files that are photo databases, and those for which that would take long to tell,
/// or cannot be told.
std::vector<std::string> photoDatabasesAmong(Session &session, const FileTree &tree,
                                             const std::vector<std::string> &files);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_DATABASES_H
