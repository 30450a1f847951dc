#ifndef IOSPHOTO_TOOL_LIBRARY_DATABASE_H
#define IOSPHOTO_TOOL_LIBRARY_DATABASE_H

#include "rows/photo_fields.h"

#include <string>

namespace iosphoto::tool {

/// Writes a SQLite database with the albums of a library.
void writeAlbumDatabase(const std::string &file, const Library &library);

/// The same with photos too, and with which album shows which of them where.
void writePhotoDatabase(const std::string &file, const Library &library,
                        const std::vector<Asset> &photos, const PhotoRows &rows);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_DATABASE_H
