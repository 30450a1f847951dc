#ifndef IOSPHOTO_TOOL_PHOTO_WORDS_H
#define IOSPHOTO_TOOL_PHOTO_WORDS_H

#include "rows/photo_fields.h"

namespace iosphoto::tool {

/// "4032x3024"
std::string pixelsOf(const CPhotoData &photo);

/// What is special about a photo, as "burst of 10, favorite" or "deleted, 12 days left, goes
/// 2024-05-03", in the user's language.
std::string wordsFor(const PhotoRow &row);

/// The same without its stay in the trash: "favorite, deleted".
std::string kindsOf(const PhotoRow &row);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_WORDS_H
