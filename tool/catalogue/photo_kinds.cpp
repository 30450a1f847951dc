#include "catalogue/photo_kinds.h"

#include "process/failure.h"
#include "text/did_you_mean.h"
#include "text/translate.h"

#include <fmt/ranges.h>

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

KindTest kindNamed(const std::string &name)
{
    const std::string small = QString::fromStdString(name).toLower().toStdString();
    for (const PhotoKind &kind : photoKinds())
        if (small == kind.name || small == kind.name + std::string("s"))
            return kind.test;
    throw Failure(WrongUsage, translate("--kind: there is no kind '{0}'; there are {1}", name,
                                        fmt::join(kindNames(), ", ")) +
                                  didYouMean(small, kindNames()));
}

} // namespace iosphoto::tool
