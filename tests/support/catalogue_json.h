#ifndef IOSPHOTO_TESTS_CATALOGUE_JSON_H
#define IOSPHOTO_TESTS_CATALOGUE_JSON_H

#include "ios_photo.h"

#include <nlohmann/json.hpp>

namespace iosphoto::test {

/// Every field of an album and its records but the pixmap, by its name.
nlohmann::json asJson(const CAlbumGroup &album);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_CATALOGUE_JSON_H
