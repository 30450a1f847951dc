#include "catalogue/album_kinds.h"
#include "catalogue/album_selection.h"
#include "catalogue/assets.h"
#include "catalogue/traits.h"
#include "commands/command.h"
#include "commands/library_options.h"
#include "language/said.h"
#include "output/json_document.h"
#include "output/text_table.h"

#include <QLocale>

#include <algorithm>

namespace iosphoto::tool {

namespace {

struct PhotosRequest
{
    LibraryRequest library;
    std::optional<std::string> album;
    bool asJson = false;
};

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

Json photoAsJson(const Asset &asset)
{
    const CPhotoData photo = asset.facts();
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
    for (const CAlbumGroup *album : asset.albums())
        albums.push_back(albumReference(*album));
    return entry;
}

bool isShownBy(const Asset &asset, const std::vector<const CAlbumGroup *> &albums)
{
    return std::any_of(asset.begin(), asset.end(), [&](const Appearance &appearance) {
        return std::find(albums.begin(), albums.end(), appearance.album) != albums.end();
    });
}

std::vector<Asset> selectPhotos(const Library &library, const AssetList &assets,
                                const std::optional<std::string> &album)
{
    std::vector<const CAlbumGroup *> albums;
    if (album)
        albums = selectAlbums(library, *album);
    std::vector<Asset> selected;
    for (std::size_t i = 0; i < assets.size(); ++i)
        if (!album || isShownBy(assets[i], albums))
            selected.push_back(assets[i]);
    return selected;
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
        const CPhotoData photo = asset.facts();
        table.add(
            {photo.dateText.toStdString(), asset.path(),
             std::to_string(photo.width) + "x" + std::to_string(photo.height),
             readableSize(photo.fileSize), traitWords(photo),
             joined(asset.albums(), [](const CAlbumGroup *album) { return englishName(*album); })});
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

ExitStatus showPhotos(const PhotosRequest &request, std::ostream &out)
{
    const Library library(request.library);
    const AssetList assets(library.albums());
    const std::vector<Asset> photos = selectPhotos(library, assets, request.album);
    library.sayHowItWasRead();
    if (request.asJson)
        printPhotosAsJson(library, photos, out);
    else
        printPhotos(photos, out);
    return library.status();
}

} // namespace

Command addPhotos(CLI::App &app)
{
    const auto request = std::make_shared<PhotosRequest>();
    CLI::App *command =
        app.add_subcommand("photos", said("List the photos of a library, each once"));
    addLibraryOptions(*command, request->library);
    command->add_option("--album", request->album,
                        said("only the albums of this name, kind (such as selfies) or uuid"));
    command->add_flag("--json", request->asJson, said("print a JSON document"));
    command->footer(said("Examples:") +
                    "\n  iosphoto photos Photos.sqlite --album favorites\n"
                    "  iosphoto photos Photos.sqlite --album \"Summer 2019\" --json");
    return {command, [request](std::ostream &out) { return showPhotos(*request, out); }};
}

} // namespace iosphoto::tool
