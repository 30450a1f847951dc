#ifndef IOSPHOTO_TOOL_ALBUM_KINDS_H
#define IOSPHOTO_TOOL_ALBUM_KINDS_H

#include "ios_photo.h"

#include <string>

namespace iosphoto::tool {

/// The name of an album's kind for machines, such as "selfies".
std::string kindName(const CAlbumGroup &album);

/// The same in English, such as "Selfies". The second album of a kind, which collects from other
/// albums, is "Selfies from albums".
std::string englishKind(const CAlbumGroup &album);

/// The same in the language that is spoken.
std::string shownKind(const CAlbumGroup &album);

/// What a person calls the album: an album of the table by its own name, a built-in one by its
/// kind, and one that a computer imported by what it is, in the language that is spoken.
std::string shownName(const CAlbumGroup &album);

/// The same in English, for documents.
std::string englishName(const CAlbumGroup &album);

/// The key of the field that decides what is in the albums of a name or kind, such as "isSelfie";
/// "albums" for those that no field decides.
const char *fieldBehindAlbum(const std::string &name);

/// An album of the table, as opposed to the built-in ones.
bool isOfTheTable(const CAlbumGroup &album);

/// An album of the table that has no title.
bool isUntitled(const CAlbumGroup &album);

/// Whether the album collects photos of one kind from the albums that the device did not make.
bool collectsFromAlbums(const CAlbumGroup &album);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ALBUM_KINDS_H
