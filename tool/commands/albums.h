#ifndef IOSPHOTO_TOOL_COMMAND_ALBUMS_H
#define IOSPHOTO_TOOL_COMMAND_ALBUMS_H

#include "catalogue/library.h"

#include <ostream>

namespace iosphoto::tool {

/// `iosphoto albums`: the albums of a library in the catalogue's order, as a table.
void printAlbums(const Library &library, std::ostream &out);

/// The same as a JSON document.
void printAlbumsAsJson(const Library &library, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COMMAND_ALBUMS_H
