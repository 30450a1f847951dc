#ifndef IOSPHOTO_TOOL_PHOTO_KINDS_H
#define IOSPHOTO_TOOL_PHOTO_KINDS_H

#include "catalogue/assets.h"

#include <functional>
#include <string>

namespace iosphoto::tool {

/// Whether an asset is a video, of whatever sort; otherwise it is a photo.
bool isVideo(const Asset &asset);

/// Whether an asset is of a kind.
using KindTest = std::function<bool(const Asset &)>;

/// The test of a kind that somebody names: "photo", "video" (of whatever sort) or the name of a
/// trait, such as "live". Throws Failure for an unknown one, naming those that are known.
KindTest kindNamed(const std::string &name);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_KINDS_H
