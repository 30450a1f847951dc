#ifndef IOSPHOTO_TOOL_PHOTO_KINDS_H
#define IOSPHOTO_TOOL_PHOTO_KINDS_H

#include "catalogue/assets.h"

#include <functional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Whether an asset is a video, of whatever sort; otherwise it is a photo.
bool isVideo(const Asset &asset);

/// Whether an asset is of a kind.
using KindTest = std::function<bool(const Asset &)>;

/// A kind of photos, as far as somebody may ask for it.
struct PhotoKind
{
    const char *name; ///< in options and documents, such as "slo-mo"
    const char *word; ///< in tables
    KindTest test;
};

/// "photo", "video" (of whatever sort), then every trait that has a name. One asset may be of
/// several.
const std::vector<PhotoKind> &photoKinds();

std::vector<std::string> kindNames();

/// The test of the kind that somebody names, in any case of letters, one or many: "screenshot" or
/// "Screenshots". Throws Failure for an unknown one, naming those that are known.
KindTest kindNamed(const std::string &name);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_KINDS_H
