#include "catalogue/photo_kinds.h"

#include "text/translate.h"

namespace iosphoto::tool {

namespace {

std::vector<PhotoKind> allKinds()
{
    std::vector<PhotoKind> kinds = {{"photo", translatable("photo"), "mediaKind",
                                     [](const Asset &asset) { return !isVideo(asset); }},
                                    {"video", translatable("video"), "mediaKind", isVideo}};
    for (const Trait &trait : traits)
        if (*trait.name != '\0' && trait.flag != &CPhotoData::isVideo) // "video" says more
            kinds.push_back({trait.name, trait.word, trait.key,
                             [flag = trait.flag](const Asset &asset) { return asset.has(flag); }});
    return kinds;
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

std::vector<std::string> kindNames()
{
    std::vector<std::string> names;
    for (const PhotoKind &kind : photoKinds())
        names.emplace_back(kind.name);
    return names;
}

const PhotoKind *findKind(const std::string &name)
{
    const std::string small = QString::fromStdString(name).toLower().toStdString();
    for (const PhotoKind &kind : photoKinds())
        if (small == kind.name || small == kind.name + std::string("s"))
            return &kind;
    return nullptr;
}

} // namespace iosphoto::tool
