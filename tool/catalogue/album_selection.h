#ifndef IOSPHOTO_TOOL_ALBUM_SELECTION_H
#define IOSPHOTO_TOOL_ALBUM_SELECTION_H

#include "catalogue/library.h"

namespace iosphoto::tool {

/// The albums that fit `wanted`, in the catalogue's order: by their own name, by their kind (its
/// machine name, name in English or in the language spoken, or number) or by their uuid, letter
/// case aside. Says on stderr when there are several. Throws Failure when there is none.
std::vector<const CAlbumGroup *> selectAlbums(const Library &library, const std::string &wanted);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ALBUM_SELECTION_H
