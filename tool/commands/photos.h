#ifndef IOSPHOTO_TOOL_COMMAND_PHOTOS_H
#define IOSPHOTO_TOOL_COMMAND_PHOTOS_H

#include "catalogue/assets.h"
#include "catalogue/library.h"

#include <optional>
#include <ostream>
#include <string>

namespace iosphoto::tool {

/// `iosphoto photos`: the photos of a library, each once, with the albums that show it. Only those
/// that `album` shows, if one is wanted; see selectAlbums() for what it may say.
std::vector<Asset> selectPhotos(const Library &library, const std::optional<std::string> &album);

void printPhotos(const std::vector<Asset> &photos, std::ostream &out);
void printPhotosAsJson(const Library &library, const std::vector<Asset> &photos, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COMMAND_PHOTOS_H
