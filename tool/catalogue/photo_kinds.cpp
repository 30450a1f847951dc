#include "catalogue/photo_kinds.h"

#include "catalogue/traits.h"
#include "failure.h"
#include "language/said.h"

namespace iosphoto::tool {

namespace {

std::string knownKinds()
{
    std::string known = "photo";
    for (const Trait &trait : traits)
        if (*trait.name != '\0')
            known += std::string(", ") + trait.name;
    return known;
}

} // namespace

bool isVideo(const Asset &asset)
{
    return asset.has(&CPhotoData::isVideo) || asset.has(&CPhotoData::isTimelapse) ||
           asset.has(&CPhotoData::isSlomo) || asset.has(&CPhotoData::isScreenRecording);
}

KindTest kindNamed(const std::string &name)
{
    if (name == "photo")
        return [](const Asset &asset) { return !isVideo(asset); };
    if (name == "video")
        return isVideo;
    for (const Trait &trait : traits)
        if (!name.empty() && name == trait.name)
            return [flag = trait.flag](const Asset &asset) { return asset.has(flag); };
    throw Failure(WrongUsage,
                  said("--kind: there is no kind '{0}'; there are {1}", name, knownKinds()));
}

} // namespace iosphoto::tool
