#ifndef IOSPHOTO_TOOL_LIBRARY_DATABASE_H
#define IOSPHOTO_TOOL_LIBRARY_DATABASE_H

#include "catalogue/library.h"
#include "files/file_use.h"
#include "rows/photo_fields.h"

#include <string>

namespace iosphoto::tool {

/// Writes a SQLite database with the albums of a library.
void writeAlbumDatabase(FileUse &files, const std::string &file, const Library &library);

/// The same with photos too, and with which album shows which of them where.
void writePhotoDatabase(FileUse &files, const std::string &file, const Library &library,
                        const ChosenAssets &photos, const PhotoRows &rows);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_DATABASE_H
