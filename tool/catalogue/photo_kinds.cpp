#include "catalogue/photo_kinds.h"

#include "catalogue/traits.h"
#include "failure.h"
#include "language/said.h"

namespace iosphoto::tool {

namespace {

std::vector<PhotoKind> allKinds()
{
    std::vector<PhotoKind> kinds = {
        {"photo", translatable("photo"), [](const Asset &asset) { return !isVideo(asset); }},
        {"video", translatable("video"), isVideo}};
    for (const Trait &trait : traits)
        if (*trait.name != '\0' && trait.flag != &CPhotoData::isVideo) // "video" says more
            kinds.push_back({trait.name, trait.word,
                             [flag = trait.flag](const Asset &asset) { return asset.has(flag); }});
    return kinds;
}

std::string knownKinds()
{
    std::string known;
    for (const PhotoKind &kind : photoKinds())
        known += (known.empty() ? "" : ", ") + std::string(kind.name);
    return known;
}

} // namespace

bool isVideo(const Asset &asset)
{
    return asset.has(&CPhotoData::isVideo) || asset.has(&CPhotoData::isTimelapse) ||
           asset.has(&CPhotoData::isSlomo) || asset.has(&CPhotoData::isScreenRecording);
}

const std::vector<PhotoKind> &photoKinds()
{
    static const std::vector<PhotoKind> kinds = allKinds();
    return kinds;
}

KindTest kindNamed(const std::string &name)
{
    for (const PhotoKind &kind : photoKinds())
        if (name == kind.name)
            return kind.test;
    throw Failure(WrongUsage,
                  said("--kind: there is no kind '{0}'; there are {1}", name, knownKinds()));
}

} // namespace iosphoto::tool
