#ifndef IOSPHOTO_TOOL_ALBUM_ACCOUNT_H
#define IOSPHOTO_TOOL_ALBUM_ACCOUNT_H

#include "catalogue/left_out_reasons.h"
#include "catalogue/reading_facts.h"
#include "sqlite/copy_database.h"

namespace iosphoto::tool {

/// Compares the album table with the albums of the catalogue. Throws Failure when the table cannot
/// be read.
AlbumAccount accountOfAlbums(const CopyDatabase &database, const ReadingFacts &reading);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ALBUM_ACCOUNT_H
