#include "commands/photos.h"

#include "catalogue/album_kinds.h"
#include "catalogue/album_selection.h"
#include "catalogue/traits.h"
#include "output/json_document.h"
#include "output/text_table.h"

#include <QLocale>

#include <algorithm>

namespace iosphoto::tool {

namespace {

template <typename Items, typename Text>
std::string joined(const Items &items, Text text)
{
    std::string line;
    for (const auto &item : items) {
        const std::string word = text(item);
        if (!word.empty())
            line += (line.empty() ? "" : ", ") + word;
    }
    return line;
}

std::string traitWords(const CPhotoData &photo)
{
    return joined(traits, [&](const Trait &trait) { return photo.*trait.flag ? trait.word : ""; });
}

std::string readableSize(std::int64_t bytes)
{
    return QLocale::c()
        .formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat)
        .toStdString();
}

std::string path(const CPhotoData &photo)
{
    const QString separator = photo.directory.isEmpty() ? "" : "/";
    return (photo.directory + separator + photo.fileName).toStdString();
}

Json photoAsJson(const Asset &asset)
{
    const CPhotoData &photo = asset.facts;
    Json entry = {
        {"uuid", textOrNull(photo.uuid)},
        {"assetId", photo.assetId >= 0 ? Json(photo.assetId) : Json()},
        {"directory", photo.directory.toStdString()},
        {"fileName", photo.fileName.toStdString()},
        {"originalFileName", textOrNull(photo.sourceFileName)},
        {"width", photo.width},
        {"height", photo.height},
        {"fileSize", photo.fileSize},
        {"duration", photo.duration},
        {"created", utcTime(photo.createdTime)},
        {"modified", utcTime(photo.modifiedTime)},
        {"added", utcTime(photo.addedTime)},
        {"createdSince2001", photo.createdTime},
        {"localDay", photo.dateText.toStdString()},
        {"thumbnailIndex", photo.thumbnailIndex},
        {"burstUuid", textOrNull(photo.burstUuid)},
        {"burstCount", photo.burstCount},
        {"isBurstPick", photo.isBurstPick != 0},
    };
    for (const Trait &trait : traits)
        entry[trait.key] = photo.*trait.flag;
    Json &albums = entry["albums"] = Json::array();
    for (const CAlbumGroup *album : asset.albums)
        albums.push_back(albumReference(*album));
    return entry;
}

} // namespace

std::vector<Asset> selectPhotos(const Library &library, const std::optional<std::string> &album)
{
    std::vector<Asset> photos = assetsOf(library.albums());
    if (!album)
        return photos;
    const std::vector<const CAlbumGroup *> selected = selectAlbums(library, *album);
    photos.erase(std::remove_if(photos.begin(), photos.end(),
                                [&](const Asset &photo) { return !isShownBy(photo, selected); }),
                 photos.end());
    return photos;
}

void printPhotos(const std::vector<Asset> &photos, std::ostream &out)
{
    using Align = TextTable::Align;
    TextTable table({{"DAY"},
                     {"FILE"},
                     {"PIXELS", Align::Right},
                     {"SIZE", Align::Right},
                     {"WHAT"},
                     {"ALBUMS"}});
    for (const Asset &asset : photos) {
        const CPhotoData &photo = asset.facts;
        table.add(
            {photo.dateText.toStdString(), path(photo),
             std::to_string(photo.width) + "x" + std::to_string(photo.height),
             readableSize(photo.fileSize), traitWords(photo),
             joined(asset.albums, [](const CAlbumGroup *album) { return englishName(*album); })});
    }
    table.print(out);
}

void printPhotosAsJson(const Library &library, const std::vector<Asset> &photos, std::ostream &out)
{
    Json document = libraryHead(library);
    Json &entries = document["photos"] = Json::array();
    for (const Asset &photo : photos)
        entries.push_back(photoAsJson(photo));
    print(document, out);
}

} // namespace iosphoto::tool
